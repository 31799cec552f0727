#include "store/connector.h"

#include "core/localized.h"
#include "store/database.h"
#include "store/link_filler.h"
#include "store/project_file.h"
#include "store/project_lock.h"
#include "store/record_io.h"
#include "store/statement_text.h"
#include "store/transaction.h"

#include <QtCore/QFileInfo>

#include <sqlite3.h>

#include <algorithm>
#include <unistd.h>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

struct Connector::Impl {
    // A read of several statements sees one state of the file, and locks it once.
    class Snapshot {
    public:
        Snapshot(Impl& impl, bool wanted) : m_impl(impl)
        {
            m_open = wanted && !impl.transaction.isActive() && impl.statements.control("BEGIN DEFERRED");
        }
        ~Snapshot()
        {
            if (m_open)
                m_impl.statements.control("COMMIT");
        }
        Snapshot(const Snapshot&) = delete;
        Snapshot& operator=(const Snapshot&) = delete;

    private:
        Impl& m_impl;
        bool m_open;
    };

    bool refuseOpening(const QString& asked, const QString& problem);
    bool adopt(OpenedDatabase opened, const QString& file, bool look);
    void drop();
    bool runWrite(Query& query);
    bool writeRows(const TableInfo& table, TableModel& head, std::vector<TableModel*>& inserted);
    int insertRow(const TableInfo& table, TableModel& record);
    int updateRow(const TableInfo& table, TableModel& record);
    int updateBy(Operation operation, const TableInfo& table, TableModel& record);
    int store(const TableInfo& table, TableModel& head, bool isNew);
    bool readFailed();
    bool createAll(const TableInfo& table);

    DatabaseHandle database;
    StatementCache statements;
    Transaction transaction{statements};
    std::unique_ptr<ProjectLock> lock;
    QString path;          // what the project is called, or will be
    QString temporaryPath; // of a project that is not yet published
    QString openError;
    bool readOnly = false;
    bool lockedByOther = false;
    qint64 opening = 0;
};

// ---- The file ----

bool Connector::Impl::refuseOpening(const QString& asked, const QString& problem)
{
    QString shown = asked;
    for (QChar& c : shown)
        if (!c.isPrint())
            c = u'?';
    openError = localized("Cannot open %1: %2").arg(shown, problem);
    return false;
}

bool Connector::Impl::adopt(OpenedDatabase opened, const QString& file, bool look)
{
    database = std::move(opened.handle);
    statements.attach(database.get());
    transaction.attach(database.get());
    path = file;
    readOnly = look;
    ++opening;
    return true;
}

void Connector::Impl::drop()
{
    transaction.abandon();
    statements.detach();
    transaction.attach(nullptr);
    database.reset();
    if (!temporaryPath.isEmpty()) {
        ::unlink(fileName(temporaryPath).constData());
        ::unlink(fileName(temporaryPath + u"-journal"_s).constData());
    }
    temporaryPath.clear();
    path.clear();
    readOnly = false;
    lock.reset(); // last: who waits for it finds the file at rest
}

Connector::Connector() : m_impl(std::make_unique<Impl>()) {}

Connector::~Connector()
{
    m_impl->drop();
}

bool Connector::open(const QString& path, Access access)
{
    Impl& impl = *m_impl;
    impl.drop();
    impl.openError.clear();
    impl.lockedByOther = false;
    const FileFacts facts = inspectFile(path);
    if (!facts.problem.isEmpty())
        return impl.refuseOpening(path, facts.problem);
    bool look = access == Access::ReadOnly || !facts.isWritable;
    if (!look && facts.hasOtherNames)
        return impl.refuseOpening(path,
                                  localized("the file has a second name (a hard link), and writing under "
                                            "one of them can destroy it"));
    std::unique_ptr<ProjectLock> lock;
    if (!look) {
        lock = std::make_unique<ProjectLock>(facts.path);
        const ProjectLock::Result result = lock->take();
        impl.lockedByOther = result == ProjectLock::Result::HeldByOther;
        if (impl.lockedByOther)
            return impl.refuseOpening(path, lock->holderText());
        if (result == ProjectLock::Result::Failed)
            return impl.refuseOpening(path, localized("its lock file cannot be written"));
        look = result == ProjectLock::Result::NoPermission;
    }
    OpenedDatabase opened = openDatabase(facts.path, look ? OpenMode::Look : OpenMode::Write);
    if (!opened.problem.isEmpty())
        return impl.refuseOpening(path, opened.problem);
    if (!look)
        impl.lock = std::move(lock);
    return impl.adopt(std::move(opened), facts.path, look);
}

