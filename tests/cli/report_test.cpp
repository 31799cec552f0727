#include "cli/cli_test.h"

#include <QtCore/QFileInfo>

#include <sys/stat.h>

namespace zelvor {

// The shop with three sales in January 2024.
class ReportCommand : public CliTest {
protected:
    void SetUp() override
    {
        createShop();
        applied(R"({"do":"put","record":"Contragent","values":{"name":"Bolt","manager_id":0}}
{"do":"put","record":"Manager","values":{"name":"Bo"}}
{"do":"put","record":"ContragentGroup","values":{"name":"Customers"}}
{"do":"put","record":"Contragent","id":2,"values":{"parent_id":1}}
{"do":"document","type":"SellProduct","date":"2024-01-10T00:00:00","contragent":2,"rows":[{"product":1,"amount":2}],"confirm":true}
{"do":"document","type":"SellProduct","date":"2024-01-10T10:00:00","contragent":1,"rows":[{"product":1,"amount":3,"price":11}],"confirm":true}
{"do":"document","type":"SellIntangibles","date":"2024-01-20T23:59:59","contragent":2,"rows":[{"product":2}],"confirm":true}
)",
                {"--replay"});
    }
    QJsonObject report(const QStringList& words) const
    {
        const CliRun result = run(QStringList{"report", words.first(), project} + words.mid(1));
        EXPECT_EQ(result.exitCode, 0) << qPrintable(words.join(' ')) << result.err.constData();
        return result.json();
    }
    QJsonObject sales(const QStringList& options) const
    {
        return report(QStringList{"period-sell", "--from", "2024-01-01", "--to", "2024-01-31"} + options);
    }
    // "kind name amount priceSum" of each row.
    static QStringList rows(const QJsonObject& report)
    {
        QStringList texts;
        for (const QJsonValue& row : report["rows"].toArray())
            texts += row["kind"].toString() + ' ' + row["name"].toString().trimmed() + ' ' +
                     QString::number(row["amount"].toDouble()) + ' ' +
                     QString::number(row["priceSum"].toDouble());
        return texts;
    }
};

TEST_F(ReportCommand, theBalanceHasGroupsItemsAndTwoClosingRows)
{
    const QByteArray out = run({"report", "balance", project}).out;
    EXPECT_TRUE(out.startsWith(
        R"({"title":"Balance","columns":["name","debet","credit"],"rows":[{"kind":"group","name":"Cash",)"
        R"("debet":1000,"credit":""},{"kind":"item","name":"  Till","debet":1000,"credit":""})"))
        << out.constData();
    const QJsonArray rows = report({"balance"})["rows"].toArray();
    EXPECT_EQ(rows[rows.size() - 1]["kind"].toString(), "total");
    EXPECT_EQ(rows[rows.size() - 2]["name"].toString(), "TOTAL:");
    for (const QJsonValue& row : report({"balance", "--grouped"})["rows"].toArray())
        EXPECT_NE(row["kind"].toString(), "item");
}

TEST_F(ReportCommand, aPeriodThatEndsBeforeItBeginsHasNoRowsAndItsOwnTitle)
{
    for (const char* name : {"period-sell", "journal"}) {
        const QJsonObject empty = report({name, "--from", "2024-02-01", "--to", "2024-01-15"});
        EXPECT_TRUE(empty["rows"].toArray().isEmpty());
        EXPECT_TRUE(empty["title"].toString().contains("1 Feb 2024"))
            << qPrintable(empty["title"].toString());
        EXPECT_TRUE(empty["title"].toString().contains("16 Jan 2024"))
            << qPrintable(empty["title"].toString());
    }
}

TEST_F(ReportCommand, salesByProductGatherInTheirGroups)
{
    const QJsonObject report = sales({"--by", "products"});
    EXPECT_EQ(rows(report), (QStringList{"productGroup Goods 5 53", "product Lamp 5 53",
                                         "product Repair 1 30", "total TOTAL 6 83"}));
    EXPECT_EQ(report["columns"].toArray(),
              (QJsonArray{"name", "unit", "amount", "packs", "baseSum", "priceSum", "profit", "percent"}));
    EXPECT_TRUE(report["title"].toString().startsWith("Report by Selling For Period."));
    EXPECT_EQ(rows(sales({"--collapse", "products"})),
              (QStringList{"productGroup Goods 5 53", "product Repair 1 30", "total TOTAL 6 83"}));
}

