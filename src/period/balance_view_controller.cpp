#include "period/balance_view_controller.h"

#include "core/currency_struct.h"
#include "core/formats.h"
#include "core/localized.h"
#include "core/text_order.h"

#include <algorithm>
#include <utility>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

struct NamedAmount {
    QString name;
    Decimal amount;
};

struct AccountLine {
    QString name;
    qint64 currencyID;
    Decimal balance;
};

struct StockLine {
    qint64 id;
    QString name;
    BalanceRow row = {};
    bool hasRows = false;
};

// Values by id, read in ascending order of id.
class ValuesByID {
public:
    void append(qint64 id, const Decimal& value) { m_values.emplace_back(id, value); }
    const Decimal* find(qint64 id) const
    {
        const auto place = std::ranges::lower_bound(m_values, id, {}, &std::pair<qint64, Decimal>::first);
        return place != m_values.end() && place->first == id ? &place->second : nullptr;
    }

private:
    std::vector<std::pair<qint64, Decimal>> m_values;
};

template <class Line>
void sortByName(std::vector<Line>& lines)
{
    std::ranges::stable_sort(lines, textLess, &Line::name);
}

Decimal money(const Statement& row, int column)
{
    return Decimal::fromDouble(row.real(column), moneyHandler);
}

// The records of a statement; none when it failed.
template <class Line>
std::vector<Line> readLines(Connector& connector, std::string_view sql,
                            const std::function<Line(const Statement&)>& read)
{
    std::vector<Line> lines;
    if (!connector.scan(sql, {}, [&](const Statement& row) { lines.push_back(read(row)); }))
        lines.clear();
    return lines;
}

std::vector<NamedAmount> readNamedAmounts(Connector& connector, std::string_view sql)
{
    return readLines<NamedAmount>(connector, sql, [](const Statement& row) {
        return NamedAmount{row.text(0), money(row, 1)};
    });
}

ValuesByID readValues(Connector& connector, std::string_view sql, RoundingHandler handler)
{
    ValuesByID values;
    if (!connector.scan(sql, {}, [&](const Statement& row) {
            values.append(row.integer(0), Decimal::fromDouble(row.real(1), handler));
        }))
        return {};
    return values;
}

QString accountName(const AccountLine& account, std::optional<qint64> defaultCurrency)
{
    if (account.currencyID == defaultCurrency)
        return account.name;
    const std::optional<CurrencyStruct> currency = currencyFromInt(account.currencyID);
    const QString sign = currency ? currencySign(*currency) : QString();
    return account.name + u" ("_s + sign + u' ' + realText(account.balance.toDouble()) + u')';
}

} // namespace

// The sheet while it is made: a heading gathers what follows it, the total gathers everything.
struct BalanceViewController::Sheet {
    std::vector<std::shared_ptr<BalanceRow>> rows;
    std::shared_ptr<BalanceRow> total = std::make_shared<BalanceRow>();
    BalanceRow* group = nullptr;

    BalanceRow& append(const QString& name)
    {
        rows.push_back(std::make_shared<BalanceRow>());
        rows.back()->name = name;
        return *rows.back();
    }
    void beginGroup(const QString& name)
    {
        group = &append(name);
        group->groupRow = true;
    }
    void addDebet(BalanceRow& row, const Decimal& value)
    {
        row.setDebet(value);
        group->setDebet(value);
        total->setDebet(value);
    }
    void addCredit(BalanceRow& row, const Decimal& value)
    {
        row.setCredit(value);
        group->setCredit(value);
        total->setCredit(value);
    }
};

BalanceViewController::BalanceViewController(AppDelegate& owner) : ModelController(owner), view(*this)
{
    groupCheckBox.onUserChange = [this] { groupButtonClicked(); };
    m_balanceChanged = appDelegate.notifications.observe(NotificationName::BalanceChangedNotification,
                                                         [this](const Notification&) { updateBalance(); });
}

void BalanceViewController::updateBalance()
{
    m_stale = true;
    if (balanceShown || view.isVisible())
        prepareData();
}

void BalanceViewController::refresh()
{
    if (m_stale)
        prepareData();
}

void BalanceViewController::forget()
{
    m_rows.clear();
    m_balance = 0;
    balanceShown = false;
    view.setRows({});
    m_stale = true;
}

const std::vector<std::shared_ptr<BalanceRow>>& BalanceViewController::rows()
{
    refresh();
    return m_rows;
}

double BalanceViewController::balance()
{
    refresh();
    return m_balance;
}

void BalanceViewController::prepareData()
{
    prepareBalance();
    openRows();
}