bool Connector::create(const QString& path)
{
    Impl& impl = *m_impl;
    impl.drop();
    impl.openError.clear();
    impl.lockedByOther = false;
    const QFileInfo info(path);
    const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
    if (info.fileName().isEmpty() || path.contains(QChar::Null) || folder.isEmpty())
        return impl.refuseOpening(path, localized("there is no such folder"));
    const QString file = folder + u'/' + info.fileName();
    if (nameIsTaken(file))
        return impl.refuseOpening(path, localized("there is already a file of that name"));
    const QString temporary = makeTemporaryBeside(file, 0666);
    if (temporary.isEmpty())
        return impl.refuseOpening(path, localized("nothing can be written in its folder"));
    impl.temporaryPath = temporary;
    OpenedDatabase opened = openDatabase(temporary, OpenMode::Unfinished);
    if (!opened.problem.isEmpty()) {
        impl.drop();
        return impl.refuseOpening(path, opened.problem);
    }
    impl.adopt(std::move(opened), file, false);
    const std::string mark = "PRAGMA application_id=" + std::to_string(projectApplicationID);
    if (impl.statements.control(mark))
        return true;
    impl.drop();
    return impl.refuseOpening(path, localized("it cannot be written"));
}

bool Connector::publish()
{
    Impl& impl = *m_impl;
    if (impl.temporaryPath.isEmpty() || impl.transaction.isActive())
        return false;
    const QString file = impl.path;
    auto lock = std::make_unique<ProjectLock>(file);
    const ProjectLock::Result locked = lock->take();
    impl.lockedByOther = locked == ProjectLock::Result::HeldByOther;
    QString problem;
    if (impl.lockedByOther)
        problem = lock->holderText();
    else if (locked != ProjectLock::Result::Taken)
        problem = localized("its lock file cannot be written");
    if (problem.isEmpty()) {
        impl.statements.detach();
        impl.transaction.attach(nullptr);
        impl.database.reset();
        problem = moveIntoPlace(impl.temporaryPath, file);
    }
    if (!problem.isEmpty()) {
        impl.drop();
        return impl.refuseOpening(file, problem);
    }
    impl.temporaryPath.clear();
    OpenedDatabase opened = openDatabase(file, OpenMode::Write);
    if (!opened.problem.isEmpty()) {
        impl.drop();
        return impl.refuseOpening(file, opened.problem);
    }
    impl.lock = std::move(lock);
    return impl.adopt(std::move(opened), file, false);
}

void Connector::close()
{
    m_impl->drop();
}

void Connector::setPatience(int milliseconds)
{
    if (isOpen())
        sqlite3_busy_timeout(m_impl->database.get(), milliseconds);
}

bool Connector::isOpen() const
{
    return m_impl->database != nullptr;
}

bool Connector::isReadOnly() const
{
    return m_impl->readOnly;
}

QString Connector::path() const
{
    return m_impl->path;
}

const QString& Connector::openError() const
{
    return m_impl->openError;
}

qint64 Connector::opening() const
{
    return m_impl->opening;
}

bool Connector::isLockedByOther() const
{
    return m_impl->lockedByOther;
}

QString Connector::backup(const QString& destination)
{
    Impl& impl = *m_impl;
    if (!isOpen() || impl.transaction.isActive())
        return localized("There is no project at rest to copy.");
    const QFileInfo info(destination);
    const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
    const auto refused = [&destination](const QString& problem) {
        return localized("Cannot write %1: %2").arg(destination, problem);
    };
    if (info.fileName().isEmpty() || destination.contains(QChar::Null) || folder.isEmpty())
        return refused(localized("there is no such folder"));
    const QString file = folder + u'/' + info.fileName();
    if (nameIsTaken(file))
        return refused(localized("there is already a file of that name"));
    const QString source = impl.temporaryPath.isEmpty() ? impl.path : impl.temporaryPath;
    const QString temporary = makeTemporaryBeside(file, modeOf(source));
    if (temporary.isEmpty())
        return refused(localized("nothing can be written in its folder"));
    QString problem = copyDatabase(impl.database.get(), temporary);
    if (problem.isEmpty())
        problem = moveIntoPlace(temporary, file);
    if (problem.isEmpty())
        return {};
    ::unlink(fileName(temporary).constData());
    return refused(problem);
}

QStringList Connector::integrityFindings()
{
    QStringList findings;
    Query query = m_impl->statements.query(Operation::Whole, nullptr, "PRAGMA integrity_check");
    while (query.next())
        findings.append(query.statement().text(0));
    if (query.failed())
        findings.append(localized("the examination broke off"));
    else if (findings == QStringList{u"ok"_s})
        findings.clear();
    return findings;
}

qint64 Connector::statementCount() const
{
    return m_impl->statements.statementCount();
}

