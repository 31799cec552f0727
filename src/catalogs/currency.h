#pragma once

#include "store/table_info.h"

namespace zelvor {

// The rate of one known currency. Its id equals the currency's raw value.
class Currency : public TableModel {
public:
    static constexpr RoundingHandler decimalHandler = rateHandler;

    qint64 code = 0;      // raw value of a CurrencyStruct
    Decimal innerRate{1}; // units of this currency for one of the project's
    double rate() const { return innerRate.toDouble(); }
    void setRate(double value) { innerRate = Decimal::fromDouble(value, decimalHandler); }

    QVariant valueForIdentifier(QStringView key) const override;
    static const TableInfo& table();
};

} // namespace zelvor
