#pragma once

#include "store/table_info.h"

namespace zelvor {

// A fixed asset. It comes and goes by documents; closing a month depreciates it.
class Property : public TableModelWithNumbers {
public:
    QString name;
    qint64 date = 0;       // the day the asset was taken on, seconds since 1970 UTC
    Decimal innerBaseCost; // cost of acquisition
    double baseCost() const { return innerBaseCost.toDouble(); }
    void setBaseCost(double value) { innerBaseCost = Decimal::fromDouble(value, decimalHandler); }
    Decimal innerCurrentCost; // present book value
    double currentCost() const { return innerCurrentCost.toDouble(); }
    void setCurrentCost(double value) { innerCurrentCost = Decimal::fromDouble(value, decimalHandler); }
    bool isAmortized = false;
    qint64 amortizationPeriod = 0; // months over which it depreciates; 0: never
    QString descriptionString;
    qint64 soldDate = 0; // seconds since 1970 UTC; 0 while the asset is held

    // One step of straight-line depreciation: base cost over the period; the last step takes the rest.
    void proceedAmortization();
    QVariant valueForIdentifier(QStringView key) const override;
    static const TableInfo& table();
};

} // namespace zelvor
