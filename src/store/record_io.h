#pragma once

#include "store/table_info.h"

#include <memory>

namespace zelvor {

// A new record of the class from the current row: its id, then its columns.
std::shared_ptr<TableModel> loadRecord(const TableInfo& table, const Statement& statement);
// Binds the columns to the marks from 1 on.
void bindRecord(const TableInfo& table, const TableModel& record, Statement& statement);

} // namespace zelvor
