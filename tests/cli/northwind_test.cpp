#include "cli/cli_test.h"

#include <map>

namespace zelvor {

namespace {

const QString northwind = QDir::cleanPath(ZELVOR_SOURCE_DIR "/../shared/northwind/northwind.jsonl");

} // namespace

// Two years of a trading company's books, brought in day by day.
class Northwind : public CliTest {
protected:
    void SetUp() override
    {
        if (!QFile::exists(northwind))
            GTEST_SKIP() << "the books of the trading company are not there: " << qPrintable(northwind);
        createProject("USD");
    }
    void replay(const QStringList& options) const
    {
        const CliRun result = run(QStringList{"apply", project, northwind, "--replay"} + options);
        ASSERT_EQ(result.exitCode, 0);
        const std::vector<QJsonObject> answers = result.lines();
        EXPECT_EQ(answers.size(), 3105U);
        for (const QJsonObject& answer : answers)
            EXPECT_TRUE(answer["ok"].toBool());
    }
    QJsonArray rowsOf(const QStringList& words) const
    {
        return run(QStringList{"report", words.first(), project} + words.mid(1)).json()["rows"].toArray();
    }
    void openDebtsAreThoseOfTheCalendar() const
    {
        const QJsonArray rows = rowsOf({"payment-calendar"});
        ASSERT_GE(rows.size(), 2);
        const QJsonObject total = rows[rows.size() - 2].toObject();
        EXPECT_EQ(total["name"].toString(), "TOTAL:");
        EXPECT_EQ(total["leftToPayIn"].toDouble(), 115810.33);
        EXPECT_EQ(QString::number(total["leftToPayOut"].toDouble(), 'f', 2).toLatin1(),
                  valueOf("SELECT printf('%.2f',sum(left_to_pay)) FROM product_doc WHERE doc_type_id=11"));
    }
    void stockAtCostIsTheBalancesGoods() const
    {
        double goods = 0;
        for (const QJsonValue& row : rowsOf({"balance"})) {
            if (row["name"].toString() == "Products On Warehouses")
                goods = row["debet"].toDouble();
        }
        EXPECT_GT(goods, 0);
        const QJsonArray rows = rowsOf({"products-on-stock", "--date", "1998-05-31"});
        ASSERT_FALSE(rows.isEmpty());
        EXPECT_EQ(rows[rows.size() - 1]["sumTotal"].toDouble(), goods);
        EXPECT_EQ(QString::number(rows[rows.size() - 1]["amountTotal"].toDouble(), 'f', 2).toLatin1(),
                  valueOf("SELECT printf('%.2f',sum(amount)) FROM stock_row"));
    }
};

TEST_F(Northwind, allOperationsAreAcceptedAndTheSalesAreRightToTheCent)
{
    replay({});
    const QJsonArray rows = run({"report", "period-sell", project, "--from", "1996-07-01", "--to",
                                 "1998-05-31", "--by", "products"})
                                .json()["rows"]
                                .toArray();
    std::map<QString, double> categories;
    QJsonObject total;
    for (const QJsonValue& row : rows) {
        if (row["kind"].toString() == "productGroup")
            categories[row["name"].toString().trimmed()] = row["priceSum"].toDouble();
        if (row["kind"].toString() == "total")
            total = row.toObject();
    }
    const std::map<QString, double> expected{
        {"Beverages", 267867.93},      {"Condiments", 106046.15},    {"Confections", 167357.79},
        {"Dairy Products", 234507.50}, {"Grains/Cereals", 95744.41}, {"Meat/Poultry", 163021.81},
        {"Produce", 99984.61},         {"Seafood", 131261.01},
    };
    EXPECT_EQ(categories, expected);
    EXPECT_EQ(total["amount"].toDouble(), 51317);
    EXPECT_EQ(total["priceSum"].toDouble(), 1265791.21);
    EXPECT_EQ(valueOf("SELECT count(*) FROM product_doc WHERE doc_type_id=12 AND is_confirmed=1"), "830");
    EXPECT_EQ(valueOf("SELECT printf('%.2f',sum(left_to_pay)) FROM product_doc WHERE doc_type_id=12"),
              "115810.33");
    EXPECT_EQ(run({"check", project}).out, "[]\n");
    openDebtsAreThoseOfTheCalendar();
    stockAtCostIsTheBalancesGoods();
}

TEST_F(Northwind, aFirstLoadInBulkGivesTheSameBooks)
{
    replay({});
    const QString slow = project;
    project = file("bulk.pdb");
    createProject("USD");
    replay({"--bulk"});
    for (const char* report : {"balance", "journal"}) {
        const QStringList period = QByteArray(report) == "journal"
                                       ? QStringList{"--from", "1996-01-01", "--to", "1998-12-31"}
                                       : QStringList();
        EXPECT_EQ(run(QStringList{"report", report, slow} + period).out,
                  run(QStringList{"report", report, project} + period).out);
    }
}

} // namespace zelvor
