#include "cli/cli_test.h"

namespace zelvor {

using Put = CliTest;

namespace {

QByteArray put(const QByteArray& record, const QByteArray& values, int id = 0)
{
    const QByteArray key = id == 0 ? QByteArray() : "\"id\":" + QByteArray::number(id) + ',';
    return "{\"do\":\"put\",\"record\":\"" + record + "\"," + key + "\"values\":" + values + '}';
}

} // namespace

TEST_F(Put, addsARecordAndChangesTheGivenColumns)
{
    createShop();
    EXPECT_EQ(answer(put("Manager", R"({"name":"Bo","balance":"12.345"})"))["id"].toInt(), 2);
    EXPECT_TRUE(answer(put("Manager", R"({"name":"Bob"})", 2))["ok"].toBool());
    EXPECT_EQ(valueOf("SELECT name||' '||balance FROM manager WHERE id=2"), "Bob 12.34");
}

TEST_F(Put, takesEveryRecordOfTheCatalogs)
{
    createShop();
    applied(put("AccountType", R"({"name":"Bank"})") + '\n' +
            put("Function", R"({"name":"Clerk","salary":1})") + '\n' +
            put("ExpendType", R"({"name":"House"})") + '\n' +
            put("Measurement", R"({"name":"Piece","shorthand":"pc"})") + '\n' +
            put("ContragentGroup", R"({"name":"Customers"})") + '\n' +
            put("DeleteBasis", R"({"name":"Fire"})") + '\n' + put("Currency", R"({"rate":1.23455})", 2) +
            '\n' + put("Params", R"({"company_name":"Shop"})", 1) + '\n');
    EXPECT_EQ(valueOf("SELECT rate FROM currency WHERE id=2"), "1.2346");
}

TEST_F(Put, aNameIsRequired)
{
    createShop();
    for (const QByteArray record :
         {"Manager", "Stock", "Function", "Product", "ProductGroup", "Contragent", "ContragentGroup",
          "Expend", "ExpendType", "Measurement", "AccountType"}) {
        const QJsonObject refused = answer(put(record, R"({"name":""})"));
        EXPECT_FALSE(refused["ok"].toBool()) << record.constData();
        EXPECT_EQ(refused["alert"].toString(), "Field 'Name' is required!") << record.constData();
    }
}

TEST_F(Put, anAccountNeedsACurrencyAndKeepsIt)
{
    createShop();
    EXPECT_EQ(answer(put("Account", R"({"name":"Bank"})"))["alert"].toString(),
              "Please select currency for account!");
    EXPECT_FALSE(answer(put("Account", R"({"currency_id":"USD"})", 1))["alert"].toString().isEmpty());
    EXPECT_TRUE(answer(put("Account", R"({"currency_id":"EUR","name":"Cash"})", 1))["ok"].toBool());
    EXPECT_EQ(valueOf("SELECT currency_id FROM account WHERE id=1"), "1");
}

TEST_F(Put, aNewDefaultTakesTheDefaultAwayFromTheOthersAndIsNotHidden)
{
    createShop();
    EXPECT_TRUE(answer(put("Stock", R"({"is_default":true})", 2))["ok"].toBool());
    EXPECT_EQ(valueOf("SELECT group_concat(is_default) FROM stock"), "0,1");
    EXPECT_TRUE(answer(put("Stock", R"({"is_hidden":true})", 2))["ok"].toBool());
    EXPECT_EQ(valueOf("SELECT is_default||is_hidden FROM stock WHERE id=2"), "01");
    EXPECT_FALSE(answer(put("Stock", R"({"is_default":true,"is_hidden":true})", 1))["ok"].toBool());
}

TEST_F(Put, aNewProductHasTheTaxRatesOfTheSettings)
{
    createShop();
    applied(put("Params", R"({"is_use_vat":true,"vat_rate":"20"})", 1) + '\n' +
            put("Product", R"({"name":"A"})") + '\n' + put("Product", R"({"name":"B","vat_rate":7})") + '\n');
    EXPECT_EQ(valueOf("SELECT group_concat(vat_rate) FROM product WHERE id>2"), "20.0,7.0");
}

TEST_F(Put, vatAndGstExcludeEachOther)
{
    createShop();
    applied(put("Params", R"({"is_use_vat":true,"is_use_vat_no":true})", 1) + '\n' +
            put("Params", R"({"is_use_gst":true})", 1) + '\n');
    EXPECT_EQ(valueOf("SELECT is_use_vat||is_use_gst||is_use_vat_no FROM params"), "010");
    EXPECT_FALSE(answer(put("Params", R"({"is_use_vat":true,"is_use_gst":true})", 1))["ok"].toBool());
}

TEST_F(Put, theDefaultCurrencyOfAProjectStays)
{
    createShop();
    EXPECT_FALSE(answer(put("Params", R"({"default_currency":"USD"})", 1))["ok"].toBool());
    EXPECT_TRUE(answer(put("Params", R"({"default_currency":"EUR"})", 1))["ok"].toBool());
}

TEST_F(Put, theDefermentStaysWithinTheSettings)
{
    createShop();
    EXPECT_FALSE(answer(put("Contragent", R"({"deferment":31})", 1))["ok"].toBool());
    EXPECT_FALSE(answer(put("Contragent", R"({"deferment":-1})", 1))["ok"].toBool());
    EXPECT_TRUE(answer(put("Contragent", R"({"deferment":30})", 1))["ok"].toBool());
}

TEST_F(Put, whatIsNotForEditingIsRefused)
{
    createShop();
    applied(R"({"do":"document","type":"AddProperty","property_name":"Van","sum":100,"confirm":true})"
            "\n");
    EXPECT_TRUE(answer(put("Property",
                           R"({"current_cost":90,"is_amortized":true,"amortization_period":10,)"
                           R"("description_string":"red"})",
                           1))["ok"]
                    .toBool());
    const QByteArray refused[] = {
        put("Property", R"({"name":"Bike"})", 1),    put("Property", R"({"current_cost":1})"),
        put("Currency", R"({"code":5})", 2),         put("Currency", R"({"rate":1})"),
        put("Currency", R"({"rate":0})", 2),         put("Params", R"({"company_name":"X"})"),
        put("Params", R"({"company_name":"X"})", 2), put("StockRow", R"({"amount":5})"),
        put("ProductDocument", R"({"comment":""})"), put("Menu", R"({"name":"X"})"),
        put("Manager", R"({"name":"X"})", 99),       put("Manager", R"({"id":5,"name":"X"})"),
        put("Manager", R"({"colour":"red"})", 1),
    };
    for (const QByteArray& operation : refused)
        EXPECT_FALSE(answer(operation)["ok"].toBool(true)) << operation.constData();
}

TEST_F(Put, linksToNothingAndCirclesAreRefused)
{
    createShop();
    applied(put("ProductGroup", R"({"name":"Below","parent_id":1})") + '\n' +
            put("Contragent", R"({"name":"Daughter","parent_contragent_id":1})") + '\n');
    const QByteArray refused[] = {
        put("Manager", R"({"function_id":9})", 1),
        put("Product", R"({"group_id":9})", 1),
        put("Product", R"({"measurement_id":9})", 1),
        put("Contragent", R"({"manager_id":9})", 1),
        put("Contragent", R"({"parent_id":9})", 1),
        put("Account", R"({"account_type_id":9})", 1),
        put("Account", R"({"name":"X","currency_id":14})"),
        put("Stock", R"({"manager_id":9})", 1),
        put("ProductGroup", R"({"parent_id":1})", 1),
        put("ProductGroup", R"({"parent_id":2})", 1),
        put("Contragent", R"({"parent_contragent_id":2})", 1),
    };
    for (const QByteArray& operation : refused)
        EXPECT_TRUE(answer(operation)["error"].isString()) << operation.constData();
    EXPECT_EQ(run({"check", project}).out, "[]\n");
}

} // namespace zelvor
