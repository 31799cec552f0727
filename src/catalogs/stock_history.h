#pragma once

#include "store/table_info.h"

namespace zelvor {

// What a warehouse held of a product when a month was closed. Rows are only ever inserted.
class StockHistory : public TableModelWithNumbers {
public:
    qint64 date = 0; // the moment of the snapshot, seconds since 1970 UTC
    qint64 stockID = 0;
    qint64 productID = 0;
    Decimal innerAmount; // base units
    double amount() const { return innerAmount.toDouble(); }
    void setAmount(double value) { innerAmount = Decimal::fromDouble(value, decimalHandler); }
    Decimal innerAmountReserved; // base units
    double amountReserved() const { return innerAmountReserved.toDouble(); }
    void setAmountReserved(double value) { innerAmountReserved = Decimal::fromDouble(value, decimalHandler); }

    static const TableInfo& table();
};

} // namespace zelvor
