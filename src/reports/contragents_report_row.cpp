#include "reports/contragents_report_row.h"

#include "core/text_order.h"

#include <algorithm>

namespace zelvor {

void ContragentsReportRow::addIndent(int blanks)
{
    indent += blanks;
    for (ContragentsReportRow* child : children)
        child->addIndent(blanks);
}

void ContragentsReportRow::setChild(ContragentsReportRow& child)
{
    constexpr int step = 3;
    children.insert(std::ranges::upper_bound(children, &child, NameLess{}), &child);
    child.parent = this;
    child.addIndent(indent + step);
}

bool ContragentsReportRow::isBelow(const ContragentsReportRow& other) const
{
    const ContragentsReportRow* row = this;
    while (row && row != &other)
        row = row->parent;
    return row != nullptr;
}

void ContragentsReportRow::addSaldo(const SaldoRow& row)
{
    addToStartSaldo(row.innerStartSaldo());
    addToDebit(row.innerDebitSum());
    addToCredit(row.innerCreditSum());
}

QVariant ContragentsReportRow::valueForIdentifier(QStringView identifier) const
{
    if (identifier == u"name")
        return indentString() + name;
    return SaldoRow::valueForIdentifier(identifier);
}

} // namespace zelvor
