#include "core/currency_struct.h"
#include "online/online_fixture.h"
#include "shell/project_creation.h"

#include <QtCore/QElapsedTimer>

#include <algorithm>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

class Rates : public OnlineTest {
protected:
    void ask() { books.appDelegate.online().updateCurrencies(*books.appDelegate.params()); }
    // Asks, and waits for the end.
    void askAndSettle(const QByteArray& answer)
    {
        server.answerAll(answer);
        ask();
        ASSERT_TRUE(settle());
    }
    double rate(CurrencyStruct currency) { return books.db.select<Currency>(rawValue(currency))->rate(); }
    qint64 lastUpdate() { return books.appDelegate.params()->lastCurrencyUpdate; }
    bool told() const { return books.posted.has(NotificationName::CurrencyUpdatedNotification); }
    void expectNothingHappened()
    {
        for (const CurrencyStruct currency : allCurrencies)
            EXPECT_EQ(rate(currency), 1) << rawValue(currency);
        EXPECT_EQ(lastUpdate(), 0);
        EXPECT_FALSE(told());
        EXPECT_TRUE(books.dialogs.alerts.empty());
    }
};

} // namespace

TEST_F(Rates, areAskedForWithTheDefaultCurrencyAndTheSignature)
{
    books.changeParams([](Params& params) { params.defaultCurrency = rawValue(CurrencyStruct::GBP); });
    askAndSettle("{}");
    ASSERT_EQ(server.requests.size(), 1U);
    EXPECT_EQ(server.requests[0].method, "GET");
    EXPECT_EQ(server.requests[0].target, "/rates/?currency=3&appkey=" + signature());
}

TEST_F(Rates, updateTheCurrenciesOfTheReplyAndLeaveTheOthers)
{
    askAndSettle(R"({"2":1.0871,"5":151.23456})");
    EXPECT_EQ(rate(CurrencyStruct::USD), 1.0871);
    EXPECT_EQ(rate(CurrencyStruct::JPY), 151.2346);
    EXPECT_EQ(rate(CurrencyStruct::GBP), 1);
    EXPECT_EQ(lastUpdate(), books.clock.now());
    EXPECT_TRUE(told());
}

TEST_F(Rates, theDefaultCurrencysOwnIsNeverTouched)
{
    askAndSettle(R"({"1":7,"3":0.92})");
    EXPECT_EQ(rate(CurrencyStruct::EUR), 1);
    EXPECT_EQ(rate(CurrencyStruct::GBP), 0.92);
}

TEST_F(Rates, aValueThatIsNoNumberIsSkipped)
{
    askAndSettle(
        R"({"2":"1.08","3":0.92,"4":null,"5":[151],"6":{"rate":7},"7":true,"8":0,"9":-4,"10":1e300,"11":1.1e13,"12":1e-9})");
    for (const CurrencyStruct currency : allCurrencies)
        EXPECT_EQ(rate(currency), currency == CurrencyStruct::GBP ? 0.92 : 1) << rawValue(currency);
    EXPECT_EQ(lastUpdate(), books.clock.now());
}

TEST_F(Rates, aKeyIsACodeInDecimalAndNothingElse)
{
    askAndSettle(R"({"02":5,"+3":5,"4.0":5," 5":5,"6 ":5,"0x7":5,"USD":5,"":5,"14":5,"0":5,"-1":5,"2e0":5})");
    for (const CurrencyStruct currency : allCurrencies)
        EXPECT_EQ(rate(currency), 1) << rawValue(currency);
    EXPECT_TRUE(told());
}

TEST_F(Rates, anEmptyObjectStillStampsTheMoment)
{
    askAndSettle("{}");
    EXPECT_EQ(rate(CurrencyStruct::USD), 1);
    EXPECT_EQ(lastUpdate(), books.clock.now());
    EXPECT_TRUE(told());
}

