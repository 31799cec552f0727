#include "cli/cli_test.h"

#include <QtCore/QFileInfo>

namespace zelvor {

// A shop whose names hold what the formats give a meaning of their own.
class ReportFormats : public CliTest {
protected:
    void SetUp() override
    {
        createShop();
        applied(R"({"do":"put","record":"Contragent","values":{"name":"A \"quoted\", <b>big</b> & =1+1 name"}}
{"do":"put","record":"Account","values":{"name":"Safe\nbelow","currency_id":"EUR"}}
{"do":"document","type":"SellProduct","date":"2024-01-10T10:30:00","contragent":2,"rows":[{"product":1,"amount":3,"price":411.5}],"comment":"=1+1","confirm":true}
)",
                {"--replay"});
    }
    QStringList journal(const QStringList& options = {}) const
    {
        return QStringList{"report", "journal", project, "--from", "2024-01-01", "--to", "2024-01-31"} +
               options;
    }
};

TEST_F(ReportFormats, csvHasALineOfIdentifiersAndOneForEachRow)
{
    EXPECT_EQ(
        run(journal({"--kind", "money", "--format", "csv"})).out.toStdString(),
        "number,journalName,date,confirmed,correction,sum,contragent,stockFrom,stockTo,manager,comment\r\n"
        "1,Money Document 'Money Deposit' #1,2024-01-02T10:00:00,true,false,1000,,,Till,,\r\n");
}

TEST_F(ReportFormats, csvQuotesWhatWouldEndAFieldAndLeavesAFormulaAsItIs)
{
    const QByteArray sales = run(journal({"--type", "SellProduct", "--format", "csv"})).out;
    EXPECT_TRUE(sales.endsWith(",2024-01-10T10:30:00,true,false,1234.5,\"A \"\"quoted\"\", <b>big</b> & =1+1 "
                               "name\",Shop,,,=1+1\r\n"))
        << sales.constData();
    const QByteArray balance = run({"report", "balance", project, "--format", "csv"}).out;
    EXPECT_TRUE(balance.startsWith("name,debet,credit\r\nCash,1000,\r\n\"  Safe\nbelow\","))
        << balance.constData();
}

TEST_F(ReportFormats, csvWritesFiguresWithoutAnExponent)
{
    applied(R"({"do":"document","type":"MoneyAdd","date":"2024-01-11","sum":100000,"confirm":true}
{"do":"document","type":"MoneyAdd","date":"2024-01-12","sum":"0.01","confirm":true}
)",
            {"--replay"});
    const QByteArray csv = run(journal({"--kind", "money", "--format", "csv"})).out;
    EXPECT_TRUE(csv.contains(",false,100000,")) << csv.constData();
    EXPECT_TRUE(csv.contains(",false,0.01,")) << csv.constData();
}

TEST_F(ReportFormats, anUnknownFormatIsBadUsage)
{
    const CliRun result = run({"report", "balance", project, "--format", "xml"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_TRUE(result.saysOneLine() && result.err.contains("csv")) << result.err.constData();
}

} // namespace zelvor
