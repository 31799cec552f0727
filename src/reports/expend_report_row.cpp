#include "reports/expend_report_row.h"

#include "core/text_order.h"
#include "documents/money_document.h"

#include <algorithm>

namespace zelvor {

namespace {

bool standsBefore(const std::shared_ptr<ExpendReportRow>& a, const std::shared_ptr<ExpendReportRow>& b)
{
    if (a->document && b->document)
        return a->document->date < b->document->date;
    if (a->document || b->document)
        return !a->document;
    return textLess(a->title(), b->title());
}

QVariant shownSum(const Decimal& sum)
{
    return sum.isZero() ? QVariant(QString()) : QVariant(sum.toDouble());
}

} // namespace

QString SpendingDocument::name() const
{
    MoneyDocument document;
    document.insertDocType(DocType::MoneyToExpend);
    document.docNumber = docNumber;
    document.confirmed = true;
    return document.name();
}

QString ExpendReportRow::title() const
{
    if (document)
        return document->name();
    return expend ? expend->name : name;
}

void ExpendReportRow::add(Decimal ExpendReportRow::*field, const Decimal& sum)
{
    for (ExpendReportRow* row = this; row; row = row->parent)
        row->*field = (row->*field).plus(sum, handler);
}

void ExpendReportRow::setChild(const std::shared_ptr<ExpendReportRow>& child)
{
    // Nearly always they come in order.
    const bool isLast = m_children.empty() || !standsBefore(child, m_children.back());
    m_children.insert(isLast ? m_children.end() : std::ranges::upper_bound(m_children, child, standsBefore),
                      child);
    child->parent = this;
    child->addIndent(indent + 1 - child->indent);
}

void ExpendReportRow::addIndent(int levels)
{
    indent += levels;
    for (const auto& child : m_children)
        child->addIndent(levels);
}

bool ExpendReportRow::holds(const ExpendReportRow& row) const
{
    const ExpendReportRow* above = &row;
    while (above && above != this)
        above = above->parent;
    return above != nullptr;
}

QVariant ExpendReportRow::valueForIdentifier(QStringView identifier) const
{
    if (identifier == u"date")
        return document ? QVariant(document->date) : QVariant(QString());
    if (identifier == u"name")
        return indentString() + title();
    if (identifier == u"constant")
        return shownSum(innerConst);
    if (identifier == u"variable")
        return shownSum(innerVariable);
    if (identifier == u"total")
        return total();
    if (identifier == u"comment")
        return document ? document->comment : QString();
    return QString();
}

} // namespace zelvor
