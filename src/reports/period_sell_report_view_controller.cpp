#include "reports/period_sell_report_view_controller.h"

#include "core/localized.h"

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

QString displayOf(std::size_t chosen, bool isEmpty)
{
    return isEmpty ? localized("all") : QString::number(chosen) + u' ' + localized("selected");
}

} // namespace

PeriodSellReportViewController::PeriodSellReportViewController(AppDelegate& owner)
    : ReportViewController(owner)
{
    setStringPredicates();
}

void PeriodSellReportViewController::prepareData()
{
    setCurrentDate();
    mainView.setName(getNameForTabView());
}

QString PeriodSellReportViewController::getNameForTabView() const
{
    return localized("Report by Selling For Period.") + periodText();
}

void PeriodSellReportViewController::updateReport()
{
    progress.start();
    mainView.setRows(prepareReportData());
    mainView.setName(getNameForTabView());
    progress.stop();
}

PeriodSellReportRows PeriodSellReportViewController::prepareReportData()
{
    m_query.dateFrom = dateFrom.moment();
    m_query.dateTo = dateTo.moment();
    switch (mainView.reportTypeSelect.selectedTag()) {
    case 0:
        return readSalesByProductGroup(appDelegate.connector, m_query);
    case 1:
        return readSalesByContragent(appDelegate.connector, m_query);
    case 2:
        return readSalesByManager(appDelegate.connector, m_query, !mainView.managersGroupCheck.isOn());
    default:
        return {};
    }
}

void PeriodSellReportViewController::setStringPredicates()
{
    selectedContragentsDisplay.setText(
        displayOf(m_query.contragentIDs.size(), m_query.contragentIDs.empty()));
    selectedProductsDisplay.setText(
        displayOf(m_query.productIDs.size(), m_query.productIDs.empty() && m_query.productTypeIDs.empty()));
    selectedManagersDisplay.setText(
        displayOf(m_query.selectedManagers.size(), m_query.selectedManagers.empty()));
}

void PeriodSellReportViewController::clearContragentIDs()
{
    setContragentIDs({});
    setContragentTypeIDs({});
    setStringPredicates();
}

void PeriodSellReportViewController::clearProductIDs()
{
    setProductIDs({});
    setProductTypeIDs({});
    setStringPredicates();
}

void PeriodSellReportViewController::clearManagerIDs()
{
    setSelectedManagers({});
    setStringPredicates();
}

} // namespace zelvor
