#include "cli/cli_test.h"

#include <QtCore/QFileInfo>
#include <QtCore/QStringDecoder>

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

TEST_F(ReportFormats, csvHasAColumnForEachFigureOfAWarehouse)
{
    applied(
        R"({"do":"document","type":"BuyProduct","date":"2024-01-12","contragent":1,"rows":[{"product":1,"amount":3,"price":6}],"confirm":true}
)",
        {"--replay"});
    EXPECT_EQ(run({"report", "products-on-stock", project, "--format", "csv", "--date", "2024-01-31"})
                  .out.toStdString(),
              "name,units,cost,stock_0_amount,stock_0_sum,stock_0_reserv,amountTotal,sumTotal\r\n"
              "Name,Unit,Base cost,Shop,Shop,Shop,,\r\n"
              "Goods,,,20,18,0,20,18\r\n"
              "      Lamp,,0.9,20,18,0,20,18\r\n"
              "TOTAL:,,,20,18,0,20,18\r\n");
}

TEST_F(ReportFormats, xlsIsTheDesktopsExportInUtf16)
{
    const CliRun result = run(journal({"--type", "SellProduct", "--format", "xls"}));
    EXPECT_EQ(result.exitCode, 0);
    ASSERT_TRUE(result.out.startsWith("\xFF\xFE")) << result.out.left(8).toHex().constData();
    QStringDecoder fromUtf16(QStringDecoder::Utf16);
    const QString text = fromUtf16(result.out);
    EXPECT_EQ(
        text.toStdString(),
        "<table><tr><td>Number</td><td>Document</td><td>Date</td><td>Confirmed</td><td>Correction</td>"
        "<td>Sum</td><td>Counterparty</td><td>From</td><td>To</td><td>Employee</td><td>Comment</td></tr>"
        "<tr><td>1</td><td>Product Document 'Sale' #1</td><td>10 Jan 2024</td><td>yes</td>"
        "<td>no</td><td>1 234.50</td><td>A \"quoted\", <b>big</b> & =1+1 name</td><td>Shop</td><td></td>"
        "<td></td><td>=1+1</td></tr></table>");
}

TEST_F(ReportFormats, xlsWritesAFileExactlyAsItIsNamed)
{
    const QByteArray out = run({"report", "balance", project, "--format", "xls"}).out;
    EXPECT_TRUE(
        run({"report", "balance", project, "--format", "xls", "-o", file("sheet.txt")}).out.isEmpty());
    EXPECT_EQ(read(file("sheet.txt")), out);
    EXPECT_EQ(QDir(m_folder.path()).entryList({"sheet*"}), QStringList{"sheet.txt"});
}

TEST_F(ReportFormats, aFullDiskIsARefusalAndLeavesTheOlderFileAlone)
{
    for (const char* format : {"json", "text", "csv", "xls"}) {
        write("old", "what was there");
        QProcess process;
        prepare(process);
        process.start("sh", {"-c", "ulimit -f 0; exec \"$0\" \"$@\"", ZELVOR_CLI, "report", "balance",
                             project, "--format", format, "-o", file("old")});
        ASSERT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitCode(), 1) << format;
        EXPECT_EQ(process.readAllStandardError().count('\n'), 1) << format;
        EXPECT_EQ(read(file("old")), "what was there") << format;
        EXPECT_EQ(QDir(m_folder.path()).entryList({"old*"}), QStringList{"old"}) << format;
    }
}

TEST_F(ReportFormats, anUnknownFormatIsBadUsage)
{
    const CliRun result = run({"report", "balance", project, "--format", "xml"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_TRUE(result.saysOneLine() && result.err.contains("csv")) << result.err.constData();
}

} // namespace zelvor
