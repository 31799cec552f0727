#pragma once

#include "store/table_info.h"

namespace zelvor {

// One entry of the main menu; its id is a DocType raw value.
class Menu : public TableModel {
public:
    QString name;
    qint64 parentID = 0; // 0 for a group, otherwise the group's id
    bool isHidden = false;

    static const TableInfo& table();
};

} // namespace zelvor
