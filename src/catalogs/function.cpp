#include "catalogs/function.h"

namespace zelvor {

QVariant Function::valueForIdentifier(QStringView key) const
{
    if (key == u"name")
        return name;
    if (key == u"salary")
        return salary();
    if (key == u"hidden")
        return isHidden;
    return QString();
}

const TableInfo& Function::table()
{
    static constexpr ColumnInfo columns[] = {
        textColumn<&Function::name>("name"),
        realColumn<Function, &Function::salary, &Function::setSalary>("salary"),
        booleanColumn<&Function::isHidden>("is_hidden"),
    };
    static constexpr TableInfo info{"function", columns, {}, {}, nullptr, makeRecord<Function>};
    return info;
}

} // namespace zelvor
