#include "cli/cli_test.h"

namespace zelvor {

using Document = CliTest;
using Replay = CliTest;
using Bulk = CliTest;

namespace {

QByteArray document(const QByteArray& type, const QByteArray& rest)
{
    return R"({"do":"document","type":")" + type + "\"," + rest + "}";
}

} // namespace

TEST_F(Document, answersIdNumberAndState)
{
    createShop();
    const CliRun result =
        apply(document("SellProduct", R"("date":"2024-01-03T09:00:00","contragent":1,"rows":[{"product":1}],)"
                                      R"("confirm":true)") +
                  '\n',
              {"--replay"});
    EXPECT_EQ(result.out, "{\"ok\":true,\"id\":2,\"number\":1,\"confirmed\":true}\n");
}

TEST_F(Document, takesTheDefaultsThatTheFormGives)
{
    createShop();
    applied(document("SellProduct",
                     R"("date":"2024-01-03","contragent":1,"rows":[{"product":1}],"confirm":true)") +
                '\n',
            {"--replay"});
    // 10.00 less 10 per cent, one piece, from the default warehouse, to be paid in 14 days.
    EXPECT_EQ(valueOf("SELECT price_cost||' '||amount FROM product_doc_row WHERE doc_id=2"), "9.0 1.0");
    EXPECT_EQ(valueOf("SELECT stock_from_id||' '||contragent_discount||' '||((pay_to_date-date)/86400)||' '||"
                      "is_with_vat FROM product_doc WHERE id=2"),
              "1 10.0 14 0");
}

TEST_F(Document, aGivenPriceWinsOverADiscount)
{
    createShop();
    applied(document("SellIntangibles",
                     R"("date":"2024-01-03","contragent":1,"discount":50,"deferment":3,"comment":"by hand",)"
                     R"("manager":1,"confirm":true,)"
                     R"("rows":[{"product":1,"amount":"2","price":"7.77"},{"product":2}])") +
                '\n',
            {"--replay"});
    EXPECT_EQ(valueOf("SELECT group_concat(price_cost) FROM product_doc_row WHERE doc_id=2"), "7.77,15.0");
    EXPECT_EQ(valueOf("SELECT doc_sum||' '||comment||' '||manager_id||' '||((pay_to_date-date)/86400)"
                      " FROM product_doc WHERE id=2"),
              "30.54 by hand 1 3");
}

TEST_F(Document, shipmentComesOnTopOfTheRows)
{
    createShop();
    applied(document("SellProduct", R"("date":"2024-01-03","contragent":1,"shipment":"2.50","confirm":true,)"
                                    R"("rows":[{"product":1}])") +
                '\n',
            {"--replay"});
    EXPECT_EQ(valueOf("SELECT doc_sum||' '||shipment FROM product_doc WHERE id=2"), "11.5 2.5");
}

TEST_F(Document, theSameProductTwiceIsOneRow)
{
    createShop();
    applied(document("SellProduct", R"("date":"2024-01-03","contragent":1,"confirm":true,)"
                                    R"("rows":[{"product":1,"amount":2},{"product":1,"amount":"1.5"}])") +
                '\n',
            {"--replay"});
    EXPECT_EQ(valueOf("SELECT count(*)||' '||amount FROM product_doc_row WHERE doc_id=2"), "1 3.5");
}

TEST_F(Document, taxesOfARowMayBeGiven)
{
    createShop();
    applied(R"({"do":"put","record":"Params","id":1,"values":{"is_use_vat":true,"vat_rate":20}})"
            "\n" +
                document("SellProduct",
                         R"("date":"2024-01-03","contragent":1,"with_vat":true,"confirm":true,)"
                         R"("rows":[{"product":1,"price":120,"vat_rate":20,"gst_rate":5}])") +
                '\n',
            {"--replay"});
    EXPECT_EQ(valueOf("SELECT vat_sum||' '||doc_sum FROM product_doc WHERE id=2"), "20.0 120.0");
    EXPECT_FALSE(
        answer(document("SellProduct", R"("contragent":1,"with_gst":true,"rows":[{"product":1}])"))["ok"]
            .toBool(true))
        << "the settings have no GST";
}

