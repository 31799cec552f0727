#pragma once

#include "reports/report_stock_row.h"
#include "store/connector.h"

#include <memory>
#include <vector>

namespace zelvor {

// What the products on warehouses report is asked for. An empty list of ids lets everything through.
struct ProductsOnStockQuery {
    qint64 start = 0; // of the report period; its snapshot is what the amounts begin with
    qint64 date = 0;  // documents count between the two moments, neither of them included
    std::vector<qint64> productTypeIDs;
    std::vector<qint64> productIDs;
    std::vector<qint64> selectedStocks;
};

// The groups, in the order of their table, then the products by name of which some warehouse has more than
// nothing; not yet a tree. The snapshot, the documents and their rows are read once, whatever the number of
// products and warehouses.
std::vector<std::shared_ptr<ReportStockRow>> readProductsOnStock(Connector& connector,
                                                                 const ProductsOnStockQuery& query);

} // namespace zelvor
