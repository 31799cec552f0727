#include "child_process.h"
#include "store/file_signals.h"
#include "store/user_write.h"
#include "support/test_project.h"
#include "test_records.h"

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <csignal>
#include <cstdlib>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

class ProjectFiles : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE((program.createProject<Params, Unit, Goods>()));
        Params params;
        ASSERT_EQ(connector.insert(params), 1);
    }
    QString path(const QString& name = u"test.pdb"_s) const { return program.file(name); }
    static bool run(const QString& file, const char* text)
    {
        sqlite3* database = nullptr;
        sqlite3_open(file.toUtf8().constData(), &database);
        const int result = sqlite3_exec(database, text, nullptr, nullptr, nullptr);
        sqlite3_close(database);
        return result == SQLITE_OK;
    }
    static QByteArray contentOf(const QString& file)
    {
        QFile input(file);
        return input.open(QIODevice::ReadOnly) ? input.readAll() : QByteArray();
    }
    static void write(const QString& file, const QByteArray& content)
    {
        QFile output(file);
        ASSERT_TRUE(output.open(QIODevice::WriteOnly));
        output.write(content);
    }
    QStringList filesInFolder() const
    {
        return QDir(program.file({})).entryList(QDir::Files | QDir::Hidden | QDir::System);
    }
    void expectRefused(const QString& file, const QString& reason)
    {
        Connector other;
        for (const Access access : {Access::ReadWrite, Access::ReadOnly}) {
            EXPECT_FALSE(other.open(file, access));
            EXPECT_FALSE(other.isOpen());
            EXPECT_TRUE(other.openError().contains(reason)) << other.openError().toStdString();
            EXPECT_FALSE(other.openError().contains(u'\n'));
            EXPECT_FALSE(other.isLockedByOther());
        }
    }
    int add()
    {
        Unit unit;
        return connector.insert(unit);
    }
    // The file with a tree that never ends in place of a table or the schema: ten pages, each of which names
    // the next one 500 times, above the table's own page of records.
    static QByteArray withEndlessTree(QByteArray file, qint64 root);
    qint64 rootOf(const char* table)
    {
        qint64 root = 0;
        connector.scan("SELECT rootpage FROM sqlite_schema WHERE name=?", {QString::fromUtf8(table)},
                       [&](const Statement& row) { root = row.integer(0); });
        return root;
    }

    TestProgram program;
    Connector& connector = program.appDelegate.connector;
};

constexpr qsizetype pageSize = 4096;

QByteArray bigEndian(quint64 value, int bytes)
{
    QByteArray result;
    while (bytes-- > 0)
        result.append(static_cast<char>(value >> (8 * bytes)));
    return result;
}

// An inner page of a table with 500 cells, all of them the same one, which leads to `child`.
QByteArray innerPage(qsizetype child)
{
    constexpr qsizetype cell = pageSize - 8;
    const auto number = static_cast<quint64>(child);
    QByteArray page = bigEndian(5, 1) + bigEndian(0, 2) + bigEndian(500, 2) + bigEndian(cell, 2) +
                      bigEndian(0, 1) + bigEndian(number, 4) + bigEndian(cell, 2).repeated(500);
    page.append(pageSize - page.size(), '\0');
    return page.replace(cell, 5, bigEndian(number, 4) + bigEndian(1, 1));
}

QByteArray ProjectFiles::withEndlessTree(QByteArray file, qint64 root)
{
    const qsizetype start = (root - 1) * pageSize;
    const qsizetype header = root == 1 ? 100 : 0; // the file's own header stands before the first page's
    QByteArray records = file.mid(start, pageSize);
    records.remove(0, header).insert(600, header, '\0');
    for (int level = 0; level < 10; ++level)
        file.append(innerPage(file.size() / pageSize + 2));
    file.append(records);
    QByteArray top = innerPage(file.size() / pageSize - 10);
    // The cell stands at the end of the page, so the header moves and the cell does not.
    top.insert(0, file.mid(start, header)).remove(3000, header);
    file.replace(start, pageSize, top);
    return file.replace(28, 4, bigEndian(static_cast<quint64>(file.size() / pageSize), 4));
}

} // namespace

