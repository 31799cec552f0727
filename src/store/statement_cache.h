#pragma once

#include "store/read_bound.h"
#include "store/statement.h"
#include "store/table_info.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

struct sqlite3;

namespace zelvor {

// What a statement does with the table of a class. The text beside it is the tail of SelectWhere and
// AnyWhere, the column of the head's id of the Rows, and the whole statement of Whole and Control.
enum class Operation : std::uint8_t {
    SelectOne,    // marks: id
    SelectRange,  // marks: first id, last id
    SelectListed, // marks: ids as a JSON list
    RowsOfOne,    // marks: head id; one column more than the class has: the head's id
    RowsOfRange,
    RowsListed,
    Insert,          // marks: the columns
    Update,          // marks: the columns, id
    UpdateUnindexed, // the same, for a row whose indexed columns stay as they are; otherwise it finds no row
    Remove,          // marks: id
    SelectWhere,
    AnyWhere,
    Whole,
    Control,
};

class StatementCache;

// One run of a prepared statement; at its end the statement goes back to the cache, reset.
class Query {
public:
    Query(const Query&) = delete;
    Query& operator=(const Query&) = delete;
    ~Query();

    // False when the text is no statement that the file can take.
    bool isValid() const { return m_handle != nullptr; }
    Statement& statement() { return m_statement; }
    void bindBytes(int mark, std::string_view bytes); // kept by the caller until the end of the run
    int markCount() const;
    int columnCount() const;
    // True when a row stands to be read.
    bool next();
    // True when the run ended by an error, or gave more rows than the file can hold.
    bool failed() const { return m_failed; }
    // For statements without rows: true when it was carried out.
    bool run() { return !next() && !failed(); }

private:
    friend class StatementCache;
    struct Entry {
        sqlite3_stmt* handle = nullptr;
        bool inUse = false;
        std::uint64_t lastUse = 0;
    };
    // An entry goes back to the cache, a handle without one is finalised.
    Query(StatementCache& cache, sqlite3_stmt* handle, Entry* entry);

    StatementCache& m_cache;
    sqlite3_stmt* m_handle;
    Entry* m_entry;
    Statement m_statement;
    qint64 m_rows = 0;
    bool m_started = false;
    bool m_failed;
};

// The prepared statements of one connection. Those of a class are kept for good, the callers' own texts as
// long as there is room.
class StatementCache {
public:
    StatementCache() = default;
    StatementCache(const StatementCache&) = delete;
    StatementCache& operator=(const StatementCache&) = delete;
    ~StatementCache() { detach(); }

    void attach(sqlite3* database);
    // Finalises everything; must come before the database closes.
    void detach();
    bool isAttached() const { return m_database != nullptr; }

    Query query(Operation operation, const TableInfo* table, std::string_view text = {});
    // Runs a statement without marks and rows.
    bool control(std::string_view text) { return query(Operation::Control, nullptr, text).run(); }
    qint64 statementCount() const { return m_statementCount; }

private:
    friend class Query;
    struct KeyView {
        Operation operation;
        const TableInfo* table;
        std::string_view text;
        friend bool operator==(const KeyView&, const KeyView&) = default;
    };
    struct Key {
        Operation operation;
        const TableInfo* table;
        std::string text;
        operator KeyView() const { return {operation, table, text}; }
    };
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(const KeyView& key) const;
        std::size_t operator()(const Key& key) const { return (*this)(KeyView(key)); }
    };
    struct Equal {
        using is_transparent = void;
        bool operator()(const KeyView& a, const KeyView& b) const { return a == b; }
    };

    sqlite3_stmt* prepare(const KeyView& key) const;
    void makeRoom();

    sqlite3* m_database = nullptr;
    std::optional<ReadBound> m_bound;
    int m_running = 0; // runs under way, one inside the other
    std::unordered_map<Key, Query::Entry, Hash, Equal> m_entries;
    std::size_t m_freeEntries = 0;
    std::uint64_t m_uses = 0;
    qint64 m_statementCount = 0;
};

} // namespace zelvor
