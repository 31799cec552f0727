#include "desktop/measurements_page.h"

#include "catalogs/measurement_view_controller.h"
#include "core/localized.h"
#include "desktop/measurement_popover.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

MeasurementsPage::MeasurementsPage(MeasurementViewController& controller, QWidget* parent)
    : ListCatalogPage(
          controller.view,
          catalogOf(controller, u"addMeasurementButton"_s, [&controller] { controller.addMeasurement(); }),
          controller.appDelegate.calendar, localized("No units yet. Add the first one."), parent)
{
    // The window has one form of units, which other pages open too.
    for (auto* const form : window()->findChildren<MeasurementPopover*>()) {
        if (&form->controller() == &controller)
            serve(form, controller.measurementPopover);
    }
}

} // namespace zelvor
