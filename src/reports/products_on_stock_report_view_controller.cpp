#include "reports/products_on_stock_report_view_controller.h"

#include "core/formats.h"
#include "core/localized.h"
#include "reports/filter_popover.h"

namespace zelvor {

ProductsOnStockReportViewController::ProductsOnStockReportViewController(AppDelegate& owner)
    : ModelViewController(owner), productsSelectView(owner), stockSelectView(owner)
{
    date.onUserChange = [this] { dayPicked(); };
    NotificationCenter& center = appDelegate.notifications;
    m_stocksChanged = center.observe(NotificationName::StockChangedNotification,
                                     [this](const Notification&) { changeStocks(); });
    m_productsChanged = staleWhen(center, NotificationName::ProductChangedNotification, productsSelectView);
    setCurrentDate();
    setStringPredicates();
}

void ProductsOnStockReportViewController::prepareData()
{
    setCurrentDate();
    mainView.setName(getNameForTabView());
}

void ProductsOnStockReportViewController::setCurrentDate()
{
    date.setMoment(appDelegate.now());
    m_shownNow = date.moment();
}

void ProductsOnStockReportViewController::dayPicked()
{
    const Calendar& calendar = appDelegate.calendar;
    const DayComponents day = calendar.components(date.moment());
    if (day == calendar.components(appDelegate.now())) {
        setCurrentDate();
        return;
    }
    date.setMoment(calendar.startOfDay({day.year, day.month, day.day + 1}) - 1);
    m_shownNow.reset();
}

// Today's goods are those of the moment they are asked for, however long the page stood open.
void ProductsOnStockReportViewController::keepUpWithNow()
{
    if (m_shownNow == date.moment())
        dayPicked();
}

QString ProductsOnStockReportViewController::getNameForTabView() const
{
    return localized("Products On Warehouses Report. On date:") +
           shortDateText(appDelegate.calendar.dateTime(date.moment()), QLocale());
}

void ProductsOnStockReportViewController::updateReport()
{
    progress.start();
    keepUpWithNow();
    ProductsOnStockReportView::Rows rows = prepareReportData();
    mainView.setPeriod(m_query.start, m_query.date);
    mainView.setRows(std::move(rows));
    mainView.setName(getNameForTabView());
    progress.stop();
}

ProductsOnStockReportView::Rows ProductsOnStockReportViewController::prepareReportData()
{
    m_query.date = date.moment();
    m_query.start = m_query.date;
    const std::shared_ptr<Params> params = appDelegate.params();
    if (!params)
        return {};
    m_query.start = getStartPeriodDateFromDate(m_query.date, *params);
    return readProductsOnStock(appDelegate.connector, m_query);
}

void ProductsOnStockReportViewController::setStringPredicates()
{
    selectedProductsDisplay.setText(
        filterText(m_query.productIDs.size(), m_query.productIDs.empty() && m_query.productTypeIDs.empty()));
    selectedStocksDisplay.setText(filterText(m_query.selectedStocks.size(), m_query.selectedStocks.empty()));
}

void ProductsOnStockReportViewController::selectProduct()
{
    productsSelectView.productIDs = m_query.productIDs;
    productsSelectView.productTypeIDs = m_query.productTypeIDs;
    openAsFilter(productsSelectView, *this, m_query.productIDs.empty() && m_query.productTypeIDs.empty());
}

void ProductsOnStockReportViewController::selectStock()
{
    stockSelectView.selectedStocks = m_query.selectedStocks;
    openAsFilter(stockSelectView, *this, m_query.selectedStocks.empty());
}

void ProductsOnStockReportViewController::clearProductIDs()
{
    setProductIDs({});
    setProductTypeIDs({});
    productsSelectView.productIDs.clear();
    productsSelectView.productTypeIDs.clear();
    productsSelectView.selectAll();
    setStringPredicates();
}

void ProductsOnStockReportViewController::clearStocksIDs()
{
    setSelectedStocks({});
    stockSelectView.selectedStocks.clear();
    stockSelectView.selectAll();
    setStringPredicates();
}

} // namespace zelvor
