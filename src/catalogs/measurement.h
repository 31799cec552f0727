#pragma once

#include "store/table_info.h"

namespace zelvor {

// A unit of measure or a pack.
class Measurement : public TableModel {
public:
    QString name;
    QString shorthand; // short form, used in reports and prints
    bool isHidden = false;

    QVariant valueForIdentifier(QStringView key) const override;
    static const TableInfo& table();
};

} // namespace zelvor
