#include "reports/period_sell_report_view_controller.h"

#include "core/localized.h"
#include "reports/filter_popover.h"

namespace zelvor {

PeriodSellReportViewController::PeriodSellReportViewController(AppDelegate& owner)
    : ReportViewController(owner), contragentSelectView(owner), productsSelectView(owner),
      managerSelectView(owner)
{
    contragentSelectView.hideColumn(false);
    NotificationCenter& center = appDelegate.notifications;
    m_contragentsChanged =
        staleWhen(center, NotificationName::ContragentChangedNotification, contragentSelectView);
    m_productsChanged = staleWhen(center, NotificationName::ProductChangedNotification, productsSelectView);
    m_managersChanged = staleWhen(center, NotificationName::ManagerChangedNotification, managerSelectView);
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
    mainView.setPeriod(dateFrom.moment(), dateTo.moment());
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
        filterText(m_query.contragentIDs.size(), m_query.contragentIDs.empty()));
    selectedProductsDisplay.setText(
        filterText(m_query.productIDs.size(), m_query.productIDs.empty() && m_query.productTypeIDs.empty()));
    selectedManagersDisplay.setText(
        filterText(m_query.selectedManagers.size(), m_query.selectedManagers.empty()));
}

void PeriodSellReportViewController::selectContragent()
{
    contragentSelectView.contragentIDs = m_query.contragentIDs;
    contragentSelectView.contragentTypeIDs = m_query.contragentTypeIDs;
    openAsFilter(contragentSelectView, *this,
                 m_query.contragentIDs.empty() && m_query.contragentTypeIDs.empty());
}

void PeriodSellReportViewController::selectProduct()
{
    productsSelectView.productIDs = m_query.productIDs;
    productsSelectView.productTypeIDs = m_query.productTypeIDs;
    openAsFilter(productsSelectView, *this, m_query.productIDs.empty() && m_query.productTypeIDs.empty());
}

void PeriodSellReportViewController::selectManager()
{
    managerSelectView.selectedManagers = m_query.selectedManagers;
    openAsFilter(managerSelectView, *this, m_query.selectedManagers.empty());
}

void PeriodSellReportViewController::clearContragentIDs()
{
    setContragentIDs({});
    setContragentTypeIDs({});
    contragentSelectView.contragentIDs.clear();
    contragentSelectView.contragentTypeIDs.clear();
    contragentSelectView.selectAll();
    setStringPredicates();
}

void PeriodSellReportViewController::clearProductIDs()
{
    setProductIDs({});
    setProductTypeIDs({});
    productsSelectView.productIDs.clear();
    productsSelectView.productTypeIDs.clear();
    productsSelectView.selectAll();
    setStringPredicates();
}

void PeriodSellReportViewController::clearManagerIDs()
{
    setSelectedManagers({});
    managerSelectView.selectedManagers.clear();
    managerSelectView.selectAll();
    setStringPredicates();
}

} // namespace zelvor
