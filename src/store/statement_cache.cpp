#include "store/statement_cache.h"

#include "store/statement_text.h"

#include <sqlite3.h>

#include <algorithm>
#include <functional>

namespace zelvor {

namespace {

constexpr std::size_t maxFreeEntries = 256;

bool isFree(Operation operation)
{
    return operation == Operation::SelectWhere || operation == Operation::AnyWhere ||
           operation == Operation::Whole;
}

} // namespace

Query::Query(StatementCache& cache, sqlite3_stmt* handle, Entry* entry)
    : m_cache(cache), m_handle(handle), m_entry(entry), m_statement(handle), m_failed(!handle)
{
    if (m_entry)
        m_entry->inUse = true;
}

Query::~Query()
{
    if (m_started)
        --m_cache.m_running;
    if (m_entry) {
        sqlite3_reset(m_handle);
        m_entry->inUse = false;
    } else {
        sqlite3_finalize(m_handle);
    }
}

void Query::bindBytes(int mark, std::string_view bytes)
{
    sqlite3_bind_text64(m_handle, mark, bytes.data(), bytes.size(), SQLITE_STATIC, SQLITE_UTF8);
}

int Query::markCount() const
{
    return sqlite3_bind_parameter_count(m_handle);
}

int Query::columnCount() const
{
    return sqlite3_column_count(m_handle);
}

bool Query::next()
{
    if (m_failed)
        return false;
    if (!m_started) {
        m_started = true;
        ++m_cache.m_statementCount;
        if (m_cache.m_running++ == 0)
            m_cache.m_bound->restart();
    }
    const int result = sqlite3_step(m_handle);
    if (result == SQLITE_ROW && m_cache.m_bound->allowsRows(++m_rows))
        return true;
    m_failed = result != SQLITE_DONE;
    return false;
}

std::size_t StatementCache::Hash::operator()(const KeyView& key) const
{
    const std::size_t place = std::hash<const void*>{}(key.table) + static_cast<std::size_t>(key.operation);
    return std::hash<std::string_view>{}(key.text) ^ (place * 0x9E3779B97F4A7C15U);
}

void StatementCache::attach(sqlite3* database)
{
    m_database = database;
    m_bound.emplace(database, ReadBound::Work::Reading);
}

void StatementCache::detach()
{
    for (auto& [key, entry] : m_entries)
        sqlite3_finalize(entry.handle);
    m_entries.clear();
    m_freeEntries = 0;
    m_bound.reset();
    m_database = nullptr;
}

Query StatementCache::query(Operation operation, const TableInfo* table, std::string_view text)
{
    const KeyView key{operation, table, text};
    auto found = m_entries.find(key);
    // A read from inside the walk over the same statement gets one of its own.
    if (found != m_entries.end() && found->second.inUse)
        return Query(*this, prepare(key), nullptr);
    if (found == m_entries.end()) {
        sqlite3_stmt* handle = prepare(key);
        if (!handle)
            return Query(*this, nullptr, nullptr);
        if (isFree(operation)) {
            makeRoom();
            ++m_freeEntries;
        }
        found = m_entries.try_emplace(Key{operation, table, std::string(text)}, Query::Entry{handle}).first;
    }
    found->second.lastUse = ++m_uses;
    return Query(*this, found->second.handle, &found->second);
}

sqlite3_stmt* StatementCache::prepare(const KeyView& key) const
{
    if (!m_database)
        return nullptr;
    const std::string text = statementText(key.operation, key.table, key.text);
    sqlite3_stmt* handle = nullptr;
    const char* rest = nullptr;
    const int result = sqlite3_prepare_v3(m_database, text.data(), static_cast<int>(text.size()),
                                          SQLITE_PREPARE_PERSISTENT, &handle, &rest);
    // One statement and nothing behind it; what a caller wrote only reads.
    const bool whole = result == SQLITE_OK && handle && rest == text.data() + text.size();
    if (whole && (!isFree(key.operation) || sqlite3_stmt_readonly(handle)))
        return handle;
    sqlite3_finalize(handle);
    return nullptr;
}

// Lets the longest unused of the callers' texts go.
void StatementCache::makeRoom()
{
    if (m_freeEntries < maxFreeEntries)
        return;
    auto oldest = m_entries.end();
    for (auto entry = m_entries.begin(); entry != m_entries.end(); ++entry) {
        if (!isFree(entry->first.operation) || entry->second.inUse)
            continue;
        if (oldest == m_entries.end() || entry->second.lastUse < oldest->second.lastUse)
            oldest = entry;
    }
    if (oldest == m_entries.end())
        return;
    sqlite3_finalize(oldest->second.handle);
    m_entries.erase(oldest);
    --m_freeEntries;
}

} // namespace zelvor
