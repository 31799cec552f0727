#pragma once

#include "store/table_info.h"

#include <span>

namespace zelvor {

// The tables of every record class, in the order in which a new project makes them.
std::span<const TableInfo* const> projectTables();

} // namespace zelvor
