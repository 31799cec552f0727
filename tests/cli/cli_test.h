#pragma once

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <vector>

namespace zelvor {

// How one run of the program ended.
struct CliRun {
    int exitCode = -1;
    QByteArray out;
    QByteArray err;

    QJsonObject json() const { return QJsonDocument::fromJson(out).object(); }
    std::vector<QJsonObject> lines() const
    {
        std::vector<QJsonObject> objects;
        for (const QByteArray& line : out.split('\n')) {
            if (!line.isEmpty())
                objects.push_back(QJsonDocument::fromJson(line).object());
        }
        return objects;
    }
    // Standard error is one line, no more.
    bool saysOneLine() const { return err.endsWith('\n') && err.count('\n') == 1; }
};

// Drives the program as a whole, in a folder of its own: its own settings, time zone UTC.
class CliTest : public testing::Test {
protected:
    QString file(const QString& name) const { return m_folder.filePath(name); }

    void prepare(QProcess& process) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("TZ", "UTC");
        environment.insert("LC_ALL", "C.UTF-8");
        environment.insert("XDG_CONFIG_HOME", file("config"));
        process.setProcessEnvironment(environment);
    }

    CliRun run(const QStringList& words, const QByteArray& input = {}) const
    {
        QProcess process;
        prepare(process);
        process.start(ZELVOR_CLI, words);
        EXPECT_TRUE(process.waitForStarted());
        process.write(input);
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished(120'000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
    }

    CliRun apply(const QByteArray& operations, const QStringList& options = {}) const
    {
        return run(QStringList{"apply", project} + options, operations);
    }
    // The answer to one operation.
    QJsonObject answer(const QByteArray& operation, const QStringList& options = {}) const
    {
        const std::vector<QJsonObject> lines = apply(operation + '\n', options).lines();
        EXPECT_EQ(lines.size(), 1U);
        return lines.empty() ? QJsonObject() : lines.front();
    }
    // Operations that must all be carried out.
    void applied(const QByteArray& operations, const QStringList& options = {}) const
    {
        const CliRun result = apply(operations, options);
        EXPECT_EQ(result.exitCode, 0) << result.out.constData() << result.err.constData();
    }

    void write(const QString& name, const QByteArray& contents) const
    {
        QFile out(file(name));
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(contents);
    }
    QByteArray read(const QString& path) const
    {
        QFile in(path);
        return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
    }

    // Changes the project behind the program's back.
    void corrupt(const char* sql) const
    {
        sqlite3* database = nullptr;
        ASSERT_EQ(sqlite3_open(qPrintable(project), &database), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(database, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sql;
        sqlite3_close(database);
    }
    // One value of the project.
    QByteArray valueOf(const char* sql) const
    {
        sqlite3* database = nullptr;
        sqlite3_stmt* statement = nullptr;
        EXPECT_EQ(sqlite3_open(qPrintable(project), &database), SQLITE_OK);
        EXPECT_EQ(sqlite3_prepare_v2(database, sql, -1, &statement, nullptr), SQLITE_OK) << sql;
        QByteArray value = "no row";
        if (sqlite3_step(statement) == SQLITE_ROW)
            value = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
        sqlite3_finalize(statement);
        sqlite3_close(database);
        return value;
    }

    void createProject(const QString& currency = "EUR")
    {
        ASSERT_EQ(run({"create", project, "--currency", currency}).exitCode, 0);
    }
    // A project with an employee, a customer (deferment 14, discount 10), two warehouses, the first one the
    // default, an account in euro, a product at 10.00 and a service; 20 of the product at 6.00 lie in the
    // first warehouse and 1,000.00 in the account since 2 January 2024.
    void createShop()
    {
        createProject();
        applied(shopOperations(), {"--replay"});
    }
    static QByteArray shopOperations()
    {
        return R"({"do":"put","record":"Manager","values":{"name":"Ada"}}
{"do":"put","record":"Contragent","values":{"name":"Acme","manager_id":1,"deferment":14,"discount":10}}
{"do":"put","record":"Stock","values":{"name":"Shop","is_default":true}}
{"do":"put","record":"Stock","values":{"name":"Depot"}}
{"do":"put","record":"Account","values":{"name":"Till","currency_id":"EUR","is_default":true}}
{"do":"put","record":"ProductGroup","values":{"name":"Goods"}}
{"do":"put","record":"Product","values":{"name":"Lamp","group_id":1,"price_cost":"10.00"}}
{"do":"put","record":"Product","values":{"name":"Repair","is_intangible":true,"price_cost":30}}
{"do":"put","record":"Expend","values":{"name":"Rent"}}
{"do":"document","type":"AddProduct","date":"2024-01-02T09:00:00","stock_to":1,"rows":[{"product":1,"amount":20,"price":6}],"confirm":true}
{"do":"document","type":"MoneyAdd","date":"2024-01-02T10:00:00","sum":1000,"confirm":true}
)";
    }

    QTemporaryDir m_folder;
    QString project = file("shop.pdb");
};

} // namespace zelvor