TEST_F(Document, shipmentEntersTheCostOfTheRowsThatTakeIt)
{
    createShop();
    applied(document("BuyProduct",
                     R"("date":"2024-01-03","contragent":1,"shipment":2,"confirm":true,)"
                     R"("rows":[{"product":1,"amount":20,"price":8,"include_shipment":true}])") +
                '\n',
            {"--replay"});
    EXPECT_EQ(valueOf("SELECT base_cost FROM product WHERE id=1"),
              "4.05"); // 20 at no cost yet, 162.00 for 20
}

TEST_F(Document, everyTypeCanBeConfirmed)
{
    createShop();
    const QByteArray operations[] = {
        document("BuyProduct",
                 R"("date":"2024-01-03","contragent":1,"rows":[{"product":1,"price":5}],"confirm":true)"),
        document("SellProduct",
                 R"("date":"2024-01-03","contragent":1,"rows":[{"product":1}],"confirm":true)"),
        document("SellIntangibles",
                 R"("date":"2024-01-03","contragent":1,"rows":[{"product":2}],"confirm":true)"),
        document("MoveProduct", R"("date":"2024-01-03","stock_to":2,"rows":[{"product":1}],"confirm":true)"),
        document("DeleteProduct", R"("date":"2024-01-03","rows":[{"product":1}],"confirm":true)"),
        document("Return", R"("date":"2024-01-03","contragent":1,"rows":[{"product":1}],"confirm":true)"),
        document("MoneyFromContragent",
                 R"("date":"2024-01-03","contragent":1,"sum":5,"loans":true,"confirm":true)"),
        document("MoneyToContragent", R"("date":"2024-01-03","contragent":1,"sum":5,"confirm":true)"),
        document("MoneyFromEmployee", R"("date":"2024-01-03","employee":1,"sum":5,"confirm":true)"),
        document("MoneyToEmployee",
                 R"("date":"2024-01-03","employee":1,"sum":5,"divident":true,"confirm":true)"),
        document("MoneyToExpend", R"("date":"2024-01-03","expend":1,"sum":5,"variable":true,"confirm":true)"),
        R"({"do":"put","record":"Account","values":{"name":"Dollars","currency_id":"USD"}})",
        document(
            "InnerTransaction",
            R"("date":"2024-01-03","account_from":1,"account_to":2,"sum":5,"sum_to":"5.50","confirm":true)"),
        document("AddProperty", R"("date":"2024-01-03","property_name":"Desk","sum":50,"amortized":true,)"
                                R"("period":10,"confirm":true)"),
        document("BuyProperty", R"("date":"2024-01-03","property_name":"Van","contragent":1,"sum":90,)"
                                R"("deferment":5,"confirm":true)"),
        document("SellProperty",
                 R"("date":"2024-01-03","property":2,"contragent":1,"sum":95,"delete_basis":1,)"
                 R"("confirm":true)"),
        document("DeleteProperty", R"("date":"2024-01-03","property":1,"delete_basis":1,"confirm":true)"),
    };
    QByteArray input;
    for (const QByteArray& operation : operations)
        input += operation + '\n';
    applied(input, {"--replay"});
    EXPECT_EQ(valueOf("SELECT converted_sum FROM money_doc ORDER BY id DESC LIMIT 1"), "5.5");
    EXPECT_EQ(run({"check", project}).out, "[]\n");
}

TEST_F(Document, missingInputsAreNamedAndNothingIsStored)
{
    createShop();
    const QByteArray before = read(project);
    const QJsonObject refused =
        answer(document("SellProduct", R"("date":"2024-01-03","rows":[{"product":1}],"confirm":true)"));
    EXPECT_TRUE(refused["alert"].toString().contains("Counterparty"))
        << refused["alert"].toString().toStdString();
    EXPECT_FALSE(
        answer(document("SellProduct", R"("contragent":1,"rows":[],"confirm":true)"))["ok"].toBool(true));
    EXPECT_FALSE(answer(document("MoneyToExpend", R"("sum":5)"))["ok"].toBool(true))
        << "a draft needs its inputs";
    EXPECT_EQ(read(project), before);
}

