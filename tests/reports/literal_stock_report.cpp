#include "reports/literal_stock_report.h"

#include "catalogs/product.h"
#include "catalogs/stock.h"
#include "catalogs/stock_history.h"
#include "core/doc_type.h"
#include "core/text_order.h"
#include "documents/product_document_row.h"

#include <algorithm>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;
using enum DocType;

namespace {

// The records of a filter: all of them without ids.
template <class Record>
std::vector<std::shared_ptr<Record>> readWith(Connector& connector, const std::vector<qint64>& ids)
{
    std::string clause;
    for (const qint64 id : ids)
        clause += (clause.empty() ? " WHERE id=" : " OR id=") + std::to_string(id);
    return connector.freeSQL<Record>(clause);
}

} // namespace

Decimal LiteralStockReport::Row::amountTotal() const
{
    Decimal total;
    for (const Cell& cell : stocks)
        total = total.plus(cell.amount, moneyHandler);
    return total;
}

Decimal LiteralStockReport::Row::sumTotal() const
{
    Decimal total;
    for (const Cell& cell : stocks)
        total = total.plus(cell.sum, moneyHandler);
    return total;
}

LiteralStockReport::LiteralStockReport(Connector& connector, ProductsOnStockQuery query)
    : m_connector(connector), m_query(std::move(query))
{}

QStringList LiteralStockReport::lines()
{
    readRows();
    buildTree();
    open(m_top);
    removeEmptyStocks();
    QStringList lines;
    for (const int index : m_shown) {
        const Row& row = m_rows[static_cast<std::size_t>(index)];
        QStringList cells{row.type, QString(row.indent, u' ') + row.name, row.unit, row.cost.toText()};
        for (const Cell& cell : row.stocks)
            cells << cell.name << cell.amount.toText() << cell.sum.toText() << u"0"_s;
        lines << (cells << row.amountTotal().toText() << row.sumTotal().toText()).join(u'|');
    }
    return lines;
}

Decimal LiteralStockReport::startAmount(qint64 stockID, qint64 productID)
{
    const auto records = m_connector.freeSQL<StockHistory>("WHERE date=? AND stock_id=? AND product_id=?",
                                                           {m_query.start, stockID, productID});
    return records.empty() ? Decimal() : records[0]->innerAmount.plus(records[0]->innerAmountReserved);
}

Decimal LiteralStockReport::amountOf(qint64 stockID, qint64 productID)
{
    Decimal amount = startAmount(stockID, productID);
    const auto in = m_connector.freeSQL<ProductDocumentRow>(
        " WHERE doc_id IN (SELECT id FROM product_doc WHERE (doc_type_id=? OR doc_type_id=? OR doc_type_id=?"
        " OR doc_type_id=?) AND date>? AND date<? AND stock_to_id=? AND is_confirmed=1) AND product_id=?",
        {BuyProduct, AddProduct, Return, MoveProduct, m_query.start, m_query.date, stockID, productID});
    for (const auto& row : in)
        amount = amount.plus(row->innerAmount, moneyHandler);
    const auto out = m_connector.freeSQL<ProductDocumentRow>(
        " WHERE doc_id IN (SELECT id FROM product_doc WHERE (doc_type_id=? OR doc_type_id=? OR doc_type_id=?)"
        " AND date>? AND date<? AND stock_from_id=? AND is_confirmed=1) AND product_id=?",
        {SellProduct, DeleteProduct, MoveProduct, m_query.start, m_query.date, stockID, productID});
    for (const auto& row : out)
        amount = amount.minus(row->innerAmount, moneyHandler);
    return amount;
}

void LiteralStockReport::readRows()
{
    auto stocks = readWith<Stock>(m_connector, m_query.selectedStocks);
    std::ranges::stable_sort(stocks, NameLess{});
    for (const auto& group : readWith<ProductGroup>(m_connector, m_query.productTypeIDs)) {
        Row row{group->id, u"group"_s, true, group->parentID};
        row.name = group->name;
        for (const auto& stock : stocks)
            row.stocks.push_back({stock->name, {}, {}});
        m_rows.push_back(row);
    }
    auto products = readWith<Product>(m_connector, m_query.productIDs);
    std::ranges::stable_sort(products, NameLess{});
    for (const auto& product : products) {
        Row row{product->id, u"product"_s, false, product->parentID};
        row.name = product->name;
        row.unit = product->measurement->shorthand;
        row.cost = product->innerBaseCost;
        bool isHeld = false;
        for (const auto& stock : stocks) {
            const Decimal amount = amountOf(stock->id, product->id);
            row.stocks.push_back({stock->name, amount, amount.times(product->innerBaseCost, moneyHandler)});
            isHeld = isHeld || amount > Decimal(0);
        }
        if (isHeld)
            m_rows.push_back(row);
    }
}

