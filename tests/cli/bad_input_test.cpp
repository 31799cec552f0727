#include "cli/cli_test.h"

namespace zelvor {

using BadInput = CliTest;

namespace {

const QByteArray good = R"({"do":"put","record":"Manager","values":{"name":"Good"}})";

QByteArray named(const QByteArray& json)
{
    return R"({"do":"put","record":"Manager","values":{"name":)" + json + "}}";
}

QByteArray balance(const QByteArray& json)
{
    return R"({"do":"put","record":"Manager","values":{"name":"X","balance":)" + json + "}}";
}

QByteArray sale(const QByteArray& rest)
{
    return R"({"do":"document","type":"SellProduct","date":"2024-01-03","contragent":1,)" + rest + "}";
}

} // namespace

// Between two good lines each bad one answers an error with its number, changes nothing, and leaves the next
// line alone.
TEST_F(BadInput, aBadLineIsToldWithItsNumberAndChangesNothing)
{
    createShop();
    const QByteArray cases[] = {
        "{",
        "}",
        "[]",
        "\"text\"",
        "12",
        "null",
        "{}",
        "{\"do\":\"fly\"}",
        "{\"do\":5}",
        good + good,
        good.chopped(1),
        good.chopped(1) + ",}",
        R"({"do":"put","do":"put","record":"Manager","values":{"name":"X"}})",
        R"({"do":"put","record":"Manager","values":{"name":"X","n\u0061me":"Y"}})",
        R"({"do":"put","record":"Manager","values":{"name":"X"},"extra":1})",
        R"({"do":"put","record":"Manager","values":[]})",
        R"({"do":"put","record":"Manager"})",
        R"({"do":"put","record":"Manager","id":"1","values":{"name":"X"}})",
        R"({"do":"put","record":"Manager","id":1.5,"values":{"name":"X"}})",
        R"({"do":"put","record":"Manager","id":-1,"values":{"name":"X"}})",
        R"({"do":"put","record":"Manager","id":9223372036854775807,"values":{"name":"X"}})",
        named("5"),
        named("null"),
        named("{}"),
        named("true"),
        named(R"("a\u0000b")"),
        named(R"("\ud800")"),
        named("\"\xff\xfe\""),
        named(QByteArray("\"a\0b\"", 5)),
        balance("\"1,5\""),
        balance("\"\""),
        balance("\" 1\""),
        balance("\"NaN\""),
        balance("NaN"),
        balance("Infinity"),
        balance("1e400"),
        balance("\"1e400\""),
        balance("1e20"),
        balance("123456789012345678901234567890"),
        balance("\"123456789012345678901234567890\""),
        balance("true"),
        balance("null"),
        balance("[1]"),
        R"({"do":"put","record":"Manager","values":{"name":"X","is_hidden":1}})",
        sale(R"("rows":{})"),
        sale(R"("rows":[5])"),
        sale(R"("rows":[{"amount":1}])"),
        sale(R"("rows":[{"product":1,"colour":2}])"),
        sale(R"("rows":[{"product":99}])"),
        sale(R"("rows":[{"product":1,"amount":"1,5"}])"),
        sale(R"("rows":[{"product":1,"price":1e400}])"),
        sale(R"("stock_to":1,"rows":[{"product":1}])"),
        sale(R"("stock_from":9,"rows":[{"product":1}])"),
        sale(R"("with_vat":1,"rows":[{"product":1}])"),
        sale(R"("confirm":"yes","rows":[{"product":1}])"),
        sale(R"("deferment":1.5,"rows":[{"product":1}])"),
        sale(R"("sum":5,"rows":[{"product":1}])"),
        R"({"do":"document","type":"SellProduct","date":"3 January"})",
        R"({"do":"document","type":"SellProduct","date":"2024-02-30"})",
        R"({"do":"document","type":"SellProduct","date":1e18})",
        R"({"do":"document","type":"ProductJournal"})",
        R"({"do":"document","type":7})",
        R"({"do":"document","type":"AddProperty","property_name":"Van","sum":5})",
        R"({"do":"confirm","kind":"Property","id":1})",
        R"({"do":"confirm","kind":"Product","id":99})",
        R"({"do":"delete","kind":"Everything","id":1})",
        R"({"do":"delete","kind":"Money"})",
        R"({"do":"update-rates"})",
        R"({"do":"update-rates","rates":{"99":1}})",
        R"({"do":"update-rates","rates":{"USD":"x"}})",
        R"({"do":"update-rates","rates":{"USD":1,"2":1}})",
        R"({"do":"close-period","when":"now"})",
    };
    QByteArray input;
    for (const QByteArray& line : cases)
        input += line + '\n';
    const QByteArray before = read(project);
    const CliRun result = apply(input);
    EXPECT_EQ(read(project), before);
    EXPECT_EQ(result.exitCode, 1);
    const std::vector<QJsonObject> answers = result.lines();
    ASSERT_EQ(answers.size(), std::size(cases));
    for (std::size_t i = 0; i < answers.size(); ++i) {
        const QString error = answers[i]["error"].toString();
        EXPECT_FALSE(answers[i]["ok"].toBool(true)) << cases[i].constData();
        EXPECT_TRUE(error.startsWith(QString("line %1: ").arg(i + 1)))
            << cases[i].constData() << '\n'
            << QJsonDocument(answers[i]).toJson(QJsonDocument::Compact).constData();
        EXPECT_GT(error.size(), 12) << cases[i].constData();
    }
}

TEST_F(BadInput, theLineAfterABadOneWorks)
{
    createShop();
    const std::vector<QJsonObject> answers = apply("{nonsense\n" + good + '\n').lines();
    ASSERT_EQ(answers.size(), 2U);
    EXPECT_FALSE(answers[0]["ok"].toBool());
    EXPECT_EQ(answers[1]["id"].toInt(), 2);
}

TEST_F(BadInput, textsAreKeptAsTheyCame)
{
    createShop();
    const QByteArray large(1'000'000, 'x');
    applied(named(R"("O'Brien \"the\" ; DROP TABLE manager;-- %s \t\n\u00e9")") + '\n' +
            named('"' + large + '"') + '\n');
    EXPECT_EQ(valueOf("SELECT name FROM manager WHERE id=2"),
              "O'Brien \"the\" ; DROP TABLE manager;-- %s \t\n\xc3\xa9");
    EXPECT_EQ(valueOf("SELECT length(name) FROM manager WHERE id=3"), "1000000");
}

TEST_F(BadInput, aLineWithoutEndIsCutOffAtALimit)
{
    createShop();
    const QByteArray endless = named('"' + QByteArray(17 * 1024 * 1024, 'x') + '"');
    const std::vector<QJsonObject> answers = apply(endless + '\n' + good + '\n').lines();
    ASSERT_EQ(answers.size(), 2U);
    EXPECT_TRUE(answers[0]["error"].toString().startsWith("line 1: "));
    EXPECT_TRUE(answers[1]["ok"].toBool());
}

TEST_F(BadInput, deepNestingIsAnErrorAndNoCrash)
{
    createShop();
    EXPECT_TRUE(answer(QByteArray(100'000, '['))["error"].isString());
    EXPECT_TRUE(answer(named(QByteArray(5000, '[') + QByteArray(5000, ']')))["error"].isString());
}

TEST_F(BadInput, blankLinesAndTheMarkOfUtf8AreNoOperations)
{
    createShop();
    EXPECT_EQ(apply("\xEF\xBB\xBF" + good + "\r\n\n  \n" + good).lines().size(), 2U);
}

TEST_F(BadInput, anOperationThatStopsTheRunIsTheLastAnswer)
{
    createShop();
    const CliRun result = apply(good + "\n{\n" + good + '\n', {"--stop-on-error"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.lines().size(), 2U);
    EXPECT_EQ(valueOf("SELECT count(*) FROM manager"), "2");
}

TEST_F(BadInput, aProjectWithMissingColumnsIsNotWrittenTo)
{
    createShop();
    corrupt("ALTER TABLE account DROP COLUMN is_hidden");
    const CliRun result = apply(good + '\n');
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_TRUE(result.saysOneLine());
    EXPECT_EQ(run({"check", project}).exitCode, 1);
}

} // namespace zelvor
