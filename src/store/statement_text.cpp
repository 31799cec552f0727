#include "store/statement_text.h"

#include <algorithm>
#include <cctype>

namespace zelvor {

namespace {

std::string columnList(const TableInfo& table)
{
    std::string list = "id";
    for (const ColumnInfo& column : table.columns)
        list.append(",").append(column.name);
    return list;
}

std::string selectText(const TableInfo& table, std::string_view moreColumns, std::string_view tail)
{
    return "SELECT " + columnList(table).append(moreColumns) + " FROM " + table.name + " " +
           std::string(tail);
}

std::string rowsText(const TableInfo& table, std::string_view headColumn, std::string_view condition,
                     std::string_view order)
{
    const std::string column(headColumn);
    return selectText(table, "," + column,
                      "WHERE " + column + std::string(condition) + " ORDER BY " + std::string(order));
}

std::string insertText(const TableInfo& table)
{
    if (table.columns.empty())
        return std::string("INSERT INTO ") + table.name + " DEFAULT VALUES";
    std::string names;
    std::string marks;
    for (const ColumnInfo& column : table.columns) {
        names.append(names.empty() ? "" : ",").append(column.name);
        marks.append(marks.empty() ? "?" : ",?");
    }
    return std::string("INSERT INTO ") + table.name + "(" + names + ") VALUES(" + marks + ")";
}

bool isPartOfName(char letter)
{
    return (letter >= 'a' && letter <= 'z') || (letter >= '0' && letter <= '9') || letter == '_';
}

// Whether an index of the class's table names the column.
bool isIndexed(const TableInfo& table, std::string_view column)
{
    return std::ranges::any_of(table.indexes, [column](const IndexInfo& index) {
        const std::string_view target = index.target;
        for (std::size_t at = target.find('('); (at = target.find(column, at + 1)) != target.npos;) {
            const std::size_t end = at + column.size();
            if (!isPartOfName(target[at - 1]) && (end == target.size() || !isPartOfName(target[end])))
                return true;
        }
        return false;
    });
}

// With keepIndexed the indexed columns are asked for and not set: SQLite writes an index anew whenever one
// of its columns is set, even to what it was.
std::string updateText(const TableInfo& table, bool keepIndexed)
{
    std::string changes;
    std::string condition = std::string(" WHERE id=?").append(std::to_string(table.columns.size() + 1));
    int mark = 0;
    for (const ColumnInfo& column : table.columns) {
        const std::string value = std::string("?").append(std::to_string(++mark));
        if (keepIndexed && isIndexed(table, column.name))
            condition.append(" AND ").append(column.name).append(" IS ").append(value);
        else
            changes.append(changes.empty() ? "" : ",").append(column.name).append("=").append(value);
    }
    if (changes.empty()) // nothing but indexed columns
        changes = "id=id";
    return std::string("UPDATE ") + table.name + " SET " + changes + condition;
}

const char* columnType(ColumnKind kind)
{
    switch (kind) {
    case ColumnKind::Integer:
    case ColumnKind::Boolean:
        return "INTEGER";
    case ColumnKind::Real:
        return "REAL";
    case ColumnKind::Text:
        return "TEXT";
    }
    return "";
}

// SQLite takes a thousand alternatives at most; a caller's choice of records may be longer.
constexpr std::size_t longText = 4000;

std::size_t wordEnd(std::string_view text, std::size_t from)
{
    while (from < text.size() && (std::isalnum(static_cast<unsigned char>(text[from])) || text[from] == '_'))
        ++from;
    return from;
}

// AND binds tighter than OR, so alternatives beside one are not all that it joins.
bool standsBesideAnd(std::string_view before, std::string_view behind)
{
    before = before.substr(0, before.find_last_not_of(' ') + 1);
    behind = behind.substr(std::min(behind.find_first_not_of(' '), behind.size()));
    return before.ends_with("AND") || before.ends_with("NOT") || behind.starts_with("AND");
}

// "id=? OR id=? OR id=?" written as "id IN (?,?,?)"; the marks keep their order.
std::string withFoldedAlternatives(std::string_view text)
{
    std::string folded;
    std::size_t place = 0;
    while (place < text.size()) {
        const std::size_t end = wordEnd(text, place);
        const std::string name(text.substr(place, end - place));
        const std::string alternative = " OR " + name + "=?";
        if (name.empty() || !text.substr(end).starts_with("=?" + alternative)) {
            folded.append(text.substr(place, name.empty() ? 1 : name.size()));
            place += name.empty() ? 1 : name.size();
            continue;
        }
        std::string list = name + " IN (?";
        std::size_t listEnd = end + 2;
        for (; text.substr(listEnd).starts_with(alternative); listEnd += alternative.size())
            list.append(",?");
        if (standsBesideAnd(folded, text.substr(listEnd)))
            folded.append(text.substr(place, listEnd - place));
        else
            folded.append(list).append(")");
        place = listEnd;
    }
    return folded;
}

std::string callersText(std::string_view text)
{
    return text.size() > longText ? withFoldedAlternatives(text) : std::string(text);
}

constexpr std::string_view ofRange = " BETWEEN ? AND ?";
constexpr std::string_view ofList = " IN (SELECT value FROM json_each(?))";

} // namespace

std::string statementText(Operation operation, const TableInfo* table, std::string_view text)
{
    switch (operation) {
    case Operation::SelectOne:
        return selectText(*table, {}, "WHERE id=?");
    case Operation::SelectRange:
        return selectText(*table, {}, std::string("WHERE id").append(ofRange));
    case Operation::SelectListed:
        return selectText(*table, {}, std::string("WHERE id").append(ofList));
    case Operation::RowsOfOne:
        return rowsText(*table, text, "=?", "id");
    case Operation::RowsOfRange:
        return rowsText(*table, text, ofRange, std::string(text) + ",id");
    case Operation::RowsListed:
        return rowsText(*table, text, ofList, std::string(text) + ",id");
    case Operation::Insert:
        return insertText(*table);
    case Operation::Update:
        return updateText(*table, false);
    case Operation::UpdateUnindexed:
        return updateText(*table, true);
    case Operation::Remove:
        return std::string("DELETE FROM ") + table->name + " WHERE id=?";
    case Operation::SelectWhere:
        return selectText(*table, {}, callersText(text));
    case Operation::AnyWhere:
        return std::string("SELECT 1 FROM ") + table->name + " " + callersText(text);
    case Operation::Whole:
        return callersText(text);
    case Operation::Control:
        return std::string(text);
    }
    return {};
}

std::string createTableText(const TableInfo& table)
{
    std::string columns = "id INTEGER PRIMARY KEY AUTOINCREMENT";
    for (const ColumnInfo& column : table.columns)
        columns.append(", ").append(column.name).append(" ").append(columnType(column.kind));
    return std::string("CREATE TABLE ") + table.name + "(" + columns + ")";
}

std::string createIndexText(const IndexInfo& index)
{
    return std::string("CREATE INDEX ") + index.name + " ON " + index.target;
}

} // namespace zelvor
