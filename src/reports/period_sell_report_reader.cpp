#include "reports/period_sell_report_reader.h"

#include "core/localized.h"
#include "reports/id_filter.h"
#include "reports/sale_rows.h"
#include "reports/sold_sums.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace zelvor {

namespace {

constexpr qint64 contragentOffset = 10'000;
constexpr qint64 managerOffset = 100'000;
constexpr qint64 noManagerRowID = 1'000'000;

// The columns of a catalog record that the report needs.
struct CatalogEntry {
    qint64 id = 0;
    QString name;
    qint64 parentID = 0;
    qint64 parentContragentID = 0;
    qint64 managerID = 0;
};

std::vector<CatalogEntry> readEntries(Connector& connector, std::string_view sql, const IDFilter& filter)
{
    std::vector<CatalogEntry> entries;
    if (!connector.scan(sql, {}, [&](const Statement& row) {
            const qint64 id = row.integer(0);
            if (filter.passes(id))
                entries.push_back({id, row.text(1), row.integer(2), row.integer(3), row.integer(4)});
        }))
        entries.clear();
    return entries;
}

std::vector<CatalogEntry> readContragents(Connector& connector, const IDFilter& filter)
{
    return readEntries(
        connector, "SELECT id, name, parent_id, parent_contragent_id, manager_id FROM contragent ORDER BY id",
        filter);
}

// The products' own columns, read once for a report.
class ProductFacts {
public:
    explicit ProductFacts(Connector& connector)
    {
        std::unordered_map<qint64, QString> units;
        connector.scan("SELECT id, shorthand FROM measurement", {},
                       [&](const Statement& row) { units.emplace(row.integer(0), row.text(1)); });
        connector.scan("SELECT id, name, measurement_id, group_id, pack_amount FROM product ORDER BY id", {},
                       [&](const Statement& row) {
                           const auto unit = units.find(row.integer(2));
                           m_facts.push_back({row.integer(0),
                                              row.integer(3),
                                              {row.text(1), unit != units.end() ? unit->second : QString(),
                                               Decimal::fromDouble(row.real(4), moneyHandler)}});
                       });
    }

    // The product's row; its parent is the product's group. For one list of rows.
    PeriodSellReportRow& appendRow(PeriodSellReportRows& rows, const SoldProduct& sold)
    {
        PeriodSellReportRow& row = rows.appendProduct();
        row.id = sold.productID;
        row.type = SellRowType::Product;
        row.innerAmount = sold.amount;
        row.innerBaseSum = sold.baseSum;
        row.innerPriceSum = sold.priceSum;
        Fact* known = find(sold.productID);
        Fact& fact = known ? *known : m_unknown;
        if (!fact.kept)
            fact.kept = &rows.appendSubject(std::move(fact.subject));
        row.subject = fact.kept;
        row.parentID = fact.groupID;
        return row;
    }

private:
    struct Fact {
        qint64 id;
        qint64 groupID;
        SellReportSubject subject;
        const SellReportSubject* kept = nullptr; // the rows' own, once the product was met
    };
    Fact* find(qint64 id)
    {
        // Records are never deleted, so nearly every catalog has its ids without a gap.
        const auto guess = static_cast<quint64>(id - 1);
        if (guess < m_facts.size() && m_facts[guess].id == id)
            return &m_facts[guess];
        const auto place = std::ranges::lower_bound(m_facts, id, {}, &Fact::id);
        return place != m_facts.end() && place->id == id ? &*place : nullptr;
    }

    std::vector<Fact> m_facts;
    // The columns of a record that is not there.
    Fact m_unknown{0, 0, {.name = {}, .innerPackAmount = Decimal::nan()}};
};

using TakeSale = std::function<void(qint64 contragentID, const SoldRow&)>;

// Walks the rows of the confirmed sales of the period that the product filter lets through, in no order.
// False when the read failed.
bool scanSales(Connector& connector, const PeriodSellReportQuery& query, const TakeSale& take)
{
    const IDFilter products(query.productIDs);
    return scanSaleRows(connector, {query.dateFrom, query.dateTo}, "contragent_id",
                        "product_id, amount, base_cost_sum, price_cost_sum",
                        [&](qint64 contragentID, const Statement& row) {
                            const qint64 productID = row.integer(1);
                            if (products.passes(productID))
                                take(contragentID, {productID, {row.real(2), row.real(3), row.real(4)}});
                        });
}

// The sales of a period, kept apart by a holder: a counterparty, or an employee with all of theirs.
class SalesByHolder {
public:
    explicit SalesByHolder(std::size_t holders) : m_rows(holders) {}