// ---- Transactions ----

bool Connector::execute(std::string_view text)
{
    Transaction& transaction = m_impl->transaction;
    if (text == "BEGIN")
        return transaction.begin();
    if (text == "ROLLBACK") {
        transaction.rollback();
        return true;
    }
    if (text != "COMMIT")
        return false;
    const Transaction::Commit result = transaction.commit();
    if (result == Transaction::Commit::Failed && onCommitFailed)
        onCommitFailed(localized("Writing to %1 failed (%2); the last operation was taken back.")
                           .arg(m_impl->path, transaction.reason()));
    return result == Transaction::Commit::Durable || result == Transaction::Commit::Nothing;
}

bool Connector::inTransaction() const
{
    return m_impl->transaction.isOpen();
}

bool Connector::beginBulk()
{
    return m_impl->transaction.beginBulk();
}

bool Connector::endBulk()
{
    Transaction& transaction = m_impl->transaction;
    const bool wasBulk = transaction.isBulk() && !transaction.isOpen();
    if (transaction.endBulk())
        return true;
    if (wasBulk && onCommitFailed)
        onCommitFailed(localized("Writing to %1 failed (%2); the whole run was taken back.")
                           .arg(m_impl->path, transaction.reason()));
    return false;
}

void Connector::loseTransaction()
{
    m_impl->transaction.spoil();
}

void Connector::refuseTransaction()
{
    m_impl->transaction.refuse();
}

// ---- Reads ----

// A read that broke off inside a write leaves nothing to decide on: the write must not be kept.
bool Connector::Impl::readFailed()
{
    transaction.spoil();
    return false;
}

std::shared_ptr<TableModel> Connector::selectRecord(const TableInfo& table, qint64 id, Fill fill)
{
    Impl& impl = *m_impl;
    const bool links = LinkFiller::isNeeded(table, fill);
    const Impl::Snapshot snapshot(impl, links);
    std::shared_ptr<TableModel> record;
    {
        Query query = impl.statements.query(Operation::SelectOne, &table);
        if (!query.isValid())
            return nullptr;
        query.statement().bindInteger(1, id);
        if (query.next())
            record = loadRecord(table, query.statement());
        else if (query.failed())
            impl.readFailed();
    }
    if (!record || !links || LinkFiller(impl.statements, fill).fill(table, {&record, 1}))
        return record;
    impl.readFailed();
    return nullptr;
}

namespace {

bool bindAll(Query& query, std::span<const Parameter> params)
{
    if (!query.isValid() || static_cast<std::size_t>(query.markCount()) != params.size())
        return false;
    int mark = 0;
    for (const Parameter& param : params)
        query.statement().bind(++mark, param);
    return true;
}

// A row of a whole SELECT: its columns are the class's columns, in order.
std::shared_ptr<TableModel> loadFreeRecord(const TableInfo& table, const Statement& statement, int columns)
{
    std::shared_ptr<TableModel> record = table.make();
    int column = 0;
    for (const ColumnInfo& info : table.columns) {
        if (column == columns)
            break;
        info.load(*record, statement, column++);
    }
    return record;
}

} // namespace

bool Connector::readRecords(const TableInfo& table, std::string_view sql, std::span<const Parameter> params,
                            Fill fill, bool absoluteFree,
                            const std::function<void(std::shared_ptr<TableModel>)>& take)
{
    Impl& impl = *m_impl;
    const bool links = LinkFiller::isNeeded(table, fill);
    std::vector<std::shared_ptr<TableModel>> records;
    {
        const Impl::Snapshot snapshot(impl, links);
        {
            Query query = absoluteFree ? impl.statements.query(Operation::Whole, nullptr, sql)
                                       : impl.statements.query(Operation::SelectWhere, &table, sql);
            if (!bindAll(query, params))
                return false;
            const int columns = query.columnCount();
            while (query.next())
                records.push_back(absoluteFree ? loadFreeRecord(table, query.statement(), columns)
                                               : loadRecord(table, query.statement()));
            if (query.failed())
                return impl.readFailed();
        }
        if (links && !records.empty() && !LinkFiller(impl.statements, fill).fill(table, records))
            return impl.readFailed();
    }
    for (auto& record : records)
        take(std::move(record));
    return true;
}

bool Connector::anyRecord(const TableInfo& table, std::string_view tail, std::span<const Parameter> params)
{
    Query query = m_impl->statements.query(Operation::AnyWhere, &table, tail);
    if (!bindAll(query, params))
        return false;
    const bool found = query.next();
    if (query.failed())
        m_impl->readFailed();
    return found;
}

