#include "online/online_fixture.h"

#include <QtCore/QLocale>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

class NewVersion : public OnlineTest {
protected:
    bool isTold(const QByteArray& answer, const QByteArray& status = "200 OK")
    {
        server.answerAll(answer, status);
        books.posted.clear();
        books.appDelegate.online().checkUpdate();
        EXPECT_TRUE(settle());
        return books.posted.has(NotificationName::HasNewVersionNotification);
    }
};

} // namespace

TEST_F(NewVersion, isAskedForWithSignaturePlatformAndLocale)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::Russian, QLocale::Russia));
    isTold("{}");
    QLocale::setDefault(before);
    ASSERT_EQ(server.requests.size(), 1U);
    EXPECT_EQ(server.requests[0].method, "GET");
    EXPECT_EQ(server.requests[0].target, "/get_version/?app_key=" + signature() + "&platform=1&locale=ru_RU");
}

TEST_F(NewVersion, isToldOnlyWhenItsNumberIsGreater)
{
    EXPECT_FALSE(isTold(R"({"version":"1.2"})"));
    EXPECT_TRUE(isTold(R"({"version":"1.3"})"));
    EXPECT_FALSE(isTold(R"({"version":"1.10"})"));
    EXPECT_EQ(books.posted.notifications.size(), 0U);
}

TEST_F(NewVersion, theNumberIsTheOneThatTheTextStartsWith)
{
    for (const char* newer : {"1.3", "2", "1.21", "1.3.7", "2beta", " 1.3", "\t\n1.3", "+1.3", "1.3 is out",
                              "10", "1.2000002", "13e-1x", ".13e1", "13.e-1", "1.3e", "1.3e+"})
        EXPECT_TRUE(UpdateCheck::isNewer(QString::fromLatin1(newer))) << newer;
    for (const char* older :
         {"",          " ",   "1.2",    "1.20",     "1.2.9", "1.1",  "1.10", "-3",   "v1.3",
          "version 9", "nan", "inf",    "infinity", "0x9",   ".",    "e9",   "-",    "+",
          "1,3",       "--2", "1e-400", "1e400",    "- 2",   "1.2e", ".e5",  "0.13e"})
        EXPECT_FALSE(UpdateCheck::isNewer(QString::fromLatin1(older))) << older;
    EXPECT_FALSE(UpdateCheck::isNewer(u"١٣"_s));
    EXPECT_FALSE(UpdateCheck::isNewer(QString(1'000'000, u' ')));
}

TEST_F(NewVersion, theComparisonIsInSinglePrecision)
{
    // The same number in single precision, a greater one in double.
    EXPECT_FALSE(UpdateCheck::isNewer(u"1.20000001"_s));
    EXPECT_TRUE(UpdateCheck::isNewer(u"1.2000002"_s));
}

TEST_F(NewVersion, aReplyOfAnotherFormIsSilent)
{
    for (const char* body :
         {"", "[]", "[\"1.3\"]", "\"1.3\"", "1.3", "{}", R"({"version":1.3})", R"({"version":null})",
          R"({"version":["1.3"]})", R"({"Version":"1.3"})", R"({"version":"1.3")", "<html>1.3</html>"})
        EXPECT_FALSE(isTold(body)) << body;
    EXPECT_FALSE(isTold(QByteArray(900'000, '[')));
    EXPECT_TRUE(books.dialogs.alerts.empty());
}

TEST_F(NewVersion, aFailedExchangeIsSilent)
{
    EXPECT_FALSE(isTold(R"({"version":"1.3"})", "404 Not Found"));
    EXPECT_FALSE(isTold(R"({"version":"1.3"})", "203 Other"));
    server.onRequest = [](const LoopbackServer::Request& request) { LoopbackServer::hangUp(request); };
    books.appDelegate.online().checkUpdate();
    EXPECT_TRUE(settle());
    EXPECT_FALSE(books.posted.has(NotificationName::HasNewVersionNotification));
}

TEST_F(NewVersion, isToldWithoutAnObject)
{
    const void* object = this;
    const auto observation = books.appDelegate.notifications.observe(
        NotificationName::HasNewVersionNotification, [&](const Notification& n) { object = n.object; });
    EXPECT_TRUE(isTold(R"({"version":"9"})"));
    EXPECT_EQ(object, nullptr);
}

TEST_F(NewVersion, isToldWhenNoTransactionIsOpen)
{
    ASSERT_TRUE(books.db.execute("BEGIN"));
    EXPECT_FALSE(isTold(R"({"version":"9"})"));
    ASSERT_TRUE(books.db.execute("ROLLBACK"));
    EXPECT_TRUE(waitFor([this] { return books.posted.has(NotificationName::HasNewVersionNotification); }));
}

TEST_F(NewVersion, anAnswerAfterTheServicesHaveGoneIsDropped)
{
    books.appDelegate.online().checkUpdate();
    ASSERT_TRUE(requestsCame(1));
    services.reset();
    LoopbackServer::answer(server.requests[0], R"({"version":"9"})");
    runLoopFor(100);
    EXPECT_FALSE(books.posted.has(NotificationName::HasNewVersionNotification));
}

} // namespace zelvor
