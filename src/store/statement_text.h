#pragma once

#include "store/statement_cache.h"

#include <string>

namespace zelvor {

// The text of a statement. Reads of a class answer its id and then its columns, in order.
std::string statementText(Operation operation, const TableInfo* table, std::string_view text);
// What makes the class's table.
std::string createTableText(const TableInfo& table);
std::string createIndexText(const IndexInfo& index);

} // namespace zelvor
