#include "cli/cli_test.h"

namespace zelvor {

// The shop, whose lamps go to the depot and to a customer in January 2024.
class StockAndDebtsReport : public CliTest {
protected:
    void SetUp() override
    {
        createShop();
        applied(
            R"({"do":"put","record":"Product","id":1,"values":{"base_cost":6}}
{"do":"document","type":"MoveProduct","date":"2024-01-10T10:00:00","stock_from":1,"stock_to":2,"rows":[{"product":1,"amount":5}],"confirm":true}
{"do":"document","type":"SellProduct","date":"2024-01-20T23:59:58","contragent":1,"rows":[{"product":1,"amount":3,"price":11}],"confirm":true}
{"do":"put","record":"Measurement","values":{"name":"Piece","shorthand":"pc"}}
{"do":"put","record":"Contragent","values":{"name":"Bolt"}}
{"do":"document","type":"BuyProperty","date":"2024-01-21","property_name":"Till","contragent":2,"sum":500,"confirm":true}
)",
            {"--replay"});
    }
    QJsonObject report(const QStringList& words) const
    {
        const CliRun result = run(QStringList{"report", words.first(), project} + words.mid(1));
        EXPECT_EQ(result.exitCode, 0) << qPrintable(words.join(' ')) << result.err.constData();
        return result.json();
    }
    // "kind name: amount/sum of each warehouse = amountTotal/sumTotal" of each row.
    QStringList stock(const QStringList& options) const
    {
        QStringList texts;
        for (const QJsonValue& row : report(QStringList{"products-on-stock"} + options)["rows"].toArray()) {
            QString text = row["kind"].toString() + ' ' + row["name"].toString().trimmed() + ':';
            for (const QJsonValue& cell : row["stocks"].toArray())
                text += ' ' + cell["name"].toString() + ' ' + QString::number(cell["amount"].toDouble()) +
                        '/' + QString::number(cell["sum"].toDouble());
            texts += text + " = " + QString::number(row["amountTotal"].toDouble()) + '/' +
                     QString::number(row["sumTotal"].toDouble());
        }
        return texts;
    }
};

TEST_F(StockAndDebtsReport, theStockOfADayIsThatOfItsLastSecond)
{
    EXPECT_EQ(stock({"--date", "2024-01-09"}),
              (QStringList{"title Name: Shop 0/0 = 0/0", "group Goods: Shop 20/120 = 20/120",
                           "product Lamp: Shop 20/120 = 20/120", "total TOTAL:: Shop 20/120 = 20/120"}));
    EXPECT_EQ(stock({"--date", "2024-01-19"}).last(), "total TOTAL:: Depot 5/30 Shop 15/90 = 20/120");
    EXPECT_EQ(stock({"--date", "2024-01-20"}).last(), "total TOTAL:: Depot 5/30 Shop 12/72 = 17/102");
    // A moment is taken as it is, and what stands on it does not count.
    EXPECT_EQ(stock({"--date", "@1705795198"}).last(), "total TOTAL:: Depot 5/30 Shop 15/90 = 20/120");
    EXPECT_EQ(stock({"--date", "2024-01-20T23:59:59"}).last(),
              "total TOTAL:: Depot 5/30 Shop 12/72 = 17/102");
    EXPECT_EQ(stock({"--date", "2023-12-31"}), QStringList{"title Name: = 0/0"});
}

TEST_F(StockAndDebtsReport, theStockOfLaterMonthsRestsOnTheClosedOne)
{
    // January was closed on its way into February.
    applied(
        R"({"do":"document","type":"AddProduct","date":"2024-02-05","stock_to":2,"rows":[{"product":1,"amount":1,"price":6}],"confirm":true}
)",
        {"--replay"});
    EXPECT_EQ(stock({"--date", "2024-02-04"}).last(), "total TOTAL:: Depot 5/30 Shop 12/72 = 17/102");
    EXPECT_EQ(stock({"--date", "2024-02-29"}).last(), "total TOTAL:: Depot 6/36 Shop 12/72 = 18/108");
}

TEST_F(StockAndDebtsReport, theStockIsFilteredByProductsGroupsAndWarehouses)
{
    const QStringList day{"--date", "2024-01-31"};
    EXPECT_EQ(stock(day + QStringList{"--stocks", "2"}).last(), "total TOTAL:: Depot 5/30 = 5/30");
    EXPECT_EQ(stock(day + QStringList{"--products", "2"}), QStringList{"title Name: = 0/0"});
    EXPECT_EQ(stock(day + QStringList{"--product-groups", "1", "--products", "1,2"}).value(1),
              "group Goods: Depot 5/30 Shop 12/72 = 17/102");
    // A filter of groups leaves the figures of their products.
    EXPECT_EQ(stock(day + QStringList{"--product-groups", "7"}).last(),
              "total TOTAL:: Depot 5/30 Shop 12/72 = 17/102");
}

