#pragma once

#include "core/outlets.h"
#include "reports/period_sell_report_rows.h"
#include "reports/report_view.h"

#include <vector>

namespace zelvor {

// The table of the period sell report, and the check boxes that collapse it.
class PeriodSellReportView final : public ReportView {
public:
    PeriodSellReportView();

    // 0 products, 1 customers, 2 managers.
    RadioGroup reportTypeSelect{QStringLiteral("reportTypeSelect")};
    CheckBox productsGroupCheck{QStringLiteral("productsGroupCheck")};
    CheckBox contragentsGroupCheck{QStringLiteral("contragentsGroupCheck")};
    CheckBox managersGroupCheck{QStringLiteral("managersGroupCheck")};

    // All rows as read; the top level of the tree with the grand total last; the list that is shown.
    const PeriodSellReportRows& rows() const { return m_rows; }
    const std::vector<PeriodSellReportRow*>& collapsedRows() const { return m_collapsedRows; }
    const std::vector<PeriodSellReportRow*>& reportRows() const { return m_reportRows; }

    // Builds the tree of rows in reading order with its sums and shows it.
    void setRows(PeriodSellReportRows rows);
    void reportTypeChanged();
    // Rebuilds the shown list by the check boxes; nothing is read again.
    void groupClicked();
    // For the print: the word of the report type, and those of the ticked check boxes.
    QString reportBy() const;
    QString groupedBy() const;

    std::vector<ViewColumn> columns() const override;
    int numberOfRows() const override { return static_cast<int>(m_reportRows.size()); }
    QVariant value(int row, const QString& identifier) const override;
    CellStyle cellStyle(int row, const QString& identifier) const override;
    void sort(const QString& key, bool ascending) override;

private:
    const PeriodSellReportRow* rowAt(int row) const;
    void placeRows();
    void addToGrandTotal(const PeriodSellReportRow& row);
    void openRows(const std::vector<PeriodSellReportRow*>& rows, bool calculateTotals);
    void clearRows();
    bool isCleared(const PeriodSellReportRow& row) const;
    void showRows(bool calculateTotals);

    PeriodSellReportRows m_rows;
    SellReportSubject m_grandTotalSubject;
    TotalRowForPeriodSell m_grandTotal;
    std::vector<PeriodSellReportRow*> m_collapsedRows;
    std::vector<PeriodSellReportRow*> m_reportRows;
};

} // namespace zelvor
