#include "store/user_write.h"
#include "support/test_project.h"
#include "test_records.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <chrono>
#include <thread>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

// Another program at the same file.
class OtherProgram {
public:
    explicit OtherProgram(const QString& path) { sqlite3_open(path.toUtf8().constData(), &m_database); }
    ~OtherProgram() { sqlite3_close(m_database); }
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;
    bool run(const char* text)
    {
        return sqlite3_exec(m_database, text, nullptr, nullptr, nullptr) == SQLITE_OK;
    }

private:
    sqlite3* m_database = nullptr;
};

class Transactions : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE((program.createProject<Unit, Goods, PaperRow, Paper>())); }
    int add()
    {
        Unit unit;
        return connector.insert(unit);
    }
    std::size_t count() { return connector.freeSQL<Unit>().size(); }

    TestProgram program;
    Connector& connector = program.appDelegate.connector;
};

} // namespace

TEST_F(Transactions, aCommitAfterARollbackDoesNothing)
{
    EXPECT_TRUE(connector.execute("BEGIN"));
    EXPECT_TRUE(connector.inTransaction());
    EXPECT_EQ(add(), 1);
    EXPECT_EQ(count(), 1U);
    EXPECT_TRUE(connector.execute("ROLLBACK"));
    EXPECT_TRUE(connector.execute("COMMIT"));
    EXPECT_FALSE(connector.inTransaction());
    EXPECT_EQ(count(), 0U);
    EXPECT_TRUE(program.dialogs.alerts.empty());
}

TEST_F(Transactions, onlyTheThreeWordsAreTaken)
{
    for (const char* text : {"", "begin", "BEGIN;", "COMMIT ", "DELETE FROM unit", "PRAGMA journal_mode=WAL"})
        EXPECT_FALSE(connector.execute(text)) << text;
    EXPECT_FALSE(connector.inTransaction());
}

TEST_F(Transactions, withoutTheLockNothingIsWrittenUntilTheEnd)
{
    connector.setPatience(20);
    OtherProgram other(connector.path());
    ASSERT_TRUE(other.run("BEGIN IMMEDIATE"));
    EXPECT_FALSE(connector.execute("BEGIN"));
    EXPECT_EQ(add(), 0);
    ASSERT_TRUE(other.run("COMMIT"));
    EXPECT_EQ(add(), 0);
    Unit unit;
    EXPECT_EQ(connector.update(unit), 0);
    EXPECT_EQ(connector.remove(unit), 0);
    EXPECT_FALSE(connector.createTable<Person>());
    EXPECT_FALSE(connector.execute("COMMIT"));
    EXPECT_TRUE(program.dialogs.alerts.empty()); // nothing was lost
    EXPECT_EQ(add(), 1);
    EXPECT_EQ(count(), 1U);
}

TEST_F(Transactions, aReaderInTheWayMakesTheCommitFailAndTakesItBack)
{
    add();
    connector.setPatience(20);
    OtherProgram reader(connector.path());
    ASSERT_TRUE(reader.run("BEGIN; SELECT * FROM unit"));
    UserWrite write(connector);
    EXPECT_TRUE(write.step(add()));
    EXPECT_FALSE(write.finish());
    EXPECT_FALSE(connector.inTransaction());
    EXPECT_EQ(program.dialogs.alerts.size(), 1U);
    EXPECT_TRUE(program.dialogs.alerts.at(0).informativeText.contains(u"locked"_s));
    for (const NotificationName name :
         {NotificationName::AccountBalanceChangedNotification,
          NotificationName::DocWithContragentChangedNotification,
          NotificationName::ExpendDocChangedNotification, NotificationName::ProductChangedNotificationForSelf,
          NotificationName::MeasurementsChangedNotificationForSelf})
        EXPECT_TRUE(program.posted.has(name)) << notificationNameText(name).toStdString();
    reader.run("COMMIT");
    EXPECT_EQ(count(), 1U);
    EXPECT_EQ(add(), 1);
}

TEST_F(Transactions, aWriteWaitsForAnotherProgramToFinish)
{
    OtherProgram other(connector.path());
    ASSERT_TRUE(other.run("BEGIN IMMEDIATE"));
    std::thread otherWork([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(30));
        other.run("COMMIT");
    });
    EXPECT_TRUE(connector.execute("BEGIN"));
    otherWork.join();
    EXPECT_TRUE(connector.execute("COMMIT"));
}

TEST_F(Transactions, aFailedStepTakesEverythingBack)
{
    UserWrite write(connector);
    EXPECT_TRUE(write.step(add()));
    EXPECT_FALSE(write.step(0));
    bool announced = false;
    EXPECT_FALSE(write.finish([&] { announced = true; }));
    EXPECT_FALSE(announced);
    EXPECT_EQ(count(), 0U);
}

TEST_F(Transactions, anUnfinishedWriteIsTakenBack)
{
    {
        UserWrite write(connector);
        write.step(add());
    }
    EXPECT_FALSE(connector.inTransaction());
    EXPECT_EQ(count(), 0U);
}