    // The contragent's sales belong to that holder.
    void assign(qint64 contragentID, std::size_t holder) { m_holders.emplace(contragentID, holder); }
    void keepAll() { m_keepsAll = true; }
    void read(Connector& connector, const PeriodSellReportQuery& query)
    {
        const bool read = scanSales(connector, query, [this](qint64 contragentID, const SoldRow& row) {
            if (m_keepsAll)
                m_all.add(row);
            if (std::vector<SoldRow>* rows = rowsOf(contragentID))
                rows->push_back(row);
        });
        if (!read) { // no half of a report
            m_all.clear();
            m_rows.assign(m_rows.size(), {});
        }
    }
    // Once for each holder: its sales are given up, so that the rows made of them take their place in memory.
    std::vector<SoldProduct> takeOfHolder(std::size_t holder)
    {
        const std::vector<SoldRow> sales = std::exchange(m_rows[holder], {});
        if (sales.empty())
            return {};
        m_scratch.clear();
        for (const SoldRow& row : sales)
            m_scratch.add(row);
        return m_scratch.products();
    }
    std::vector<SoldProduct> all() { return m_all.products(); }

private:
    // The rows of a document come one after the other and have one counterparty.
    std::vector<SoldRow>* rowsOf(qint64 contragentID)
    {
        if (contragentID != m_lastContragentID) {
            const auto holder = m_holders.find(contragentID);
            m_lastRows = holder != m_holders.end() ? &m_rows[holder->second] : nullptr;
            m_lastContragentID = contragentID;
        }
        return m_lastRows;
    }

    qint64 m_lastContragentID = 0; // nobody's sales are in no list
    std::vector<SoldRow>* m_lastRows = nullptr;
    std::unordered_map<qint64, std::size_t> m_holders;
    std::vector<std::vector<SoldRow>> m_rows;
    SoldSums m_scratch;
    SoldSums m_all;
    bool m_keepsAll = false;
};

void appendGathering(PeriodSellReportRows& rows, qint64 id, const CatalogEntry& entry, SellRowType type,
                     qint64 parentID)
{
    TotalRowForPeriodSell& row = rows.appendGathering();
    row.id = id;
    row.subject = &rows.appendSubject({entry.name});
    row.type = type;
    row.parentID = parentID;
    row.parentContragentID = entry.parentContragentID;
}

void appendGroups(PeriodSellReportRows& rows, const std::vector<CatalogEntry>& groups, SellRowType type)
{
    for (const CatalogEntry& group : groups)
        appendGathering(rows, group.id, group, type, group.parentID);
}

void appendProducts(PeriodSellReportRows& rows, ProductFacts& facts, const std::vector<SoldProduct>& sold,
                    qint64 parentID)
{
    for (const SoldProduct& product : sold)
        facts.appendRow(rows, product).parentID = parentID;
}

std::vector<CatalogEntry> readManagers(Connector& connector, const PeriodSellReportQuery& query)
{
    std::vector<CatalogEntry> managers = readEntries(
        connector, "SELECT id, name, 0, 0, 0 FROM manager ORDER BY id", IDFilter(query.selectedManagers));
    // Whatever the filter holds: the counterparties without an employee.
    managers.push_back({0, localized("No manager")});
    return managers;
}

qint64 managerRowID(const CatalogEntry& manager)
{
    return manager.id == 0 ? noManagerRowID : manager.id + managerOffset;
}

// Kept as it has always been read: below "No manager" the id of the holding counterparty comes without the
// offset of the counterparties' rows.
qint64 contragentParentID(const CatalogEntry& contragent, const CatalogEntry& manager)
{
    if (contragent.parentContragentID == 0)
        return managerRowID(manager);
    return contragent.parentContragentID + (manager.id == 0 ? 0 : contragentOffset);
}

// The places of each employee's counterparties in their list, 0 for those without one.
std::unordered_map<qint64, std::vector<std::size_t>>
placesByManager(const std::vector<CatalogEntry>& contragents)
{
    std::unordered_map<qint64, std::vector<std::size_t>> places;
    for (std::size_t place = 0; place < contragents.size(); ++place)
        places[contragents[place].managerID].push_back(place);
    return places;
}

SalesByHolder readByContragent(Connector& connector, const PeriodSellReportQuery& query,
                               const std::vector<CatalogEntry>& contragents)
{
    SalesByHolder sales(contragents.size());
    for (std::size_t place = 0; place < contragents.size(); ++place)
        sales.assign(contragents[place].id, place);
    sales.read(connector, query);
    return sales;
}

PeriodSellReportRows readByManagerAndContragent(Connector& connector, const PeriodSellReportQuery& query)
{
    PeriodSellReportRows rows;
    const std::vector<CatalogEntry> contragents = readContragents(connector, IDFilter({}));
    const auto places = placesByManager(contragents);
    SalesByHolder sales = readByContragent(connector, query, contragents);
    ProductFacts facts(connector);
    for (const CatalogEntry& manager : readManagers(connector, query)) {
        appendGathering(rows, managerRowID(manager), manager, SellRowType::Manager, 0);
        const auto own = places.find(manager.id);
        if (own == places.end())
            continue;
        for (const std::size_t place : own->second) {
            const CatalogEntry& contragent = contragents[place];
            const qint64 rowID = contragent.id + contragentOffset;
            appendGathering(rows, rowID, contragent, SellRowType::Contragent,
                            contragentParentID(contragent, manager));
            appendProducts(rows, facts, sales.takeOfHolder(place), rowID);
        }
    }
    return rows;
}

PeriodSellReportRows readByManagerAlone(Connector& connector, const PeriodSellReportQuery& query)
{
    PeriodSellReportRows rows;
    const std::vector<CatalogEntry> contragents = readContragents(connector, IDFilter({}));
    const auto places = placesByManager(contragents);
    const std::vector<CatalogEntry> managers = readManagers(connector, query);
    SalesByHolder sales(managers.size());
    for (std::size_t holder = 0; holder < managers.size(); ++holder) {
        const auto own = places.find(managers[holder].id);
        if (own == places.end()) {
            sales.keepAll();
            continue;
        }
        for (const std::size_t place : own->second)
            sales.assign(contragents[place].id, holder);
    }
    sales.read(connector, query);
    ProductFacts facts(connector);
    for (std::size_t holder = 0; holder < managers.size(); ++holder) {
        const qint64 rowID = managerRowID(managers[holder]);
        appendGathering(rows, rowID, managers[holder], SellRowType::Manager, 0);
        // Kept: nobody's counterparties are no condition at all, so such an employee shows every sale.
        const bool hasContragents = places.contains(managers[holder].id);
        appendProducts(rows, facts, hasContragents ? sales.takeOfHolder(holder) : sales.all(), rowID);
    }
    return rows;
}

} // namespace

