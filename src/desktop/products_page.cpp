#include "desktop/products_page.h"

#include "catalogs/product_view_controller.h"
#include "core/localized.h"
#include "desktop/product_group_popover.h"
#include "desktop/product_popover.h"

namespace zelvor {

ProductsPage::ProductsPage(ProductViewController& controller, QWidget* parent)
    : TreeCatalogPage(controller.view, controller.addProductButton, controller.appDelegate.calendar,
                      localized("No products yet. Add the first one, or import a list."), parent)
{
    const auto edited = [&controller] { return editedNode(controller); };
    serve(new ProductPopover(controller, this), controller.productPopover, edited);
    serve(new ProductGroupPopover(controller, this), controller.productGroupPopover, edited,
          [&controller] { return controller.addingFromPopover; });
}

} // namespace zelvor