TEST_F(ProjectFiles, aNewProjectAppearsWholeOrNotAtAll)
{
    const QStringList before = filesInFolder();
    Connector other;
    ASSERT_TRUE(other.create(path(u"new.pdb"_s)));
    ASSERT_TRUE(other.createTable<Unit>());
    EXPECT_FALSE(QFile::exists(path(u"new.pdb"_s)));
    other.close();
    EXPECT_EQ(filesInFolder(), before);

    ASSERT_TRUE(other.create(path(u"new.pdb"_s)));
    ASSERT_TRUE(other.createTable<Unit>());
    ASSERT_TRUE(other.publish());
    EXPECT_TRUE(QFile::exists(path(u"new.pdb"_s)));
    EXPECT_EQ(other.path(), path(u"new.pdb"_s));
    Unit unit;
    EXPECT_EQ(other.insert(unit), 1);
    Connector third;
    EXPECT_FALSE(third.open(path(u"new.pdb"_s)));
    EXPECT_TRUE(third.isLockedByOther());
    other.close();
    EXPECT_TRUE(third.open(path(u"new.pdb"_s)));
    EXPECT_EQ(third.freeSQL<Unit>().size(), 1U);
    third.close();
    EXPECT_EQ(filesInFolder().size(), before.size() + 1);
}

TEST_F(ProjectFiles, aNewProjectNeverOverwritesAFile)
{
    Connector other;
    EXPECT_FALSE(other.create(path()));
    EXPECT_TRUE(other.openError().contains(u"already"_s));
    ASSERT_TRUE(other.create(path(u"late.pdb"_s)));
    write(path(u"late.pdb"_s), "mine");
    EXPECT_FALSE(other.publish());
    EXPECT_FALSE(other.isOpen());
    EXPECT_EQ(contentOf(path(u"late.pdb"_s)), "mine");
    QFile::link(path(u"nothing"_s), path(u"link.pdb"_s));
    EXPECT_FALSE(other.create(path(u"link.pdb"_s)));
    EXPECT_FALSE(other.create(path(u"no/folder/x.pdb"_s)));
    EXPECT_FALSE(other.create({}));
}

TEST_F(ProjectFiles, namesOfEveryKindAreOpened)
{
    for (const QString& name :
         {u"a b.pdb"_s, u"Магазин ☕.pdb"_s, u"100%?#&.pdb"_s, u"file:x.pdb"_s, u".pdb"_s}) {
        Connector other;
        ASSERT_TRUE(other.create(path(name))) << name.toStdString();
        ASSERT_TRUE(other.createTable<Unit>());
        ASSERT_TRUE(other.publish());
        other.close();
        EXPECT_TRUE(other.open(path(name))) << other.openError().toStdString();
    }
}

TEST_F(ProjectFiles, whatIsNoProjectIsRefusedInOneLine)
{
    expectRefused(path(u"missing.pdb"_s), u"no such file"_s);
    expectRefused({}, u"no such file"_s);
    expectRefused(program.file({}), u"folder"_s);
    ASSERT_EQ(::mkfifo(path(u"pipe"_s).toUtf8().constData(), 0600), 0);
    expectRefused(path(u"pipe"_s), u"regular"_s);
    expectRefused(u"/dev/zero"_s, u"regular"_s);
    write(path(u"text.pdb"_s), QByteArray("not a database, but a longer text").repeated(100));
    expectRefused(path(u"text.pdb"_s), u"no project file"_s);
    write(path(u"empty.pdb"_s), {});
    expectRefused(path(u"empty.pdb"_s), u"another program"_s);
    ASSERT_TRUE(run(path(u"other.pdb"_s), "CREATE TABLE unit(id INTEGER PRIMARY KEY)"));
    expectRefused(path(u"other.pdb"_s), u"another program"_s);
    ASSERT_TRUE(run(path(u"mark.pdb"_s), "CREATE TABLE params(id); PRAGMA application_id=7"));
    expectRefused(path(u"mark.pdb"_s), u"another program"_s);
}

