#include "properties/auditor.h"

#include <algorithm>
#include <chrono>
#include <set>
#include <sstream>
#include <tuple>

namespace zelvor::audit {

namespace {

using enum DocType;
constexpr qint64 day = 86'400;

struct Month {
    int year;
    int month;
};

Month monthOf(qint64 moment)
{
    const std::chrono::year_month_day date{
        std::chrono::floor<std::chrono::days>(std::chrono::sys_seconds{std::chrono::seconds{moment}})};
    return {int(date.year()), int(unsigned(date.month()))};
}

qint64 startOf(Month month)
{
    const std::chrono::sys_days start{std::chrono::year{month.year} /
                                      std::chrono::month{unsigned(month.month)} / 1};
    return std::chrono::duration_cast<std::chrono::seconds>(start.time_since_epoch()).count();
}

Month lastFinished(qint64 now)
{
    return monthOf(startOf(monthOf(now)) - day);
}

qint64 periodOf(Month month)
{
    return month.year * (month.month < 10 ? 10 : 100) + month.month;
}

Month monthOfPeriod(qint64 period)
{
    const std::string digits = std::to_string(period);
    return {std::stoi(digits.substr(0, 4)), std::stoi(digits.substr(4))};
}

// The month as the closing counts it: a December is the month before January of its own year.
int countedMonth(Month month)
{
    return month.month == 12 ? 0 : month.month;
}

std::string text(DocKey key)
{
    static const char* const kinds[] = {"product", "money", "fixed-asset"};
    return std::string(kinds[static_cast<int>(key.kind)]) + " document " + std::to_string(key.id);
}

// Which documents are debts of the counterparty to us; the others are ours to it.
bool isSale(DocType type)
{
    return type == SellProduct || type == SellIntangibles || type == SellProperty;
}

} // namespace

Auditor::Auditor(Connector& db) : m_db(db), m_books(readBooks(db)), m_opening(m_books) {}

std::vector<std::string> Auditor::takeFindings()
{
    return std::exchange(m_findings, {});
}

void Auditor::expect(bool agrees, const std::string& what)
{
    if (!agrees)
        m_findings.push_back(what);
}

template <class Number>
void Auditor::expectEqual(Number wanted, Number found, const std::string& what)
{
    if (wanted == found)
        return;
    std::ostringstream line;
    line << what << ": " << found << " in the file, must be " << wanted;
    m_findings.push_back(line.str());
}

Cents Auditor::rounded(Wide dividend, Wide divisor)
{
    if (divisor != 0 && 2 * (dividend % divisor) == divisor)
        ++halves;
    return halfEven(dividend, divisor);
}

// What must be refused

std::string Auditor::refusal(const Plan& plan, qint64 now) const
{
    switch (plan.kind()) {
    case Kind::Product:
        if (const std::string refused = refusedProducts(plan); !refused.empty())
            return refused;
        break;
    case Kind::Money:
        if (const std::string refused = refusedMoney(plan); !refused.empty())
            return refused;
        break;
    case Kind::Property:
        if (const std::string refused = refusedProperty(plan); !refused.empty())
            return refused;
        break;
    }
    return refusedDate(plan, now);
}

std::string Auditor::refusedDate(const Plan& plan, qint64 now) const
{
    if (plan.date < m_latestDate)
        return "a later document is confirmed";
    if (plan.date >= now)
        return "its date has not come";
    if (m_books.lastPeriodSaved < 1)
        return {};
    // Behind a closed December the limit lies a year back.
    const Month closed = monthOfPeriod(m_books.lastPeriodSaved);
    const qint64 limit = startOf({closed.year, closed.month % 12 + 1}) - 1;
    return plan.date < limit ? "its month is closed" : "";
}

std::string Auditor::refusedProducts(const Plan& plan) const
{
    const bool needsFrom = plan.takesFromStock();
    const bool needsTo = plan.addsToStock();
    if ((needsFrom && plan.stockFrom == 0) || (needsTo && plan.stockTo == 0))
        return "a warehouse is missing";
    if (plan.hasContragent() && plan.contragent == 0)
        return "the counterparty is missing";
    Cents amount = 0;
    for (const PlanRow& row : plan.rows)
        amount += row.amount;
    if (amount == 0)
        return "there are no goods";
    for (const PlanRow& row : plan.rows) {
        const auto held = m_books.stock.find({plan.stockFrom, row.product});
        if (needsFrom && (held == m_books.stock.end() || held->second.amount < row.amount))
            return "there is not enough in the warehouse";
    }
    return {};
}

std::string Auditor::missingMoney(const Plan& plan) const
{
    if ((plan.takesMoney() && plan.accountFrom == 0) || (plan.bringsMoney() && plan.accountTo == 0))
        return "an account is missing";
    if (plan.type == InnerTransaction && plan.accountFrom == plan.accountTo)
        return "the accounts are the same";
    if (plan.hasContragent() && plan.contragent == 0)
        return "the counterparty is missing";
    if (plan.hasEmployee() && plan.employee == 0)
        return "the employee is missing";
    if (plan.type == MoneyToExpend && plan.expend == 0)
        return "the spending is missing";
    if (plan.sum <= 0)
        return "the sum is missing";
    return {};
}

std::string Auditor::refusedMoney(const Plan& plan) const
{
    if (const std::string missing = missingMoney(plan); !missing.empty())
        return missing;
    if (plan.takesMoney() && m_books.accounts.at(plan.accountFrom) < plan.sum)
        return "there is not enough money";
    return {};
}

std::string Auditor::refusedProperty(const Plan& plan) const
{
    if (plan.bringsProperty() ? !plan.named : plan.property == 0)
        return "the asset is missing";
    if (plan.hasContragent() && plan.contragent == 0)
        return "the counterparty is missing";
    if (plan.type != DeleteProperty && plan.sum <= 0)
        return "the sum is missing";
    if (plan.type == DeleteProperty && plan.basis == 0)
        return "the reason is missing";
    if (!plan.bringsProperty() && m_books.assets.at(plan.property).soldDate != 0)
        return "the asset is gone";
    return {};
}

bool Auditor::averagesNothing(const Plan& plan) const
{
    if (!plan.receives())
        return false;
    return std::ranges::any_of(plan.rows, [&](const PlanRow& row) {
        Cents quantity = row.amount;
        for (const auto& [place, held] : m_books.stock) {
            if (place.second == row.product)
                quantity += held.amount + held.reserved;
        }
        return quantity <= 0 && !m_books.products.at(row.product).intangible;
    });
}

bool Auditor::monthIsClosed(qint64 now) const
{
    if (m_books.lastPeriodSaved == 0)
        return false;
    const Month saved = monthOfPeriod(m_books.lastPeriodSaved);
    const Month last = lastFinished(now);
    return last.year <= saved.year && countedMonth(last) <= saved.month;
}

// What has happened

void Auditor::confirmed(DocKey key, const Plan& plan, qint64 now)
{
    const DocImages documents = readDocuments(m_db);
    const auto found = documents.find(key);
    if (found == documents.end()) {
        m_findings.push_back(text(key) + " is not in the file");
        return;
    }
    if (!monthIsClosed(now))
        monthClosed(startOf(monthOf(plan.date)), now);
    checkHead(plan, found->second);
    checkBothSides(plan, found->second);
    switch (key.kind) {
    case Kind::Product:
        confirmedProducts(key, plan, found->second);
        break;
    case Kind::Money:
        confirmedMoney(key, plan, found->second);
        break;
    case Kind::Property:
        confirmedProperty(key, plan, found->second);
        break;
    }
    m_latestDate = plan.date;
    m_texts[key] = readConfirmedTexts(m_db)[key];
}

void Auditor::monthClosed(qint64 stamp, qint64 now)
{
    for (const auto& [place, held] : m_books.stock)
        m_history.push_back({stamp, place.first, place.second, held});
    int steps = 1;
    const Month last = lastFinished(now);
    if (m_books.lastPeriodSaved != 0)
        steps = std::max(1, countedMonth(last) - monthOfPeriod(m_books.lastPeriodSaved).month);
    for (auto& [id, asset] : m_books.assets) {
        for (int step = 0; step < steps; ++step) {
            if (asset.soldDate != 0 || asset.currentCost <= 0 || !asset.amortized || asset.period == 0)
                continue;
            asset.currentCost = std::max<Cents>(0, asset.currentCost - rounded(asset.baseCost, asset.period));
            ++depreciated;
        }
    }
    m_books.lastPeriodSaved = periodOf(last);
}

void Auditor::catalogsChanged()
{
    const BooksImage file = readBooks(m_db);
    for (const auto& [id, product] : file.products) {
        const auto known = m_books.products.find(id);
        const Cents cost = known == m_books.products.end() ? product.baseCost : known->second.baseCost;
        m_books.products[id] = product;
        m_books.products[id].baseCost = cost;
    }
    // What is new starts with what it was given; the insert leaves known ones alone.
    for (BooksImage* books : {&m_books, &m_opening}) {
        books->accounts.insert(file.accounts.begin(), file.accounts.end());
        books->contragents.insert(file.contragents.begin(), file.contragents.end());
        books->employees.insert(file.employees.begin(), file.employees.end());
    }
}

void Auditor::checkHead(const Plan& plan, const DocImage& doc)
{
    expect(doc.confirmed, "the document is not marked as confirmed");
    expectEqual(rawValue(plan.type), rawValue(doc.type), "type");
    expectEqual(plan.date, doc.date, "date");
    expectEqual(++m_books.numbers[plan.type], doc.number, "serial number");
    expectEqual(plan.contragent, doc.contragent, "counterparty");
}

// What the document moved on one side it moved on the other, whoever the parties are: looked at in the file,
// before and after.
void Auditor::checkBothSides(const Plan& plan, const DocImage& doc)
{
    const BooksImage file = readBooks(m_db);
    const auto moved = [](const std::map<qint64, Cents>& before, const std::map<qint64, Cents>& after) {
        Cents sum = 0;
        for (const auto& [id, balance] : after)
            sum += balance - before.at(id);
        return sum;
    };
    const Cents accounts = moved(m_books.accounts, file.accounts);
    const Cents contragents = moved(m_books.contragents, file.contragents);
    const Cents employees = moved(m_books.employees, file.employees);
    if (plan.kind() == Kind::Money) {
        Cents outside = 0; // what the business gained or spent
        if (plan.type == InnerTransaction)
            outside = doc.received - doc.sum;
        else if (plan.isAny({MoneyAdd, MoneyToExpend}) || plan.divident)
            outside = plan.takesMoney() ? -doc.sum : doc.sum;
        expectEqual(contragents + employees + outside, accounts, "both sides of a money document");
        return;
    }
    const bool isDebt = plan.sells() || plan.type == SellProperty;
    expectEqual(plan.hasContragent() ? (isDebt ? -doc.sum : doc.sum) : 0, contragents,
                "both sides of a document without money");
    expect(accounts == 0 && employees == 0, "a document without money moved money");
    std::map<qint64, Cents> goods; // over all warehouses
    for (const auto& [place, held] : file.stock)
        goods[place.second] += held.amount;
    for (const auto& [place, held] : m_books.stock)
        goods[place.second] -= held.amount;
    for (const PlanRow& row : plan.rows) {
        if (!m_books.products[row.product].intangible)
            goods[row.product] -= (plan.addsToStock() - plan.takesFromStock()) * row.amount;
    }
    for (const auto& [id, rest] : goods)
        expectEqual(Cents{0}, rest, "goods that no row moved, product " + std::to_string(id));
}

void Auditor::checkRows(const Plan& plan, const DocImage& doc)
{
    expectEqual(plan.rows.size(), doc.rows.size(), "number of rows");
    for (std::size_t i = 0; i < std::min(plan.rows.size(), doc.rows.size()); ++i) {
        const PlanRow& wanted = plan.rows[i];
        const RowImage& row = doc.rows[i];
        const std::string place = "row " + std::to_string(i + 1) + ", ";
        expectEqual(wanted.product, row.product, place + "product");
        expectEqual(wanted.amount, row.amount, place + "amount");
        expectEqual(wanted.price, row.price, place + "price");
        expectEqual(wanted.listPrice, row.listPrice, place + "list price");
        expectEqual(wanted.baseCost, row.baseCost, place + "base cost");
        expectEqual(wanted.vatRate, row.vatRate, place + "VAT rate");
        expectEqual(wanted.gstRate, row.gstRate, place + "GST rate");
        expect(wanted.shipment == row.shipment, place + "share of the shipment");
        expectEqual(rounded(Wide(wanted.amount) * wanted.price, 100), row.priceSum, place + "sum");
        expectEqual(rounded(Wide(wanted.amount) * wanted.baseCost, 100), row.baseSum, place + "cost sum");
    }
}

// The sum of the document, after its taxes were checked.
Cents Auditor::checkSums(const Plan& plan, const DocImage& doc)
{
    Cents due = plan.shipment;
    Cents tax = 0;
    for (const PlanRow& row : plan.rows) {
        const Cents sum = product(row.amount, row.price);
        due += sum;
        if (plan.gst) { // first to five digits, as a rate is, then to cents
            const Cents gst = rounded(rounded(Wide(row.gstRate) * 10 * sum, 100), 1000);
            due += gst;
            tax += gst;
        } else if (plan.vat) {
            tax += sum - rounded(Wide(sum) * 10'000, 10'000 + row.vatRate);
        }
    }
    expectEqual(due, doc.sum, "sum");
    expectEqual(plan.vat ? tax : 0, doc.vatSum, "VAT");
    expectEqual(plan.gst ? tax : 0, doc.gstSum, "GST");
    return due;
}

void Auditor::confirmedProducts(DocKey key, const Plan& plan, const DocImage& doc)
{
    expectEqual(plan.stockFrom, doc.stockFrom, "warehouse that goods leave");
    expectEqual(plan.stockTo, doc.stockTo, "warehouse that goods enter");
    expectEqual(plan.shipment, doc.shipment, "shipment");
    expectEqual(plan.discount, doc.discount, "discount");
    expectEqual(plan.date + plan.deferment * day, doc.payTo, "due date");
    expect(plan.vat == doc.vat && plan.gst == doc.gst, "the taxes are not those of the form");
    checkRows(plan, doc);
    const Cents sum = checkSums(plan, doc);
    if (plan.receives())
        averageCosts(plan);
    moveStock(plan);
    Cents left = 0;
    if (plan.hasContragent()) {
        expectEqual(m_books.contragents[plan.contragent], doc.contragentBalance, "balance before");
        left = settleByCredit(plan, sum, plan.sells());
        m_open[key] = {plan.type, plan.contragent, doc.payTo, left};
    }
    m_left[key] = left;
    expectEqual(left, doc.left, "left to pay");
}

// The average over what arrives with its share of the shipment and all that is held, reserves included.
void Auditor::averageCosts(const Plan& plan)
{
    const auto isGoods = [this](const PlanRow& row) { return !m_books.products[row.product].intangible; };
    Cents base = 0;
    for (const PlanRow& row : plan.rows) {
        if (isGoods(row) && row.shipment)
            base += product(row.amount, row.price);
    }
    constexpr Wide billion = 1'000'000'000;
    const Wide rate = plan.shipment > 0 && base > 0 ? rounded(plan.shipment * billion, base) : 0;
    for (const PlanRow& row : plan.rows) {
        if (!isGoods(row))
            continue;
        const Cents priceSum = product(row.amount, row.price);
        Cents value = priceSum;
        if (rate > 0 && row.shipment) // to nine digits, then to cents
            value = rounded(Wide(priceSum) * 10'000'000 + halfEven(priceSum * rate, 100), 10'000'000);
        Cents quantity = row.amount;
        Cents& cost = m_books.products[row.product].baseCost;
        for (const auto& [place, held] : m_books.stock) {
            if (place.second != row.product)
                continue;
            value += rounded(Wide(held.amount + held.reserved) * cost, 100);
            quantity += held.amount + held.reserved;
        }
        cost = rounded(Wide(value) * 100, quantity);
        ++averages;
    }
}

void Auditor::moveStock(const Plan& plan)
{
    for (const PlanRow& row : plan.rows) {
        if (!plan.takesFromStock() || m_books.products[row.product].intangible)
            continue;
        const auto held = m_books.stock.find({plan.stockFrom, row.product});
        if (held == m_books.stock.end()) {
            m_findings.push_back("goods left a warehouse that has none");
            continue;
        }
        held->second.amount -= row.amount;
        if (held->second.amount == 0)
            m_books.stock.erase(held);
    }
    for (const PlanRow& row : plan.rows) {
        if (plan.addsToStock() && !m_books.products[row.product].intangible)
            m_books.stock[{plan.stockTo, row.product}].amount += row.amount;
    }
}

Cents Auditor::settleByCredit(const Plan& plan, Cents sum, bool sells)
{
    Cents& balance = m_books.contragents[plan.contragent];
    const Cents credit = sells ? balance : -balance;
    if (credit > 0)
        settle(plan.contragent, !sells, std::min(sum, credit));
    balance += sells ? -sum : sum;
    if (credit <= 0)
        return sells && credit >= sum ? 0 : sum; // a negative sale leaves nothing open
    return credit < sum ? sum - credit : 0;
}

// Pays open documents of one direction, earliest due first, product documents before assets of the same date.
void Auditor::settle(qint64 contragent, bool salesArePaid, Cents rest)
{
    std::vector<std::pair<std::tuple<qint64, Kind, qint64>, Open*>> debts;
    for (auto& [key, open] : m_open) {
        if (open.contragent == contragent && open.left > 0 && isSale(open.type) == salesArePaid)
            debts.push_back({{open.payTo, key.kind, key.id}, &open});
    }
    std::ranges::sort(debts);
    for (const auto& [order, open] : debts) {
        const Cents paid = open->left <= rest ? open->left : rest;
        open->left -= paid;
        rest -= paid;
        m_left[{std::get<1>(order), std::get<2>(order)}] = open->left;
        ++settled;
        if (rest == 0)
            break;
    }
}

void Auditor::confirmedMoney(DocKey key, const Plan& plan, const DocImage& doc)
{
    expectEqual(plan.accountFrom, doc.accountFrom, "account that money leaves");
    expectEqual(plan.accountTo, doc.accountTo, "account that money enters");
    expectEqual(plan.employee, doc.employee, "employee");
    expectEqual(plan.expend, doc.expend, "spending");
    expectEqual(plan.sum, doc.sum, "sum");
    expect(plan.loans == doc.loans && plan.variable == doc.variable && plan.divident == doc.divident,
           "the marks are not those of the form");
    if (plan.received != 0)
        expectEqual(plan.received, doc.received, "received sum");
    else if (plan.type == InnerTransaction) // the product of two reals: a cent either way at a tie
        expect(std::abs(halfEven(Wide(plan.sum) * doc.rate, 10'000) - doc.received) <= 1 + plan.sum / 10'000,
               "the received sum is not the sum by the rate");
    if (plan.takesMoney()) {
        expectEqual(m_books.accounts[plan.accountFrom], doc.accountFromBalance,
                    "balance before of the source");
        m_books.accounts[plan.accountFrom] -= plan.sum;
    }
    if (plan.bringsMoney()) {
        expectEqual(m_books.accounts[plan.accountTo], doc.accountToBalance, "balance before of the target");
        m_books.accounts[plan.accountTo] += plan.type == InnerTransaction ? doc.received : plan.sum;
    }
    const Cents sum = plan.takesMoney() ? -plan.sum : plan.sum;
    if (plan.hasContragent()) {
        expectEqual(m_books.contragents[plan.contragent], doc.contragentBalance, "balance before");
        m_books.contragents[plan.contragent] += sum;
        settle(plan.contragent, plan.type == MoneyFromContragent, plan.sum);
    }
    if (plan.hasEmployee() && !plan.divident) {
        expectEqual(m_books.employees[plan.employee], doc.managerBalance, "balance before of the employee");
        m_books.employees[plan.employee] += sum;
    }
    m_left[key] = 0;
}

void Auditor::confirmedProperty(DocKey key, const Plan& plan, const DocImage& doc)
{
    expectEqual(plan.sum, doc.sum, "sum");
    expectEqual(plan.date + plan.deferment * day, doc.payTo, "due date");
    if (plan.bringsProperty()) {
        expect(!m_books.assets.contains(doc.property), "a known asset came a second time");
        m_books.assets[doc.property] = {plan.sum, plan.sum, plan.amortized, plan.period, 0};
    } else {
        expectEqual(plan.property, doc.property, "asset");
        expectEqual(plan.basis, doc.basis, "reason");
        m_books.assets[plan.property].soldDate = plan.date;
    }
    Cents left = 0;
    if (plan.hasContragent()) {
        expectEqual(m_books.contragents[plan.contragent], doc.contragentBalance, "balance before");
        left = settleByCredit(plan, plan.sum, plan.type == SellProperty);
        m_open[key] = {plan.type, plan.contragent, doc.payTo, left};
    }
    m_left[key] = left;
    expectEqual(left, doc.left, "left to pay");
}

// Comparing

void Auditor::compareBooks()
{
    const BooksImage file = readBooks(m_db);
    expect(!file.sameProductTwice, "a warehouse has two rows of one product");
    expect(file.stock == m_books.stock, "the stock is not what the documents leave");
    expect(file.accounts == m_books.accounts, "an account is not what its documents leave");
    expect(file.contragents == m_books.contragents, "a counterparty is not what its documents leave");
    expect(file.employees == m_books.employees, "an employee is not what the documents leave");
    expect(file.assets == m_books.assets, "a fixed asset is not what documents and closings leave");
    for (const auto& [id, product] : m_books.products)
        expectEqual(product.baseCost, file.products.at(id).baseCost,
                    "average cost of product " + std::to_string(id));
    for (const auto& [type, number] : m_books.numbers)
        expectEqual(number, file.numbers.at(type), "last number of type " + std::to_string(rawValue(type)));
    expectEqual(m_books.lastPeriodSaved, file.lastPeriodSaved, "last closed period");
}

void Auditor::compareAll(const std::map<DocKey, Plan>& drafts)
{
    compareBooks();
    const DocImages documents = readDocuments(m_db);
    std::map<DocType, std::set<qint64>> numbers;
    for (const auto& [key, doc] : documents) {
        if (!doc.confirmed) {
            expect(drafts.contains(key), text(key) + " is a draft that nobody saved");
            expectEqual(qint64{0}, doc.number, text(key) + ", a draft: number");
            continue;
        }
        expect(m_left.contains(key), text(key) + " is confirmed though nobody confirmed it");
        expectEqual(m_left[key], doc.left, text(key) + ": left to pay");
        expect(numbers[doc.type].insert(doc.number).second, text(key) + " has the number of another");
    }
    for (const auto& [key, left] : m_left)
        expect(documents.contains(key) && documents.at(key).confirmed, text(key) + " is gone");
    for (const auto& [key, plan] : drafts)
        expect(documents.contains(key) && !documents.at(key).confirmed, text(key) + ", a draft, is gone");
    for (const auto& [type, drawn] : numbers)
        expect(*drawn.begin() == 1 && *drawn.rbegin() == std::ssize(drawn),
               "the numbers of type " + std::to_string(rawValue(type)) + " have a gap");
    expect(readConfirmedTexts(m_db) == m_texts, "a confirmed document has changed");
    std::vector<HistoryImage> history = readHistory(m_db);
    // The order of rows within one closing is free.
    std::ranges::sort(history);
    std::vector<HistoryImage> wanted = m_history;
    std::ranges::sort(wanted);
    expect(history == wanted, "the stock at the closings is not what it was");
    compareSums(documents);
}

// The plain sums, without an order of events: opening balance, what came, what went.
void Auditor::compareSums(const DocImages& documents)
{
    std::map<std::pair<qint64, qint64>, Cents> stock;
    for (const auto& [place, held] : m_opening.stock)
        stock[place] += held.amount;
    auto accounts = m_opening.accounts;
    auto contragents = m_opening.contragents;
    auto employees = m_opening.employees;
    for (const auto& [key, doc] : documents) {
        if (!doc.confirmed)
            continue;
        Plan direction;
        direction.type = doc.type;
        for (const RowImage& row : doc.rows) {
            if (m_books.products[row.product].intangible)
                continue;
            if (direction.takesFromStock())
                stock[{doc.stockFrom, row.product}] -= row.amount;
            if (direction.addsToStock())
                stock[{doc.stockTo, row.product}] += row.amount;
        }
        const bool raises =
            direction.receives() || doc.type == MoneyFromContragent || doc.type == BuyProperty;
        if (direction.hasContragent())
            contragents[doc.contragent] += raises ? doc.sum : -doc.sum;
        if (direction.takesMoney())
            accounts[doc.accountFrom] -= doc.sum;
        if (direction.bringsMoney())
            accounts[doc.accountTo] += doc.type == InnerTransaction ? doc.received : doc.sum;
        if (direction.hasEmployee() && !doc.divident)
            employees[doc.employee] += doc.type == MoneyFromEmployee ? doc.sum : -doc.sum;
    }
    const BooksImage file = readBooks(m_db);
    for (const auto& [place, held] : file.stock)
        expectEqual(std::exchange(stock[place], 0), held.amount,
                    "product " + std::to_string(place.second) + " in warehouse " +
                        std::to_string(place.first));
    for (const auto& [place, amount] : stock)
        expectEqual(amount, Cents{0}, "product " + std::to_string(place.second) + " without a row");
    const auto compare = [this](const auto& wanted, const auto& found, const std::string& who) {
        for (const auto& [id, balance] : wanted)
            expectEqual(balance, found.at(id), who + std::to_string(id));
    };
    compare(accounts, file.accounts, "account ");
    compare(contragents, file.contragents, "counterparty ");
    compare(employees, file.employees, "employee ");
}

} // namespace zelvor::audit
