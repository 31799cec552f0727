#include "desktop/measurement_popover.h"

#include "catalogs/measurement_view_controller.h"

namespace zelvor {

MeasurementPopover::MeasurementPopover(MeasurementViewController& controller, QWidget* host)
    : CatalogPopover(controller.measurementPopover, host,
                     [&controller] { controller.cancelMeasurementPopover(); }),
      m_controller(controller)
{
    setTitle(controller.measurementPopoverTitle);
    QLineEdit* const name = addText(controller.measurementName, {localized("Name"), localized("Unit Name")});
    addText(controller.measurementShortName, {localized("Short Name"), localized("Unit Short Name")});
    finish(name, controller.measurementWarning, controller.okButton);
}

} // namespace zelvor
