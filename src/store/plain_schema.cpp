#include "store/plain_schema.h"

#include "core/localized.h"
#include "store/database.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <vector>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

struct StatementCloser {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using StatementHandle = std::unique_ptr<sqlite3_stmt, StatementCloser>;

StatementHandle prepare(sqlite3* database, const char* text)
{
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(database, text, -1, &statement, nullptr);
    return StatementHandle(statement);
}

std::string_view textOf(sqlite3_stmt* statement, int column)
{
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    return bytes ? std::string_view(bytes, static_cast<std::size_t>(sqlite3_column_bytes(statement, column)))
                 : std::string_view();
}

bool isWordCharacter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           static_cast<unsigned char>(c) >= 0x80;
}

std::size_t endOf(std::string_view text, std::string_view mark, std::size_t from)
{
    const std::size_t found = text.find(mark, from);
    return found == std::string_view::npos ? text.size() : found + mark.size();
}

// The words in capitals and the signs of a statement, without quoted names, texts and comments.
std::vector<std::string> wordsOf(std::string_view text)
{
    std::vector<std::string> words;
    std::size_t place = 0;
    while (place < text.size()) {
        const char c = text[place];
        const std::string_view rest = text.substr(place);
        if (isWordCharacter(c)) {
            std::string word;
            for (; place < text.size() && isWordCharacter(text[place]); ++place)
                word.push_back(text[place] >= 'a' && text[place] <= 'z'
                                   ? static_cast<char>(text[place] - 'a' + 'A')
                                   : text[place]);
            words.push_back(std::move(word));
        } else if (rest.starts_with("--")) {
            place = endOf(text, "\n", place);
        } else if (rest.starts_with("/*")) {
            place = endOf(text, "*/", place + 2);
        } else if (c == '"' || c == '\'' || c == '`' || c == '[') {
            place = endOf(text, c == '[' ? "]" : std::string_view(&text[place], 1), place + 1);
            words.emplace_back("\"");
        } else {
            if (c == '(' || c == ')' || c == ',')
                words.emplace_back(1, c);
            ++place;
        }
    }
    return words;
}

bool startsWith(const std::vector<std::string>& words, std::initializer_list<const char*> beginning)
{
    return words.size() >= beginning.size() && std::equal(beginning.begin(), beginning.end(), words.begin());
}

// The problem of one line of the schema, or an empty text.
QString objectProblem(sqlite3_stmt* row)
{
    const std::string_view type = textOf(row, 0);
    const std::string_view name = textOf(row, 1);
    const std::string_view text = textOf(row, 3);
    const bool stored = sqlite3_column_int64(row, 2) > 0;
    // Indexes that SQLite makes by itself have no text.
    if (stored && type == "index" && (text.empty() || isPlainIndex(text)))
        return {};
    if (stored && type == "table" && isPlainTable(text))
        return {};
    const QString shown =
        QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())).left(60).simplified();
    return localized("it holds \"%1\", which is no plain table").arg(shown);
}

// The mark in the file's header; nothing when it cannot be read.
std::optional<int> applicationID(sqlite3* database)
{
    const StatementHandle statement = prepare(database, "PRAGMA application_id");
    if (!statement || sqlite3_step(statement.get()) != SQLITE_ROW)
        return std::nullopt;
    return sqlite3_column_int(statement.get(), 0);
}

} // namespace

bool isPlainTable(std::string_view text)
{
    static constexpr std::array<std::string_view, 7> running{"AS",     "CHECK",      "GENERATED", "COLLATE",
                                                             "STRICT", "REFERENCES", "WITHOUT"};
    const std::vector<std::string> words = wordsOf(text);
    const std::array<std::string, 2> computedDefault{"DEFAULT", "("};
    if (!std::ranges::search(words, computedDefault).empty())
        return false;
    return startsWith(words, {"CREATE", "TABLE"}) && std::ranges::none_of(words, [](const std::string& word) {
               return std::ranges::find(running, word) != running.end();
           });
}

// An index on an expression has a second pair of parentheses; so has a condition with a function.
bool isPlainIndex(std::string_view text)
{
    const std::vector<std::string> words = wordsOf(text);
    return (startsWith(words, {"CREATE", "INDEX"}) || startsWith(words, {"CREATE", "UNIQUE", "INDEX"})) &&
           std::ranges::count(words, "(") == 1 && std::ranges::count(words, "COLLATE") == 0;
}

std::optional<QString> schemaProblem(sqlite3* database, bool mustBeProject)
{
    const StatementHandle rows = prepare(database, "SELECT type, name, rootpage, sql FROM sqlite_schema");
    if (!rows)
        return std::nullopt;
    bool hasSettings = false;
    int result = sqlite3_step(rows.get());
    for (; result == SQLITE_ROW; result = sqlite3_step(rows.get())) {
        const QString problem = objectProblem(rows.get());
        if (!problem.isEmpty())
            return problem;
        hasSettings = hasSettings || (textOf(rows.get(), 0) == "table" && textOf(rows.get(), 1) == "params");
    }
    if (result != SQLITE_DONE)
        return std::nullopt;
    const std::optional<int> mark = applicationID(database);
    if (!mark)
        return std::nullopt;
    if (!mustBeProject || *mark == projectApplicationID || (*mark == 0 && hasSettings))
        return QString();
    return localized("it is the file of another program");
}

} // namespace zelvor