bool Connector::scan(std::string_view sql, std::span<const Parameter> params,
                     const std::function<void(const Statement&)>& visit)
{
    Query query = m_impl->statements.query(Operation::Whole, nullptr, sql);
    if (!bindAll(query, params))
        return false;
    while (query.next())
        visit(query.statement());
    return query.failed() ? m_impl->readFailed() : true;
}

bool Connector::hasTableFor(const TableInfo& table) const
{
    return m_impl->statements.query(Operation::SelectOne, &table).isValid();
}

// ---- Writes ----

bool Connector::Impl::runWrite(Query& query)
{
    if (query.isValid() && query.run())
        return sqlite3_changes(database.get()) == 1;
    transaction.checkAlive();
    return false;
}

int Connector::Impl::insertRow(const TableInfo& table, TableModel& record)
{
    if (!transaction.takesWrites())
        return 0;
    Query query = statements.query(Operation::Insert, &table);
    if (query.isValid())
        bindRecord(table, record, query.statement());
    if (!runWrite(query))
        return 0;
    record.id = sqlite3_last_insert_rowid(database.get());
    return 1;
}

int Connector::Impl::updateRow(const TableInfo& table, TableModel& record)
{
    if (!table.indexes.empty() && updateBy(Operation::UpdateUnindexed, table, record) == 1)
        return 1;
    return updateBy(Operation::Update, table, record);
}

int Connector::Impl::updateBy(Operation operation, const TableInfo& table, TableModel& record)
{
    if (!transaction.takesWrites())
        return 0;
    Query query = statements.query(operation, &table);
    if (query.isValid()) {
        bindRecord(table, record, query.statement());
        query.statement().bindInteger(static_cast<int>(table.columns.size()) + 1, record.id);
    }
    return runWrite(query) ? 1 : 0;
}

bool Connector::Impl::writeRows(const TableInfo& table, TableModel& head, std::vector<TableModel*>& inserted)
{
    const RowListInfo& rows = *table.rows;
    for (std::size_t index = 0; index < rows.count(head); ++index) {
        TableModel& row = rows.at(head, index);
        const bool isNew = row.id == 0;
        rows.setHeadID(row, head.id);
        if ((isNew ? insertRow(rows.table(), row) : updateRow(rows.table(), row)) != 1)
            return false;
        if (isNew)
            inserted.push_back(&row);
    }
    return true;
}

// A record with its rows: all of it or nothing, also outside a transaction of the caller.
int Connector::Impl::store(const TableInfo& table, TableModel& head, bool isNew)
{
    const auto storeHead = [&] { return isNew ? insertRow(table, head) : updateRow(table, head); };
    if (!table.rows || table.rows->count(head) == 0)
        return storeHead();
    const bool single = !transaction.isActive() && !transaction.isOpen();
    if (single && !statements.control("BEGIN IMMEDIATE"))
        return 0;
    const qint64 idBefore = head.id;
    std::vector<TableModel*> inserted;
    bool done = storeHead() == 1 && writeRows(table, head, inserted);
    if (single)
        done = done && statements.control("COMMIT");
    if (done)
        return 1;
    if (single && transaction.isActive())
        statements.control("ROLLBACK");
    for (TableModel* row : inserted)
        row->id = 0;
    head.id = idBefore;
    return 0;
}

int Connector::insertRecord(const TableInfo& table, TableModel& record)
{
    return m_impl->store(table, record, true);
}

int Connector::updateRecord(const TableInfo& table, TableModel& record)
{
    return m_impl->store(table, record, false);
}

int Connector::removeRecord(const TableInfo& table, TableModel& record)
{
    Impl& impl = *m_impl;
    if (!impl.transaction.takesWrites())
        return 0;
    Query query = impl.statements.query(Operation::Remove, &table);
    if (query.isValid())
        query.statement().bindInteger(1, record.id);
    return impl.runWrite(query) ? 1 : 0;
}

bool Connector::Impl::createAll(const TableInfo& table)
{
    return statements.control(createTableText(table)) &&
           std::ranges::all_of(table.indexes, [this](const IndexInfo& index) {
               return statements.control(createIndexText(index));
           });
}

bool Connector::createTableFor(const TableInfo& table)
{
    Impl& impl = *m_impl;
    if (!impl.transaction.takesWrites() || !impl.statements.control("SAVEPOINT table_with_indexes"))
        return false;
    const bool done = impl.createAll(table);
    if (!done)
        impl.statements.control("ROLLBACK TO table_with_indexes");
    const bool released = impl.statements.control("RELEASE table_with_indexes");
    if (!released && !impl.transaction.isOpen() && !impl.transaction.isBulk() && impl.transaction.isActive())
        impl.statements.control("ROLLBACK");
    impl.transaction.checkAlive();
    return done && released;
}

} // namespace zelvor
