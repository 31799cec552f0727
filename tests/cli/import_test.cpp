#include "cli/cli_test.h"

#include <QtCore/QElapsedTimer>

namespace zelvor {

class ImportCommand : public CliTest {
protected:
    void SetUp() override { createShop(); }
    CliRun import(const QString& record, const QByteArray& csv) const
    {
        write("in.csv", csv);
        return run({"import", project, record, file("in.csv")});
    }
};

TEST_F(ImportCommand, addsRecordsAndTheGroupsThatAParentNames)
{
    const CliRun result = import("Product", "name,parent,price_cost,is_intangible,measurement_id\n"
                                            "Bulb,Goods,1.50,no,\n"
                                            "\"Wire, \"\"thin\"\"\",New,2,false,0\n"
                                            "Advice,,10,true,\n"
                                            "Thick wire,New,3,0,\n");
    EXPECT_EQ(result.exitCode, 0) << result.err.constData();
    EXPECT_EQ(result.out, "{\"ok\":true,\"count\":4}\n");
    EXPECT_EQ(
        valueOf(
            "SELECT group_concat(name||'/'||group_id||'/'||price_cost||'/'||is_intangible,';') FROM product"
            " WHERE id>2"),
        "Bulb/1/1.5/0;Wire, \"thin\"/2/2.0/0;Advice/0/10.0/1;Thick wire/2/3.0/0");
    EXPECT_EQ(valueOf("SELECT group_concat(name) FROM product_group"), "Goods,New");
}

TEST_F(ImportCommand, takesQuotedLineBreaksWindowsLinesAndTheMarkOfUtf8)
{
    EXPECT_EQ(import("Contragent",
                     "\xEF\xBB\xBFname,address,parent\r\n\"J\xc3\xbcrgen\",\"1 Main St\nTown\",VIP\r\n\r\n")
                  .exitCode,
              0);
    EXPECT_EQ(valueOf("SELECT name||'|'||address FROM contragent WHERE id=2"),
              "J\xc3\xbcrgen|1 Main St\nTown");
}

TEST_F(ImportCommand, keepsTheLinesOfAQuotedFieldAsTheyAre)
{
    EXPECT_EQ(import("Contragent", "name,address\r\n\"A\r\n\"\"B\"\"\r\n\",\"\"\r\nC,\r\n").exitCode, 0);
    EXPECT_EQ(valueOf("SELECT group_concat(hex(name)||'/'||address) FROM contragent WHERE id>1"),
              "410D0A2242220D0A/,43/");
}

TEST_F(ImportCommand, aQuoteThatStaysOpenCostsOnePassOverTheFile)
{
    QElapsedTimer timer;
    timer.start();
    const CliRun result = import("Contragent", "name\n\"A\n" + QByteArray("x\n").repeated(500'000));
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.err.contains("line 2: ")) << result.err.constData();
    EXPECT_LT(timer.elapsed(), 60'000); // ms; a pass for each line would take hours
}

TEST_F(ImportCommand, aRecordsGroupMayStandFurtherUpInTheFile)
{
    EXPECT_EQ(import("ExpendType", "name,parent\nHouse,\nHeating,House\n").exitCode, 0);
    EXPECT_EQ(valueOf("SELECT parent_id FROM expend_type WHERE name='Heating'"), "1");
}

TEST_F(ImportCommand, keepsNothingOfAFileWithABadLineAndSaysWhich)
{
    const QByteArray good = "name,parent,price_cost\nBulb,New,1\n";
    const QByteArray bad[] = {
        "Wire,New\n",       "Wire,New,1,2\n",          "Wire,New,\"1,5\"\n", "Wire,New,NaN\n",
        ",New,1\n",         "\"Wire\"x,New,1\n",       "\"Wire,New,1\n",     "W\xffre,New,1\n",
        "Wire,New,1e400\n", QByteArray("W\0,,1\n", 6),
    };
    const QByteArray before = read(project);
    for (const QByteArray& line : bad) {
        const CliRun result = import("Product", good + line);
        EXPECT_EQ(result.exitCode, 1) << line.constData();
        EXPECT_TRUE(result.err.contains("line 3: ")) << result.err.constData();
        EXPECT_TRUE(result.saysOneLine());
        EXPECT_EQ(read(project), before) << line.constData();
    }
}

TEST_F(ImportCommand, aHeaderThatFitsNothingIsRefused)
{
    for (const QByteArray header : {"name,colour\n", "name,name\n", "group_id,parent\n", ""}) {
        const CliRun result = import("Product", header + "A,B\n");
        EXPECT_EQ(result.exitCode, 1) << header.constData();
        EXPECT_TRUE(result.err.contains("line 1: ")) << result.err.constData();
    }
    EXPECT_EQ(import("Manager", "name,parent\nBo,X\n").exitCode, 1);
}

TEST_F(ImportCommand, theRulesOfTheCatalogHold)
{
    EXPECT_EQ(import("Account", "name,currency_id\nBank,USD\n").exitCode, 0);
    EXPECT_EQ(import("Account", "name,currency_id\nBank,\n").exitCode, 1);
    EXPECT_EQ(import("Contragent", "name,manager_id\nBolt,77\n").exitCode, 1);
    EXPECT_EQ(valueOf("SELECT count(*) FROM account"), "2");
}

} // namespace zelvor
