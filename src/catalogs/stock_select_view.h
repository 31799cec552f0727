#pragma once

#include "catalogs/list_select_view.h"
#include "catalogs/stock.h"

namespace zelvor {

// The popover that filters by warehouses.
class StockSelectView : public ListSelectView<Stock> {
public:
    explicit StockSelectView(AppDelegate& owner) : ListSelectView(owner) {}

    IDs selectedStocks; // ids of the ticked records

    const Records& stocks() const { return records(); }

protected:
    IDs& selectedIDs() override { return selectedStocks; }
    bool handOver(const IDs& ids) override;
};

} // namespace zelvor
