#pragma once

#include "catalogs/product.h"
#include "store/table_info.h"

#include <memory>

namespace zelvor {

// One line of goods. Setting the amount renews both sums, setting a cost renews its own sum.
class ProductDocumentRow : public TableModelWithNumbers {
public:
    static constexpr RoundingHandler taxHandler = rowTaxHandler;

    qint64 docID = 0;
    qint64 productID = 0;
    Decimal innerAmount; // base units
    double amount() const { return innerAmount.toDouble(); }
    void setAmount(double value) { setInnerAmount(Decimal::fromDouble(value, decimalHandler)); }
    void setInnerAmount(const Decimal& value);
    Decimal innerBaseCost; // the product's average cost when the row was made
    double baseCost() const { return innerBaseCost.toDouble(); }
    void setBaseCost(double value) { setInnerBaseCost(Decimal::fromDouble(value, decimalHandler)); }
    void setInnerBaseCost(const Decimal& value);
    Decimal innerPriceCost; // the price of this row, after discount
    double priceCost() const { return innerPriceCost.toDouble(); }
    void setPriceCost(double value) { setInnerPriceCost(Decimal::fromDouble(value, decimalHandler)); }
    void setInnerPriceCost(const Decimal& value);
    Decimal innerCurrentPriceCost; // the list price before discount
    double currentPriceCost() const { return innerCurrentPriceCost.toDouble(); }
    void setCurrentPriceCost(double value)
    {
        innerCurrentPriceCost = Decimal::fromDouble(value, decimalHandler);
    }
    Decimal innerBaseCostSum; // amount times base cost
    double baseCostSum() const { return innerBaseCostSum.toDouble(); }
    void setBaseCostSum(double value) { innerBaseCostSum = Decimal::fromDouble(value, decimalHandler); }
    Decimal innerPriceCostSum; // amount times price
    double priceCostSum() const { return innerPriceCostSum.toDouble(); }
    void setPriceCostSum(double value) { innerPriceCostSum = Decimal::fromDouble(value, decimalHandler); }
    Decimal innerVATRate; // percent, two digits though a product holds three
    double vatRate() const { return innerVATRate.toDouble(); }
    void setVatRate(double value) { innerVATRate = Decimal::fromDouble(value, decimalHandler); }
    Decimal innerGSTRate; // percent, two digits
    double gstRate() const { return innerGSTRate.toDouble(); }
    void setGstRate(double value) { innerGSTRate = Decimal::fromDouble(value, decimalHandler); }
    bool includeShipment = false; // takes a share of the shipment cost in the average cost

    Link<Product> product;

    // Takes over the product with its base cost and its price as both prices.
    void insertProduct(const std::shared_ptr<Product>& record);

    // Tax of the row. VAT is inside the price, GST comes on top of it.
    Decimal vatValue() const;
    Decimal beforeVatValue() const;
    Decimal gstValue() const;
    Decimal plusGST() const;
    // 0 when the product has no pack size.
    Decimal packs() const;

    QVariant valueForIdentifier(QStringView key) const override;
    static const TableInfo& table();

private:
    Decimal onePlusVatRate() const;
};

} // namespace zelvor