void BalanceViewController::prepareBalance()
{
    m_stale = false;
    Sheet sheet;
    BalanceRow& total = *sheet.total;
    total.groupRow = true;
    total.total = true;
    total.name = localized("TOTAL:");
    addAccounts(sheet);
    addStocks(sheet);
    addProperties(sheet);
    addDebts(sheet, localized("Customers / Suppliers"),
             "SELECT name, balance FROM contragent WHERE is_hidden=0 AND (balance>0 OR balance<0)");
    addDebts(sheet, localized("Employees"),
             "SELECT name, balance FROM manager WHERE is_hidden=0 AND (balance>0 OR balance<0)");

    sheet.rows.push_back(sheet.total);
    BalanceRow& result = sheet.append(localized("BALANCE:"));
    result.groupRow = true;
    result.total = true;
    const Decimal difference = total.innerDebet.minus(total.innerCredit, BalanceRow::handler);
    if (difference.isPositive())
        result.setDebet(difference);
    else if (difference.isNegative())
        result.setCredit(difference.negated());
    m_balance = difference.toDouble();
    m_rows = std::move(sheet.rows);
    appDelegate.notifications.post(NotificationName::BalanceCalculatedNotification);
}

void BalanceViewController::addAccounts(Sheet& sheet)
{
    auto accounts = readLines<AccountLine>(appDelegate.connector,
                                           "SELECT name, currency_id, balance FROM account WHERE is_hidden=0",
                                           [](const Statement& row) {
                                               return AccountLine{row.text(0), row.integer(1), money(row, 2)};
                                           });
    if (accounts.empty())
        return;
    sortByName(accounts);
    sheet.beginGroup(localized("Cash"));
    std::optional<qint64> defaultCurrency; // without settings every account shows its own currency
    if (const auto params = appDelegate.params())
        defaultCurrency = params->defaultCurrency;
    const ValuesByID rates =
        readValues(appDelegate.connector, "SELECT id, rate FROM currency ORDER BY id", rateHandler);
    for (const AccountLine& account : accounts) {
        const Decimal* rate = rates.find(account.currencyID);
        const Decimal value =
            rate ? Decimal::fromDouble(account.balance.toDouble() / rate->toDouble()) : account.balance;
        sheet.addDebet(sheet.append(accountName(account, defaultCurrency)), value);
    }
}

void BalanceViewController::addStocks(Sheet& sheet)
{
    Connector& connector = appDelegate.connector;
    auto stocks = readLines<StockLine>(connector, "SELECT id, name FROM stock WHERE is_hidden=0",
                                       [](const Statement& row) {
                                           return StockLine{row.integer(0), row.text(1)};
                                       });
    if (stocks.empty())
        return;
    sortByName(stocks);
    sheet.beginGroup(localized("Products On Warehouses"));
    const ValuesByID baseCosts =
        readValues(connector, "SELECT id, base_cost FROM product ORDER BY id", moneyHandler);
    // In the order of the rows' ids, as a half cent is rounded by what was summed before it.
    const bool read =
        connector.scan("SELECT stock_id, product_id, amount, amount_reserved FROM stock_row ORDER BY id", {},
                       [&](const Statement& row) {
                           const auto stock = std::ranges::find(stocks, row.integer(0), &StockLine::id);
                           if (stock == stocks.end())
                               return;
                           stock->hasRows = true;
                           if (const Decimal* baseCost = baseCosts.find(row.integer(1))) {
                               const Decimal quantity = money(row, 2).plus(money(row, 3));
                               stock->row.setDebet(quantity.times(*baseCost, {4}));
                           }
                       });
    if (!read)
        return;
    for (const StockLine& stock : stocks) {
        if (stock.hasRows)
            sheet.addDebet(sheet.append(stock.name), stock.row.innerDebet);
    }
}

void BalanceViewController::addProperties(Sheet& sheet)
{
    auto properties =
        readNamedAmounts(appDelegate.connector,
                         "SELECT name, current_cost FROM property WHERE sold_date=0 AND current_cost>0");
    if (properties.empty())
        return;
    sortByName(properties);
    sheet.beginGroup(localized("Fixed Assets"));
    for (const NamedAmount& property : properties)
        sheet.addDebet(sheet.append(property.name), property.amount);
}

void BalanceViewController::addDebts(Sheet& sheet, const QString& heading, std::string_view sql)
{
    auto debts = readNamedAmounts(appDelegate.connector, sql);
    if (debts.empty())
        return;
    sortByName(debts);
    sheet.beginGroup(heading);
    for (const NamedAmount& debt : debts) {
        BalanceRow& row = sheet.append(debt.name);
        if (debt.amount.isNegative())
            sheet.addDebet(row, debt.amount.negated());
        else
            sheet.addCredit(row, debt.amount);
    }
}

void BalanceViewController::openRows()
{
    const auto& all = rows();
    std::vector<std::shared_ptr<BalanceRow>> shown;
    std::ranges::copy_if(all, std::back_inserter(shown), [this](const std::shared_ptr<BalanceRow>& row) {
        return row->groupRow || !groupCheckBox.isOn();
    });
    view.setRows(std::move(shown));
}

} // namespace zelvor
