#include "catalogs/measurement.h"

namespace zelvor {

QVariant Measurement::valueForIdentifier(QStringView key) const
{
    if (key == u"name")
        return name;
    if (key == u"shorthand")
        return shorthand;
    if (key == u"isHidden")
        return isHidden;
    return QString();
}

const TableInfo& Measurement::table()
{
    static constexpr ColumnInfo columns[] = {
        textColumn<&Measurement::name>("name"),
        textColumn<&Measurement::shorthand>("shorthand"),
        booleanColumn<&Measurement::isHidden>("is_hidden"),
    };
    static constexpr TableInfo info{"measurement", columns, {}, {}, nullptr, makeRecord<Measurement>};
    return info;
}

} // namespace zelvor
