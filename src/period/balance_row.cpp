#include "period/balance_row.h"

namespace zelvor {

namespace {

QVariant cellOf(const Decimal& amount)
{
    return amount.isZero() ? QVariant(QString()) : QVariant(amount.toDouble());
}

} // namespace

QVariant BalanceRow::valueForIdentifier(QStringView key) const
{
    if (key == u"name")
        return groupRow ? name : QStringLiteral("  ") + name;
    if (key == u"debet")
        return cellOf(innerDebet);
    if (key == u"credit")
        return cellOf(innerCredit);
    return QString();
}

} // namespace zelvor
