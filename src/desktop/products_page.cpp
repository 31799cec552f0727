#include "desktop/products_page.h"

#include "catalogs/product_view_controller.h"
#include "core/localized.h"

namespace zelvor {

ProductsPage::ProductsPage(ProductViewController& controller, QWidget* parent)
    : TreePage(controller.view, controller.appDelegate.calendar,
               localized("No products yet. Add the first one, or import a list."), parent),
      m_controller(controller)
{}

} // namespace zelvor
