#pragma once

#include "store/table_info.h"

#include <span>
#include <string_view>

namespace zelvor {

class Connector;

// A column that holds the id of another record, 0 for none.
struct LinkColumn {
    const TableInfo& (*table)();
    const char* column;
    const TableInfo& (*target)();
    // Records of one table that hold each other: a record must not hold itself, however far up.
    bool isHolder = false;
};

// Every such column of the project's tables. A currency's raw value is its record's id.
std::span<const LinkColumn> linkColumns();
const LinkColumn* linkColumn(const TableInfo& table, std::string_view column);

bool recordExists(Connector& connector, const TableInfo& table, qint64 id);
// Whether `id`, put under `holderID`, would hold itself.
bool wouldHoldItself(Connector& connector, const LinkColumn& link, qint64 id, qint64 holderID);

} // namespace zelvor
