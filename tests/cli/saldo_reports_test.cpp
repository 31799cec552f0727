#include "cli/cli_test.h"

namespace zelvor {

// The shop with a supplier and a customer in groups, sales on account, payments, wages and a transfer.
class SaldoReports : public CliTest {
protected:
    void SetUp() override
    {
        createShop();
        applied(R"({"do":"put","record":"ContragentGroup","values":{"name":"Suppliers"}}
{"do":"put","record":"Contragent","values":{"name":"Mill","parent_id":1}}
{"do":"put","record":"Account","values":{"name":"Bank","currency_id":"EUR"}}
{"do":"document","type":"SellProduct","date":"2024-01-10T00:00:00","contragent":1,"rows":[{"product":1,"amount":3,"price":11}],"confirm":true}
{"do":"document","type":"BuyProduct","date":"2024-01-11T10:00:00","contragent":2,"stock_to":1,"rows":[{"product":1,"amount":1,"price":5}],"confirm":true}
{"do":"document","type":"MoneyFromContragent","date":"2024-01-12T10:00:00","contragent":1,"sum":20,"confirm":true}
{"do":"document","type":"MoneyToEmployee","date":"2024-01-13T10:00:00","employee":1,"sum":100,"confirm":true}
{"do":"document","type":"InnerTransaction","date":"2024-01-14T00:00:00","account_from":1,"account_to":2,"sum":50,"sum_to":50,"confirm":true}
)",
                {"--replay"});
    }
    QJsonObject report(const QStringList& words) const
    {
        const CliRun result = run(QStringList{"report", words.first(), project} + words.mid(1));
        EXPECT_EQ(result.exitCode, 0) << qPrintable(words.join(' ')) << result.err.constData();
        return result.json();
    }
    QJsonObject january(const QStringList& words) const
    {
        return report(words + QStringList{"--from", "2024-01-01", "--to", "2024-01-31"});
    }
    // "kind name start debit credit finish" of each row; "-" stands for a blank cell.
    static QStringList rows(const QJsonObject& report)
    {
        QStringList texts;
        for (const QJsonValue& row : report["rows"].toArray()) {
            QStringList cells{row["kind"].toString(), row["name"].toString()};
            for (const char* column : {"startSaldo", "debit", "credit", "finishSaldo"})
                cells << (row[column].isDouble() ? QString::number(row[column].toDouble()) : QString("-"));
            texts << cells.join(' ');
        }
        return texts;
    }
};

TEST_F(SaldoReports, counterpartiesHaveGroupsItemsAndFooters)
{
    const QJsonObject all = january({"contragents"});
    EXPECT_EQ(rows(all),
              (QStringList{"footer START PERIOD: 0 0 0 0", "group Suppliers 0 0 5 5", "item    Mill 0 0 5 5",
                           "item Acme 0 33 20 -13", "footer END PERIOD: 0 33 25 -8"}));
    EXPECT_TRUE(all["title"].toString().startsWith("Report by All Counterparties. From: "));
    EXPECT_EQ(all["columns"].toArray(),
              (QJsonArray{"number", "name", "startSaldo", "debit", "credit", "finishSaldo"}));
    EXPECT_EQ(rows(january({"contragents", "--grouped"})),
              (QStringList{"footer START PERIOD: 0 0 0 0", "group Suppliers 0 0 5 5",
                           "footer END PERIOD: 0 33 25 -8"}));
    const QJsonObject one = january({"contragents", "--contragents", "1"});
    EXPECT_EQ(rows(one)[1], "item Acme 0 33 20 -13");
    EXPECT_EQ(rows(one).size(), 3);
    EXPECT_TRUE(one["title"].toString().startsWith("Report by Selected Counterparties. From: "));
}

TEST_F(SaldoReports, theStartOfAPeriodIsOutsideForCounterpartiesAndInsideForMoney)
{
    EXPECT_EQ(rows(report({"contragent", "--id", "1", "--from", "2024-01-10", "--to", "2024-01-11"})).size(),
              2);
    EXPECT_EQ(rows(report({"contragent", "--id", "1", "--from", "2024-01-09", "--to", "2024-01-09"})).size(),
              3)
        << "the end is inside";
    EXPECT_EQ(rows(report({"account", "--id", "2", "--from", "2024-01-14", "--to", "2024-01-15"})).size(), 3);
    EXPECT_EQ(rows(report({"account", "--id", "2", "--from", "2024-01-13", "--to", "2024-01-13"})).size(), 3);
}

TEST_F(SaldoReports, aMomentInSecondsBindsExactly)
{
    const auto count = [&](const char* name, const char* id, const char* from, const char* to) {
        return rows(report({name, "--id", id, "--from", from, "--to", to})).size() - 2;
    };
    EXPECT_EQ(count("contragent", "1", "@1704844799", "@1704844800"), 1);
    EXPECT_EQ(count("contragent", "1", "@1704844800", "@1704844801"), 0);
    EXPECT_EQ(count("contragent", "1", "@1704844798", "@1704844799"), 0);
    EXPECT_EQ(count("account", "2", "@1705190400", "@1705190400"), 1) << "both bounds of money are inside";
}

