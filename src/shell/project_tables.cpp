#include "shell/project_tables.h"

#include "catalogs/account.h"
#include "catalogs/account_type.h"
#include "catalogs/contragent.h"
#include "catalogs/currency.h"
#include "catalogs/delete_basis.h"
#include "catalogs/expend.h"
#include "catalogs/function.h"
#include "catalogs/manager.h"
#include "catalogs/measurement.h"
#include "catalogs/product.h"
#include "catalogs/property.h"
#include "catalogs/stock.h"
#include "catalogs/stock_history.h"
#include "catalogs/stock_row.h"
#include "documents/document_number.h"
#include "documents/money_document.h"
#include "documents/product_document.h"
#include "documents/product_document_row.h"
#include "documents/property_document.h"
#include "store/connector.h"
#include "store/menu.h"
#include "store/params.h"

#include <algorithm>
#include <array>
#include <string>

namespace zelvor {

std::span<const TableInfo* const> projectTables()
{
    static const std::array tables{
        &Params::table(),
        &Currency::table(),
        &Menu::table(),
        &Measurement::table(),
        &Function::table(),
        &AccountType::table(),
        &ExpendType::table(),
        &Expend::table(),
        &Manager::table(),
        &Stock::table(),
        &Account::table(),
        &Product::table(),
        &ProductGroup::table(),
        &Contragent::table(),
        &ContragentGroup::table(),
        &ProductDocument::table(),
        &MoneyDocument::table(),
        &ProductDocumentRow::table(),
        &DocumentNumber::table(),
        &StockRow::table(),
        &DeleteBasis::table(),
        &PropertyDocument::table(),
        &Property::table(),
        &StockHistory::table(),
    };
    return tables;
}

bool hasAllTables(Connector& connector)
{
    return std::ranges::all_of(projectTables(), [&](const TableInfo* table) {
        std::string sql = "SELECT id";
        for (const ColumnInfo& column : table->columns)
            sql += std::string(",") + column.name;
        return connector.scan(sql + " FROM " + table->name + " LIMIT 0", {}, [](const Statement&) {});
    });
}

} // namespace zelvor
