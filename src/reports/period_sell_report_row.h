#pragma once

#include "core/table_model.h"

#include <vector>

namespace zelvor {

// A row of the period sell report, a tree by `parentID`. The rows of a report belong to the report's view;
// they refer to each other without owning.
class PeriodSellReportRow : public TableModelWithNumbers {
public:
    static constexpr RoundingHandler percentDecimalHandler = percentHandler;

    qint64 parentID = 0; // 0 for a top-level row
    QString rowType;     // "productGroup", "product", "contragent", "manager" or "total"
    QString name;
    QString unit;        // short form of a product's base unit
    Decimal innerAmount; // sold, base units
    double amount() const { return innerAmount.toDouble(); }
    void setAmount(double value) { innerAmount = Decimal::fromDouble(value, decimalHandler); }
    Decimal innerPackAmount; // base units in a pack
    double packAmount() const { return innerPackAmount.toDouble(); }
    void setPackAmount(double value) { innerPackAmount = Decimal::fromDouble(value, decimalHandler); }
    Decimal innerBaseSum; // at base cost, currency of the project
    double baseSum() const { return innerBaseSum.toDouble(); }
    void setBaseSum(double value) { innerBaseSum = Decimal::fromDouble(value, decimalHandler); }
    Decimal innerPriceSum; // at selling price, currency of the project
    double priceSum() const { return innerPriceSum.toDouble(); }
    void setPriceSum(double value) { innerPriceSum = Decimal::fromDouble(value, decimalHandler); }
    int indent = 0; // blanks
    PeriodSellReportRow* parent = nullptr;

    bool isProduct() const { return rowType == u"product"; }
    // Packs sold; 0 for a product without a pack.
    virtual Decimal innerPacks() const;
    double packs() const { return innerPacks().toDouble(); }
    Decimal innerProfit() const { return innerPriceSum.minus(innerBaseSum, decimalHandler); }
    double profit() const { return innerProfit().toDouble(); }
    // Profit to cost, a fraction; 1 when nothing was paid for the goods.
    double percent() const;
    QString indentStr() const { return QString(indent + 1, u' '); }

    // Takes the row in below this one, three blanks further in.
    void setChild(PeriodSellReportRow& child);
    // The rows below: by name, until they were sorted otherwise.
    const std::vector<PeriodSellReportRow*>& children() const;
    // Adds the row's sums to every row above this one, as far as they gather sums.
    void appendDataToParent(const PeriodSellReportRow& row);
    // Sorts the rows below and everything under them; see sortRows.
    void sortByField(const QString& key, bool ascending);
    QVariant valueForIdentifier(QStringView identifier) const override;

private:
    // Adds the row's sums and those packs; false for a row that gathers nothing.
    virtual bool addData(const PeriodSellReportRow&, const Decimal&) { return false; }

    mutable std::vector<PeriodSellReportRow*> m_children;
    mutable bool m_childrenInOrder = true;
};

// Sorts by "name", "amount", "base", "price", "profit" or "percent"; equal rows keep their order, and so do
// all with another key.
void sortRows(std::vector<PeriodSellReportRow*>& rows, const QString& key, bool ascending);

} // namespace zelvor
