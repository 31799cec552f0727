#pragma once

#include <QtCore/QString>

#include <optional>
#include <string_view>

struct sqlite3;

namespace zelvor {

// What is wrong with the objects in the file, in one line; an empty text when they are plain tables and
// indexes, nothing when the schema cannot be read (SQLite's error says why). A project also bears our mark
// or has a table of settings.
std::optional<QString> schemaProblem(sqlite3* database, bool mustBeProject);

// Whether the text that made a table or an index declares stored columns and nothing that runs.
bool isPlainTable(std::string_view text);
bool isPlainIndex(std::string_view text);

} // namespace zelvor
