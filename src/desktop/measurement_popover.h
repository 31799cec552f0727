#pragma once

#include "desktop/catalog_popover.h"

namespace zelvor {

class MeasurementViewController;

// The form of one unit. A document's product form has its own controller of units, so there may be several.
class MeasurementPopover : public CatalogPopover {
    Q_OBJECT

public:
    MeasurementPopover(MeasurementViewController& controller, QWidget* host);

    MeasurementViewController& controller() const { return m_controller; }

private:
    MeasurementViewController& m_controller;
};

} // namespace zelvor
