#pragma once

#include "catalogs/product_select_view.h"
#include "catalogs/stock_select_view.h"
#include "core/outlets.h"
#include "reports/products_on_stock_reader.h"
#include "reports/products_on_stock_report_view.h"
#include "store/model_controller.h"

#include <optional>
#include <vector>

namespace zelvor {

// How much of each product lay in each warehouse on a day, and what it is worth at base cost: worked out from
// the snapshot of the report period and the confirmed documents since. A filter is a list of ids; an empty
// one lets everything through, hidden records too.
class ProductsOnStockReportViewController final : public ModelViewController,
                                                  public ProductIDsReceiver,
                                                  public SelectedStocksReceiver {
public:
    explicit ProductsOnStockReportViewController(AppDelegate& owner);

    ProductsOnStockReportView mainView;
    // What stands in the picker is the end, exclusive, of what counts. A day that the user picks becomes its
    // last second, or now when it is today.
    DatePicker date{QStringLiteral("date")};
    Label selectedProductsDisplay{QStringLiteral("selectedProductsDisplay")};
    Label selectedStocksDisplay{QStringLiteral("selectedStocksDisplay")};
    Progress progress{QStringLiteral("progress")};

    ProductSelectView productsSelectView;
    StockSelectView stockSelectView;

    void prepareData() override;
    // Now.
    void setCurrentDate();
    void prepareReport() { updateReport(); }
    void updateReport();
    QString getNameForTabView() const;

    void setProductIDs(const std::vector<qint64>& ids) override { m_query.productIDs = ids; }
    void setProductTypeIDs(const std::vector<qint64>& ids) override { m_query.productTypeIDs = ids; }
    void setSelectedStocks(const std::vector<qint64>& ids) override { m_query.selectedStocks = ids; }
    // Tells the filters in the display fields.
    void setStringPredicates() override;
    // Open the popover of a filter with the ticks of the filter; an empty one has everything ticked.
    void selectProduct();
    void selectStock();
    void clearProductIDs();
    void clearStocksIDs();
    // A warehouse was written: the popover shows it.
    void changeStocks() { stockSelectView.markStale(); }

private:
    void dayPicked();
    void keepUpWithNow();
    ProductsOnStockReportView::Rows prepareReportData();

    ProductsOnStockQuery m_query;
    std::optional<qint64> m_shownNow; // the present moment that the picker was given, when it was
    NotificationCenter::Observation m_stocksChanged;
    NotificationCenter::Observation m_productsChanged;
};

} // namespace zelvor
