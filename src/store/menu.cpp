#include "store/menu.h"

namespace zelvor {

const TableInfo& Menu::table()
{
    static constexpr ColumnInfo columns[] = {
        textColumn<&Menu::name>("name"),
        integerColumn<&Menu::parentID>("parent_id"),
        booleanColumn<&Menu::isHidden>("is_hidden"),
    };
    static constexpr TableInfo info{"menu", columns, {}, {}, nullptr, makeRecord<Menu>};
    return info;
}

} // namespace zelvor
