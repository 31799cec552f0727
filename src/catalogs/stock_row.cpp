#include "catalogs/stock_row.h"

namespace zelvor {

const TableInfo& StockRow::table()
{
    static constexpr ColumnInfo columns[] = {
        integerColumn<&StockRow::stockID>("stock_id"),
        integerColumn<&StockRow::productID>("product_id"),
        realColumn<StockRow, &StockRow::amount, &StockRow::setAmount>("amount"),
        realColumn<StockRow, &StockRow::amountReserved, &StockRow::setAmountReserved>("amount_reserved"),
    };
    static constexpr IndexInfo indexes[] = {
        {"ix_stock_row_stock_product", "stock_row(stock_id, product_id)"},
        {"ix_stock_row_product", "stock_row(product_id)"},
    };
    static constexpr TableInfo info{"stock_row", columns, {}, indexes, nullptr, makeRecord<StockRow>};
    return info;
}

} // namespace zelvor