TEST_F(ProjectFiles, aNewProjectCarriesTheMarkThatFileManagersLookFor)
{
    const QByteArray content = contentOf(path());
    EXPECT_TRUE(content.startsWith(QByteArray("SQLite format 3\0", 16)));
    EXPECT_EQ(content.mid(68, 4), "ZLVR");
}

TEST_F(ProjectFiles, aProjectWithoutTheMarkOpensAndIsNotMarked)
{
    connector.close();
    ASSERT_TRUE(run(path(), "PRAGMA application_id=0"));
    ASSERT_TRUE(connector.open(path())) << connector.openError().toStdString();
    add();
    connector.close();
    EXPECT_EQ(contentOf(path()).mid(68, 4), QByteArray(4, '\0'));
}

TEST_F(ProjectFiles, onlyPlainTablesAndIndexesAreAccepted)
{
    const char* const hostile[] = {
        "CREATE TRIGGER t AFTER INSERT ON unit BEGIN DELETE FROM goods; END",
        "CREATE VIEW v AS SELECT * FROM unit",
        "CREATE VIRTUAL TABLE f USING fts5(x)",
        "CREATE TABLE c(id INTEGER PRIMARY KEY, a TEXT CHECK(length(randomblob(1000000))>0))",
        "CREATE TABLE g(id INTEGER PRIMARY KEY, a, b AS (a*2))",
        "CREATE TABLE d(id INTEGER PRIMARY KEY, a DEFAULT (abs(-1)))",
        "CREATE TABLE w(id TEXT PRIMARY KEY) WITHOUT ROWID",
        "CREATE INDEX i ON unit(lower(name))",
    };
    const QByteArray sound = contentOf(path());
    for (const char* text : hostile) {
        write(path(u"hostile.pdb"_s), sound);
        ASSERT_TRUE(run(path(u"hostile.pdb"_s), text)) << text;
        expectRefused(path(u"hostile.pdb"_s), u"no plain table"_s);
    }
    write(path(u"plain.pdb"_s), sound);
    ASSERT_TRUE(
        run(path(u"plain.pdb"_s),
            "CREATE TABLE \"my check as\"(id INTEGER PRIMARY KEY, 'x' TEXT NOT NULL DEFAULT 'AS ('); CREATE "
            "UNIQUE INDEX own ON unit(id) WHERE id>0; ANALYZE"));
    Connector other;
    EXPECT_TRUE(other.open(path(u"plain.pdb"_s))) << other.openError().toStdString();
}

TEST_F(ProjectFiles, aTriggerMadeWhileTheProjectIsOpenDoesNotRun)
{
    ASSERT_TRUE(
        run(path(),
            "CREATE TRIGGER t AFTER INSERT ON goods BEGIN INSERT INTO unit(name) VALUES('x'); END; CREATE "
            "VIEW person AS SELECT id, name, 0 AS chief_id FROM unit"));
    Goods goods;
    EXPECT_EQ(connector.insert(goods), 1);
    EXPECT_TRUE(connector.freeSQL<Unit>().empty());
    add();
    EXPECT_TRUE(connector.freeSQL<Person>().empty());
}

TEST_F(ProjectFiles, nothingElseCanBeAttached)
{
    const auto attach = "ATTACH '" + path(u"x.db"_s).toStdString() + "' AS x";
    EXPECT_FALSE(connector.scan(attach, {}, [](const Statement&) {}));
    EXPECT_FALSE(QFile::exists(path(u"x.db"_s)));
}

TEST_F(ProjectFiles, theConnectionIsSetToKeepTheBooksSafe)
{
    const auto setting = [this](const char* name) {
        QString value;
        connector.scan(std::string("PRAGMA ") + name, {}, [&](const Statement& s) {
            value = s.text(0).isEmpty() ? QString::number(s.integer(0)) : s.text(0);
        });
        return value;
    };
    connector.execute("BEGIN");
    add();
    EXPECT_TRUE(QFile::exists(path() + u"-journal"_s));
    connector.execute("COMMIT");
    EXPECT_FALSE(QFile::exists(path() + u"-journal"_s));
    EXPECT_EQ(setting("synchronous"), u"3"_s);
    EXPECT_EQ(setting("foreign_keys"), u"0"_s);
    EXPECT_EQ(setting("cell_size_check"), u"1"_s);
    EXPECT_EQ(setting("mmap_size"), u"0"_s);
    EXPECT_EQ(setting("trusted_schema"), u"0"_s);
    EXPECT_EQ(setting("busy_timeout"), u"5000"_s);
    EXPECT_EQ(setting("application_id"), QString::number(0x5A4C5652));
}

