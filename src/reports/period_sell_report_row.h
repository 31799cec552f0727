#pragma once

#include "core/table_model.h"

#include <memory>
#include <vector>

namespace zelvor {

// What a row tells of its record: one of these for a product, however many customers bought it.
struct SellReportSubject {
    QString name;
    QString unit = {};            // short form of a product's base unit
    Decimal innerPackAmount = {}; // base units in a pack
};

enum class SellRowType : quint8 { None, ProductGroup, Product, Contragent, Manager, Total };

// A row of the period sell report, a tree by `parentID`. The rows of a report belong to the report's view;
// they refer to each other and to their subject without owning.
//
// A report by customers has some hundred thousand rows, so a row is kept small: the small fields stand in
// the padding that ends each Decimal.
class PeriodSellReportRow : public TableModelWithNumbers {
public:
    static constexpr RoundingHandler percentDecimalHandler = percentHandler;

    [[no_unique_address]] Decimal innerAmount;  // sold, base units
    int indent = 0;                             // blanks
    qint64 parentID = 0;                        // 0 for a top-level row
    [[no_unique_address]] Decimal innerBaseSum; // at base cost, currency of the project
    SellRowType type = SellRowType::None;
    PeriodSellReportRow* parent = nullptr;
    [[no_unique_address]] Decimal innerPriceSum; // at selling price, currency of the project
    const SellReportSubject* subject = &nothing();

    // "productGroup", "product", "contragent", "manager" or "total".
    QString rowType() const;
    const QString& name() const { return subject->name; }
    const QString& unit() const { return subject->unit; }
    const Decimal& innerPackAmount() const { return subject->innerPackAmount; }
    double packAmount() const { return innerPackAmount().toDouble(); }
    double amount() const { return innerAmount.toDouble(); }
    void setAmount(double value) { innerAmount = Decimal::fromDouble(value, decimalHandler); }
    double baseSum() const { return innerBaseSum.toDouble(); }
    void setBaseSum(double value) { innerBaseSum = Decimal::fromDouble(value, decimalHandler); }
    double priceSum() const { return innerPriceSum.toDouble(); }
    void setPriceSum(double value) { innerPriceSum = Decimal::fromDouble(value, decimalHandler); }

    bool isProduct() const { return type == SellRowType::Product; }
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
    // Without name, unit and pack.
    static const SellReportSubject& nothing();
    // Adds the row's sums and those packs; false for a row that gathers nothing.
    virtual bool addData(const PeriodSellReportRow&, const Decimal&) { return false; }

    struct Children {
        std::vector<PeriodSellReportRow*> rows;
        bool inOrder = true;
    };
    std::unique_ptr<Children> m_children; // none for nearly every product
};
static_assert(sizeof(PeriodSellReportRow) <= 128);

// Sorts by "name", "amount", "base", "price", "profit" or "percent"; equal rows keep their order, and so do
// all with another key.
void sortRows(std::vector<PeriodSellReportRow*>& rows, const QString& key, bool ascending);

} // namespace zelvor
