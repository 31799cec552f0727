#include "catalogs/expend.h"

namespace zelvor {

QVariant ExpendType::valueForIdentifier(QStringView key) const
{
    if (key == u"name")
        return name;
    if (key == u"parentID")
        return parentID;
    if (key == u"selected")
        return selected;
    return QString();
}

const TableInfo& ExpendType::table()
{
    static constexpr ColumnInfo columns[] = {
        textColumn<&ExpendType::name>("name"),
        integerColumn<&ExpendType::parentID>("parent_id"),
    };
    static constexpr TableInfo info{"expend_type", columns, {}, {}, nullptr, makeRecord<ExpendType>};
    return info;
}

QVariant Expend::valueForIdentifier(QStringView key) const
{
    if (key == u"name")
        return name;
    if (key == u"parentID")
        return parentID;
    if (key == u"description")
        return descriptionString;
    if (key == u"constant")
        return isConstant;
    if (key == u"hidden")
        return isHidden;
    if (key == u"selected")
        return selected;
    return QString();
}

const TableInfo& Expend::table()
{
    static constexpr ColumnInfo columns[] = {
        textColumn<&Expend::name>("name"),
        integerColumn<&Expend::parentID>("parent_id"),
        textColumn<&Expend::descriptionString>("description_string"),
        booleanColumn<&Expend::isConstant>("is_constant"),
        booleanColumn<&Expend::isHidden>("is_hidden"),
    };
    static constexpr TableInfo info{"expend", columns, {}, {}, nullptr, makeRecord<Expend>};
    return info;
}

} // namespace zelvor
