#include "online/online_fixture.h"

#include <QtCore/QDir>

#include <algorithm>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

class CrashReports : public OnlineTest {
protected:
    QString path(const QString& name) const { return books.file(u"state/crash-reports/"_s + name); }
    void leave(const QString& name, const QByteArray& content = "Zelvor 1.2.0\n")
    {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path(name)).absolutePath()));
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }
    void sendAll()
    {
        OnlineServices& online = books.appDelegate.online();
        online.sendReports(online.crashReports());
        ASSERT_TRUE(settle());
    }
    // The body that a report of this content is sent as.
    QByteArray bodyOf(const QByteArray& content)
    {
        server.requests.clear();
        leave(u"Zelvor_1.crash"_s, content);
        server.answerAll("");
        sendAll();
        return server.requests.empty() ? QByteArray("nothing") : server.requests[0].body;
    }
    QStringList found() const { return services->crashReports(); }
};

} // namespace

TEST_F(CrashReports, withoutAFolderOrAReportNothingIsSent)
{
    sendAll();
    ASSERT_TRUE(QDir().mkpath(path(u"empty"_s)));
    sendAll();
    EXPECT_TRUE(server.requests.empty());
}

TEST_F(CrashReports, areTheFilesWhosePathWithinTheFolderBeginsWithTheProgramsName)
{
    for (const char* name : {"Zelvor_2.crash", "Zelvor_1.crash", "Zelvor", "Zelvor-cli_3.crash",
                             "Zelvor-old/a.crash", "Zelvor-old/deep/er/b", "zelvor_4.crash", "Other_1.crash",
                             "Other/Zelvor_5.crash", "a Zelvor_6.crash", ".Zelvor_7.crash"})
        leave(QString::fromLatin1(name));
    QStringList expected{path(u"Zelvor"_s),
                         path(u"Zelvor-cli_3.crash"_s),
                         path(u"Zelvor-old/a.crash"_s),
                         path(u"Zelvor-old/deep/er/b"_s),
                         path(u"Zelvor_1.crash"_s),
                         path(u"Zelvor_2.crash"_s)};
    EXPECT_EQ(found(), expected);
}

TEST_F(CrashReports, aLinkToAFileElsewhereIsNone)
{
    leave(u"Other.txt"_s, "my diary");
    ASSERT_TRUE(QFile::link(path(u"Other.txt"_s), path(u"Zelvor_1.crash"_s)));
    ASSERT_TRUE(QFile::link(books.file(QString()), path(u"Zelvor-folder"_s)));
    EXPECT_TRUE(found().isEmpty());
}

TEST_F(CrashReports, aReportOfAnotherProgramStaysUntouched)
{
    leave(u"Other_1.crash"_s);
    leave(u"Zelvor_1.crash"_s);
    server.answerAll("");
    sendAll();
    EXPECT_EQ(server.requests.size(), 1U);
    EXPECT_TRUE(QFile::exists(path(u"Other_1.crash"_s)));
    EXPECT_FALSE(QFile::exists(path(u"Zelvor_1.crash"_s)));
}

TEST_F(CrashReports, eachIsPostedWithOneSignatureForAll)
{
    leave(u"Zelvor_1.crash"_s, "one\ntwo\n");
    leave(u"Zelvor_2.crash"_s, "other");
    server.answerAll("thank you");
    sendAll();
    ASSERT_EQ(server.requests.size(), 2U);
    QByteArrayList bodies;
    for (const auto& request : server.requests) {
        EXPECT_EQ(request.method, "POST");
        EXPECT_EQ(request.target, "/write_bug_report/");
        bodies.append(request.body);
    }
    std::sort(bodies.begin(), bodies.end());
    EXPECT_EQ(bodies[0], "app_key=" + signature() + "&description=one<br>two<br>");
    EXPECT_EQ(bodies[1], "app_key=" + signature() + "&description=other");
    EXPECT_TRUE(found().isEmpty());
}