TEST_F(ProjectFiles, aFileInWriteAheadModeIsBroughtBackByAWriterAndNotByALook)
{
    connector.close();
    ASSERT_TRUE(run(path(), "PRAGMA journal_mode=WAL; INSERT INTO unit(name) VALUES('x')"));
    const QStringList files = filesInFolder();
    EXPECT_FALSE(connector.open(path(), Access::ReadOnly));
    EXPECT_TRUE(connector.openError().contains(u"write-ahead"_s)) << connector.openError().toStdString();
    EXPECT_EQ(filesInFolder(), files);
    ASSERT_TRUE(connector.open(path()));
    EXPECT_EQ(connector.freeSQL<Unit>().size(), 1U);
    EXPECT_EQ(contentOf(path()).at(18), 1);
}

TEST_F(ProjectFiles, linksAreResolvedBeforeOpening)
{
    connector.close();
    ASSERT_TRUE(QFile::link(path(), path(u"link.pdb"_s)));
    ASSERT_TRUE(connector.open(path(u"link.pdb"_s)));
    EXPECT_EQ(connector.path(), path());
    Connector other;
    EXPECT_FALSE(other.open(path()));
    EXPECT_TRUE(other.isLockedByOther());
    EXPECT_TRUE(QFile::exists(path() + u".lock"_s));
}

TEST_F(ProjectFiles, aSecondNameIsReadButNotWritten)
{
    connector.close();
    ASSERT_EQ(::link(path().toUtf8().constData(), path(u"twin.pdb"_s).toUtf8().constData()), 0);
    EXPECT_FALSE(connector.open(path()));
    EXPECT_TRUE(connector.openError().contains(u"hard link"_s));
    ASSERT_TRUE(connector.open(path(), Access::ReadOnly));
    EXPECT_TRUE(connector.isReadOnly());
    EXPECT_TRUE(connector.select<Params>(1));
}

TEST_F(ProjectFiles, aMovedFileIsNotWrittenAnyMore)
{
    ASSERT_EQ(add(), 1);
    ASSERT_TRUE(QFile::rename(path(), path(u"moved.pdb"_s)));
    EXPECT_EQ(add(), 0);
    connector.execute("BEGIN");
    EXPECT_EQ(add(), 0);
    connector.execute("ROLLBACK");
    connector.close();
    ASSERT_TRUE(connector.open(path(u"moved.pdb"_s)));
    EXPECT_EQ(connector.freeSQL<Unit>().size(), 1U);
    EXPECT_TRUE(connector.integrityFindings().isEmpty());
}

TEST_F(ProjectFiles, lookingWritesNothing)
{
    add();
    connector.close();
    const QByteArray before = contentOf(path());
    const QStringList files = filesInFolder();
    ASSERT_TRUE(connector.open(path(), Access::ReadOnly));
    EXPECT_TRUE(connector.isReadOnly());
    EXPECT_FALSE(connector.execute("BEGIN"));
    EXPECT_EQ(add(), 0);
    EXPECT_FALSE(connector.execute("COMMIT"));
    EXPECT_EQ(add(), 0);
    EXPECT_FALSE(connector.createTable<Person>());
    EXPECT_EQ(connector.freeSQL<Unit>().size(), 1U);
    EXPECT_EQ(filesInFolder(), files);
    connector.close();
    EXPECT_EQ(contentOf(path()), before);
}

