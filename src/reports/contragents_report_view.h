#pragma once

#include "reports/contragents_report_row.h"
#include "reports/report_view.h"
#include "store/app_delegate.h"

#include <vector>

namespace zelvor {

// The table of the counterparties report: the rows that its controller opened, which it keeps alive.
class ContragentsReportView final : public ReportView {
public:
    explicit ContragentsReportView(AppDelegate& owner);

    const std::vector<const ContragentsReportRow*>& rows() const;
    // "All Counterparties" or "Selected Counterparties", as the rows were computed; for the print.
    const QString& target() const;
    void setTarget(QString target) { m_target = std::move(target); }
    // Shows the rows; the selection stays on its counterparty. The rows shown before must still live.
    void setRows(std::vector<const ContragentsReportRow*> rows);
    // Opens the statement of the row's counterparty for the period of the report.
    void openContragentReport(int row);

    std::vector<ViewColumn> columns() const override;
    int numberOfRows() const override { return static_cast<int>(rows().size()); }
    QVariant value(int row, const QString& identifier) const override;
    CellStyle cellStyle(int row, const QString& identifier) const override;
    void doubleAction(int row) override { openContragentReport(row); }

private:
    const ContragentsReportRow* rowAt(int row) const;

    AppDelegate& m_appDelegate;
    std::vector<const ContragentsReportRow*> m_rows;
    QString m_target;
};

} // namespace zelvor
