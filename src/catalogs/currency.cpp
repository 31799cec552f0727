#include "catalogs/currency.h"

namespace zelvor {

QVariant Currency::valueForIdentifier(QStringView key) const
{
    if (key == u"code")
        return code;
    if (key == u"rate")
        return rate();
    return QString();
}

const TableInfo& Currency::table()
{
    static constexpr ColumnInfo columns[] = {
        integerColumn<&Currency::code>("code"),
        realColumn<Currency, &Currency::rate, &Currency::setRate>("rate"),
    };
    static constexpr TableInfo info{"currency", columns, {}, {}, nullptr, makeRecord<Currency>};
    return info;
}

} // namespace zelvor
