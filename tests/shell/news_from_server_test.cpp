#include "shell/application_shell.h"

#include "catalogs/currency_rates.h"
#include "core/currency_struct.h"
#include "shell/project_creation.h"
#include "support/test_project.h"

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QLocale>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

class RecordingServices final : public OnlineServices {
public:
    void updateCurrencies(const Params& params) override
    {
        calls += u"rates %1"_s.arg(params.defaultCurrency);
        if (onCall)
            onCall();
    }
    void checkUpdate() override
    {
        calls += u"version"_s;
        if (onCall)
            onCall();
    }
    QStringList crashReports() override
    {
        calls += u"reports"_s;
        return {u"/r/Zelvor_1"_s, u"/r/Zelvor_2"_s};
    }
    void sendReports(const QStringList& paths) override
    {
        calls += u"send "_s + paths.join(u' ');
        if (onCall)
            onCall();
    }

    QStringList calls;
    std::function<void()> onCall;
};

class BrowserWindow final : public WorkspaceWindow {
public:
    void adjustWindowWidthForProductDocument(int) override {}
    void setLeftViewCollapsed(bool) override {}
    void showAbout() override {}
    void openUrl(const QString& url) override { urls += url; }

    QStringList urls;
};

// A locale for as long as it lives.
class InLocale {
public:
    InLocale(QLocale::Language language, QLocale::Territory territory)
    {
        QLocale::setDefault(QLocale(language, territory));
    }
    ~InLocale() { QLocale::setDefault(m_before); }
    InLocale(const InLocale&) = delete;
    InLocale& operator=(const InLocale&) = delete;

private:
    QLocale m_before;
};

class FromTheServer : public testing::Test {
protected:
    void SetUp() override
    {
        program.appDelegate.setOnline(&services);
        main().window = &browser;
    }
    void TearDown() override { program.appDelegate.setOnline(nullptr); }
    MainViewController& main() { return shell.mainWindowController; }
    // A project that is set up and has its last month closed; it will be the one to open.
    void known(qint64 lastCurrencyUpdate = 0, int currency = rawValue(CurrencyStruct::GBP))
    {
        const QString path = program.file(u"shop.pdb"_s);
        Connector& db = program.appDelegate.connector;
        ASSERT_TRUE(createProject(db, path, currency));
        Params params = *program.appDelegate.params();
        params.lastPeriodSaved = 202310;
        params.lastCurrencyUpdate = lastCurrencyUpdate;
        ASSERT_EQ(db.update(params), 1);
        db.close();
        program.defaults.setBusinesses({{u"shop"_s, path}});
        program.defaults.setDefaultBusiness(u"shop"_s);
    }
    void open()
    {
        known();
        shell.openLastProject();
        services.calls.clear();
        program.posted.clear();
    }
    void newVersionIsThere()
    {
        program.appDelegate.notifications.post(NotificationName::HasNewVersionNotification);
    }
    std::size_t notices() const { return program.dialogs.questions.size(); }

    TestProgram program;
    RecordingServices services;
    BrowserWindow browser;
    ApplicationShell shell{program.appDelegate};
};

} // namespace

// --- the start

TEST_F(FromTheServer, theStartSendsNoReportsUnlessTheUserSaidAlways)
{
    shell.applicationDidFinishLaunching();
    program.defaults.setCrashReportConsent(CrashReportConsent::Never);
    shell.applicationDidFinishLaunching();
    EXPECT_TRUE(services.calls.isEmpty());
}

TEST_F(FromTheServer, theStartSendsReportsBeforeAnyProjectIsOpened)
{
    known();
    program.defaults.setCrashReportConsent(CrashReportConsent::Always);
    std::vector<bool> open;
    services.onCall = [&] { open.push_back(program.appDelegate.connector.isOpen()); };
    shell.applicationDidFinishLaunching();
    EXPECT_EQ(services.calls,
              (QStringList{u"reports"_s, u"send /r/Zelvor_1 /r/Zelvor_2"_s, u"rates 3"_s, u"version"_s}));
    EXPECT_EQ(open, (std::vector<bool>{false, true, true}));
}

TEST_F(FromTheServer, theStartOpensTheFileThatWasHandedOver)
{
    known();
    program.defaults.removeDefaultBusiness();
    shell.applicationDidFinishLaunching(program.file(u"shop.pdb"_s));
    EXPECT_TRUE(shell.window.isOpen());
}

