#include "reports/products_on_stock_reader.h"

#include "core/doc_type.h"
#include "core/text_order.h"
#include "reports/id_filter.h"
#include "reports/whole_cents.h"

#include <algorithm>
#include <unordered_map>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;
using enum DocType;

namespace {

using Rows = std::vector<std::shared_ptr<ReportStockRow>>;

constexpr std::size_t nowhere = static_cast<std::size_t>(-1);

struct StockFact {
    qint64 id = 0;
    QString name;
};

struct ProductFact {
    qint64 id = 0;
    QString name;
    qint64 groupID = 0;
    qint64 measurementID = 0;
    Decimal baseCost;
};

std::vector<StockFact> readStocks(Connector& connector, const ProductsOnStockQuery& query)
{
    const IDFilter filter(query.selectedStocks);
    std::vector<StockFact> stocks;
    connector.scan("SELECT id, name FROM stock ORDER BY id", {}, [&](const Statement& row) {
        if (filter.passes(row.integer(0)))
            stocks.push_back({row.integer(0), row.text(1)});
    });
    std::ranges::stable_sort(stocks, textLess, &StockFact::name);
    return stocks;
}

// In ascending order of id.
std::vector<ProductFact> readProducts(Connector& connector, const ProductsOnStockQuery& query)
{
    const IDFilter filter(query.productIDs);
    std::vector<ProductFact> products;
    connector.scan("SELECT id, name, group_id, measurement_id, base_cost FROM product ORDER BY id", {},
                   [&](const Statement& row) {
                       if (filter.passes(row.integer(0)))
                           products.push_back({row.integer(0), row.text(1), row.integer(2), row.integer(3),
                                               Decimal::fromDouble(row.real(4), moneyHandler)});
                   });
    return products;
}

// Quantities by warehouse and product, each stored value rounded as a record rounds it. Whole cents, which is
// what the program stores, are added as whole numbers; whatever else a file holds is added as decimals.
class StockAmounts {
public:
    StockAmounts(const std::vector<StockFact>& stocks, const std::vector<ProductFact>& products)
        : m_stocks(stocks), m_products(products), m_cents(stocks.size() * products.size()),
          m_hasStart(m_cents.size())
    {}

    std::size_t stockPlace(qint64 id) const
    {
        const auto place = std::ranges::find(m_stocks, id, &StockFact::id);
        return place == m_stocks.end() ? nowhere : static_cast<std::size_t>(place - m_stocks.begin());
    }
    std::size_t productPlace(qint64 id) const
    {
        // Records are never deleted, so nearly every catalog has its ids without a gap.
        const auto guess = static_cast<quint64>(id) - 1; // of any id in a strange file
        if (guess < m_products.size() && m_products[guess].id == id)
            return guess;
        const auto place = std::ranges::lower_bound(m_products, id, {}, &ProductFact::id);
        const bool found = place != m_products.end() && place->id == id;
        return found ? static_cast<std::size_t>(place - m_products.begin()) : nowhere;
    }

    // The first row of a snapshot that tells of the pair is the one that counts.
    void begin(std::size_t stock, std::size_t product, double amount, double reserved)
    {
        if (stock == nowhere || product == nowhere || m_hasStart[cell(stock, product)])
            return;
        m_hasStart[cell(stock, product)] = true;
        add(stock, product, amount);
        add(stock, product, reserved);
    }
    void add(std::size_t stock, std::size_t product, double value) { change(stock, product, value, 1); }
    void subtract(std::size_t stock, std::size_t product, double value) { change(stock, product, value, -1); }

    Decimal amount(std::size_t stock, std::size_t product) const
    {
        const Decimal whole = Decimal::fromParts(m_cents[cell(stock, product)], moneyHandler.scale);
        if (m_rest.empty())
            return whole;
        const auto rest = m_rest.find(cell(stock, product));
        return rest == m_rest.end() ? whole : whole.plus(rest->second, moneyHandler);
    }

private:
    std::size_t cell(std::size_t stock, std::size_t product) const
    {
        return product * m_stocks.size() + stock;
    }
    void change(std::size_t stock, std::size_t product, double value, int sign)
    {
        if (stock == nowhere || product == nowhere)
            return;
        qint64 cents = 0;
        if (wholeCents(value, cents)) {
            m_cents[cell(stock, product)] += sign * cents;
            return;
        }
        const Decimal rounded = Decimal::fromDouble(value, moneyHandler);
        Decimal& rest = m_rest[cell(stock, product)];
        rest = rest.plus(sign < 0 ? rounded.negated() : rounded, moneyHandler);
    }

