#pragma once

#include "reports/dynamics_months.h"
#include "reports/dynamics_report_row.h"
#include "reports/report_view.h"

#include <memory>

namespace zelvor {

class GraphView;

// The table of the dynamics report: a column for each month and, from the second month on, one for the change
// against the month before.
class DynamicsReportView final : public ReportView {
public:
    // The graph is the report's other picture of the same figures; a print takes its colours.
    DynamicsReportView(const Calendar& calendar, const GraphView& graph);

    using Rows = std::vector<std::shared_ptr<const DynamicsReportRow>>;
    const std::vector<MonthPeriod>& dates() const { return m_dates; }
    const Rows& reportRows() const { return m_reportRows; }
    const GraphView& graph() const { return m_graph; }
    void setRows(std::vector<MonthPeriod> dates, Rows reportRows);
    // "1.2024"
    QString monthTitle(const MonthPeriod& month) const;

    std::vector<ViewColumn> columns() const override;
    int numberOfRows() const override { return static_cast<int>(m_reportRows.size()); }
    QVariant value(int row, const QString& identifier) const override;
    CellStyle cellStyle(int row, const QString& identifier) const override;

private:
    const Calendar& m_calendar;
    const GraphView& m_graph;
    std::vector<MonthPeriod> m_dates;
    Rows m_reportRows;
};

} // namespace zelvor
