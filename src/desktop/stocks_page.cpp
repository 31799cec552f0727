#include "desktop/stocks_page.h"

#include "catalogs/stock_view_controller.h"
#include "core/localized.h"
#include "desktop/stock_popover.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

StocksPage::StocksPage(StockViewController& controller, QWidget* parent)
    : ListCatalogPage(controller.view,
                      catalogOf(controller, u"addStockButton"_s, [&controller] { controller.addStock(); }),
                      controller.appDelegate.calendar, localized("No warehouses yet. Add the first one."),
                      parent)
{
    serve(new StockPopover(controller, this), controller.stockPopover);
}

} // namespace zelvor
