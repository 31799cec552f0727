#include "reports/statement_row.h"

#include "core/localized.h"

namespace zelvor {

StatementRow StatementRow::title(Kind kind)
{
    StatementRow row(kind);
    row.name = kind == Kind::StartTitle ? localized("START PERIOD:") : localized("END PERIOD:");
    return row;
}

QVariant StatementRow::valueForIdentifier(QStringView identifier) const
{
    if (identifier == u"name")
        return document ? document->name() : name;
    if (identifier == u"date")
        return document ? QVariant(document->date) : QVariant(QString());
    const bool isBlank = (identifier == u"startSaldo" && m_kind == Kind::EndTitle) ||
                         (identifier == u"finishSaldo" && m_kind == Kind::StartTitle) ||
                         (identifier == u"debit" && !titleRow() && innerDebitSum().isZero()) ||
                         (identifier == u"credit" && !titleRow() && innerCreditSum().isZero());
    return isBlank ? QVariant(QString()) : SaldoRow::valueForIdentifier(identifier);
}

} // namespace zelvor
