#include "desktop/function_popover.h"

#include "catalogs/function_view_controller.h"

namespace zelvor {

FunctionPopover::FunctionPopover(FunctionViewController& controller, QWidget* host)
    : CatalogPopover(controller.functionPopover, host, [&controller] { controller.cancelFunctionPopover(); })
{
    setTitle(controller.functionPopoverTitle);
    QLineEdit* const name = addText(controller.functionName, {localized("Name"), localized("Function Name")});
    addNumber(controller.functionSalary, {localized("Salary"), localized("Function Salary")});
    finish(name, controller.functionWarning, controller.okButton);
}

} // namespace zelvor
