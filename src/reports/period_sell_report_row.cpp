#include "reports/period_sell_report_row.h"

#include "core/text_order.h"

#include <algorithm>
#include <cmath>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

using Rows = std::vector<PeriodSellReportRow*>;

constexpr int indentStep = 3;

bool nameLess(const PeriodSellReportRow* a, const PeriodSellReportRow* b)
{
    return textLess(a->name(), b->name());
}

// What is no number sorts before all numbers.
bool numberLess(double a, double b)
{
    return std::isnan(a) ? !std::isnan(b) : a < b;
}

template <class Less>
void sortInDirection(Rows& rows, bool ascending, const Less& less)
{
    if (ascending)
        std::ranges::stable_sort(rows, less);
    else
        std::ranges::stable_sort(rows, [&less](const auto* a, const auto* b) { return less(b, a); });
}

using Number = double (*)(const PeriodSellReportRow&);

Number numberOfKey(const QString& key)
{
    if (key == u"amount")
        return [](const PeriodSellReportRow& row) { return row.amount(); };
    if (key == u"base")
        return [](const PeriodSellReportRow& row) { return row.baseSum(); };
    if (key == u"price")
        return [](const PeriodSellReportRow& row) { return row.priceSum(); };
    if (key == u"profit")
        return [](const PeriodSellReportRow& row) { return row.profit(); };
    if (key == u"percent")
        return [](const PeriodSellReportRow& row) { return row.percent(); };
    return nullptr;
}

} // namespace

const SellReportSubject& PeriodSellReportRow::nothing()
{
    static const SellReportSubject subject;
    return subject;
}

QString PeriodSellReportRow::rowType() const
{
    switch (type) {
    case SellRowType::ProductGroup:
        return u"productGroup"_s;
    case SellRowType::Product:
        return u"product"_s;
    case SellRowType::Contragent:
        return u"contragent"_s;
    case SellRowType::Manager:
        return u"manager"_s;
    case SellRowType::Total:
        return u"total"_s;
    case SellRowType::None:
        break;
    }
    return {};
}

Decimal PeriodSellReportRow::innerPacks() const
{
    const Decimal& pack = innerPackAmount();
    return pack.isZero() ? Decimal() : innerAmount.dividedBy(pack, decimalHandler);
}

double PeriodSellReportRow::percent() const
{
    if (innerBaseSum.isZero())
        return 1;
    return innerProfit().dividedBy(innerBaseSum, percentDecimalHandler).toDouble();
}

void PeriodSellReportRow::setChild(PeriodSellReportRow& child)
{
    if (!m_children)
        m_children = std::make_unique<Children>();
    m_children->rows.push_back(&child);
    m_children->inOrder = m_children->rows.size() == 1; // sorted once, when somebody looks
    child.parent = this;
    child.parentID = id;
    child.indent = indent + indentStep;
}

const std::vector<PeriodSellReportRow*>& PeriodSellReportRow::children() const
{
    static const Rows none;
    if (!m_children)
        return none;
    if (!m_children->inOrder)
        std::ranges::stable_sort(m_children->rows, nameLess);
    m_children->inOrder = true;
    return m_children->rows;
}

void PeriodSellReportRow::appendDataToParent(const PeriodSellReportRow& row)
{
    const Decimal packsOfRow = row.innerPacks();
    for (PeriodSellReportRow* above = parent; above && above->addData(row, packsOfRow);
         above = above->parent) {
    }
}

void PeriodSellReportRow::sortByField(const QString& key, bool ascending)
{
    if (!m_children)
        return;
    children();
    sortRows(m_children->rows, key, ascending);
    for (PeriodSellReportRow* child : m_children->rows)
        child->sortByField(key, ascending);
}

QVariant PeriodSellReportRow::valueForIdentifier(QStringView identifier) const
{
    if (identifier == u"name")
        return indentStr() + name();
    if (identifier == u"unit")
        return unit();
    if (identifier == u"amount")
        return amount();
    if (identifier == u"packs")
        return innerPacks().isZero() ? QVariant(QString()) : QVariant(packs());
    if (identifier == u"baseSum")
        return baseSum();
    if (identifier == u"priceSum")
        return priceSum();
    if (identifier == u"profit")
        return profit();
    if (identifier == u"percent")
        return percent();
    return QString();
}

void sortRows(Rows& rows, const QString& key, bool ascending)
{
    if (key == u"name")
        sortInDirection(rows, ascending, nameLess);
    else if (const Number number = numberOfKey(key))
        sortInDirection(rows, ascending, [number](const auto* a, const auto* b) {
            return numberLess(number(*a), number(*b));
        });
}

} // namespace zelvor
