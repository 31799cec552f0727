#include "desktop/manager_popover.h"

#include "catalogs/manager_view_controller.h"
#include "core/localized_as.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

ManagerPopover::ManagerPopover(ManagerViewController& controller, QWidget* host)
    : CatalogPopover(controller.managerPopover, host, [&controller] { controller.cancelManagerPopover(); })
{
    setTitle(controller.managerPopoverTitle);
    QLineEdit* const name =
        addText(controller.managerName, {localizedAs("Name", "person"), localized("Employee Name")});
    addChooser(controller.managerFunctionSelect, {localized("Function"), localized("Employee Function")},
               {u"addFunctionFromManager"_s, localized("Add a Function"),
                [&controller] { controller.addFunction(); }});
    addLocked(controller.managerBalance, controller.managerBalanceOpenButton,
              {localized("Balance"), localized("Employee Balance")},
              localized("Lock of the Employee Balance"));
    finish(name, controller.managerWarning, controller.okButton);
}

} // namespace zelvor