int LiteralStockReport::parentOf(const Row& row) const
{
    for (std::size_t i = 0; row.parentID != 0 && i < m_rows.size(); ++i) {
        if (m_rows[i].id == row.parentID)
            return static_cast<int>(i);
    }
    return -1;
}

// Not below itself: what would lead in a circle stands at the top.
bool LiteralStockReport::append(int parent, int child)
{
    for (int holder = parent; holder >= 0; holder = m_rows[static_cast<std::size_t>(holder)].parent) {
        if (holder == child)
            return false;
    }
    Row& above = m_rows[static_cast<std::size_t>(parent)];
    Row& below = m_rows[static_cast<std::size_t>(child)];
    above.children.push_back(child);
    below.parent = parent;
    below.parentID = above.id;
    std::ranges::stable_sort(above.children, [this](int a, int b) {
        return textLess(m_rows[static_cast<std::size_t>(a)].name, m_rows[static_cast<std::size_t>(b)].name);
    });
    for (int holder = parent; holder >= 0; holder = m_rows[static_cast<std::size_t>(holder)].parent)
        addTo(holder, below.stocks);
    below.indent = above.indent + 6;
    return true;
}

void LiteralStockReport::addTo(int row, const std::vector<Cell>& figures)
{
    auto& stocks = m_rows[static_cast<std::size_t>(row)].stocks;
    for (std::size_t i = 0; i < stocks.size(); ++i) {
        stocks[i].amount = stocks[i].amount.plus(figures[i].amount, moneyHandler);
        stocks[i].sum = stocks[i].sum.plus(figures[i].sum, moneyHandler);
    }
}

void LiteralStockReport::buildTree()
{
    const auto count = static_cast<int>(m_rows.size());
    Row total{0, u"total"_s};
    total.name = u"TOTAL:"_s;
    if (count > 0) {
        Row title{0, u"title"_s};
        for (const Cell& cell : m_rows[0].stocks)
            title.stocks.push_back({cell.name, {}, {}});
        total.stocks = title.stocks;
        m_top.push_back(count);
        const std::vector<Row> closing{title, total};
        // The parents are looked for among the read rows: neither of these two has an id.
        m_rows.insert(m_rows.end(), closing.begin(), closing.end());
    } else {
        m_rows.push_back(total);
    }
    const auto last = static_cast<int>(m_rows.size()) - 1;
    for (int index = 0; index < count; ++index) {
        const int parent = parentOf(m_rows[static_cast<std::size_t>(index)]);
        if (parent < 0 || !append(parent, index))
            m_top.push_back(index);
        if (!m_rows[static_cast<std::size_t>(index)].folder)
            addTo(last, m_rows[static_cast<std::size_t>(index)].stocks);
    }
    m_top.push_back(last);
}

void LiteralStockReport::open(const std::vector<int>& list)
{
    for (const int index : list) {
        const Row& row = m_rows[static_cast<std::size_t>(index)];
        if (row.sumTotal() != Decimal(0) || row.type == u"title")
            m_shown.push_back(index);
        open(row.children);
    }
}

void LiteralStockReport::removeEmptyStocks()
{
    if (m_shown.empty())
        return;
    const std::vector<Cell> last = m_rows[static_cast<std::size_t>(m_shown.back())].stocks;
    for (std::size_t place = last.size(); place-- > 0;) {
        if (last[place].amount > Decimal(0))
            continue;
        for (const int index : m_shown) {
            auto& stocks = m_rows[static_cast<std::size_t>(index)].stocks;
            stocks.erase(stocks.begin() + static_cast<std::ptrdiff_t>(place));
        }
    }
}

} // namespace zelvor
