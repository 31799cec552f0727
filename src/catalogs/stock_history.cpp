#include "catalogs/stock_history.h"

namespace zelvor {

const TableInfo& StockHistory::table()
{
    static constexpr ColumnInfo columns[] = {
        integerColumn<&StockHistory::date>("date"),
        integerColumn<&StockHistory::stockID>("stock_id"),
        integerColumn<&StockHistory::productID>("product_id"),
        realColumn<StockHistory, &StockHistory::amount, &StockHistory::setAmount>("amount"),
        realColumn<StockHistory, &StockHistory::amountReserved, &StockHistory::setAmountReserved>(
            "amount_reserved"),
    };
    static constexpr IndexInfo indexes[] = {
        {"ix_stock_history_date", "stock_history(date)"},
    };
    static constexpr TableInfo info{"stock_history", columns, {}, indexes, nullptr, makeRecord<StockHistory>};
    return info;
}

} // namespace zelvor
