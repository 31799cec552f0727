#pragma once

#include "store/table_info.h"

#include <span>

namespace zelvor {

class Connector;

// The tables of every record class, in the order in which a new project makes them.
std::span<const TableInfo* const> projectTables();
// Whether the open file has every table of a project with every column.
bool hasAllTables(Connector& connector);

} // namespace zelvor
