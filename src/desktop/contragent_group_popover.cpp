#include "desktop/contragent_group_popover.h"

#include "catalogs/contragent_view_controller.h"

namespace zelvor {

ContragentGroupPopover::ContragentGroupPopover(ContragentViewController& controller, QWidget* host)
    : CatalogPopover(controller.contragentGroupPopover, host,
                     [&controller] { controller.cancelContragentGroupPopover(); })
{
    setTitle(controller.contragentGroupPopoverName);
    QLineEdit* const name =
        addText(controller.contragentGroupName, {localized("Name"), localized("Group Name")});
    addChooser(controller.contragentGroupGroupSelect, {localized("Within"), localized("Parent Group")});
    finish(name, controller.contragentGroupError, controller.contragentGroupOkButton);
}

} // namespace zelvor