TEST_F(CrashReports, lineEndsOfEveryKindBecomeBreaks)
{
    const QByteArray before = "app_key=" + signature() + "&description=";
    EXPECT_EQ(bodyOf("a\nb\r\nc\rd"), before + "a<br>b<br>c<br>d");
    EXPECT_EQ(bodyOf("\n\n\r\n"), before + "<br><br><br>");
    EXPECT_EQ(bodyOf(""), before);
}

TEST_F(CrashReports, theOtherThreadsAreCutOff)
{
    const QByteArray before = "app_key=" + signature() + "&description=";
    EXPECT_EQ(bodyOf("head\nThread 0 Crashed:\n0 a\n\nThread 1:\n0 b\nThread 2:\n"),
              before + "head<br>Thread 0 Crashed:<br>0 a<br><br>");
    EXPECT_EQ(bodyOf("head\nThread 10:\nx"), before + "head<br>");
    EXPECT_EQ(bodyOf("Thread 1"), before);
    EXPECT_EQ(bodyOf("head\nThread\n1 thread 1"), before + "head<br>Thread<br>1 thread 1");
}

TEST_F(CrashReports, nothingIsEscaped)
{
    EXPECT_EQ(bodyOf("a&b=c%20+d<e>\xd0\xaf"),
              "app_key=" + signature() + "&description=a&b=c%20+d<e>\xd0\xaf");
}

TEST_F(CrashReports, aStatusOtherThan200LeavesTheFile)
{
    leave(u"Zelvor_1.crash"_s);
    for (const char* status : {"201 Created", "204 No Content", "302 Found", "404 Not Found", "500 Error"}) {
        server.answerAll("", status);
        sendAll();
        EXPECT_TRUE(QFile::exists(path(u"Zelvor_1.crash"_s))) << status;
    }
    server.answerAll("");
    sendAll();
    EXPECT_FALSE(QFile::exists(path(u"Zelvor_1.crash"_s)));
}

TEST_F(CrashReports, aFailureLeavesTheFileForTheNextTime)
{
    leave(u"Zelvor_1.crash"_s);
    server.onRequest = [](const LoopbackServer::Request& request) { LoopbackServer::hangUp(request); };
    sendAll();
    server.onRequest = {};
    sendAll();
    useServer(u"http://service.zelvor.example"_s);
    sendAll();
    EXPECT_EQ(found(), QStringList{path(u"Zelvor_1.crash"_s)});
    EXPECT_TRUE(books.dialogs.alerts.empty());
}

TEST_F(CrashReports, eachIsRemovedByItsOwnAnswer)
{
    leave(u"Zelvor_1.crash"_s, "good");
    leave(u"Zelvor_2.crash"_s, "bad");
    server.onRequest = [](const LoopbackServer::Request& request) {
        LoopbackServer::answer(request, "", request.body.endsWith("good") ? "200 OK" : "500 Error");
    };
    sendAll();
    EXPECT_EQ(found(), QStringList{path(u"Zelvor_2.crash"_s)});
}

TEST_F(CrashReports, theStartOfTheProgramDoesNotWait)
{
    leave(u"Zelvor_1.crash"_s);
    services->sendReports(found());
    EXPECT_EQ(services->exchange.pending(), 1);
    services.reset();
    runLoopFor(50);
    EXPECT_TRUE(QFile::exists(path(u"Zelvor_1.crash"_s)));
}

TEST_F(CrashReports, whatIsNoReportIsNotSent)
{
    leave(u"Zelvor_1.crash"_s, QByteArray((1 << 20) + 1, 'x'));
    services->sendReports({path(u"Zelvor_1.crash"_s), path(u"missing"_s), books.file(QString())});
    EXPECT_EQ(services->exchange.pending(), 0);
    EXPECT_TRUE(QFile::exists(path(u"Zelvor_1.crash"_s)));
}

} // namespace zelvor