TEST_F(SaldoReports, aDayEnds86400SecondsAfterItsMidnightOnDaysOf23And25HoursToo)
{
    applied(
        R"({"do":"document","type":"SellProduct","date":"2024-03-31T22:30:00","contragent":1,"rows":[{"product":1}],"confirm":true}
{"do":"document","type":"SellProduct","date":"2024-10-27T22:30:00","contragent":1,"rows":[{"product":1}],"confirm":true}
)",
        {"--replay"});
    const auto documentsOn = [&](const char* zone, const char* day) {
        QProcess process;
        prepare(process);
        QProcessEnvironment environment = process.processEnvironment();
        environment.insert("TZ", zone);
        process.setProcessEnvironment(environment);
        process.start(ZELVOR_CLI, {"report", "contragent", project, "--id", "1", "--from", day, "--to", day});
        EXPECT_TRUE(process.waitForFinished());
        const CliRun result{process.exitCode(), process.readAllStandardOutput(), {}};
        return rows(result.json()).size() - 2;
    };
    EXPECT_EQ(documentsOn("UTC", "2024-03-31"), 1);
    EXPECT_EQ(documentsOn("UTC", "2024-10-27"), 1);
    // 00:30 of the day after the short one, 23:30 of the long one.
    EXPECT_EQ(documentsOn("Europe/Berlin", "2024-03-31"), 1);
    EXPECT_EQ(documentsOn("Europe/Berlin", "2024-10-27"), 0);
}

TEST_F(SaldoReports, aStatementHasTitlesAndDocuments)
{
    const QJsonObject acme = january({"contragent", "--id", "1"});
    EXPECT_EQ(rows(acme), (QStringList{"title START PERIOD: 0 0 0 -",
                                       "document Product Document 'Sale' #1 (read) 0 33 - -33",
                                       "document Money Document 'Payment from Counterparty' #1 (read) -33 - "
                                       "20 -13",
                                       "title END PERIOD: - 33 20 -13"}));
    EXPECT_TRUE(acme["title"].toString().startsWith("Report By Counterparty 'Acme' From: "));
    EXPECT_EQ(acme["rows"][1]["date"].toInteger(), 1704844800);
    EXPECT_EQ(acme["rows"][0]["date"].toString("none"), "");
}

TEST_F(SaldoReports, statementsOfAccountsAndEmployees)
{
    const QStringList till = rows(january({"account", "--id", "1"}));
    ASSERT_EQ(till.size(), 6);
    EXPECT_EQ(till.first(), "title START PERIOD: 0 0 0 -");
    EXPECT_EQ(till.last(), "title END PERIOD: - 150 1020 870");
    const QStringList bank = rows(january({"account", "--id", "2"}));
    EXPECT_EQ(bank.last(), "title END PERIOD: - 0 50 50");
    const QJsonObject ada = january({"employee", "--id", "1"});
    EXPECT_EQ(rows(ada).last(), "title END PERIOD: - 100 0 -100");
    EXPECT_TRUE(ada["title"].toString().startsWith("Report By Employee 'Ada' From: "));
}

TEST_F(SaldoReports, anIdThatIsMissingOrUnknownIsBadUsage)
{
    for (const char* name : {"contragent", "account", "employee"}) {
        for (const QStringList& options :
             {QStringList{}, QStringList{"--id", "77"}, QStringList{"--id", "x"}, QStringList{"--id", "0"}}) {
            const CliRun refused = run(QStringList{"report", name, project} + options);
            EXPECT_EQ(refused.exitCode, 2) << name << qPrintable(options.join(' '));
            EXPECT_TRUE(refused.saysOneLine()) << refused.err.constData();
            EXPECT_TRUE(refused.out.isEmpty());
        }
    }
    EXPECT_EQ(run({"report", "contragents", project, "--id", "1"}).exitCode, 2);
    EXPECT_EQ(run({"report", "account", project, "--id", "1", "--grouped"}).exitCode, 2);
}

TEST_F(SaldoReports, aPeriodThatEndsBeforeItBeginsHasNoRowsAndItsOwnTitle)
{
    for (const QStringList& words : {QStringList{"contragents"}, QStringList{"contragent", "--id", "1"},
                                     QStringList{"account", "--id", "1"}}) {
        const QJsonObject empty = report(words + QStringList{"--from", "2024-02-01", "--to", "2024-01-15"});
        EXPECT_TRUE(empty["rows"].toArray().isEmpty());
        EXPECT_TRUE(empty["title"].toString().contains("1 Feb 2024"));
    }
}

} // namespace zelvor
