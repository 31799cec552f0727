#include "desktop/product_group_popover.h"

#include "catalogs/product_view_controller.h"

namespace zelvor {

ProductGroupPopover::ProductGroupPopover(ProductViewController& controller, QWidget* host)
    : CatalogPopover(controller.productGroupPopover, host,
                     [&controller] { controller.cancelProductGroupPopover(); })
{
    setTitle(controller.productGroupPopoverName);
    QLineEdit* const name =
        addText(controller.productGroupName, {localized("Name"), localized("Group Name")});
    addChooser(controller.productGroupGroupSelect, {localized("Within"), localized("Parent Group")});
    addLines(controller.productGroupDescription, {localized("Description"), localized("Group Description")});
    finish(name, controller.productGroupError, controller.productGroupOkButton);
}

} // namespace zelvor