TEST_F(FromTheServer, theStartWithoutAnythingShowsTheProjectWindow)
{
    shell.applicationDidFinishLaunching();
    EXPECT_TRUE(shell.startWindowController.window.isOpen());
}

// --- the gate

TEST_F(FromTheServer, anOpenedProjectAsksForRatesAndThenForTheNewestVersion)
{
    known();
    std::vector<bool> windowIsUp;
    services.onCall = [&] { windowIsUp.push_back(shell.window.isOpen()); };
    shell.openLastProject();
    EXPECT_EQ(services.calls, (QStringList{u"rates 3"_s, u"version"_s}));
    EXPECT_EQ(windowIsUp, (std::vector<bool>{true, true}));
}

TEST_F(FromTheServer, theSecondOpeningOfADaySaysThatTheRatesAreUpToDateAndAsksForNone)
{
    known(1'700'000'000 - 3600);
    shell.openLastProject();
    EXPECT_EQ(services.calls, QStringList{u"version"_s});
    EXPECT_EQ(main().stateField.text(), u"All currencies are up to date"_s);
}

TEST_F(FromTheServer, theNextDayAsksAgain)
{
    known(1'700'000'000 - 86'400);
    shell.openLastProject();
    EXPECT_EQ(services.calls, (QStringList{u"rates 3"_s, u"version"_s}));
}

TEST_F(FromTheServer, aProjectThatIsNotSetUpAsksForNothing)
{
    known(0, 0);
    shell.openLastProject();
    EXPECT_TRUE(shell.preferences.window.isOpen());
    EXPECT_TRUE(services.calls.isEmpty());
}

TEST_F(FromTheServer, aProjectThatIsOpenForReadingOnlyAsksForNoRates)
{
    known();
    ASSERT_TRUE(program.appDelegate.connector.open(program.file(u"shop.pdb"_s), Access::ReadOnly));
    shell.checkDefaultCurrency();
    EXPECT_EQ(services.calls, QStringList{u"version"_s});
}

TEST_F(FromTheServer, theListOfCurrenciesAsksByTheWorkspace)
{
    open();
    program.appDelegate.workspace().updateCurrencies(*program.appDelegate.params());
    EXPECT_EQ(services.calls, QStringList{u"rates 3"_s});
}

// --- rates

TEST_F(FromTheServer, newRatesAreToldInTheStateLineWithDateAndTime)
{
    const InLocale english(QLocale::English, QLocale::UnitedStates);
    open();
    program.clock.set(1'700'000'000);
    ASSERT_TRUE(applyRates(program.appDelegate, {{2, 1.08}}));
    // Some releases of the locale data part "PM" by a narrow blank.
    QString text = main().stateField.text();
    EXPECT_EQ(text.replace(QChar(0x202f), u' '), u"All currencies updated at: 11/14/23 10:13 PM"_s);
}

TEST_F(FromTheServer, theDateIsTheLocalOneInTheFormOfTheLocale)
{
    const InLocale german(QLocale::German, QLocale::Germany);
    const auto kolkata = TestProgram::inZone("Asia/Kolkata");
    const MainViewController controller(kolkata->appDelegate);
    kolkata->appDelegate.notifications.post(NotificationName::CurrencyUpdatedNotification);
    EXPECT_EQ(controller.stateField.text(), u"All currencies updated at: 15.11.23 03:43"_s);
}

TEST_F(FromTheServer, newRatesMakeTheBalanceAnew)
{
    open();
    program.appDelegate.notifications.post(NotificationName::CurrencyUpdatedNotification);
    ASSERT_EQ(program.posted.count(NotificationName::BalanceChangedNotification), 1U);
    const auto& posted = program.posted.notifications;
    const auto changed =
        std::ranges::find(posted, NotificationName::BalanceChangedNotification, &Notification::name);
    EXPECT_EQ(changed->object, &main());
}

// --- a new version

TEST_F(FromTheServer, theUpdateEntryIsDisabledUntilANewVersionIsKnown)
{
    open();
    EXPECT_FALSE(main().updateMenuItem.enabled());
    EXPECT_FALSE(main().updateMenuItem.userChanged());
    newVersionIsThere();
    EXPECT_TRUE(main().updateMenuItem.enabled());
}

TEST_F(FromTheServer, aNewVersionIsToldWithABoxToLeaveItOut)
{
    open();
    newVersionIsThere();
    ASSERT_EQ(notices(), 1U);
    const Alert& notice = program.dialogs.questions.front();
    EXPECT_EQ(notice.messageText, u"Update available."_s);
    EXPECT_EQ(notice.informativeText,
              u"New version of application is available. Would you like to download it?"_s);
    EXPECT_EQ(notice.buttons, (QStringList{u"Update available."_s, u"Cancel"_s}));
    EXPECT_EQ(notice.alertStyle, 0);
    ASSERT_TRUE(notice.checkBox.has_value());
    EXPECT_TRUE(notice.checkBox->on);
    EXPECT_FALSE(notice.checkBox->title.isEmpty());
}

TEST_F(FromTheServer, theBoxIsKeptForTheNextStart)
{
    open();
    newVersionIsThere();
    const AlertCheckBox box = *program.dialogs.questions.front().checkBox;
    box.onToggled(false);
    EXPECT_FALSE(DefaultsStore(program.file(u"config/Zelvor.conf"_s)).showUpdateWindow());
    box.onToggled(true);
    EXPECT_TRUE(DefaultsStore(program.file(u"config/Zelvor.conf"_s)).showUpdateWindow());
}

TEST_F(FromTheServer, withTheNoticeLeftOutTheEntryStillShowsItWhenChosen)
{
    program.defaults.setShowUpdateWindow(false);
    open();
    newVersionIsThere();
    EXPECT_EQ(notices(), 0U);
    ASSERT_TRUE(main().updateMenuItem.userChanged());
    ASSERT_EQ(notices(), 1U);
    EXPECT_FALSE(program.dialogs.questions.front().checkBox->on);
}

TEST_F(FromTheServer, theFirstButtonOpensTheDownloadPageOfTheLanguage)
{
    open();
    program.dialogs.answers = {firstButton, firstButton, firstButton};
    {
        const InLocale english(QLocale::English, QLocale::UnitedKingdom);
        newVersionIsThere();
    }
    {
        const InLocale russian(QLocale::Russian, QLocale::Ukraine);
        newVersionIsThere();
    }
    {
        const InLocale ukrainian(QLocale::Ukrainian, QLocale::Ukraine);
        newVersionIsThere();
    }
    EXPECT_EQ(browser.urls, (QStringList{u"https://zelvor.example/zelvor/download/"_s,
                                         u"https://ru.zelvor.example/zelvor/download/"_s,
                                         u"https://zelvor.example/zelvor/download/"_s}));
}

TEST_F(FromTheServer, cancellingTheNoticeOpensNothing)
{
    open();
    program.dialogs.answers = {firstButton + 1};
    newVersionIsThere();
    EXPECT_TRUE(browser.urls.isEmpty());
    EXPECT_TRUE(main().updateMenuItem.enabled());
}

TEST_F(FromTheServer, theNoticeStandsOnceAtATime)
{
    open();
    newVersionIsThere();
    newVersionIsThere();
    EXPECT_TRUE(main().updateMenuItem.userChanged());
    EXPECT_EQ(notices(), 1U);
    program.dialogs.unanswered.front()(firstButton + 1);
    EXPECT_TRUE(main().updateMenuItem.userChanged());
    EXPECT_EQ(notices(), 2U);
}

TEST_F(FromTheServer, aNewVersionAfterTheProjectWasLeftOnlyEnablesTheEntry)
{
    open();
    shell.closeWindow();
    newVersionIsThere();
    EXPECT_EQ(notices(), 0U);
    EXPECT_TRUE(main().updateMenuItem.enabled());
}

TEST_F(FromTheServer, withoutAWindowTheDownloadPageIsNotOpened)
{
    open();
    main().window = nullptr;
    program.dialogs.answers = {firstButton};
    newVersionIsThere();
    EXPECT_EQ(notices(), 1U);
}

TEST_F(FromTheServer, anOverriddenPageIsTheOneThatOpens)
{
    ASSERT_TRUE(QDir().mkpath(program.file(u"config"_s)));
    QFile file(program.file(u"config/Settings.plist"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<plist><dict><key>domain_en</key><string>https://shop.here.example/</string></dict></plist>");
    file.close();
    const InLocale english(QLocale::English, QLocale::UnitedStates);
    open();
    main().showHelp();
    program.dialogs.answers = {firstButton};
    newVersionIsThere();
    EXPECT_EQ(browser.urls, (QStringList{u"https://shop.here.example/zelvor/docs/"_s,
                                         u"https://shop.here.example/zelvor/download/"_s}));
}

} // namespace zelvor