TEST_F(Transactions, anAnnouncementSeesTheTransactionsOwnData)
{
    UserWrite write(connector);
    write.step(add());
    std::size_t seen = 0;
    bool open = false;
    EXPECT_TRUE(write.finish([&] {
        seen = count();
        open = connector.inTransaction();
    }));
    EXPECT_EQ(seen, 1U);
    EXPECT_TRUE(open);
}

TEST_F(Transactions, whatSQLiteEndedByItselfTakesNoMoreWrites)
{
    // A constraint that rolls the whole transaction back stands in for a disk that fails in its midst.
    OtherProgram other(connector.path());
    ASSERT_TRUE(
        other.run("CREATE TABLE person(id INTEGER PRIMARY KEY AUTOINCREMENT, name TEXT UNIQUE ON CONFLICT "
                  "ROLLBACK, chief_id INTEGER)"));
    Person person;
    person.name = u"Ann"_s;
    ASSERT_EQ(connector.insert(person), 1);
    ASSERT_TRUE(connector.execute("BEGIN"));
    EXPECT_EQ(add(), 1);
    Person same;
    same.name = u"Ann"_s;
    EXPECT_EQ(connector.insert(same), 0);
    EXPECT_EQ(same.id, 0);
    EXPECT_EQ(add(), 0);
    Unit unit;
    EXPECT_EQ(connector.remove(unit), 0);
    EXPECT_FALSE(connector.execute("COMMIT"));
    EXPECT_EQ(program.dialogs.alerts.size(), 1U);
    EXPECT_EQ(count(), 0U);
    EXPECT_EQ(add(), 1);
    same.name = u"Bob"_s;
    EXPECT_EQ(connector.insert(same), 1);
}

TEST_F(Transactions, aBulkLoadIsMadeDurableOnceAtItsEnd)
{
    Connector other;
    ASSERT_TRUE(connector.beginBulk());
    EXPECT_FALSE(connector.beginBulk());
    for (int i = 0; i < 3; ++i) {
        UserWrite write(connector);
        write.step(add());
        if (i == 1)
            write.fail();
        EXPECT_EQ(write.finish(), i != 1);
    }
    EXPECT_EQ(count(), 2U);
    ASSERT_TRUE(other.open(connector.path(), Access::ReadOnly));
    EXPECT_EQ(other.freeSQL<Unit>().size(), 0U);
    EXPECT_TRUE(connector.endBulk());
    EXPECT_EQ(other.freeSQL<Unit>().size(), 2U);
    EXPECT_FALSE(connector.endBulk());
}

TEST_F(Transactions, aBulkLoadThatIsNotEndedLeavesNothing)
{
    ASSERT_TRUE(connector.beginBulk());
    add();
    const QString path = connector.path();
    connector.close();
    ASSERT_TRUE(connector.open(path));
    EXPECT_EQ(count(), 0U);
}

TEST_F(Transactions, aBulkLoadThatSQLiteEndedKeepsNothing)
{
    OtherProgram other(connector.path());
    ASSERT_TRUE(
        other.run("CREATE TABLE person(id INTEGER PRIMARY KEY AUTOINCREMENT, name TEXT UNIQUE ON CONFLICT "
                  "ROLLBACK, chief_id INTEGER)"));
    ASSERT_TRUE(connector.beginBulk());
    Person person;
    person.name = u"Ann"_s;
    ASSERT_EQ(connector.insert(person), 1);
    ASSERT_TRUE(connector.execute("BEGIN"));
    Person same;
    same.name = u"Ann"_s;
    EXPECT_EQ(connector.insert(same), 0);
    EXPECT_TRUE(connector.execute("ROLLBACK"));
    EXPECT_FALSE(connector.execute("BEGIN"));
    EXPECT_EQ(add(), 0);
    EXPECT_TRUE(connector.execute("ROLLBACK"));
    EXPECT_EQ(add(), 0);
    EXPECT_FALSE(connector.endBulk());
    EXPECT_EQ(program.dialogs.alerts.size(), 1U);
    EXPECT_EQ(count(), 0U);
    EXPECT_EQ(add(), 1);
}

TEST_F(Transactions, everyInjectedFailureLeavesTheFileAsItWas)
{
    const auto act = [&] {
        UserWrite write(connector);
        Unit unit;
        write.step(connector.insert(unit));
        const auto read = connector.select<Unit>(unit.id);
        if (!read)
            write.fail();
        else if (!write.failed())
            write.step(connector.update(*read));
        return write.finish();
    };
    program.connector->failCall(0);
    ASSERT_TRUE(act());
    const int calls = program.connector->calls();
    EXPECT_EQ(calls, 5); // BEGIN, insert, select, update, COMMIT
    for (int k = 1; k <= calls; ++k) {
        program.connector->failCall(k);
        EXPECT_FALSE(act()) << k;
        EXPECT_TRUE(program.connector->hasFailed());
        program.connector->failCall(0);
        EXPECT_FALSE(connector.inTransaction());
        EXPECT_EQ(count(), 1U) << k;
    }
    EXPECT_EQ(program.dialogs.alerts.size(), 1U); // of the COMMIT alone
}

} // namespace zelvor
