#include "store/database.h"

#include "core/localized.h"
#include "store/plain_schema.h"
#include "store/project_file.h"
#include "store/read_bound.h"

#include <sqlite3.h>

#include <optional>

namespace zelvor {

namespace {

bool run(sqlite3* database, const char* text)
{
    return sqlite3_exec(database, text, nullptr, nullptr, nullptr) == SQLITE_OK;
}

DatabaseHandle openHandle(const QString& path, int flags)
{
    sqlite3* database = nullptr;
    const int common =
        SQLITE_OPEN_NOFOLLOW | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE | SQLITE_OPEN_PRIVATECACHE;
    const int result = sqlite3_open_v2(fileName(path).constData(), &database, flags | common, nullptr);
    DatabaseHandle handle(database);
    if (result != SQLITE_OK)
        handle.reset();
    return handle;
}

// Nothing that a file brings along may run: no triggers, no views, no functions of its schema.
void distrust(sqlite3* database)
{
    sqlite3_db_config(database, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(database, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(database, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    sqlite3_db_config(database, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
    sqlite3_db_config(database, SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 0, nullptr);
    sqlite3_db_config(database, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_limit(database, SQLITE_LIMIT_ATTACHED, 0);
    sqlite3_busy_timeout(database, defaultPatience);
}

bool configure(sqlite3* database, OpenMode mode)
{
    if (!run(database, "PRAGMA cell_size_check=ON; PRAGMA foreign_keys=OFF; PRAGMA mmap_size=0"))
        return false;
    switch (mode) {
    case OpenMode::Write:
        return run(database, "PRAGMA journal_mode=DELETE; PRAGMA synchronous=EXTRA");
    case OpenMode::Look:
        return run(database, "PRAGMA query_only=ON");
    case OpenMode::Unfinished:
        return run(database, "PRAGMA journal_mode=MEMORY; PRAGMA synchronous=OFF");
    }
    return false;
}

QString problemText(sqlite3* database)
{
    switch (sqlite3_errcode(database) & 0xFF) {
    case SQLITE_NOTADB:
        return localized("it is no project file");
    case SQLITE_CORRUPT:
    case SQLITE_INTERRUPT: // it holds more than it can
        return localized("it is damaged");
    case SQLITE_BUSY:
        return localized("another program is writing to it");
    default:
        return QString::fromUtf8(sqlite3_errmsg(database));
    }
}

// True when a crash has left a journal that a connection without writing cannot roll back.
bool needsRollback(sqlite3* database)
{
    const int code = sqlite3_extended_errcode(database);
    return code == SQLITE_READONLY_ROLLBACK || (code & 0xFF) == SQLITE_CANTOPEN;
}

// Reading the last committed state after a crash takes one look by a connection that may write.
bool rollBackLeftJournal(const QString& path)
{
    const FileFacts facts = inspectFile(path);
    if (!facts.problem.isEmpty() || !facts.isWritable || facts.hasOtherNames)
        return false;
    const DatabaseHandle writer = openHandle(path, SQLITE_OPEN_READWRITE);
    if (!writer)
        return false;
    distrust(writer.get());
    return run(writer.get(), "PRAGMA schema_version");
}

// Read through SQLite's own handle, before SQLite reads anything: its first read in that mode makes two files
// beside the project, and a look leaves no trace.
bool isInWriteAheadMode(sqlite3* database)
{
    constexpr sqlite3_int64 placeOfReadVersion = 19;
    sqlite3_file* file = nullptr;
    unsigned char version = 0;
    return sqlite3_file_control(database, "main", SQLITE_FCNTL_FILE_POINTER, &file) == SQLITE_OK &&
           file->pMethods && file->pMethods->xRead(file, &version, 1, placeOfReadVersion) == SQLITE_OK &&
           version == 2;
}

OpenedDatabase openOnce(const QString& path, OpenMode mode, bool& leftJournal)
{
    OpenedDatabase result;
    result.handle = openHandle(path, mode == OpenMode::Look ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE);
    if (!result.handle) {
        result.problem = localized("it cannot be opened");
        return result;
    }
    distrust(result.handle.get());
    if (mode == OpenMode::Look && isInWriteAheadMode(result.handle.get())) {
        result.problem = localized("another program has put it into write-ahead mode; opening it for "
                                   "writing brings it back");
        result.handle.reset();
        return result;
    }
    std::optional<QString> problem;
    {
        const ReadBound bound(result.handle.get(), ReadBound::Work::Opening);
        if (configure(result.handle.get(), mode))
            problem = schemaProblem(result.handle.get(), mode != OpenMode::Unfinished);
    }
    if (problem && problem->isEmpty())
        return result;
    leftJournal = !problem && needsRollback(result.handle.get());
    result.problem = problem ? *problem : problemText(result.handle.get());
    result.handle.reset();
    return result;
}

} // namespace

void DatabaseCloser::operator()(sqlite3* database) const
{
    sqlite3_close_v2(database);
}

OpenedDatabase openDatabase(const QString& path, OpenMode mode)
{
    bool leftJournal = false;
    OpenedDatabase result = openOnce(path, mode, leftJournal);
    if (mode == OpenMode::Look && leftJournal && rollBackLeftJournal(path))
        result = openOnce(path, mode, leftJournal);
    return result;
}

QString copyDatabase(sqlite3* from, const QString& path)
{
    const DatabaseHandle to = openHandle(path, SQLITE_OPEN_READWRITE);
    // The copy has no name yet, and is brought to the disk as a whole before it gets one.
    if (!to || !run(to.get(), "PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF"))
        return localized("it cannot be written");
    sqlite3_backup* backup = sqlite3_backup_init(to.get(), "main", from, "main");
    if (!backup)
        return QString::fromUtf8(sqlite3_errmsg(to.get()));
    const int result = sqlite3_backup_step(backup, -1); // waits for a writer as every read does
    sqlite3_backup_finish(backup);
    return result == SQLITE_DONE ? QString() : QString::fromUtf8(sqlite3_errstr(result));
}

} // namespace zelvor
