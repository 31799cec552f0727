#include "desktop/measurements_page.h"

#include "catalogs/measurement_view_controller.h"
#include "core/localized.h"

namespace zelvor {

MeasurementsPage::MeasurementsPage(MeasurementViewController& controller, QWidget* parent)
    : TablePage(controller.view, controller.appDelegate.calendar,
                localized("No units yet. Add the first one."), parent),
      m_controller(controller)
{}

} // namespace zelvor
