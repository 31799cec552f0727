#include "desktop/shared_popovers.h"

#include "catalogs/function_view_controller.h"
#include "catalogs/manager_view_controller.h"
#include "catalogs/measurement_view_controller.h"
#include "desktop/function_popover.h"
#include "desktop/manager_popover.h"
#include "desktop/measurement_popover.h"
#include "shell/main_view_controller.h"

namespace zelvor {

void makeSharedPopovers(MainViewController& workspace, QWidget* window)
{
    new MeasurementPopover(*workspace.measurementController, window);
    new ManagerPopover(*workspace.managerController, window);
    new FunctionPopover(*workspace.functionController, window);
}

} // namespace zelvor