TEST_F(ProjectFiles, aFolderWithoutPermissionOpensReadOnly)
{
    connector.close();
    const QByteArray folder = program.file({}).toUtf8();
    ASSERT_EQ(::chmod(folder.constData(), 0555), 0);
    const int result = runInChild([this] {
        if (::geteuid() == 0 && ::seteuid(65534) != 0)
            return 9;
        Connector other;
        if (!other.open(path()))
            return 1;
        if (!other.isReadOnly())
            return 2;
        Unit unit;
        return other.insert(unit) == 0 && other.select<Params>(1) ? 0 : 3;
    });
    ::chmod(folder.constData(), 0700);
    EXPECT_EQ(result, 0);
}

TEST_F(ProjectFiles, aProjectInUseSaysByWhomAndSinceWhen)
{
    Connector other;
    EXPECT_FALSE(other.open(path()));
    EXPECT_TRUE(other.isLockedByOther());
    const QString text = other.openError();
    EXPECT_TRUE(text.contains(u"in use by test_store (process %1 on "_s.arg(::getpid())))
        << text.toStdString();
    EXPECT_TRUE(text.contains(u") since 2"_s));
    EXPECT_TRUE(other.open(path(), Access::ReadOnly));
    EXPECT_FALSE(other.isLockedByOther());
    EXPECT_EQ(add(), 1);
    EXPECT_EQ(other.freeSQL<Unit>().size(), 1U);
}

TEST_F(ProjectFiles, aLockThatCannotBeReadIsNamed)
{
    connector.close();
    write(path() + u".lock"_s, {});
    EXPECT_FALSE(connector.open(path()));
    EXPECT_TRUE(connector.isLockedByOther());
    EXPECT_TRUE(connector.openError().contains(path() + u".lock"_s));
    QFile::remove(path() + u".lock"_s);
    EXPECT_TRUE(connector.open(path()));
}

TEST_F(ProjectFiles, aDeadProgramsLockIsTakenOverWithoutAWord)
{
    connector.close();
    ASSERT_EQ(runInChild([this] {
                  Connector* other = new Connector; // never closed: the process dies
                  return other->open(path()) ? 0 : 1;
              }),
              0);
    ASSERT_TRUE(QFile::exists(path() + u".lock"_s));
    EXPECT_TRUE(connector.open(path())) << connector.openError().toStdString();
}

