#include "reports/literal_sell_report.h"

#include "catalogs/contragent.h"
#include "catalogs/manager.h"
#include "catalogs/product.h"
#include "core/doc_type.h"
#include "core/text_order.h"

#include <algorithm>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

// What the free query fills: its columns are the select list's, in order.
class FreeRow : public TableModelWithNumbers {
public:
    qint64 parentID = 0;
    QString name;
    QString unit;
    Decimal innerPackAmount;
    double packAmount() const { return innerPackAmount.toDouble(); }
    void setPackAmount(double value) { innerPackAmount = Decimal::fromDouble(value, decimalHandler); }
    Decimal innerAmount;
    double amount() const { return innerAmount.toDouble(); }
    void setAmount(double value) { innerAmount = Decimal::fromDouble(value, decimalHandler); }
    Decimal innerBaseSum;
    double baseSum() const { return innerBaseSum.toDouble(); }
    void setBaseSum(double value) { innerBaseSum = Decimal::fromDouble(value, decimalHandler); }
    Decimal innerPriceSum;
    double priceSum() const { return innerPriceSum.toDouble(); }
    void setPriceSum(double value) { innerPriceSum = Decimal::fromDouble(value, decimalHandler); }

    static const TableInfo& table()
    {
        using Row = FreeRow;
        static constexpr ColumnInfo columns[] = {
            integerColumn<&TableModel::id>("id"),
            textColumn<&Row::name>("name"),
            textColumn<&Row::unit>("unit"),
            integerColumn<&Row::parentID>("parent_id"),
            realColumn<Row, &Row::packAmount, &Row::setPackAmount>("pack_amount"),
            realColumn<Row, &Row::amount, &Row::setAmount>("amount"),
            realColumn<Row, &Row::baseSum, &Row::setBaseSum>("base_sum"),
            realColumn<Row, &Row::priceSum, &Row::setPriceSum>("price_sum"),
        };
        static constexpr TableInfo info{"", columns, {}, {}, nullptr, makeRecord<FreeRow>};
        return info;
    }
};

const QString head =
    u"SELECT product_doc_row.product_id, product.name, measurement.shorthand, product.group_id, "
    u"product.pack_amount, "
    u"sum(product_doc_row.amount), sum(product_doc_row.base_cost_sum), sum(product_doc_row.price_cost_sum) "
    u"FROM "
    u"product_doc_row LEFT JOIN product ON product_doc_row.product_id=product.id LEFT JOIN measurement ON "
    u"product.measurement_id=measurement.id WHERE product_doc_row.doc_id IN (SELECT id FROM product_doc "
    u"WHERE "
    u"(doc_type_id=? OR doc_type_id=?)"_s;
const QString queryA = head + u" AND date>? AND date<? AND is_confirmed=1)"_s;
const QString queryB = head + u" AND date>? AND date<? AND contragent_id=? AND is_confirmed=1)"_s;
const QString queryC = head + u" AND is_confirmed=1 AND date>? AND date<?"_s;

QString idClause(const std::vector<qint64>& ids)
{
    QString clause;
    for (std::size_t i = 0; i < ids.size(); ++i)
        clause += (i == 0 ? u" WHERE"_s : u" OR"_s) + u" id=?"_s;
    return clause;
}

template <class Record>
std::vector<std::shared_ptr<Record>> readWith(Connector& connector, const std::vector<qint64>& ids)
{
    const std::vector<Parameter> params(ids.begin(), ids.end());
    return connector.freeSQL<Record>(idClause(ids).toStdString(), params, Fill::Nothing);
}

} // namespace

Decimal LiteralSellReport::Row::packs() const
{
    if (gathers)
        return storedPacks;
    return packAmount == Decimal(0) ? Decimal(0) : amount.dividedBy(packAmount, moneyHandler);
}

double LiteralSellReport::Row::percent() const
{
    return baseSum == Decimal(0) ? 1.0 : profit().dividedBy(baseSum, percentHandler).toDouble();
}

double LiteralSellReport::Row::number(const QString& key) const
{
    return key == u"amount"   ? amount.toDouble()
           : key == u"base"   ? baseSum.toDouble()
           : key == u"price"  ? priceSum.toDouble()
           : key == u"profit" ? profit().toDouble()
                              : percent();
}

