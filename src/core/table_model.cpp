#include "core/table_model.h"

namespace zelvor {

QVariant TableModel::valueForIdentifier(QStringView key) const
{
    if (key == u"id")
        return id;
    return QString();
}

} // namespace zelvor