TEST_F(Rates, ofTheSettingsOnlyTheMomentChanges)
{
    const QStringList before = books.dump();
    books.clock.set(1'700'000'777);
    askAndSettle("{}");
    QStringList expected = before;
    for (QString& line : expected) {
        if (line.startsWith(u"params:"_s))
            line.replace(u",1,0,30,"_s, u",1,1700000777,30,"_s);
    }
    EXPECT_NE(expected, before);
    EXPECT_EQ(books.dump(), expected);
}

TEST_F(Rates, aReplyThatIsNoObjectChangesNothing)
{
    const QByteArray deep(500'000, '[');
    for (const QByteArray& body : {QByteArray(),
                                   QByteArray("<html><body>Welcome to the hotel</body></html>"),
                                   QByteArray("[]"),
                                   QByteArray("[{\"2\":5}]"),
                                   QByteArray("0.92"),
                                   QByteArray("\"2\""),
                                   QByteArray("null"),
                                   QByteArray("true"),
                                   QByteArray("{\"2\":5"),
                                   QByteArray("{\"2\":1e309}"),
                                   QByteArray("{\"2\":-1e309}"),
                                   QByteArray("{\"2\":NaN}"),
                                   QByteArray("{\"2\":5}{\"2\":6}"),
                                   QByteArray("{2:5}"),
                                   QByteArray("\xff\xfe{\0\"\0", 7),
                                   QByteArray(1000, '\0'),
                                   deep,
                                   QByteArray("{\"2\":5,\"3\":") + deep,
                                   "{\"2\":5,\"3\":" + deep + QByteArray(500'000, ']') + "}",
                                   QByteArray(200'000, '{')}) {
        askAndSettle(body);
        expectNothingHappened();
        EXPECT_FALSE(HasFailure()) << body.first(qMin<qsizetype>(40, body.size())).constData();
    }
}

TEST_F(Rates, aHugeObjectIsReadAndAnEndlessOneIsNot)
{
    QByteArray large = "{";
    for (int i = 100; large.size() < 1'000'000; ++i)
        large += '"' + QByteArray::number(i) + "\":1.5,";
    askAndSettle(large + "\"2\":1.08}");
    EXPECT_EQ(rate(CurrencyStruct::USD), 1.08);
    askAndSettle(large + large + "\"2\":9}");
    EXPECT_EQ(rate(CurrencyStruct::USD), 1.08);
}

TEST_F(Rates, aStatusOtherThan200ChangesNothing)
{
    for (const char* status : {"201 Created", "203 Other", "204 No Content", "206 Partial Content",
                               "301 Moved", "400 Bad", "401 No", "404 Not Found", "500 Error", "503 Busy"}) {
        server.answerAll(R"({"2":1.08})", status);
        ask();
        ASSERT_TRUE(settle());
        expectNothingHappened();
    }
}

TEST_F(Rates, aServerThatFailsChangesNothing)
{
    const std::function<void(const LoopbackServer::Request&)> faults[] = {
        [](const auto& request) { LoopbackServer::hangUp(request); },
        [](const auto&) {}, // no answer
        [](const auto& request) {
            LoopbackServer::send(request, "HTTP/1.1 200 OK\r\nContent-Length: 500\r\n\r\n{\"2\":1.08}");
            LoopbackServer::hangUp(request);
        },
        [](const auto& request) {
            LoopbackServer::send(request, "HTTP/1.1 200 OK\r\nContent-Length: 500\r\n\r\n{\"2\":1.08}");
        },
        [](const auto& request) {
            LoopbackServer::send(request, "\r\n\r\n\r\n");
            LoopbackServer::hangUp(request);
        },
        [](const auto& request) { LoopbackServer::redirect(request, u"http://192.0.2.7/"_s); }};
    for (const auto& fault : faults) {
        server.onRequest = fault;
        ask();
        ASSERT_TRUE(settle());
        expectNothingHappened();
    }
}

TEST_F(Rates, theProgramGoesOnAtOnce)
{
    QElapsedTimer time;
    time.start();
    ask(); // the server will not answer
    EXPECT_LT(time.elapsed(), timeout / 2);
    EXPECT_EQ(services->exchange.pending(), 1);
    EXPECT_TRUE(settle());
}

TEST_F(Rates, aServerThatMayNotBeAskedIsNotAsked)
{
    useServer(u"http://service.zelvor.example"_s);
    ask();
    EXPECT_EQ(services->exchange.pending(), 0);
    expectNothingHappened();
}

TEST_F(Rates, twoAnswersOnOneConnectionAreOne)
{
    server.onRequest = [](const LoopbackServer::Request& request) {
        LoopbackServer::answer(request, R"({"2":1.08})");
        LoopbackServer::answer(request, R"({"2":9})");
    };
    ask();
    ASSERT_TRUE(settle());
    runLoopFor(50);
    EXPECT_EQ(rate(CurrencyStruct::USD), 1.08);
    EXPECT_EQ(books.posted.count(NotificationName::CurrencyUpdatedNotification), 1U);
}

TEST_F(Rates, anAnswerThatNobodyAskedForIsNotTakenForThatOfTheNextProject)
{
    server.onRequest = [](const LoopbackServer::Request& request) {
        LoopbackServer::answer(request, "{}");
        LoopbackServer::answer(request, R"({"2":9})");
    };
    ask();
    ASSERT_TRUE(settle());
    ASSERT_TRUE(createProject(books.db, books.file(u"other.pdb"_s), rawValue(CurrencyStruct::EUR)));
    server.answerAll(R"({"2":1.08})");
    ask();
    ASSERT_TRUE(settle());
    EXPECT_EQ(rate(CurrencyStruct::USD), 1.08);
}

TEST_F(Rates, theLastRequestWinsWhicheverAnswerComesFirst)
{
    for (const bool lastComesFirst : {true, false}) {
        server.requests.clear();
        books.posted.clear();
        books.clock.set(1'700'000'000);
        ask();
        books.clock.set(1'700'003'600); // another hour's signature tells the two apart
        ask();
        ASSERT_TRUE(requestsCame(2));
        const QByteArray early = R"({"3":7})";
        const QByteArray last = R"({"2":2})";
        // They come over two connections, in any order.
        std::ranges::partition(server.requests, [](const LoopbackServer::Request& request) {
            return request.target.endsWith(signature());
        });
        ASSERT_FALSE(server.requests[1].target.endsWith(signature()));
        LoopbackServer::answer(server.requests[lastComesFirst ? 1 : 0], lastComesFirst ? last : early);
        ASSERT_TRUE(waitFor([this] { return services->exchange.pending() == 1; }));
        LoopbackServer::answer(server.requests[lastComesFirst ? 0 : 1], lastComesFirst ? early : last);
        ASSERT_TRUE(settle());
        EXPECT_EQ(rate(CurrencyStruct::USD), 2);
        EXPECT_EQ(rate(CurrencyStruct::GBP), 1);
        EXPECT_EQ(books.posted.count(NotificationName::CurrencyUpdatedNotification), 1U);
    }
}

TEST_F(Rates, anAnswerAfterTheProjectWasClosedIsDropped)
{
    ask();
    ASSERT_TRUE(requestsCame(1));
    books.db.close();
    LoopbackServer::answer(server.requests[0], R"({"2":1.08})");
    ASSERT_TRUE(settle());
    EXPECT_FALSE(told());
    ASSERT_TRUE(books.db.open(books.file(u"test.pdb"_s)));
    expectNothingHappened();
}

TEST_F(Rates, anAnswerAfterTheSameFileWasOpenedAgainIsDropped)
{
    ask();
    ASSERT_TRUE(requestsCame(1));
    books.db.close();
    ASSERT_TRUE(books.db.open(books.file(u"test.pdb"_s)));
    LoopbackServer::answer(server.requests[0], R"({"2":1.08})");
    ASSERT_TRUE(settle());
    expectNothingHappened();
}

TEST_F(Rates, anAnswerForAnotherProjectChangesNoneOfIts)
{
    ask();
    ASSERT_TRUE(requestsCame(1));
    ASSERT_TRUE(createProject(books.db, books.file(u"other.pdb"_s), rawValue(CurrencyStruct::EUR)));
    LoopbackServer::answer(server.requests[0], R"({"2":1.08})");
    ASSERT_TRUE(settle());
    expectNothingHappened();
    ASSERT_TRUE(books.db.open(books.file(u"test.pdb"_s)));
    expectNothingHappened();
}

TEST_F(Rates, anAnswerAgainstACurrencyThatIsTheDefaultNoMoreIsDropped)
{
    ask();
    ASSERT_TRUE(requestsCame(1));
    books.changeParams([](Params& params) { params.defaultCurrency = rawValue(CurrencyStruct::CHF); });
    LoopbackServer::answer(server.requests[0], R"({"2":1.08})");
    ASSERT_TRUE(settle());
    expectNothingHappened();
}

TEST_F(Rates, whatElseChangedInTheSettingsMeanwhileIsKept)
{
    ask();
    ASSERT_TRUE(requestsCame(1));
    books.changeParams([](Params& params) { params.companyName = u"New Name"_s; });
    LoopbackServer::answer(server.requests[0], R"({"2":1.08})");
    ASSERT_TRUE(settle());
    EXPECT_EQ(books.appDelegate.params()->companyName, u"New Name"_s);
    EXPECT_EQ(lastUpdate(), books.clock.now());
}

TEST_F(Rates, anAnswerWaitsForTheEndOfATransaction)
{
    ask();
    ASSERT_TRUE(requestsCame(1));
    {
        UserWrite write(books.db);
        Stock stock;
        stock.name = u"Shop"_s;
        ASSERT_TRUE(write.step(books.db.insert(stock)));
        LoopbackServer::answer(server.requests[0], R"({"2":1.08})");
        ASSERT_TRUE(settle());
        runLoopFor(100);
        EXPECT_EQ(rate(CurrencyStruct::USD), 1);
        EXPECT_FALSE(told());
        write.fail();
        EXPECT_FALSE(write.finish());
    }
    EXPECT_EQ(rate(CurrencyStruct::USD), 1);
    EXPECT_TRUE(waitFor([this] { return told(); }));
    EXPECT_EQ(rate(CurrencyStruct::USD), 1.08);
    EXPECT_TRUE(books.db.freeSQL<Stock>().empty());
}

TEST_F(Rates, anAnswerThatWaitsIsDroppedWithTheProject)
{
    ask();
    ASSERT_TRUE(requestsCame(1));
    ASSERT_TRUE(books.db.execute("BEGIN"));
    LoopbackServer::answer(server.requests[0], R"({"2":1.08})");
    ASSERT_TRUE(settle());
    books.db.close();
    ASSERT_TRUE(books.db.open(books.file(u"test.pdb"_s)));
    runLoopFor(100);
    expectNothingHappened();
}

TEST_F(Rates, anAnswerThatWaitsIsDroppedWithTheServices)
{
    ask();
    ASSERT_TRUE(requestsCame(1));
    ASSERT_TRUE(books.db.execute("BEGIN"));
    LoopbackServer::answer(server.requests[0], R"({"2":1.08})");
    ASSERT_TRUE(settle());
    services.reset();
    ASSERT_TRUE(books.db.execute("ROLLBACK"));
    runLoopFor(100);
    EXPECT_FALSE(told());
    ask(); // to nobody
    expectNothingHappened();
}

TEST_F(Rates, aFailedWriteLeavesAllAsItWas)
{
    for (int call = 1; call <= 3; ++call) {
        server.answerAll(R"({"2":1.08,"3":0.8})");
        ask();
        books.connector->failCall(call, FaultInjectingConnector::Writes | FaultInjectingConnector::Begin);
        ASSERT_TRUE(settle());
        EXPECT_TRUE(books.connector->hasFailed());
        books.connector->failCall(0);
        expectNothingHappened();
    }
}

TEST_F(Rates, aDiskThatRefusesThemTakesAllBackAndTellsAsEver)
{
    server.answerAll(R"({"2":1.08})");
    ask();
    books.connector->failCall(1, FaultInjectingConnector::Commit);
    ASSERT_TRUE(settle());
    EXPECT_TRUE(books.connector->hasFailed());
    EXPECT_EQ(rate(CurrencyStruct::USD), 1);
    EXPECT_EQ(lastUpdate(), 0);
    EXPECT_FALSE(told());
    ASSERT_EQ(books.dialogs.alerts.size(), 1U);
    EXPECT_EQ(books.dialogs.alerts[0].messageText, u"The changes were not saved!"_s);
}

TEST_F(Rates, nothingIsAskedForAProjectThatIsOpenForReadingOnly)
{
    books.db.close();
    ASSERT_TRUE(books.db.open(books.file(u"test.pdb"_s), Access::ReadOnly));
    ask();
    EXPECT_EQ(services->exchange.pending(), 0);
}

TEST_F(Rates, nothingIsAskedWithoutAProjectOrAKnownCurrency)
{
    Params params;
    params.defaultCurrency = 0;
    books.appDelegate.online().updateCurrencies(params);
    params.defaultCurrency = 14;
    books.appDelegate.online().updateCurrencies(params);
    books.db.close();
    params.defaultCurrency = 1;
    books.appDelegate.online().updateCurrencies(params);
    EXPECT_EQ(services->exchange.pending(), 0);
}

} // namespace zelvor
