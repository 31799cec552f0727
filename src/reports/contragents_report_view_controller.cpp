#include "reports/contragents_report_view_controller.h"

#include "core/localized.h"
#include "reports/filter_popover.h"

#include <utility>

namespace zelvor {

ContragentsReportViewController::ContragentsReportViewController(AppDelegate& owner)
    : ReportViewController(owner), mainView(owner), contragentSelectView(owner)
{
    contragentSelectView.hideColumn(false);
    groupCheck.onUserChange = [this] { groupClicked(); };
    mainView.computeAgain = [this] { prepareReport(); };
    m_contragentsChanged = staleWhen(appDelegate.notifications,
                                     NotificationName::ContragentChangedNotification, contragentSelectView);
    m_documentConfirmed = staleWhen(appDelegate.notifications,
                                    NotificationName::DocWithContragentChangedNotification, mainView);
    setStringPredicates();
}

void ContragentsReportViewController::prepareData()
{
    setCurrentDate();
    mainView.setName(getNameForTabView());
}

bool ContragentsReportViewController::hasFilter() const
{
    return !m_query.contragentIDs.empty() || !m_query.contragentTypeIDs.empty();
}

QString ContragentsReportViewController::getNameForTabView() const
{
    return (hasFilter() ? localized("Report by Selected Counterparties.")
                        : localized("Report by All Counterparties.")) +
           periodText();
}

void ContragentsReportViewController::updateReport()
{
    progress.start();
    m_query.dateFrom = dateFrom.moment();
    m_query.dateTo = dateTo.moment();
    mainView.setPeriod(m_query.dateFrom, m_query.dateTo);
    mainView.setTarget(selectedContragents.text());
    // The old rows live until the view has let them go.
    const ContragentsReportRows old =
        std::exchange(m_dataRows, readContragentsReport(appDelegate.connector, m_query));
    showRows();
    mainView.setName(getNameForTabView());
    progress.stop();
}

void ContragentsReportViewController::openRows(const std::vector<ContragentsReportRow*>& rows,
                                               std::vector<const ContragentsReportRow*>& openedRows) const
{
    for (const ContragentsReportRow* row : rows) {
        const bool isCollapsed = groupCheck.isOn() && !row->groupRow;
        if ((row->full() || row->footer) && !isCollapsed)
            openedRows.push_back(row);
        openRows(row->children, openedRows);
    }
}

void ContragentsReportViewController::showRows()
{
    std::vector<const ContragentsReportRow*> openedRows;
    openRows(m_dataRows.topLevel, openedRows);
    mainView.setRows(std::move(openedRows));
}

void ContragentsReportViewController::groupClicked()
{
    showRows();
}

void ContragentsReportViewController::setStringPredicates()
{
    selectedContragents.setText(m_query.contragentIDs.empty() ? localized("All Counterparties")
                                                              : localized("Selected Counterparties"));
}

void ContragentsReportViewController::selectContragent()
{
    contragentSelectView.contragentIDs = m_query.contragentIDs;
    contragentSelectView.contragentTypeIDs = m_query.contragentTypeIDs;
    openAsFilter(contragentSelectView, *this, !hasFilter());
}

void ContragentsReportViewController::clearContragentIDs()
{
    m_query.contragentIDs.clear();
    m_query.contragentTypeIDs.clear();
    contragentSelectView.contragentIDs.clear();
    contragentSelectView.contragentTypeIDs.clear();
    contragentSelectView.selectAll();
    setStringPredicates();
}

} // namespace zelvor
