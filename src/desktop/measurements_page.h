#pragma once

#include "desktop/list_page.h"

namespace zelvor {

class MeasurementViewController;

// The units catalog with its popover.
class MeasurementsPage : public TablePage {
    Q_OBJECT

public:
    explicit MeasurementsPage(MeasurementViewController& controller, QWidget* parent = nullptr);

private:
    MeasurementViewController& m_controller;
};

} // namespace zelvor