TEST_F(Document, aRefusedConfirmationSaysWhatTheDesktopWouldAndLeavesNothing)
{
    createShop();
    const QByteArray before = read(project);
    const CliRun result = apply(
        document("SellProduct", R"("date":"2024-01-03","contragent":1,"rows":[{"product":1,"amount":21}],)"
                                R"("confirm":true)") +
            '\n' +
            document("SellProduct",
                     R"("date":"2024-01-01","contragent":1,"rows":[{"product":1}],"confirm":true)") +
            '\n',
        {"--replay"});
    ASSERT_EQ(result.lines().size(), 2U);
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.lines()[0]["alert"].toString(),
              "We have not enough 'Lamp' on WH: 'Shop'. Need: 21.0 Have: 20.0 Reserv: 0.0\n");
    EXPECT_EQ(result.lines()[1]["alert"].toString(),
              "Can't confirm document: already have document with later date!\n");
    EXPECT_EQ(read(project), before);
}

TEST_F(Document, aDraftIsConfirmedOrDeletedLater)
{
    createShop();
    const QByteArray draft =
        document("SellProduct", R"("date":"2024-01-03","contragent":1,"rows":[{"product":1}])") + '\n';
    const QByteArray money = document("MoneyToExpend", R"("date":"2024-01-03","expend":1,"sum":7)") + '\n';
    const CliRun result = apply(draft + draft + money + money +
                                    R"({"do":"confirm","kind":"Product","id":2}
{"do":"delete","kind":"Product","id":3}
{"do":"confirm","kind":"Money","id":2}
{"do":"delete","kind":"Money","id":3}
{"do":"delete","kind":"Product","id":2}
{"do":"confirm","kind":"Money","id":2}
)",
                                {"--replay"});
    const std::vector<QJsonObject> answers = result.lines();
    ASSERT_EQ(answers.size(), 10U);
    EXPECT_EQ(result.out.split('\n').first(), "{\"ok\":true,\"id\":2,\"number\":0,\"confirmed\":false}");
    EXPECT_TRUE(answers[4]["confirmed"].toBool());
    EXPECT_EQ(answers[4]["number"].toInt(), 1);
    for (int i = 5; i < 8; ++i)
        EXPECT_TRUE(answers[static_cast<std::size_t>(i)]["ok"].toBool()) << i;
    EXPECT_FALSE(answers[8]["ok"].toBool(true));
    EXPECT_FALSE(answers[9]["ok"].toBool(true));
    EXPECT_EQ(valueOf("SELECT count(*) FROM product_doc_row"), "2");
}

TEST_F(Document, aLinkThatIsHiddenOrNotThereIsRefused)
{
    createShop();
    applied(R"({"do":"put","record":"Contragent","id":1,"values":{"is_hidden":true}})"
            "\n");
    EXPECT_TRUE(
        answer(document("SellProduct", R"("contragent":1,"rows":[{"product":1}])"))["error"].isString());
    EXPECT_TRUE(
        answer(document("SellProduct", R"("contragent":7,"rows":[{"product":1}])"))["error"].isString());
    EXPECT_TRUE(
        answer(document("MoveProduct", R"("contragent":1,"rows":[{"product":1}])"))["error"].isString())
        << "a transfer has no counterparty";
}

TEST_F(Document, ratesOfTheServiceAreTakenByNumberOrCode)
{
    createShop();
    applied(R"({"do":"update-rates","rates":{"2":1.1,"GBP":"0.85","PLN":-1}})"
            "\n");
    EXPECT_EQ(valueOf("SELECT group_concat(rate) FROM currency WHERE id IN (1,2,3,9)"), "1.0,1.1,0.85,1.0");
}

TEST_F(Document, theLastFinishedMonthIsClosed)
{
    createShop();
    EXPECT_EQ(apply("{\"do\":\"close-period\"}\n").out, "{\"ok\":true}\n");
    EXPECT_TRUE(answer("{\"do\":\"close-period\"}")["alert"].isString());
}

