#pragma once

#include "store/table_info.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>
#include <initializer_list>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace zelvor {

// How much of the linked records a read fills. Everything: links and document rows, through the chain
// document, row, product, measurement. Heads: links, no rows (journals). Nothing: the columns alone.
enum class Fill { Everything, Heads, Nothing };

enum class Access { ReadWrite, ReadOnly };

// The record layer over one SQLite file. Writers never see SQL: a record is handed over and its class's
// TableInfo says where it goes. All calls are synchronous and belong to one thread. Failures are answers,
// never exceptions.
//
// Durability: rollback journal, synchronous EXTRA; what a COMMIT answered true for is on the disk.
class Connector {
public:
    Connector();
    virtual ~Connector();
    Connector(const Connector&) = delete;
    Connector& operator=(const Connector&) = delete;

    // Opens an existing project; with ReadWrite also takes its lock. On false nothing is open and
    // openError() says in one line which file and why. A file that is no project of ours, damaged, or
    // holds anything but plain tables is refused.
    virtual bool open(const QString& path, Access access = Access::ReadWrite);
    // Starts a new project under a temporary name beside `path`. It becomes `path` by publish(); until then
    // close() removes every trace. An existing file at `path` is never touched: false.
    virtual bool create(const QString& path);
    virtual bool publish();
    virtual void close();
    // How long the open project waits for another program's lock, in milliseconds; five seconds unless set.
    void setPatience(int milliseconds);
    bool isOpen() const;
    bool isReadOnly() const;
    QString path() const;
    const QString& openError() const;
    // Counts the openings, a new project's too: who waits for something knows by it whether the project that
    // is open is still the one that was, also when the same file was opened again.
    qint64 opening() const;
    // True when the last failed open was refused because another program holds the project.
    bool isLockedByOther() const;

    // "BEGIN", "COMMIT" or "ROLLBACK"; anything else is refused. BEGIN takes the write lock at once; when it
    // cannot be had, and after SQLite ended the transaction by itself, insert, update and delete answer 0
    // until the matching COMMIT or ROLLBACK. COMMIT answers whether a transaction was made durable; without
    // one it does nothing and answers true.
    virtual bool execute(std::string_view text);
    bool inTransaction() const;
    // Told when a COMMIT of an open transaction failed, with what was tried; everything must be read anew.
    std::function<void(const QString&)> onCommitFailed;

    // First loads: between the two, each BEGIN ... COMMIT is a savepoint inside one transaction that endBulk
    // makes durable.
    bool beginBulk();
    bool endBulk();

    // The record with that id, or none.
    template <class Record>
    std::shared_ptr<Record> select(qint64 id, Fill fill = Fill::Everything)
    {
        return std::static_pointer_cast<Record>(selectRecord(Record::table(), id, fill));
    }
    // 1 when stored; the record's id is then its new row's id. A record whose insert failed keeps id 0.
    int insert(TableModel& record, const TableInfo& table) { return insertRecord(table, record); }
    template <class Record>
    int insert(Record& record)
    {
        return insertRecord(Record::table(), record);
    }
    // 1 when the row with the record's id was rewritten.
    template <class Record>
    int update(Record& record)
    {
        return updateRecord(Record::table(), record);
    }
    // 1 when the row with the record's id was removed. (`delete` is a word of the language.)
    template <class Record>
    int remove(Record& record)
    {
        return removeRecord(Record::table(), record);
    }
    // All rows of the class's table; or with `sql` those of the tail "WHERE ... ORDER BY ..."; or with
    // absoluteFree the rows of a whole SELECT, whose columns fill the class's columns in order. A failing
    // statement gives an empty list.
    template <class Record>
    std::vector<std::shared_ptr<Record>> freeSQL(std::string_view sql = {},
                                                 std::span<const Parameter> params = {},
                                                 Fill fill = Fill::Everything, bool absoluteFree = false)
    {
        std::vector<std::shared_ptr<Record>> records;
        readRecords(Record::table(), sql, params, fill, absoluteFree,
                    [&records](std::shared_ptr<TableModel> r) {
                        records.push_back(std::static_pointer_cast<Record>(std::move(r)));
                    });
        return records;
    }
    template <class Record>
    std::vector<std::shared_ptr<Record>>
    freeSQL(std::string_view sql, std::initializer_list<Parameter> params, Fill fill = Fill::Everything)
    {
        return freeSQL<Record>(sql, std::span<const Parameter>(params.begin(), params.size()), fill);
    }
    // Whether the tail finds any row: one statement, nothing is read into records.
    template <class Record>
    bool any(std::string_view tail, std::initializer_list<Parameter> params)
    {
        return anyRecord(Record::table(), tail, std::span<const Parameter>(params.begin(), params.size()));
    }
    // Walks the rows of a whole SELECT without making records: for sums over many rows. False when the
    // statement failed.
    virtual bool scan(std::string_view sql, std::span<const Parameter> params,
                      const std::function<void(const Statement&)>& visit);
    bool scan(std::string_view sql, std::initializer_list<Parameter> params,
              const std::function<void(const Statement&)>& visit)
    {
        return scan(sql, std::span<const Parameter>(params.begin(), params.size()), visit);
    }

    // Makes the class's table and its indexes.
    template <class Record>
    bool createTable()
    {
        return createTableFor(Record::table());
    }

    // A consistent copy of the open project at a path where no file is yet. The error text is empty on
    // success.
    QString backup(const QString& destination);
    // Whether the file has the class's table with all its columns.
    template <class Record>
    bool hasTable() const
    {
        return hasTableFor(Record::table());
    }
    // SQLite's own examination: its findings, none when the file is sound.
    QStringList integrityFindings();
    // Statements sent so far: what tests count.
    qint64 statementCount() const;

    // What a subclass may watch or break; the templates above end here.
    virtual std::shared_ptr<TableModel> selectRecord(const TableInfo& table, qint64 id, Fill fill);
    virtual int insertRecord(const TableInfo& table, TableModel& record);
    virtual int updateRecord(const TableInfo& table, TableModel& record);
    virtual int removeRecord(const TableInfo& table, TableModel& record);
    virtual bool readRecords(const TableInfo& table, std::string_view sql, std::span<const Parameter> params,
                             Fill fill, bool absoluteFree,
                             const std::function<void(std::shared_ptr<TableModel>)>& take);
    virtual bool anyRecord(const TableInfo& table, std::string_view tail, std::span<const Parameter> params);
    virtual bool createTableFor(const TableInfo& table);

protected:
    // For a subclass that fails on purpose: from here on the open transaction is lost, or the one that BEGIN
    // asked for was never had, just as when the disk refuses.
    void loseTransaction();
    void refuseTransaction();

private:
    bool hasTableFor(const TableInfo& table) const;
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace zelvor
