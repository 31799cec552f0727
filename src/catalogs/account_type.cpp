#include "catalogs/account_type.h"

namespace zelvor {

QVariant AccountType::valueForIdentifier(QStringView key) const
{
    if (key == u"name")
        return name;
    if (key == u"description")
        return descriptionString;
    if (key == u"isHidden")
        return isHidden;
    return QString();
}

const TableInfo& AccountType::table()
{
    static constexpr ColumnInfo columns[] = {
        textColumn<&AccountType::name>("name"),
        textColumn<&AccountType::descriptionString>("description_string"),
        booleanColumn<&AccountType::isHidden>("is_hidden"),
    };
    static constexpr TableInfo info{"account_type", columns, {}, {}, nullptr, makeRecord<AccountType>};
    return info;
}

} // namespace zelvor