TEST_F(ProjectFiles, aReadAfterACrashSeesTheLastCommittedState)
{
    connector.close();
    // Spills its cache into the file within a transaction, and dies.
    EXPECT_EQ(runInChild([this] {
                  Connector* other = new Connector;
                  if (!other->open(path()) || !other->execute("BEGIN"))
                      return 1;
                  Unit unit;
                  unit.name = QString(200'000, u'x');
                  for (int i = 0; i < 50; ++i)
                      other->insert(unit);
                  ::kill(::getpid(), SIGKILL);
                  return 0;
              }),
              -SIGKILL);
    ASSERT_TRUE(QFile::exists(path() + u"-journal"_s));
    ASSERT_TRUE(connector.open(path(), Access::ReadOnly)) << connector.openError().toStdString();
    EXPECT_TRUE(connector.freeSQL<Unit>().empty());
    EXPECT_TRUE(connector.integrityFindings().isEmpty());
    ASSERT_TRUE(connector.open(path()));
    EXPECT_EQ(add(), 1);
}

TEST_F(ProjectFiles, aFullDiskFailsTheCommitAndLeavesTheFileWhole)
{
    add();
    connector.close();
    const int result = runInChild([this] {
        ignoreFileSizeSignals();
        TestProgram inner;
        Connector& other = inner.appDelegate.connector;
        const auto size = static_cast<rlim_t>(QFile(path()).size());
        const rlimit limit{size + 8192, size + 8192};
        if (!other.open(path()) || ::setrlimit(RLIMIT_FSIZE, &limit) != 0)
            return 1;
        UserWrite write(other);
        Unit unit;
        unit.name = QString(100'000, u'x');
        write.step(other.insert(unit));
        if (write.finish() || other.inTransaction())
            return 2;
        if (inner.dialogs.alerts.size() != 1)
            return 3;
        Unit small;
        return other.freeSQL<Unit>().size() == 1 && other.insert(small) == 1 ? 0 : 4;
    });
    EXPECT_EQ(result, 0);
    ASSERT_TRUE(connector.open(path()));
    EXPECT_EQ(connector.freeSQL<Unit>().size(), 2U);
    EXPECT_TRUE(connector.integrityFindings().isEmpty());
}

TEST_F(ProjectFiles, aFullDiskInTheMidstOfATransactionTakesAllOfItBack)
{
    connector.close();
    const int result = runInChild([this] {
        ignoreFileSizeSignals();
        Connector other;
        const auto size = static_cast<rlim_t>(QFile(path()).size());
        const rlimit limit{size + 65536, size + 65536};
        if (!other.open(path()) || ::setrlimit(RLIMIT_FSIZE, &limit) != 0 || !other.execute("BEGIN"))
            return 1;
        Unit unit;
        unit.name = QString(100'000, u'x');
        int refused = 0;
        for (int i = 0; i < 100; ++i)
            refused += other.insert(unit) == 1 ? 0 : 1;
        if (refused == 0)
            return 2;
        Unit small;
        if (other.insert(small) != 0)
            return 3; // alone, outside its transaction
        return other.execute("COMMIT") ? 4 : 0;
    });
    EXPECT_EQ(result, 0);
    ASSERT_TRUE(connector.open(path()));
    EXPECT_TRUE(connector.freeSQL<Unit>().empty());
    EXPECT_TRUE(connector.integrityFindings().isEmpty());
}

TEST_F(ProjectFiles, aDamagedFileNeverCrashesOrHangs)
{
    for (int i = 0; i < 60; ++i)
        add();
    Goods goods;
    connector.insert(goods);
    connector.close();
    const QByteArray sound = contentOf(path());
    // In memory where that can be had: the lock of each opening for writing is brought to the disk.
    const QTemporaryDir memory(u"/dev/shm/zelvor-XXXXXX"_s);
    const QString broken = memory.isValid() ? memory.filePath(u"broken.pdb"_s) : path(u"broken.pdb"_s);
    const auto tryIt = [&](const QByteArray& content) {
        write(broken, content);
        Connector other;
        for (const Access access : {Access::ReadOnly, Access::ReadWrite}) {
            if (!other.open(broken, access)) {
                EXPECT_FALSE(other.openError().isEmpty());
                continue;
            }
            other.freeSQL<Unit>();
            other.freeSQL<Goods>();
            other.select<Params>(1);
            Unit unit;
            other.execute("BEGIN");
            other.insert(unit);
            other.execute("ROLLBACK");
            other.integrityFindings();
        }
    };
    for (qsizetype size = 0; size < sound.size(); size += size < 200 ? 7 : 997)
        tryIt(sound.left(size));
    for (qsizetype offset = 0; offset < sound.size(); offset += offset < 120 ? 1 : 61) {
        for (const char flip : {char(0xFF), char(0x01)}) {
            QByteArray content = sound;
            content[offset] = static_cast<char>(content[offset] ^ flip);
            tryIt(content);
        }
    }
}

TEST_F(ProjectFiles, aTreeOfPagesThatNeverEndsEndsEveryRead)
{
    add();
    Goods goods;
    goods.unitID = 1;
    connector.insert(goods);
    const qint64 unitRoot = rootOf("unit");
    connector.close();
    const QByteArray sound = contentOf(path());
    const QString endless = path(u"endless.pdb"_s);
    write(endless, withEndlessTree(sound, unitRoot));
    Connector other;
    for (const Access access : {Access::ReadOnly, Access::ReadWrite}) {
        ASSERT_TRUE(other.open(endless, access)) << other.openError().toStdString();
        EXPECT_TRUE(other.freeSQL<Unit>().empty());
        EXPECT_FALSE(other.scan("SELECT count(id) FROM unit", {}, [](const Statement&) {}));
        EXPECT_FALSE(other.scan("SELECT id FROM unit", {}, [](const Statement&) {}));
        EXPECT_FALSE(other.any<Unit>("WHERE name=?", {u"none"_s}));
        EXPECT_FALSE(other.integrityFindings().isEmpty());
        EXPECT_EQ(other.freeSQL<Goods>({}, std::span<const Parameter>{}, Fill::Nothing).size(), 1U);
    }
    other.close();
    write(endless, withEndlessTree(sound, 1));
    expectRefused(endless, u"damaged"_s);
}

TEST_F(ProjectFiles, aTruncatedFileIsRefused)
{
    connector.close();
    const QByteArray sound = contentOf(path());
    write(path(u"half.pdb"_s), sound.left(sound.size() / 2));
    expectRefused(path(u"half.pdb"_s), u"damaged"_s);
    write(path(u"head.pdb"_s), sound.left(50));
    expectRefused(path(u"head.pdb"_s), u"damaged"_s);
}

TEST_F(ProjectFiles, aCopyIsConsistentWhileOthersHaveTheProjectOpen)
{
    add();
    Connector reader;
    ASSERT_TRUE(reader.open(path(), Access::ReadOnly));
    EXPECT_EQ(reader.backup(path(u"copy.pdb"_s)), QString());
    EXPECT_TRUE(reader.backup(path(u"copy.pdb"_s)).contains(u"already"_s));
    EXPECT_TRUE(reader.backup(path(u"no/copy.pdb"_s)).contains(u"folder"_s));
    EXPECT_TRUE(reader.backup(path()).contains(u"already"_s));
    Connector copy;
    ASSERT_TRUE(copy.open(path(u"copy.pdb"_s)));
    EXPECT_EQ(copy.freeSQL<Unit>().size(), 1U);
    EXPECT_TRUE(copy.integrityFindings().isEmpty());
    EXPECT_EQ(filesInFolder().filter(u".new"_s), QStringList());
}

TEST_F(ProjectFiles, aCopyWaitsForAWriterNoLongerThanARead)
{
    sqlite3* writer = nullptr;
    sqlite3_open(path().toUtf8().constData(), &writer);
    ASSERT_EQ(sqlite3_exec(writer, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
    connector.setPatience(50);
    QElapsedTimer timer;
    timer.start();
    EXPECT_TRUE(connector.backup(path(u"copy.pdb"_s)).contains(u"locked"_s));
    EXPECT_GE(timer.elapsed(), 50);
    EXPECT_LT(timer.elapsed(), 5000);
    sqlite3_close(writer);
    EXPECT_FALSE(QFile::exists(path(u"copy.pdb"_s)));
    EXPECT_EQ(connector.backup(path(u"copy.pdb"_s)), QString());
}

TEST_F(ProjectFiles, nothingAcknowledgedIsLostByKills)
{
    connector.close();
    std::size_t atLeast = 0;
    for (int round = 0; round < 20; ++round) {
        int ends[2];
        ASSERT_EQ(::pipe(ends), 0);
        const pid_t child = ::fork();
        if (child == 0) {
            Connector* writer = new Connector;
            if (!writer->open(path()))
                ::_exit(1);
            for (;;) {
                writer->execute("BEGIN");
                Unit first;
                Unit second;
                writer->insert(first);
                writer->insert(second);
                if (writer->execute("COMMIT") && ::write(ends[1], "+", 1) != 1)
                    ::_exit(2);
            }
        }
        ::close(ends[1]);
        ::usleep(static_cast<useconds_t>(3000 + 2711 * round));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        char signs[64];
        for (ssize_t got = 0; (got = ::read(ends[0], signs, sizeof signs)) > 0;)
            atLeast += 2 * static_cast<std::size_t>(got);
        ::close(ends[0]);
        ASSERT_TRUE(connector.open(path())) << connector.openError().toStdString();
        const std::size_t stored = connector.freeSQL<Unit>().size();
        EXPECT_GE(stored, atLeast);
        EXPECT_LE(stored, atLeast + 2);
        EXPECT_EQ(stored % 2, 0U);
        EXPECT_TRUE(connector.integrityFindings().isEmpty());
        atLeast = stored;
        connector.close();
    }
    EXPECT_GT(atLeast, 0U);
}

} // namespace zelvor
