#pragma once

#include "reports/graph_view.h"
#include "reports/report_view_controller.h"

namespace zelvor {

// Income, spendings, selling and margin month by month, as a table and as a graph. The months are whole,
// wherever in them the dates lie; one without any figure is left out.
class DynamicsReportViewController final : public ReportViewController {
public:
    explicit DynamicsReportViewController(AppDelegate& owner);

    CheckBox realizationCheck{QStringLiteral("realizationCheck")};
    CheckBox marginCheck{QStringLiteral("marginCheck")};
    CheckBox expensesCheck{QStringLiteral("expensesCheck")};
    CheckBox incomeCheck{QStringLiteral("incomeCheck")};
    GraphView graphView;
    DynamicsReportView view;

    using Rows = std::vector<std::shared_ptr<DynamicsReportRow>>;
    const std::vector<MonthPeriod>& dates() const { return m_dates; }
    const Rows& allRows() const { return m_allRows; }
    const DynamicsReportView::Rows& reportRows() const { return m_reportRows; }

    void prepareData() override { setCurrentDate(); }
    void updateReport() override;
    QString getNameForTabView() const override;
    // A check box changed: the shown rows anew, without a query.
    void changeRows();

private:
    void prepareReportData();
    void clearEmptyPeriods();
    void removeIndexies(const std::vector<std::size_t>& indexies);
    void checkRows();

    std::vector<MonthPeriod> m_dates;
    Rows m_allRows;
    DynamicsReportView::Rows m_reportRows;
};

} // namespace zelvor
