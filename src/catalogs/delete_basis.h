#pragma once

#include "store/table_info.h"

namespace zelvor {

// A reason for writing an asset off.
class DeleteBasis : public TableModel {
public:
    QString name;

    QVariant valueForIdentifier(QStringView key) const override;
    static const TableInfo& table();
};

} // namespace zelvor
