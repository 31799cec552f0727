#include "desktop/stocks_page.h"

#include "catalogs/stock_view_controller.h"
#include "core/localized.h"

namespace zelvor {

StocksPage::StocksPage(StockViewController& controller, QWidget* parent)
    : TablePage(controller.view, controller.appDelegate.calendar,
                localized("No warehouses yet. Add the first one."), parent),
      m_controller(controller)
{}

} // namespace zelvor
