#pragma once

#include "desktop/list_catalog_page.h"

namespace zelvor {

class MeasurementViewController;

// The units catalog with its popover.
class MeasurementsPage : public ListCatalogPage {
    Q_OBJECT

public:
    explicit MeasurementsPage(MeasurementViewController& controller, QWidget* parent = nullptr);
};

} // namespace zelvor
