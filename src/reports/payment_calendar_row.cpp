#include "reports/payment_calendar_row.h"

namespace zelvor {

namespace {

QVariant figure(const Decimal& value)
{
    return value.isZero() ? QVariant(QString()) : QVariant(value.toDouble());
}

} // namespace

QVariant PaymentCalendarRow::valueForIdentifier(QStringView identifier) const
{
    if (identifier == u"leftToPayIn")
        return figure(innerLeftToPayIn);
    if (identifier == u"leftToPayOut")
        return figure(innerLeftToPayOut);
    if (identifier == u"name" && (total || !document))
        return name;
    if (total || !document)
        return QString();
    if (identifier == u"name")
        return QString(document->journalName() + QStringLiteral(" (") + document->contragentName() +
                       QLatin1Char(')'));
    if (identifier == u"date")
        return document->date;
    if (identifier == u"payToDate")
        return document->payToDate;
    if (identifier == u"sum")
        return document->docSum();
    return QString();
}

} // namespace zelvor
