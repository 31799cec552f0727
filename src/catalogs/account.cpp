#include "catalogs/account.h"

namespace zelvor {

QVariant Account::valueForIdentifier(QStringView key) const
{
    if (key == u"name")
        return name;
    if (key == u"typeName")
        return accountTypeName();
    if (key == u"default")
        return isDefault;
    if (key == u"hidden")
        return isHidden;
    if (key == u"balance")
        return balance();
    return QString();
}

const TableInfo& Account::table()
{
    static constexpr ColumnInfo columns[] = {
        textColumn<&Account::name>("name"),
        integerColumn<&Account::accountTypeID>("account_type_id"),
        integerColumn<&Account::currencyID>("currency_id"),
        realColumn<Account, &Account::balance, &Account::setBalance>("balance"),
        booleanColumn<&Account::isDefault>("is_default"),
        booleanColumn<&Account::isHidden>("is_hidden"),
    };
    static constexpr LinkInfo links[] = {
        linkOf<&Account::accountTypeID, &Account::accountType>(),
    };
    static constexpr TableInfo info{"account", columns, links, {}, nullptr, makeRecord<Account>};
    return info;
}

} // namespace zelvor