LiteralSellReport::LiteralSellReport(Connector& connector, PeriodSellReportQuery query, Options options)
    : m_connector(connector), m_query(std::move(query)), m_options(std::move(options))
{}

QStringList LiteralSellReport::lines()
{
    if (m_options.tag == 0)
        readProducts();
    else if (m_options.tag == 1)
        readContragents();
    else if (m_options.tag == 2)
        readManagers();
    buildTree();
    open(m_top, true);
    if (!m_options.sortKey.isEmpty()) {
        const int total = m_top.back();
        m_top.pop_back();
        m_shown.clear();
        sortList(m_top);
        m_top.push_back(total);
        open(m_top, false);
    }
    clear();
    QStringList lines;
    for (const int index : m_shown)
        lines.append(line(m_rows[static_cast<std::size_t>(index)]));
    return lines;
}

int LiteralSellReport::append(qint64 id, const QString& name, const QString& type, qint64 parentID)
{
    Row row;
    row.id = id;
    row.name = name;
    row.type = type;
    row.parentID = parentID;
    row.gathers = true;
    m_rows.push_back(row);
    return static_cast<int>(m_rows.size()) - 1;
}

void LiteralSellReport::runQuery(const QString& sql, std::vector<Parameter> inFront, qint64 parentID,
                                 bool ownParent)
{
    QString text = sql;
    for (std::size_t i = 0; i < m_query.productIDs.size(); ++i) {
        text += (i == 0 ? u" AND ("_s : u" OR"_s) + u" product_doc_row.product_id=?"_s;
        inFront.emplace_back(m_query.productIDs[i]);
    }
    text += (m_query.productIDs.empty() ? u""_s : u")"_s) + u" GROUP BY product_doc_row.product_id"_s;
    for (const auto& read : m_connector.freeSQL<FreeRow>(text.toStdString(), inFront, Fill::Nothing, true)) {
        Row row;
        row.id = read->id;
        row.parentID = ownParent ? read->parentID : parentID;
        row.type = u"product"_s;
        row.name = read->name;
        row.unit = read->unit;
        row.amount = read->innerAmount;
        row.packAmount = read->innerPackAmount;
        row.baseSum = read->innerBaseSum;
        row.priceSum = read->innerPriceSum;
        m_rows.push_back(row);
    }
}

void LiteralSellReport::readProducts()
{
    for (const auto& group : readWith<ProductGroup>(m_connector, m_query.productTypeIDs))
        append(group->id, group->name, u"productGroup"_s, group->parentID);
    runQuery(queryA, {DocType::SellIntangibles, DocType::SellProduct, m_query.dateFrom, m_query.dateTo}, 0,
             true);
}

void LiteralSellReport::readContragents()
{
    for (const auto& group : readWith<ContragentGroup>(m_connector, m_query.contragentTypeIDs))
        append(group->id, group->name, u"contragent"_s, group->parentID);
    for (const auto& contragent : readWith<Contragent>(m_connector, m_query.contragentIDs)) {
        const qint64 holder = contragent->parentContragentID;
        append(contragent->id + 10000, contragent->name, u"contragent"_s,
               holder != 0 ? holder + 10000 : contragent->parentID);
        runQuery(queryB,
                 {DocType::SellIntangibles, DocType::SellProduct, m_query.dateFrom, m_query.dateTo,
                  contragent->id},
                 contragent->id + 10000, false);
    }
}

void LiteralSellReport::readManagers()
{
    for (const auto& manager : readWith<Manager>(m_connector, m_query.selectedManagers)) {
        append(manager->id + 100000, manager->name, u"manager"_s, 0);
        readOfManager(manager->id, manager->id + 100000, true);
    }
    append(1000000, u"No manager"_s, u"manager"_s, 0);
    readOfManager(0, 1000000, false);
}

void LiteralSellReport::readOfManager(qint64 managerID, qint64 rowID, bool offset)
{
    const auto contragents =
        m_connector.freeSQL<Contragent>("WHERE manager_id=?", {managerID}, Fill::Nothing);
    if (m_options.managersGroup) {
        QString clause;
        for (std::size_t i = 0; i < contragents.size(); ++i)
            clause += (i == 0 ? u" AND ("_s : u" OR"_s) + u" contragent_id="_s +
                      QString::number(contragents[i]->id);
        if (!contragents.empty())
            clause += u')';
        runQuery(queryC + clause + u')',
                 {DocType::SellIntangibles, DocType::SellProduct, m_query.dateFrom, m_query.dateTo}, rowID,
                 false);
        return;
    }
    for (const auto& contragent : contragents) {
        const qint64 holder = contragent->parentContragentID;
        append(contragent->id + 10000, contragent->name, u"contragent"_s,
               holder == 0 ? rowID : holder + (offset ? 10000 : 0));
        runQuery(queryB,
                 {DocType::SellIntangibles, DocType::SellProduct, m_query.dateFrom, m_query.dateTo,
                  contragent->id},
                 contragent->id + 10000, false);
    }
}

