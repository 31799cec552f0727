#pragma once

#include "catalogs/manager.h"
#include "store/table_info.h"

namespace zelvor {

// A warehouse.
class Stock : public TableModel {
public:
    QString name;
    QString address;
    qint64 managerID = 0; // responsible employee
    bool isDefault = false;
    bool isHidden = false;

    bool selected = true; // tick in a selection popover
    Link<Manager> manager;

    QString managerName() const { return manager->name; }
    QVariant valueForIdentifier(QStringView key) const override;
    static const TableInfo& table();
};

} // namespace zelvor
