#include "catalogs/stock.h"

namespace zelvor {

QVariant Stock::valueForIdentifier(QStringView key) const
{
    if (key == u"name")
        return name;
    if (key == u"address")
        return address;
    if (key == u"default")
        return isDefault;
    if (key == u"hidden")
        return isHidden;
    if (key == u"manager")
        return managerName();
    return QString();
}

const TableInfo& Stock::table()
{
    static constexpr ColumnInfo columns[] = {
        textColumn<&Stock::name>("name"),
        textColumn<&Stock::address>("address"),
        integerColumn<&Stock::managerID>("manager_id"),
        booleanColumn<&Stock::isDefault>("is_default"),
        booleanColumn<&Stock::isHidden>("is_hidden"),
    };
    static constexpr LinkInfo links[] = {
        linkOf<&Stock::managerID, &Stock::manager>(),
    };
    static constexpr TableInfo info{"stock", columns, links, {}, nullptr, makeRecord<Stock>};
    return info;
}

} // namespace zelvor