    const std::vector<StockFact>& m_stocks;
    const std::vector<ProductFact>& m_products;
    std::vector<qint64> m_cents;
    std::vector<bool> m_hasStart;
    std::unordered_map<std::size_t, Decimal> m_rest;
};

bool readSnapshot(Connector& connector, qint64 start, StockAmounts& amounts)
{
    return connector.scan(
        "SELECT stock_id, product_id, amount, amount_reserved FROM stock_history WHERE date=? ORDER BY id",
        {start}, [&amounts](const Statement& row) {
            amounts.begin(amounts.stockPlace(row.integer(0)), amounts.productPlace(row.integer(1)),
                          row.real(2), row.real(3));
        });
}

// Where the goods of a document come from and go to.
struct Movement {
    std::size_t to = nowhere;
    std::size_t from = nowhere;
    bool moves() const { return to != nowhere || from != nowhere; }
};

Movement movementOf(const StockAmounts& amounts, qint64 docType, qint64 stockFrom, qint64 stockTo)
{
    const auto isOneOf = [docType](auto... types) { return ((docType == rawValue(types)) || ...); };
    Movement movement;
    if (isOneOf(BuyProduct, AddProduct, Return, MoveProduct))
        movement.to = amounts.stockPlace(stockTo);
    if (isOneOf(SellProduct, DeleteProduct, MoveProduct))
        movement.from = amounts.stockPlace(stockFrom);
    return movement;
}

void moveGoods(StockAmounts& amounts, const Movement& movement, qint64 productID, double amount)
{
    const std::size_t product = amounts.productPlace(productID);
    amounts.add(movement.to, product, amount);
    amounts.subtract(movement.from, product, amount);
}

// A short time: the documents come by their date and the rows by their document (hence the CROSS JOIN, which
// keeps that order), so only the time's own rows are touched.
bool moveByDocument(Connector& connector, const ProductsOnStockQuery& query, StockAmounts& amounts)
{
    return connector.scan("SELECT d.doc_type_id, d.stock_from_id, d.stock_to_id, r.product_id, r.amount"
                          " FROM product_doc AS d CROSS JOIN product_doc_row AS r ON r.doc_id=d.id"
                          " WHERE d.date>? AND d.date<? AND d.is_confirmed=1",
                          {query.start, query.date}, [&amounts](const Statement& row) {
                              const Movement movement =
                                  movementOf(amounts, row.integer(0), row.integer(1), row.integer(2));
                              if (movement.moves())
                                  moveGoods(amounts, movement, row.integer(3), row.real(4));
                          });
}

// A long one: the documents in a field by their ids, then all rows once as they lie in the file.
bool moveByAllRows(Connector& connector, const ProductsOnStockQuery& query, qint64 lastID,
                   StockAmounts& amounts)
{
    std::vector<Movement> movements(static_cast<std::size_t>(lastID) + 1);
    const bool read = connector.scan("SELECT id, doc_type_id, stock_from_id, stock_to_id FROM product_doc"
                                     " WHERE date>? AND date<? AND is_confirmed=1 AND id>0",
                                     {query.start, query.date}, [&](const Statement& head) {
                                         const auto place = static_cast<quint64>(head.integer(0));
                                         if (place < movements.size()) // otherwise a damaged file
                                             movements[place] = movementOf(amounts, head.integer(1),
                                                                           head.integer(2), head.integer(3));
                                     });
    return read && connector.scan("SELECT doc_id, product_id, amount FROM product_doc_row", {},
                                  [&](const Statement& row) {
                                      const auto place = static_cast<quint64>(row.integer(0));
                                      if (place < movements.size() && movements[place].moves())
                                          moveGoods(amounts, movements[place], row.integer(1), row.real(2));
                                  });
}

// Looking rows up by their document costs about eight times as much a row as reading them on the way.
constexpr qint64 lookUpsPerRead = 8;

bool moveSince(Connector& connector, const ProductsOnStockQuery& query, StockAmounts& amounts)
{
    qint64 heads = 0;
    qint64 lastID = 0;
    const bool counted = connector.scan(
        "SELECT count(date), (SELECT max(id) FROM product_doc) FROM product_doc WHERE date>? AND date<?",
        {query.start, query.date}, [&](const Statement& row) {
            heads = row.integer(0);
            lastID = row.integer(1);
        });
    if (!counted)
        return false;
    // Divided, since the ids of a strange file may be as large as they come.
    return lastID / lookUpsPerRead <= heads && lastID >= 0 ? moveByAllRows(connector, query, lastID, amounts)
                                                           : moveByDocument(connector, query, amounts);
}

std::vector<StockData> emptyStocks(const std::vector<StockFact>& stocks)
{
    std::vector<StockData> empty;
    for (const StockFact& stock : stocks)
        empty.push_back({.name = stock.name, .amount = {}, .sum = {}, .reserv = {}});
    return empty;
}

void appendGroups(Connector& connector, const ProductsOnStockQuery& query,
                  const std::vector<StockFact>& stocks, Rows& rows)
{
    const IDFilter filter(query.productTypeIDs);
    connector.scan("SELECT id, name, parent_id FROM product_group ORDER BY id", {},
                   [&](const Statement& group) {
                       if (!filter.passes(group.integer(0)))
                           return;
                       const auto row = std::make_shared<ReportStockRow>();
                       row->id = group.integer(0);
                       row->name = group.text(1);
                       row->type = u"group"_s;
                       row->parentID = group.integer(2);
                       row->folder = true;
                       row->stocks = emptyStocks(stocks);
                       rows.push_back(row);
                   });
}

std::unordered_map<qint64, QString> readUnits(Connector& connector)
{
    std::unordered_map<qint64, QString> units;
    connector.scan("SELECT id, shorthand FROM measurement", {},
                   [&](const Statement& row) { units.emplace(row.integer(0), row.text(1)); });
    return units;
}

void fillStocks(ReportStockRow& row, const StockAmounts& amounts, std::size_t product)
{
    for (std::size_t stock = 0; stock < row.stocks.size(); ++stock) {
        row.stocks[stock].amount = amounts.amount(stock, product);
        row.stocks[stock].sum = row.stocks[stock].amount.times(row.innerCost, ReportStockRow::decimalHandler);
    }
}

// The products of which some warehouse has more than nothing, by name.
Rows productRows(Connector& connector, const std::vector<StockFact>& stocks,
                 const std::vector<ProductFact>& products, const StockAmounts& amounts)
{
    Rows rows;
    const std::unordered_map<qint64, QString> units = readUnits(connector);
    const std::vector<StockData> empty = emptyStocks(stocks);
    for (std::size_t place = 0; place < products.size(); ++place) {
        std::size_t stock = 0;
        while (stock < stocks.size() && !amounts.amount(stock, place).isPositive())
            ++stock;
        if (stock == stocks.size())
            continue;
        const ProductFact& product = products[place];
        const auto row = std::make_shared<ReportStockRow>();
        row->id = product.id;
        row->name = product.name;
        row->type = u"product"_s;
        row->parentID = product.groupID;
        row->innerCost = product.baseCost;
        const auto unit = units.find(product.measurementID);
        row->unit = unit != units.end() ? unit->second : QString();
        row->stocks = empty;
        fillStocks(*row, amounts, place);
        rows.push_back(row);
    }
    std::ranges::stable_sort(rows, NameLess{});
    return rows;
}

} // namespace

Rows readProductsOnStock(Connector& connector, const ProductsOnStockQuery& query)
{
    const std::vector<StockFact> stocks = readStocks(connector, query);
    const std::vector<ProductFact> products = readProducts(connector, query);
    StockAmounts amounts(stocks, products);
    if (!readSnapshot(connector, query.start, amounts) || !moveSince(connector, query, amounts))
        return {}; // no half of a report
    Rows rows;
    appendGroups(connector, query, stocks, rows);
    const Rows held = productRows(connector, stocks, products, amounts);
    rows.insert(rows.end(), held.begin(), held.end());
    return rows;
}

} // namespace zelvor