void LiteralSellReport::buildTree()
{
    Row total;
    total.name = u"TOTAL"_s;
    total.type = u"total"_s;
    total.gathers = true;
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        Row& row = m_rows[i];
        const auto parent =
            row.parentID == 0 ? m_rows.end() : std::ranges::find(m_rows, row.parentID, &Row::id);
        if (parent == m_rows.end()) {
            m_top.push_back(static_cast<int>(i));
        } else {
            parent->children.push_back(static_cast<int>(i));
            row.parent = static_cast<int>(parent - m_rows.begin());
            row.indent = parent->indent + 3;
            std::ranges::stable_sort(parent->children, [this](int a, int b) {
                return textLess(m_rows[static_cast<std::size_t>(a)].name,
                                m_rows[static_cast<std::size_t>(b)].name);
            });
        }
        if (row.type == u"product") {
            total.amount = total.amount.plus(row.amount, moneyHandler);
            total.baseSum = total.baseSum.plus(row.baseSum, moneyHandler);
            total.priceSum = total.priceSum.plus(row.priceSum, moneyHandler);
        }
    }
    m_rows.push_back(total);
    m_top.push_back(static_cast<int>(m_rows.size()) - 1);
}

void LiteralSellReport::open(const std::vector<int>& list, bool calculateTotals)
{
    for (const int index : list) {
        const Row row = m_rows[static_cast<std::size_t>(index)];
        if (calculateTotals &&
            (row.type == u"product" || row.type == u"contragent" || row.type == u"manager")) {
            for (int above = row.parent; above >= 0 && m_rows[static_cast<std::size_t>(above)].gathers;
                 above = m_rows[static_cast<std::size_t>(above)].parent) {
                Row& sums = m_rows[static_cast<std::size_t>(above)];
                sums.amount = sums.amount.plus(row.amount, moneyHandler);
                sums.baseSum = sums.baseSum.plus(row.baseSum, moneyHandler);
                sums.priceSum = sums.priceSum.plus(row.priceSum, moneyHandler);
                if (row.packs() != Decimal(0))
                    sums.storedPacks = sums.storedPacks.plus(row.packs(), moneyHandler);
            }
        }
        m_shown.push_back(index);
        open(row.children, calculateTotals);
    }
}

void LiteralSellReport::clear()
{
    std::erase_if(m_shown, [this](int index) {
        const Row& row = m_rows[static_cast<std::size_t>(index)];
        return row.amount == Decimal(0) ||
               (m_options.productsGroup && row.type == u"product" && row.parent >= 0) ||
               (m_options.contragentsGroup && row.type == u"product" && row.parent >= 0);
    });
}

void LiteralSellReport::sortList(std::vector<int>& list)
{
    const auto less = [this](int a, int b) {
        const Row& rowA = m_rows[static_cast<std::size_t>(m_options.ascending ? a : b)];
        const Row& rowB = m_rows[static_cast<std::size_t>(m_options.ascending ? b : a)];
        return m_options.sortKey == u"name" ? textLess(rowA.name, rowB.name)
                                            : rowA.number(m_options.sortKey) < rowB.number(m_options.sortKey);
    };
    std::ranges::stable_sort(list, less);
    for (const int index : list)
        sortList(m_rows[static_cast<std::size_t>(index)].children);
}

QString LiteralSellReport::line(const Row& row) const
{
    const QStringList cells{QString(row.indent + 1, u' ') + row.name,
                            row.unit,
                            row.amount.toText(),
                            row.packs() == Decimal(0) ? QString() : row.packs().toText(),
                            row.baseSum.toText(),
                            row.priceSum.toText(),
                            row.profit().toText(),
                            QString::number(row.percent(), 'f', 4),
                            row.type};
    return cells.join(u'|');
}

} // namespace zelvor
