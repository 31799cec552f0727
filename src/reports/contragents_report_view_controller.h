#pragma once

#include "catalogs/contragent_select_view.h"
#include "reports/contragents_report_reader.h"
#include "reports/contragents_report_view.h"
#include "reports/report_view_controller.h"

namespace zelvor {

// What every counterparty owed at the start of a period, what was added and taken off, and what it owes at
// the end. A filter is a list of ids; an empty one lets everything through.
class ContragentsReportViewController final : public ReportViewController, public ContragentIDsReceiver {
public:
    explicit ContragentsReportViewController(AppDelegate& owner);

    ContragentsReportView mainView;
    Label selectedContragents{QStringLiteral("selectedContragents")};
    CheckBox groupCheck{QStringLiteral("groupCheck")};
    ContragentSelectView contragentSelectView;

    void prepareData() override;
    void updateReport() override;
    QString getNameForTabView() const override;
    // Opens the rows again, groups and footers alone while the box is ticked; nothing is read.
    void groupClicked();

    void setContragentIDs(const std::vector<qint64>& ids) override { m_query.contragentIDs = ids; }
    void setContragentTypeIDs(const std::vector<qint64>& ids) override { m_query.contragentTypeIDs = ids; }
    // Tells in the display field whether counterparties were chosen; groups alone make no choice.
    void setStringPredicates() override;
    // Opens the popover with the ticks of the filter; an empty filter has everything ticked.
    void selectContragent();
    void clearContragentIDs();

private:
    bool hasFilter() const;
    void openRows(const std::vector<ContragentsReportRow*>& rows,
                  std::vector<const ContragentsReportRow*>& openedRows) const;
    void showRows();

    ContragentsReportQuery m_query;
    ContragentsReportRows m_dataRows;
    NotificationCenter::Observation m_contragentsChanged;
    NotificationCenter::Observation m_documentConfirmed;
};

} // namespace zelvor
