#include "cli/balance_chain.h"
#include "cli/findings.h"
#include "core/doc_type.h"
#include "store/connector.h"

#include <string>
#include <unordered_map>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

using Chains = std::unordered_map<qint64, BalanceChain>;

Decimal amountAt(const Statement& row, int column)
{
    return Decimal::fromDouble(row.real(column), moneyHandler);
}

// 1 for what raises the balance of the counterparty or employee, -1 for what lowers it, 0 for the rest.
int directionOf(qint64 rawType)
{
    using enum DocType;
    switch (typeFromInt(rawType).value_or(NilType)) {
    case BuyProduct:
    case Return:
    case BuyProperty:
    case MoneyFromContragent:
    case MoneyFromEmployee:
        return 1;
    case SellProduct:
    case SellIntangibles:
    case SellProperty:
    case MoneyToContragent:
    case MoneyToEmployee:
        return -1;
    default:
        return 0;
    }
}

void compare(Connector& connector, const std::string& table, Chains& chains, Findings& findings)
{
    connector.scan("SELECT id,balance FROM " + table, {}, [&](const Statement& row) {
        const auto chain = chains.find(row.integer(0));
        if (chain == chains.end())
            return; // no document tells anything of it
        const Decimal told = chain->second.balance();
        const Decimal held = amountAt(row, 1);
        if (told != held)
            findings.add(
                u"balance"_s, QString::fromStdString(table), row.integer(0),
                u"the balance is %1, its documents left %2"_s.arg(held.toFixedText(2), told.toFixedText(2)));
    });
}

// Owner, date, type, balance before, sum.
void addMoves(Connector& connector, const std::string& sql, Chains& chains)
{
    connector.scan(sql, {}, [&](const Statement& row) {
        const int direction = directionOf(row.integer(2));
        const Decimal sum = amountAt(row, 4);
        if (direction != 0)
            chains[row.integer(0)].add(row.integer(1), amountAt(row, 3), direction > 0 ? sum : sum.negated());
    });
}

void checkContragents(Connector& connector, Findings& findings)
{
    Chains chains;
    std::string sql;
    for (const char* table : {"product_doc", "money_doc", "property_doc"}) {
        sql += sql.empty() ? "" : " UNION ALL ";
        sql += std::string("SELECT contragent_id,date,doc_type_id,contragent_balance,doc_sum FROM ") + table +
               " WHERE is_confirmed!=0 AND contragent_id!=0";
    }
    addMoves(connector, sql + " ORDER BY date", chains);
    compare(connector, "contragent", chains, findings);
}

void checkEmployees(Connector& connector, Findings& findings)
{
    Chains chains;
    addMoves(connector,
             "SELECT employee_id,date,doc_type_id,manager_balance,doc_sum FROM money_doc"
             " WHERE is_confirmed!=0 AND employee_id!=0 AND is_divident=0 ORDER BY date",
             chains);
    compare(connector, "manager", chains, findings);
}

void checkAccounts(Connector& connector, Findings& findings)
{
    Chains chains;
    connector.scan(
        "SELECT date,doc_type_id,account_from_id,account_from_balance,account_to_id,account_to_balance,"
        "doc_sum,converted_sum FROM money_doc WHERE is_confirmed!=0 ORDER BY date,id",
        {}, [&](const Statement& row) {
            const bool isTransfer = row.integer(1) == rawValue(DocType::InnerTransaction);
            const Decimal sum = amountAt(row, 6);
            if (row.integer(2) != 0)
                chains[row.integer(2)].add(row.integer(0), amountAt(row, 3), sum.negated());
            if (row.integer(4) != 0)
                chains[row.integer(4)].add(row.integer(0), amountAt(row, 5),
                                           isTransfer ? amountAt(row, 7) : sum);
        });
    compare(connector, "account", chains, findings);
}

} // namespace

void checkBalances(Connector& connector, Findings& findings)
{
    checkAccounts(connector, findings);
    checkContragents(connector, findings);
    checkEmployees(connector, findings);
}

} // namespace zelvor
