#pragma once

#include "reports/expend_report_row.h"
#include "reports/report_view.h"
#include "store/app_delegate.h"

namespace zelvor {

// The table of the spendings report: the rows that are shown, depth first.
class ExpendReportView final : public ReportView {
public:
    explicit ExpendReportView(AppDelegate& owner);

    // Computes a report that a document made out of date.
    const ExpendReportRow::Children& rows() const;
    void setRows(ExpendReportRow::Children rows);
    // Opens the document of the row in a tab; any other row does nothing.
    void openDocument(int row);

    std::vector<ViewColumn> columns() const override;
    int numberOfRows() const override { return static_cast<int>(rows().size()); }
    QVariant value(int row, const QString& identifier) const override;
    CellStyle cellStyle(int row, const QString& identifier) const override;
    void doubleAction(int row) override { openDocument(row); }

private:
    const ExpendReportRow* rowAt(int row) const;

    AppDelegate& m_appDelegate;
    ExpendReportRow::Children m_rows;
};

} // namespace zelvor