TEST_F(StockAndDebtsReport, theStockHasAColumnForEachWarehouse)
{
    const QJsonObject answer = report({"products-on-stock", "--date", "2024-01-31"});
    EXPECT_TRUE(answer["title"].toString().startsWith("Products On Warehouses Report. On date:"));
    EXPECT_EQ(answer["columns"].toArray(),
              (QJsonArray{"name", "units", "cost", "stock_0", "stock_1", "total"}));
    const QJsonObject lamp = answer["rows"].toArray()[2].toObject();
    EXPECT_EQ(lamp["cost"], QJsonValue(6));
    EXPECT_EQ(lamp["stock_1"], QJsonValue("12.00 / 72.00"));
    EXPECT_EQ(lamp["stocks"].toArray()[1].toObject(),
              (QJsonObject{{"name", "Shop"}, {"amount", 12}, {"sum", 72}, {"reserv", 0}}));
    EXPECT_TRUE(run({"report", "products-on-stock", project, "--date", "2024-01-31", "--format", "text"})
                    .out.contains("Shop Qty / Sum / Reserve"));
}

TEST_F(StockAndDebtsReport, aDateThatIsNoneIsBadUsage)
{
    for (const char* date : {"yesterday", "2024-02-30", "@x", ""}) {
        const CliRun refused = run({"report", "products-on-stock", project, "--date", date});
        EXPECT_EQ(refused.exitCode, 2) << date;
        EXPECT_TRUE(refused.saysOneLine()) << refused.err.constData();
    }
    EXPECT_EQ(run({"report", "payment-calendar", project, "--date", "2024-01-01"}).exitCode, 2);
}

TEST_F(StockAndDebtsReport, thePaymentCalendarListsOpenDocumentsAndTheirSums)
{
    const QJsonObject answer = report({"payment-calendar"});
    EXPECT_EQ(answer["title"].toString(), "Payment Calendar");
    EXPECT_EQ(answer["columns"].toArray(),
              (QJsonArray{"name", "date", "payToDate", "sum", "leftToPayIn", "leftToPayOut"}));
    const QJsonArray rows = answer["rows"].toArray();
    ASSERT_EQ(rows.size(), 4);
    EXPECT_EQ(rows[0].toObject(), (QJsonObject{{"kind", "document"},
                                               {"name", "Product Document 'Sale' #1 (Acme)"},
                                               {"date", 1705795198},
                                               {"payToDate", 1705795198 + 14 * 86400},
                                               {"sum", 33},
                                               {"leftToPayIn", 33},
                                               {"leftToPayOut", ""}}));
    EXPECT_EQ(rows[1].toObject()["leftToPayOut"], QJsonValue(500));
    EXPECT_EQ(rows[2].toObject(), (QJsonObject{{"kind", "total"},
                                               {"name", "TOTAL:"},
                                               {"date", ""},
                                               {"payToDate", ""},
                                               {"sum", ""},
                                               {"leftToPayIn", 33},
                                               {"leftToPayOut", 500}}));
    EXPECT_EQ(rows[3].toObject()["name"], QJsonValue("SALDO:"));
    EXPECT_EQ(rows[3].toObject()["leftToPayOut"], QJsonValue(467));
}

TEST_F(StockAndDebtsReport, theTwoPrintedListsOfTheCatalogs)
{
    const QJsonObject units = report({"units"});
    EXPECT_EQ(units["title"].toString(), "Units Catalog");
    EXPECT_EQ(units["rows"].toArray(),
              (QJsonArray{
                  QJsonObject{{"kind", "item"}, {"name", "Piece"}, {"shorthand", "pc"}, {"hidden", false}}}));
    const QJsonArray assets = report({"fixed-assets"})["rows"].toArray();
    ASSERT_EQ(assets.size(), 1);
    EXPECT_EQ(assets[0]["kind"].toString(), "item");
    EXPECT_EQ(assets[0]["name"].toString(), "Till");
    EXPECT_EQ(assets[0]["cost"].toDouble(), 500);
    EXPECT_EQ(assets[0]["date"].toInteger(), 1705795200);
}

} // namespace zelvor
