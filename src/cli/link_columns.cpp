#include "cli/link_columns.h"

#include "catalogs/account.h"
#include "catalogs/contragent.h"
#include "catalogs/currency.h"
#include "catalogs/delete_basis.h"
#include "catalogs/expend.h"
#include "catalogs/product.h"
#include "catalogs/property.h"
#include "catalogs/stock.h"
#include "catalogs/stock_history.h"
#include "catalogs/stock_row.h"
#include "documents/money_document.h"
#include "documents/product_document.h"
#include "documents/product_document_row.h"
#include "documents/property_document.h"
#include "store/connector.h"

#include <string>
#include <unordered_set>

namespace zelvor {

namespace {

template <class Record, class Target>
constexpr LinkColumn to(const char* column)
{
    return {&Record::table, column, &Target::table, std::is_same_v<Record, Target>};
}

} // namespace

std::span<const LinkColumn> linkColumns()
{
    static constexpr LinkColumn columns[] = {
        to<Manager, Function>("function_id"),
        to<Stock, Manager>("manager_id"),
        to<Account, AccountType>("account_type_id"),
        to<Account, Currency>("currency_id"),
        to<ExpendType, ExpendType>("parent_id"),
        to<Expend, ExpendType>("parent_id"),
        to<ProductGroup, ProductGroup>("parent_id"),
        to<Product, ProductGroup>("group_id"),
        to<Product, Measurement>("measurement_id"),
        to<Product, Measurement>("pack_id"),
        to<ContragentGroup, ContragentGroup>("parent_id"),
        to<Contragent, ContragentGroup>("parent_id"),
        to<Contragent, Contragent>("parent_contragent_id"),
        to<Contragent, Manager>("manager_id"),
        to<StockRow, Stock>("stock_id"),
        to<StockRow, Product>("product_id"),
        to<StockHistory, Stock>("stock_id"),
        to<StockHistory, Product>("product_id"),
        to<ProductDocument, Contragent>("contragent_id"),
        to<ProductDocument, Manager>("manager_id"),
        to<ProductDocument, Stock>("stock_from_id"),
        to<ProductDocument, Stock>("stock_to_id"),
        to<ProductDocumentRow, ProductDocument>("doc_id"),
        to<ProductDocumentRow, Product>("product_id"),
        to<MoneyDocument, Contragent>("contragent_id"),
        to<MoneyDocument, Manager>("manager_id"),
        to<MoneyDocument, Account>("account_from_id"),
        to<MoneyDocument, Account>("account_to_id"),
        to<MoneyDocument, Manager>("employee_id"),
        to<MoneyDocument, Expend>("expend_id"),
        to<PropertyDocument, Contragent>("contragent_id"),
        to<PropertyDocument, Manager>("manager_id"),
        to<PropertyDocument, Property>("property_id"),
        to<PropertyDocument, DeleteBasis>("delete_basis_id"),
    };
    return columns;
}

const LinkColumn* linkColumn(const TableInfo& table, std::string_view column)
{
    for (const LinkColumn& link : linkColumns()) {
        if (&link.table() == &table && column == link.column)
            return &link;
    }
    return nullptr;
}

bool recordExists(Connector& connector, const TableInfo& table, qint64 id)
{
    bool exists = false;
    connector.scan("SELECT 1 FROM " + std::string(table.name) + " WHERE id=?", {id},
                   [&](const Statement&) { exists = true; });
    return exists;
}

bool wouldHoldItself(Connector& connector, const LinkColumn& link, qint64 id, qint64 holderID)
{
    const std::string sql =
        "SELECT " + std::string(link.column) + " FROM " + link.table().name + " WHERE id=?";
    std::unordered_set<qint64> seen; // a file can hold a circle already
    while (holderID != 0 && holderID != id && seen.insert(holderID).second) {
        qint64 next = 0;
        connector.scan(sql, {holderID}, [&](const Statement& row) { next = row.integer(0); });
        holderID = next;
    }
    return id != 0 && holderID == id;
}

} // namespace zelvor