TEST_F(ReportCommand, salesByCustomerAndByManager)
{
    EXPECT_EQ(rows(sales({"--by", "customers", "--collapse", "contragents"})),
              (QStringList{"contragent Customers 3 50", "contragent Bolt 3 50", "contragent Acme 3 33",
                           "total TOTAL 6 83"}));
    const QStringList managers = rows(sales({"--by", "managers", "--collapse", "contragents,managers"}));
    EXPECT_TRUE(managers.contains("manager Ada 3 33")) << qPrintable(managers.join('\n'));
    EXPECT_TRUE(rows(sales({"--by", "managers"})).contains("manager No manager 3 50"));
}

TEST_F(ReportCommand, filtersLetThroughWhatTheyName)
{
    EXPECT_EQ(rows(sales({"--products", "2"})), (QStringList{"product Repair 1 30", "total TOTAL 1 30"}));
    EXPECT_EQ(rows(sales({"--product-groups", "1", "--products", "1,2"})).size(), 4);
    EXPECT_EQ(rows(sales({"--by", "customers", "--contragents", "1", "--collapse", "contragents"})),
              (QStringList{"contragent Acme 3 33", "total TOTAL 3 33"}));
    EXPECT_EQ(rows(sales({"--by", "customers", "--contragent-groups", "1", "--contragents", "2", "--collapse",
                          "contragents"}))
                  .first(),
              "contragent Customers 3 50");
    EXPECT_FALSE(rows(sales({"--by", "managers", "--managers", "2"})).contains("manager Ada 3 33"));
}

TEST_F(ReportCommand, rowsAreSortedAndTheTotalStaysLast)
{
    EXPECT_EQ(rows(sales({"--sort", "price"})).first(), "product Repair 1 30");
    EXPECT_EQ(rows(sales({"--sort", "price:desc"})).first(), "productGroup Goods 5 53");
    EXPECT_EQ(rows(sales({"--sort", "price:desc"})).last(), "total TOTAL 6 83");
}

TEST_F(ReportCommand, bothEndsOfAPeriodOfSalesAreOutside)
{
    // The first sale stands on the midnight that begins the 10th.
    EXPECT_EQ(rows(report({"period-sell", "--from", "2024-01-10", "--to", "2024-01-10"})).last(),
              "total TOTAL 3 33");
    EXPECT_EQ(rows(report({"period-sell", "--from", "2024-01-09", "--to", "2024-01-20"})).last(),
              "total TOTAL 6 83");
    EXPECT_EQ(rows(report({"period-sell", "--from", "@1704844799", "--to", "@1704844801"})).last(),
              "total TOTAL 2 20");
    EXPECT_TRUE(rows(report({"period-sell", "--from", "2024-02-01", "--to", "2024-02-28"})).isEmpty());
    EXPECT_TRUE(rows(report({"period-sell"})).isEmpty()) << "today, where there is nothing";
}

TEST_F(ReportCommand, theJournalListsDocumentsOfAKindOrType)
{
    const QStringList year{"--from", "2024-01-01", "--to", "2024-12-31"};
    const auto count = [&](const QStringList& options) {
        return report(QStringList{"journal"} + year + options)["rows"].toArray().size();
    };
    EXPECT_EQ(count({}), 5);
    EXPECT_EQ(count({"--kind", "product"}), 4);
    EXPECT_EQ(count({"--kind", "money"}), 1);
    EXPECT_EQ(count({"--kind", "all", "--type", "SellProduct"}), 2);
    const QJsonObject first = report(QStringList{"journal"} + year)["rows"].toArray().first().toObject();
    EXPECT_EQ(first["kind"].toString(), "document");
    EXPECT_EQ(first["date"].toInteger(), 1704186000);
    EXPECT_EQ(first["number"].toInt(), 1);
    EXPECT_TRUE(first["confirmed"].toBool());
    EXPECT_EQ(first["sum"].toDouble(), 120);
}

