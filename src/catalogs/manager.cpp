#include "catalogs/manager.h"

namespace zelvor {

QVariant Manager::valueForIdentifier(QStringView key) const
{
    if (key == u"name")
        return name;
    if (key == u"hidden")
        return isHidden;
    if (key == u"function")
        return functionName();
    if (key == u"selected")
        return selected;
    if (key == u"balance")
        return balance();
    return QString();
}

const TableInfo& Manager::table()
{
    static constexpr ColumnInfo columns[] = {
        textColumn<&Manager::name>("name"),
        integerColumn<&Manager::functionID>("function_id"),
        realColumn<Manager, &Manager::balance, &Manager::setBalance>("balance"),
        booleanColumn<&Manager::isHidden>("is_hidden"),
    };
    static constexpr LinkInfo links[] = {
        linkOf<&Manager::functionID, &Manager::function>(),
    };
    static constexpr TableInfo info{"manager", columns, links, {}, nullptr, makeRecord<Manager>};
    return info;
}

} // namespace zelvor
