#pragma once

#include "catalogs/expend_select_view.h"
#include "reports/chart_view.h"
#include "reports/expend_report_view.h"
#include "reports/report_view_controller.h"

namespace zelvor {

// What was spent in a period, by spending and by group of spendings, constant and variable spendings apart. A
// filter is a list of ids; an empty one lets everything through.
class ExpendReportViewController final : public ReportViewController, public ExpendIDsReceiver {
public:
    explicit ExpendReportViewController(AppDelegate& owner);

    ExpendReportView mainView;
    ExpendSelectView expendSelectView;
    Label selectedExpends{QStringLiteral("selectedExpends")};
    CheckBox groupCheck{QStringLiteral("groupCheck")}; // on: the documents are hidden
    ChartView chartView;
    Popover chartPopover{QStringLiteral("chartPopover")};

    void prepareData() override;
    void updateReport() override;
    QString getNameForTabView() const override;
    // The check box changed: the shown rows anew, without a query.
    void groupClicked();
    // The shares of what stands at the top of the tree, in the popover.
    void showChart();

    // The top of the tree, the footer last.
    const ExpendReportRow::Children& dataRows() const { return m_dataRows; }

    void setExpendIDs(const std::vector<qint64>& ids) override { m_expendIDs = ids; }
    void setExpendTypeIDs(const std::vector<qint64>& ids) override { m_expendTypeIDs = ids; }
    void setSelectedExpends(const QString& label) override { selectedExpends.setText(label); }
    // Opens the popover of the filter with its ticks; an empty filter has everything ticked.
    void selectExpends();
    void clearExpends();

private:
    struct Tree;

    void openRows(const ExpendReportRow::Children& rows, ExpendReportRow::Children& opened) const;
    bool placeDocuments(Tree& tree);

    std::vector<qint64> m_expendIDs;
    std::vector<qint64> m_expendTypeIDs;
    ExpendReportRow::Children m_dataRows;
    NotificationCenter::Observation m_expendsChanged;
    NotificationCenter::Observation m_documentsChanged;
};

} // namespace zelvor
