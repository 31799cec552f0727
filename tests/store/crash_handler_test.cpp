#include "store/crash_handler.h"

#include "store/child_process.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <csignal>
#include <cstdlib>
#include <pthread.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int crashSignals[] = {SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL};
constexpr int notInstalled = 3;
constexpr int wentOn = 4;

volatile bool noEnd = true;

[[gnu::noinline]] int overrun(volatile char* above)
{
    volatile char frame[4096];
    frame[0] = *above;
    return noEnd ? overrun(frame) + frame[0] : 0;
}

[[gnu::noinline]] void writeNowhere()
{
    // A page that nobody may touch: the sanitizers have a word of their own for a null pointer.
    auto* const nowhere =
        static_cast<volatile char*>(::mmap(nullptr, 4096, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    *nowhere = 1;
}

void* overrunInThread(void*)
{
    char start = 0;
    return reinterpret_cast<void*>(static_cast<std::intptr_t>(overrun(&start)));
}

class Crash : public testing::Test {
protected:
    // Runs the body in a process of its own that has the handler; its end, as runInChild tells it.
    int crashBy(const std::function<void()>& body, const QString& program = u"Zelvor"_s)
    {
        return runInChild([&] {
            // No core beside the tests, and none of a sanitizer's own handlers before ours.
            const rlimit none{0, 0};
            ::setrlimit(RLIMIT_CORE, &none);
            for (const int signal : crashSignals)
                ::signal(signal, SIG_DFL);
            if (!installCrashHandler(program, u"1.2.0"_s, reports()))
                return notInstalled;
            body();
            return wentOn;
        });
    }
    QString reports() const { return folder.filePath(u"alices secret folder/state/crash-reports"_s); }
    QStringList reportNames() const
    {
        return QDir(reports()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    QString onlyReport() const
    {
        const QStringList names = reportNames();
        EXPECT_EQ(names.size(), 1);
        QFile file(QDir(reports()).filePath(names.value(0)));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return QString::fromUtf8(file.readAll());
    }
    void leaveReport(const QString& name)
    {
        ASSERT_TRUE(QDir().mkpath(reports()));
        QFile file(QDir(reports()).filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }

    const QTemporaryDir folder;
};

} // namespace

TEST_F(Crash, endsTheProcessByItsOwnSignalAndLeavesAReport)
{
    for (const int signal : crashSignals) {
        EXPECT_EQ(crashBy([signal] { ::raise(signal); }), -signal);
        const QString report = onlyReport();
        EXPECT_TRUE(report.contains(u"Signal: SIG"_s + QString::fromLatin1(::sigabbrev_np(signal)) + u'\n'))
            << qPrintable(report);
        ASSERT_TRUE(QDir(reports()).removeRecursively());
    }
}

TEST_F(Crash, ofARealKindIsReportedToo)
{
    EXPECT_EQ(crashBy(writeNowhere), -SIGSEGV);
    EXPECT_TRUE(onlyReport().contains(u"Signal: SIGSEGV"_s));
    ASSERT_TRUE(QDir(reports()).removeRecursively());
    EXPECT_EQ(crashBy([] { std::abort(); }), -SIGABRT);
    EXPECT_TRUE(onlyReport().contains(u"Signal: SIGABRT"_s));
    ASSERT_TRUE(QDir(reports()).removeRecursively());
    EXPECT_EQ(crashBy([] { qFatal("of the books of Alice: 1 234.50"); }), -SIGABRT);
    EXPECT_FALSE(onlyReport().contains(u"Alice"_s));
}

TEST_F(Crash, ofAStackThatRanOverIsReported)
{
    EXPECT_EQ(crashBy([] { overrunInThread(nullptr); }), -SIGSEGV);
    EXPECT_TRUE(onlyReport().contains(u"Crashed thread:\n0 "_s));
}

TEST_F(Crash, ofAThreadsStackThatRanOverEndsTheProcessWithoutAReport)
{
    // A thread has no stack of its own for the handler: there is nowhere left to run it.
    EXPECT_EQ(crashBy([] {
                  pthread_t thread{};
                  ::pthread_create(&thread, nullptr, &overrunInThread, nullptr);
                  ::pthread_join(thread, nullptr);
              }),
              -SIGSEGV);
#if !defined(__SANITIZE_ADDRESS__) // which gives each thread such a stack
    EXPECT_TRUE(reportNames().isEmpty());
#endif
}

#if defined(__x86_64__)
TEST_F(Crash, insideTheHandlerEndsTheProcessAndLeavesWhatWasWritten)
{
    // No stack to walk: the handler runs into the same fault as the program.
    EXPECT_EQ(crashBy([] { asm volatile("mov $0x1000, %%rsp\n\tpush $0" ::: "memory"); }), -SIGSEGV);
    const QString report = onlyReport();
    EXPECT_TRUE(report.startsWith(u"Zelvor 1.2.0\n"_s));
    EXPECT_TRUE(report.contains(u"\nSignal: SIGSEGV\n"_s)) << qPrintable(report);
}
#endif

TEST_F(Crash, inAThreadIsReported)
{
    EXPECT_EQ(crashBy([] {
                  pthread_t thread{};
                  ::pthread_create(
                      &thread, nullptr,
                      [](void*) -> void* {
                          writeNowhere();
                          return nullptr;
                      },
                      nullptr);
                  ::pthread_join(thread, nullptr);
              }),
              -SIGSEGV);
    EXPECT_TRUE(onlyReport().contains(u"Signal: SIGSEGV"_s));
}

TEST_F(Crash, reportTellsVersionsAndTheStackOfTheCrashedThread)
{
    EXPECT_EQ(crashBy(writeNowhere, u"Zelvor-cli"_s), -SIGSEGV);
    const QString report = onlyReport();
    EXPECT_TRUE(report.startsWith(u"Zelvor-cli 1.2.0\n"_s));
    EXPECT_TRUE(report.contains(u"\nQt: "_s + QString::fromLatin1(qVersion()) + u'\n'));
    EXPECT_TRUE(report.contains(u"\nSQLite: "_s + QString::fromLatin1(::sqlite3_libversion()) + u'\n'));
    EXPECT_TRUE(report.contains(QRegularExpression(u"\nSystem: Linux [^\n]+\n"_s)));
    // The function that failed is the first of the stack, in the program itself; a library lies below.
    EXPECT_TRUE(report.contains(QRegularExpression(u"\nCrashed thread:\n0 Zelvor-cli \\+ 0x[0-9a-f]+\n1 "_s)))
        << qPrintable(report);
    EXPECT_TRUE(report.contains(QRegularExpression(u"\n\\d+ libc\\.so\\.6 \\+ 0x[0-9a-f]+\n"_s)))
        << qPrintable(report);
    EXPECT_FALSE(report.contains(u"Thread 1"_s));
}

TEST_F(Crash, reportHoldsNoPathAndNoName)
{
    EXPECT_EQ(crashBy(writeNowhere), -SIGSEGV);
    const QString report = onlyReport();
    EXPECT_FALSE(report.contains(u'/')) << qPrintable(report);
    EXPECT_FALSE(report.contains(u"alice"_s)) << qPrintable(report);
    EXPECT_FALSE(report.contains(u"test_store"_s)) << qPrintable(report);
    const QString user = qEnvironmentVariable("USER");
    EXPECT_TRUE(user.isEmpty() || !report.contains(user, Qt::CaseInsensitive)) << qPrintable(report);
    EXPECT_LT(report.size(), 8192);
}

TEST_F(Crash, reportIsTheUsersAloneAndBeginsWithTheProgramsName)
{
    EXPECT_EQ(crashBy(writeNowhere, u"Zelvor-cli"_s), -SIGSEGV);
    const QString name = reportNames().value(0);
    EXPECT_TRUE(QRegularExpression(u"^Zelvor_\\d{10}_\\d+\\.crash$"_s).match(name).hasMatch())
        << qPrintable(name);
    struct stat facts {};
    ASSERT_EQ(::stat(qPrintable(QDir(reports()).filePath(name)), &facts), 0);
    EXPECT_EQ(facts.st_mode & 0777, 0600U);
    ASSERT_EQ(::stat(qPrintable(reports()), &facts), 0);
    EXPECT_EQ(facts.st_mode & 0777, 0700U);
}

TEST_F(Crash, withoutOneNothingIsMade)
{
    EXPECT_EQ(crashBy([] {}), wentOn);
    EXPECT_FALSE(QDir(folder.filePath(u"alices secret folder"_s)).exists());
}

TEST_F(Crash, thatCannotBeWrittenDownStillEndsTheProcess)
{
    QFile inTheWay(folder.filePath(u"alices secret folder"_s));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    EXPECT_EQ(crashBy(writeNowhere), -SIGSEGV);
}

TEST_F(Crash, theTenNewestReportsAreKept)
{
    for (int i = 10; i < 30; ++i)
        leaveReport(u"Zelvor_17000000%1_1.crash"_s.arg(i));
    leaveReport(u"Other_1700000001_1.crash"_s);
    leaveReport(u"Zelvor.txt"_s);
    EXPECT_EQ(crashBy(writeNowhere), -SIGSEGV);
    const QStringList kept = reportNames().filter(QRegularExpression(u"^Zelvor_"_s));
    ASSERT_EQ(kept.size(), 10);
    EXPECT_EQ(kept.first(), u"Zelvor_1700000021_1.crash"_s);
    EXPECT_EQ(reportNames().size(), 12);
}

TEST_F(Crash, aSignalThatSomebodyHandlesIsLeftToThem)
{
    const int end = runInChild([this] {
        for (const int signal : crashSignals)
            ::signal(signal, SIG_DFL);
        ::signal(SIGFPE, [](int) { ::_exit(7); });
        if (!installCrashHandler(u"Zelvor"_s, u"1"_s, reports()))
            return notInstalled;
        ::raise(SIGFPE);
        return wentOn;
    });
    EXPECT_EQ(end, 7);
    EXPECT_TRUE(reportNames().isEmpty());
}

TEST_F(Crash, aFolderThatIsNoWholePathIsRefused)
{
    const int end = runInChild([] {
        const bool any = installCrashHandler(u"Zelvor"_s, u"1"_s, u"reports"_s) ||
                         installCrashHandler(u"Zelvor"_s, u"1"_s, QString()) ||
                         installCrashHandler(u"Zelvor"_s, u"1"_s, u'/' + QString(5000, u'x'));
        return any ? 1 : 0;
    });
    EXPECT_EQ(end, 0);
}

TEST_F(Crash, reportsLieInTheUsersStateFolder)
{
    const int end = runInChild([] {
        qputenv("XDG_STATE_HOME", "/tmp/state");
        const bool named = crashReportFolder() == u"/tmp/state/Zelvor/crash-reports"_s;
        qunsetenv("XDG_STATE_HOME");
        qputenv("HOME", "/home/alice");
        const bool byDefault = crashReportFolder() == u"/home/alice/.local/state/Zelvor/crash-reports"_s;
        qputenv("XDG_STATE_HOME", "relative");
        const bool whole = crashReportFolder() == u"/home/alice/.local/state/Zelvor/crash-reports"_s;
        return named && byDefault && whole ? 0 : 1;
    });
    EXPECT_EQ(end, 0);
}

} // namespace zelvor
