#include "catalogs/stock_select_view.h"

namespace zelvor {

bool StockSelectView::handOver(const IDs& ids)
{
    auto* const receiver = dynamic_cast<SelectedStocksReceiver*>(sender);
    if (!receiver)
        return false;
    receiver->setSelectedStocks(ids);
    return true;
}

} // namespace zelvor