PeriodSellReportRows readSalesByProductGroup(Connector& connector, const PeriodSellReportQuery& query)
{
    PeriodSellReportRows rows;
    appendGroups(rows,
                 readEntries(connector, "SELECT id, name, parent_id, 0, 0 FROM product_group ORDER BY id",
                             IDFilter(query.productTypeIDs)),
                 SellRowType::ProductGroup);
    SoldSums sums;
    if (!scanSales(connector, query, [&sums](qint64, const SoldRow& row) { sums.add(row); }))
        sums.clear();
    ProductFacts facts(connector);
    for (const SoldProduct& sold : sums.products())
        facts.appendRow(rows, sold);
    return rows;
}

PeriodSellReportRows readSalesByContragent(Connector& connector, const PeriodSellReportQuery& query)
{
    PeriodSellReportRows rows;
    appendGroups(rows,
                 readEntries(connector, "SELECT id, name, parent_id, 0, 0 FROM contragent_group ORDER BY id",
                             IDFilter(query.contragentTypeIDs)),
                 SellRowType::Contragent);
    const std::vector<CatalogEntry> contragents = readContragents(connector, IDFilter(query.contragentIDs));
    SalesByHolder sales = readByContragent(connector, query, contragents);
    ProductFacts facts(connector);
    for (std::size_t place = 0; place < contragents.size(); ++place) {
        const CatalogEntry& contragent = contragents[place];
        const qint64 rowID = contragent.id + contragentOffset;
        const qint64 holderID = contragent.parentContragentID;
        appendGathering(rows, rowID, contragent, SellRowType::Contragent,
                        holderID != 0 ? holderID + contragentOffset : contragent.parentID);
        appendProducts(rows, facts, sales.takeOfHolder(place), rowID);
    }
    return rows;
}

PeriodSellReportRows readSalesByManager(Connector& connector, const PeriodSellReportQuery& query,
                                        bool withContragents)
{
    return withContragents ? readByManagerAndContragent(connector, query)
                           : readByManagerAlone(connector, query);
}

} // namespace zelvor
