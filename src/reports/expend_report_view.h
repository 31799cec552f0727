#pragma once

#include "reports/expend_report_row.h"
#include "reports/report_view.h"

namespace zelvor {

class ExpendReportViewController;

// The table of the spendings report: the rows that are shown, depth first.
class ExpendReportView final : public ReportView {
public:
    explicit ExpendReportView(ExpendReportViewController& owner);

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

    ExpendReportViewController& m_controller;
    ExpendReportRow::Children m_rows;
};

} // namespace zelvor
