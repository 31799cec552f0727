// The reports of spendings and of dynamics.
#include "cli/cli_test.h"

namespace zelvor {

class MoneyReports : public CliTest {
protected:
    void SetUp() override
    {
        createShop();
        applied(R"({"do":"put","record":"ExpendType","values":{"name":"Premises"}}
{"do":"put","record":"Expend","id":1,"values":{"parent_id":1}}
{"do":"put","record":"Expend","values":{"name":"Fuel"}}
{"do":"document","type":"MoneyToExpend","date":"2024-01-05T09:00:00","expend":1,"account_from":1,"sum":"100.50","comment":"January","confirm":true}
{"do":"document","type":"MoneyToExpend","date":"2024-01-06T09:00:00","expend":2,"account_from":1,"sum":20,"variable":true,"confirm":true}
{"do":"document","type":"SellProduct","date":"2024-01-10T10:00:00","contragent":1,"rows":[{"product":1,"amount":3,"price":11}],"confirm":true}
{"do":"document","type":"MoneyFromContragent","date":"2024-01-20T10:00:00","contragent":1,"sum":33,"confirm":true}
{"do":"document","type":"MoneyToExpend","date":"2024-03-05T09:00:00","expend":1,"account_from":1,"sum":"50.25","confirm":true}
)",
                {"--replay"});
    }
    QJsonObject report(const QStringList& words) const
    {
        const CliRun result = run(QStringList{"report", words.first(), project} + words.mid(1));
        EXPECT_EQ(result.exitCode, 0) << qPrintable(words.join(' ')) << result.err.constData();
        return result.json();
    }
    // "kind name total" of each row.
    QStringList spendings(const QStringList& options) const
    {
        QStringList texts;
        const QJsonObject answer =
            report(QStringList{"expends", "--from", "2024-01-01", "--to", "2024-12-31"} + options);
        for (const QJsonValue& row : answer["rows"].toArray())
            texts += row["kind"].toString() + ' ' + row["name"].toString() + ' ' +
                     QString::number(row["total"].toDouble());
        return texts;
    }
};

TEST_F(MoneyReports, spendingsStandInTheirTree)
{
    EXPECT_EQ(spendings({}),
              (QStringList{"group Premises 150.75", "group    Rent 150.75",
                           "document       Money Document 'Payment of Spending' #1 (read) 100.5",
                           "document       Money Document 'Payment of Spending' #3 (read) 50.25",
                           "group Fuel 20", "document    Money Document 'Payment of Spending' #2 (read) 20",
                           "footer TOTAL FOR PERIOD: 170.75"}));
    EXPECT_EQ(spendings({"--grouped"}), (QStringList{"group Premises 150.75", "group    Rent 150.75",
                                                     "group Fuel 20", "footer TOTAL FOR PERIOD: 170.75"}));
}

TEST_F(MoneyReports, aSpendingsRowHasItsCells)
{
    const QByteArray out =
        run({"report", "expends", project, "--from", "2024-01-01", "--to", "2024-01-05"}).out;
    EXPECT_TRUE(out.contains(R"("columns":["name","date","constant","variable","total","comment"])"))
        << out.constData();
    EXPECT_TRUE(out.contains(R"({"kind":"document","name":"      Money Document )")) << out.constData();
    EXPECT_TRUE(out.contains(
        R"("date":1704445200,"constant":100.5,"variable":"","total":100.5,"comment":"January"})"))
        << out.constData();
    EXPECT_TRUE(out.contains(R"({"kind":"footer","name":"TOTAL FOR PERIOD:","date":"","constant":100.5,)"
                             R"("variable":"","total":100.5,"comment":""})"))
        << out.constData();
}

TEST_F(MoneyReports, spendingsAreFiltered)
{
    EXPECT_EQ(spendings({"--expends", "2"}).last(), "footer TOTAL FOR PERIOD: 20");
    EXPECT_EQ(spendings({"--expend-types", "9", "--grouped"}),
              (QStringList{"group Fuel 20", "group Rent 150.75", "footer TOTAL FOR PERIOD: 170.75"}));
    EXPECT_TRUE(report({"expends", "--expends", "2"})["title"].toString().startsWith(
        "Report by Selected Spendings. From: "));
    EXPECT_EQ(run({"report", "expends", project, "--expends", "x"}).exitCode, 2);
    EXPECT_EQ(run({"report", "expends", project, "--products", "1"}).exitCode, 2);
}

TEST_F(MoneyReports, dynamicsTellsTheMonthsThatHaveFigures)
{
    const QByteArray out =
        run({"report", "dynamics", project, "--from", "2024-01-15", "--to", "2024-04-01"}).out;
    EXPECT_EQ(out, QByteArray(R"({"title":"Dynamics","columns":["name","col_0","col_1","percent_1"],"rows":[)"
                              R"({"kind":"item","name":"Income","col_0":33,"col_1":0,"percent_1":-1,)"
                              R"("data":[33,0]},)"
                              R"({"kind":"item","name":"Spendings","col_0":120.5,"col_1":50.25,)"
                              R"("percent_1":-0.583,"data":[120.5,50.25]},)"
                              R"({"kind":"item","name":"Selling","col_0":33,"col_1":0,"percent_1":-1,)"
                              R"("data":[33,0]},)"
                              R"({"kind":"item","name":"Margin","col_0":33,"col_1":0,"percent_1":-1,)"
                              R"("data":[33,0]}],)"
                              R"("periods":[[1704067200,1706745600],[1709251200,1711929600]]})"
                              "\n"))
        << out.constData();
}

TEST_F(MoneyReports, dynamicsShowsTheRowsThatWereAskedFor)
{
    const QStringList year{"dynamics", "--from", "2024-01-01", "--to", "2024-12-31"};
    const QJsonArray rows = report(year + QStringList{"--rows", "margin,income"})["rows"].toArray();
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows[0]["name"].toString(), "Income");
    EXPECT_EQ(rows[1]["name"].toString(), "Margin");
    EXPECT_EQ(run({"report", "dynamics", project, "--rows", "profit"}).exitCode, 2);
    const QByteArray text =
        run(QStringList{"report", "dynamics", project} + year.mid(1) + QStringList{"--format", "text"}).out;
    EXPECT_TRUE(text.contains("3.2024")) << text.constData();
    EXPECT_TRUE(text.contains("-58.3 %")) << text.constData();
}

TEST_F(MoneyReports, aPeriodThatEndsBeforeItBeginsHasNoRows)
{
    for (const char* name : {"expends", "dynamics"}) {
        const QJsonObject empty = report({name, "--from", "2024-02-01", "--to", "2024-01-15"});
        EXPECT_TRUE(empty["rows"].toArray().isEmpty()) << name;
    }
    EXPECT_TRUE(
        report({"dynamics", "--from", "2024-02-01", "--to", "2024-01-15"})["periods"].toArray().isEmpty());
}

} // namespace zelvor
