#include "reports/report_stock_row.h"

#include "core/formats.h"
#include "core/localized.h"
#include "core/text_order.h"

#include <QtCore/QStringList>

#include <algorithm>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int indentOfALevel = 6;
// A sum that begins with the scale of what it gets takes the fast road.
constexpr Decimal nothing = Decimal::fromParts(0, ReportStockRow::decimalHandler.scale);

// The figures of one cell; one that is 0 stays empty.
QString figuresText(std::initializer_list<Decimal> figures)
{
    QStringList texts;
    for (const Decimal& figure : figures)
        texts << (figure.isZero() ? QString() : amountText(figure));
    while (!texts.isEmpty() && texts.last().isEmpty())
        texts.removeLast();
    return texts.join(u" / "_s);
}

// A caption above the captions of the cell's figures.
QString captionText(const QString& caption, const QStringList& figures)
{
    return caption + u'\n' + figures.join(u" / "_s);
}

} // namespace

Decimal ReportStockRow::amountTotal() const
{
    Decimal total = nothing;
    for (const StockData& stock : stocks)
        total = total.plus(stock.amount, decimalHandler);
    return total;
}

Decimal ReportStockRow::sumTotal() const
{
    Decimal total = nothing;
    for (const StockData& stock : stocks)
        total = total.plus(stock.sum, decimalHandler);
    return total;
}

bool ReportStockRow::isWithin(const ReportStockRow& other) const
{
    if (this == &other)
        return true;
    for (auto above = parent.lock(); above; above = above->parent.lock()) {
        if (above.get() == &other)
            return true;
    }
    return false;
}

bool ReportStockRow::setChild(const std::shared_ptr<ReportStockRow>& child)
{
    if (isWithin(*child))
        return false;
    children.insert(std::ranges::upper_bound(children, child, NameLess{}), child);
    child->parent = weak_from_this();
    child->parentID = id;
    appendData(*child);
    child->indent = indent + indentOfALevel;
    return true;
}

void ReportStockRow::appendData(const ReportStockRow& row)
{
    addFigures(row);
    for (auto above = parent.lock(); above; above = above->parent.lock())
        above->addFigures(row);
}

void ReportStockRow::addFigures(const ReportStockRow& row)
{
    Q_ASSERT(stocks.size() == row.stocks.size());
    for (std::size_t i = 0; i < stocks.size(); ++i) {
        stocks[i].amount = stocks[i].amount.plus(row.stocks[i].amount, decimalHandler);
        stocks[i].sum = stocks[i].sum.plus(row.stocks[i].sum, decimalHandler);
    }
}

std::vector<StockData> ReportStockRow::emptyStocks() const
{
    std::vector<StockData> empty;
    empty.reserve(stocks.size());
    for (const StockData& stock : stocks)
        empty.push_back({.name = stock.name, .amount = {}, .sum = {}, .reserv = {}});
    return empty;
}

const StockData* ReportStockRow::stockOf(QStringView identifier) const
{
    constexpr QStringView prefix = u"stock_";
    if (!identifier.startsWith(prefix))
        return nullptr;
    bool isNumber = false;
    const qsizetype place = identifier.mid(prefix.size()).toInt(&isNumber);
    const bool inside = isNumber && place >= 0 && static_cast<std::size_t>(place) < stocks.size();
    return inside ? &stocks[static_cast<std::size_t>(place)] : nullptr;
}

QVariant ReportStockRow::titleCell(QStringView identifier) const
{
    if (identifier == u"name")
        return localized("Name");
    if (identifier == u"units")
        return localized("Unit");
    if (identifier == u"cost")
        return localized("Base cost");
    if (identifier == u"total")
        return captionText(localized("Total"), {localized("Qty"), localized("Sum")});
    if (const StockData* stock = stockOf(identifier))
        return captionText(stock->name, {localized("Qty"), localized("Sum"), localized("Reserve")});
    return QString();
}

QVariant ReportStockRow::valueForIdentifier(QStringView identifier) const
{
    if (isTitle())
        return titleCell(identifier);
    if (identifier == u"name")
        return indentedName();
    if (identifier == u"units")
        return isProduct() ? unit : QString();
    if (identifier == u"cost")
        return isProduct() ? QVariant(cost()) : QVariant(QString());
    if (identifier == u"total")
        return figuresText({amountTotal(), sumTotal()});
    if (const StockData* stock = stockOf(identifier))
        return figuresText({stock->amount, stock->sum, stock->reserv});
    return QString();
}

} // namespace zelvor