TEST_F(ReportCommand, textHasAlignedColumnsAndGroupedAmounts)
{
    const QByteArray text = run({"report", "balance", project, "--format", "text"}).out;
    EXPECT_TRUE(text.startsWith("Balance\n\n")) << text.constData();
    EXPECT_TRUE(text.contains("1 000.00")) << text.constData();
    const QByteArray journal =
        run({"report", "journal", project, "--format", "text", "--from", "2024-01-01", "--to", "2024-01-31"})
            .out;
    EXPECT_TRUE(journal.contains("2024-01-02 09:00:00")) << journal.constData();
    EXPECT_TRUE(journal.contains("yes"));
    EXPECT_TRUE(run({"report", "period-sell", project, "--format", "text", "--from", "2024-01-01", "--to",
                     "2024-01-31"})
                    .out.contains(" %"));
}

TEST_F(ReportCommand, aFileIsWrittenWholeOrNotAtAll)
{
    const QByteArray out = run({"report", "balance", project}).out;
    EXPECT_TRUE(run({"report", "balance", project, "-o", file("balance.json")}).out.isEmpty());
    EXPECT_EQ(read(file("balance.json")), out);
    EXPECT_EQ(run({"report", "balance", project, "-o", file("nowhere/balance.json")}).exitCode, 2);
    EXPECT_EQ(QDir(m_folder.path()).entryList({"balance*"}), QStringList{"balance.json"});
}

TEST_F(ReportCommand, aFileThatIsNoRegularOneIsLeftAsItIs)
{
    const QString pipe = file("pipe");
    ASSERT_EQ(::mkfifo(qPrintable(pipe), 0600), 0);
    const CliRun refused = run({"report", "balance", project, "-o", pipe});
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_TRUE(refused.saysOneLine()) << refused.err.constData();
    EXPECT_TRUE(QFileInfo(pipe).exists() && !QFileInfo(pipe).isFile());
}

TEST_F(ReportCommand, aFileWithoutANameIsBadUsage)
{
    for (const char* format : {"json", "pdf"}) {
        const CliRun nameless = run({"report", "balance", project, "--format", format, "-o", ""});
        EXPECT_EQ(nameless.exitCode, 2);
        EXPECT_TRUE(nameless.saysOneLine()) << nameless.err.constData();
    }
}

TEST_F(ReportCommand, aTextThatCannotBeWrittenIsARefusalAndTold)
{
    for (const char* target : {">/dev/full", ">&-"}) {
        for (const char* format : {"json", "text", "csv", "xls", "pdf"}) {
            QProcess process;
            prepare(process);
            process.start("sh", {"-c", QString("exec \"$0\" \"$@\" %1").arg(target), ZELVOR_CLI, "report",
                                 "balance", project, "--format", format});
            ASSERT_TRUE(process.waitForFinished());
            EXPECT_EQ(process.exitCode(), 1) << format << target;
            const QByteArray told = process.readAllStandardError();
            EXPECT_EQ(told.count('\n'), 1) << format << target << told.constData();
            EXPECT_TRUE(told.contains("standard output")) << told.constData();
        }
    }
}

TEST_F(ReportCommand, whatCannotAllBeReadIsNoReport)
{
    corrupt("ALTER TABLE money_doc DROP COLUMN comment");
    for (const QStringList& words : {QStringList{"report", "account", project, "--id", "1"},
                                     {"report", "contragent", project, "--id", "1"},
                                     {"report", "journal", project, "--from", "2024-01-01"},
                                     {"report", "account", project, "--id", "1", "--format", "pdf"}}) {
        const CliRun result = run(words + QStringList{"-o", file("sheet")});
        EXPECT_EQ(result.exitCode, 2) << qPrintable(words.join(' '));
        EXPECT_TRUE(result.saysOneLine()) << result.err.constData();
        EXPECT_FALSE(QFile::exists(file("sheet")));
    }
    corrupt("ALTER TABLE product_doc_row DROP COLUMN amount");
    const CliRun invoice = run({"invoice", project, "2", "-o", file("sheet")});
    EXPECT_EQ(invoice.exitCode, 2);
    EXPECT_TRUE(invoice.saysOneLine()) << invoice.err.constData();
    EXPECT_FALSE(QFile::exists(file("sheet")));
}

} // namespace zelvor
