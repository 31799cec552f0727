#include "store/read_bound.h"

#include <sqlite3.h>

namespace zelvor {

namespace {

constexpr int stepsBetweenLooks = 10'000;
// A schema has some dozens of lines, each of some ten steps. Taking one in again costs far more than a step,
// so the border is close.
constexpr qint64 stepsOfOpening = 50'000;
// A walk over a table takes a step for a byte or two of the file; joins and sorting take some more.
constexpr qint64 stepsOfReading = 20'000'000;
constexpr qint64 stepsPerByte = 50;
// No row takes less in the file, and none is given more than once.
constexpr qint64 bytesPerRow = 4;
constexpr qint64 rowsOfReading = 100'000;

} // namespace

ReadBound::ReadBound(sqlite3* database, Work work) noexcept
    : m_database(database), m_work(work),
      m_allowedSteps(work == Work::Opening ? stepsOfOpening : stepsOfReading), m_allowedRows(rowsOfReading)
{
    sqlite3_progress_handler(database, stepsBetweenLooks, &ReadBound::onProgress, this);
}

ReadBound::~ReadBound()
{
    sqlite3_progress_handler(m_database, 0, nullptr, nullptr);
}

bool ReadBound::allowsRows(qint64 rows)
{
    if (rows > m_allowedRows)
        m_allowedRows = rowsOfReading + fileSize() / bytesPerRow;
    return rows <= m_allowedRows;
}

int ReadBound::onProgress(void* bound)
{
    auto& self = *static_cast<ReadBound*>(bound);
    self.m_steps += stepsBetweenLooks;
    return self.allowsSteps() ? 0 : 1;
}

bool ReadBound::allowsSteps()
{
    if (m_steps > m_allowedSteps && m_work == Work::Reading)
        m_allowedSteps = stepsOfReading + fileSize() * stepsPerByte;
    return m_steps <= m_allowedSteps;
}

// Through SQLite's own handle: opening the file beside the connection would drop its locks.
qint64 ReadBound::fileSize() const
{
    sqlite3_file* file = nullptr;
    sqlite3_int64 size = 0;
    if (sqlite3_file_control(m_database, "main", SQLITE_FCNTL_FILE_POINTER, &file) != SQLITE_OK ||
        !file->pMethods || file->pMethods->xFileSize(file, &size) != SQLITE_OK)
        return 0;
    return size;
}

} // namespace zelvor
