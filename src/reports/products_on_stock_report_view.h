#pragma once

#include "reports/report_stock_row.h"
#include "reports/report_view.h"

#include <QtCore/QStringList>

#include <memory>
#include <vector>

namespace zelvor {

class AppDelegate;

// The table of the products on warehouses report. It has no header: its first row holds the titles. The
// columns follow the warehouses that hold anything; a warehouse's cell has three figures, the total's two.
class ProductsOnStockReportView final : public ReportView {
public:
    using Rows = std::vector<std::shared_ptr<ReportStockRow>>;

    ProductsOnStockReportView();

    // All rows as read; the top level of the tree, the titles first and the grand total last; the list that
    // is shown.
    const Rows& rows() const { return m_rows; }
    const Rows& collapsedRows() const { return m_collapsedRows; }
    const Rows& reportRows() const { return m_reportRows; }

    // Builds the tree of rows in reading order with its sums and shows it.
    void setRows(Rows rows);
    // The warehouses shown.
    const std::vector<StockData>& stocks() const;
    QStringList stockNames() const;
    // The moment that the figures are of.
    qint64 date() const { return finish(); }

    // Whether the report goes on paper; told in an alert when it does not.
    bool canPrint(AppDelegate& appDelegate) const;
    // Two warehouses need the long side of the sheet.
    bool isLandscape() const { return stocks().size() == maxPrintedStocks; }

    // Points; 0 for a column that is none of the table's. The name may be wider, all others are fixed.
    static int columnWidth(const QString& identifier);

    std::vector<ViewColumn> columns() const override;
    int numberOfRows() const override { return static_cast<int>(m_reportRows.size()); }
    QVariant value(int row, const QString& identifier) const override;
    CellStyle cellStyle(int row, const QString& identifier) const override;

private:
    static constexpr std::size_t maxPrintedStocks = 2;

    const ReportStockRow* rowAt(int row) const;
    void placeRows();
    void openRows(const Rows& rows);
    void checkEmptyStocks();

    Rows m_rows;
    Rows m_collapsedRows;
    Rows m_reportRows;
};

} // namespace zelvor