TEST_F(Replay, closesTheMonthsOfAHistoryOneAfterTheOther)
{
    createShop();
    EXPECT_EQ(valueOf("SELECT last_period_saved FROM params"), "202312");
    const QByteArray rent = R"("expend":1,"sum":1,"confirm":true)";
    applied(document("MoneyToExpend", R"("date":"2024-02-05",)" + rent) + '\n' +
                document("MoneyToExpend", R"("date":"2024-03-05T12:00:00",)" + rent) + '\n',
            {"--replay"});
    EXPECT_EQ(valueOf("SELECT last_period_saved FROM params"), "20242");
    EXPECT_EQ(valueOf("SELECT count(DISTINCT date) FROM stock_history"), "2");
}

TEST_F(Replay, anOperationWithoutADateComesRightAfterTheOneBefore)
{
    createShop();
    applied(document("MoneyToExpend", R"("date":"2024-01-05T12:00:00","expend":1,"sum":1,"confirm":true)") +
                '\n' + document("MoneyToExpend", R"("expend":1,"sum":1,"confirm":true)") + '\n',
            {"--replay"});
    EXPECT_EQ(valueOf("SELECT max(date)-min(date) FROM money_doc WHERE doc_type_id=4"), "1");
}

TEST_F(Replay, aLineThatIsNoOperationTakesNoTime)
{
    createShop();
    const QByteArray rent = R"("expend":1,"sum":1,"confirm":true)";
    const CliRun result = apply(document("MoneyToExpend", R"("date":"2024-01-05T12:00:00",)" + rent) + '\n' +
                                    document("MoneyToExpend", R"("date":"2025-01-05","colour":1,)" + rent) +
                                    '\n' + document("MoneyToExpend", rent) + '\n',
                                {"--replay"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(valueOf("SELECT count(*)||' '||(max(date)-min(date)) FROM money_doc WHERE doc_type_id=4"),
              "2 1");
}

TEST_F(Replay, withoutItNowIsTheClockOfTheMachine)
{
    createShop();
    const qint64 before = QDateTime::currentSecsSinceEpoch();
    applied(document("MoneyToExpend", R"("expend":1,"sum":1)") + '\n');
    const qint64 date = valueOf("SELECT max(date) FROM money_doc").toLongLong();
    EXPECT_GE(date, before - 1);
    EXPECT_LE(date, QDateTime::currentSecsSinceEpoch());
    EXPECT_EQ(
        answer(document("MoneyToExpend", R"("date":"2999-01-01","expend":1,"sum":1,"confirm":true)"))["alert"]
            .toString(),
        "Can't confirm document with date from future!\n");
}

TEST_F(Bulk, givesTheSameBooksAsARunDocumentByDocument)
{
    createShop();
    const QString slow = project;
    project = file("bulk.pdb");
    createProject();
    const CliRun result = apply(shopOperations() + "{broken\n", {"--replay", "--bulk"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.lines().size(), 12U);
    for (const QString& report : {QString("balance"), QString("journal")}) {
        const QStringList period =
            report == "journal" ? QStringList{"--from", "2024-01-01", "--to", "2024-12-31"} : QStringList();
        EXPECT_EQ(run(QStringList{"report", report, slow} + period).out,
                  run(QStringList{"report", report, project} + period).out);
    }
}

TEST_F(Bulk, aKilledRunLeavesNothing)
{
    createShop();
    const QByteArray before = valueOf("SELECT count(*) FROM manager");
    QProcess writer;
    prepare(writer);
    writer.start(ZELVOR_CLI, {"apply", project, "--bulk"});
    ASSERT_TRUE(writer.waitForStarted());
    writer.write(R"({"do":"put","record":"Manager","values":{"name":"Bo"}})"
                 "\n");
    ASSERT_TRUE(writer.waitForReadyRead(30'000));
    writer.kill();
    writer.waitForFinished();
    EXPECT_EQ(valueOf("SELECT count(*) FROM manager"), before);
}

} // namespace zelvor
