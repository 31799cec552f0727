#pragma once

#include "catalogs/measurement.h"
#include "catalogs/stock_row.h"
#include "catalogs/tree_model.h"
#include "core/localized.h"

namespace zelvor {

// A product, a service, or a group of them.
class ProductModel : public TreeModel<ProductModel, TableModelWithNumbers> {
public:
    ProductModel() { name = localized("New Item"); }

    QString descriptionString;
    QString imageName; // stored, without logic of its own
    bool isHidden = false;
};

class ProductGroup : public ProductModel {
public:
    bool isGroup() const override { return true; }
    QString className() const override { return QStringLiteral("ProductGroup"); }
    QVariant valueForIdentifier(QStringView key) const override;
    static const TableInfo& table();
};

// The group link is stored as `group_id`.
class Product : public ProductModel {
public:
    static constexpr RoundingHandler decimalHandlerForTaxes = taxRateHandler;

    qint64 measurementID = 0;  // the base unit
    qint64 packID = 0;         // the unit of a pack
    bool isIntangible = false; // a service: never held in a warehouse
    Decimal innerPackAmount;   // base units in a pack
    double packAmount() const { return innerPackAmount.toDouble(); }
    void setPackAmount(double value) { innerPackAmount = Decimal::fromDouble(value, decimalHandler); }
    Decimal innerBaseCost; // average cost, kept by confirmations
    double baseCost() const { return innerBaseCost.toDouble(); }
    void setBaseCost(double value) { innerBaseCost = Decimal::fromDouble(value, decimalHandler); }
    Decimal innerPriceCost; // sale price
    double priceCost() const { return innerPriceCost.toDouble(); }
    void setPriceCost(double value) { innerPriceCost = Decimal::fromDouble(value, decimalHandler); }
    Decimal innerVATRate; // percent
    double vatRate() const { return innerVATRate.toDouble(); }
    void setVatRate(double value) { innerVATRate = Decimal::fromDouble(value, decimalHandlerForTaxes); }
    Decimal innerGSTRate; // percent
    double gstRate() const { return innerGSTRate.toDouble(); }
    void setGstRate(double value) { innerGSTRate = Decimal::fromDouble(value, decimalHandlerForTaxes); }

    Link<Measurement> measurement;
    Link<Measurement> pack;
    Link<StockRow> stockRow; // what the warehouse of an open document holds

    QString measurementName() const { return measurement->name; }
    QString packName() const { return pack->name; }
    bool isGroup() const override { return false; }
    QString className() const override { return QStringLiteral("Product"); }
    QVariant valueForIdentifier(QStringView key) const override;
    static const TableInfo& table();
};

} // namespace zelvor
