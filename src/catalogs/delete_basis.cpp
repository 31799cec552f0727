#include "catalogs/delete_basis.h"

namespace zelvor {

QVariant DeleteBasis::valueForIdentifier(QStringView key) const
{
    if (key == u"name")
        return name;
    return QString();
}

const TableInfo& DeleteBasis::table()
{
    static constexpr ColumnInfo columns[] = {
        textColumn<&DeleteBasis::name>("name"),
    };
    static constexpr TableInfo info{"delete_basis", columns, {}, {}, nullptr, makeRecord<DeleteBasis>};
    return info;
}

} // namespace zelvor
