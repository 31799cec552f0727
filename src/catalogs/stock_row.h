#pragma once

#include "store/table_info.h"

namespace zelvor {

// What a warehouse holds of a product now. A pair of warehouse and product has one row; none means 0.
class StockRow : public TableModelWithNumbers {
public:
    qint64 stockID = 0;
    qint64 productID = 0;
    Decimal innerAmount; // on hand, base units
    double amount() const { return innerAmount.toDouble(); }
    void setAmount(double value) { innerAmount = Decimal::fromDouble(value, decimalHandler); }
    Decimal innerAmountReserved; // reserved, base units
    double amountReserved() const { return innerAmountReserved.toDouble(); }
    void setAmountReserved(double value) { innerAmountReserved = Decimal::fromDouble(value, decimalHandler); }

    static const TableInfo& table();
};

} // namespace zelvor
