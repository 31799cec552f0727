#pragma once

#include "core/table_model.h"
#include "reports/stock_data.h"

#include <memory>
#include <vector>

namespace zelvor {

// A row of the products on warehouses report, a tree by `parentID`: a group or a product, the grand total, or
// the row of titles that heads the table. All rows of a report have the same warehouses in the same order.
class ReportStockRow : public TableModelWithNumbers, public std::enable_shared_from_this<ReportStockRow> {
public:
    QString type; // "title", "group", "product" or "total"
    bool folder = false;
    qint64 parentID = 0; // id of a group, 0 for a top-level row
    std::weak_ptr<ReportStockRow> parent;
    std::vector<std::shared_ptr<ReportStockRow>> children; // by name
    QString name;
    QString unit;      // short form of the base unit
    Decimal innerCost; // base cost of a product
    double cost() const { return innerCost.toDouble(); }
    void setCost(double value) { innerCost = Decimal::fromDouble(value, decimalHandler); }
    int indent = 0; // blanks in front of the name
    std::vector<StockData> stocks;

    bool isTitle() const { return type == u"title"; }
    bool isProduct() const { return type == u"product"; }
    bool isTotal() const { return type == u"total"; }
    QString indentedName() const { return QString(indent, u' ') + name; }
    Decimal amountTotal() const;
    Decimal sumTotal() const;

    // Takes the row in below this one, six blanks further in, and adds its figures here and above. A row
    // that holds this one is not taken in, and the answer is false: a damaged file can have groups that lead
    // in circles.
    bool setChild(const std::shared_ptr<ReportStockRow>& child);
    // Adds the row's figures, warehouse by warehouse, to this row and every one above it.
    void appendData(const ReportStockRow& row);
    // The row's own warehouses as the reader found them, with figures of 0.
    std::vector<StockData> emptyStocks() const;

    // A cell of the table: "name", "units", "cost", "stock_" with the place of the warehouse, "total". A cell
    // of several figures is one text; who needs the figures themselves reads `stocks`.
    QVariant valueForIdentifier(QStringView identifier) const override;

private:
    void addFigures(const ReportStockRow& row);
    bool isWithin(const ReportStockRow& other) const;
    QVariant titleCell(QStringView identifier) const;
    const StockData* stockOf(QStringView identifier) const;
};

} // namespace zelvor
