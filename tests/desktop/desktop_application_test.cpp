#include "desktop/menu_tree.h"
#include "documents/product_document_view_controller.h"
#include "support/desktop_program.h"

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QTimer>
#include <QtGui/QScreen>
#include <QtWidgets/QLineEdit>

#include <csignal>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

// --- what is remembered: two programs, one after the other, of one user

class TwoStarts : public testing::Test {
protected:
    TwoStarts()
    {
        EXPECT_TRUE(createProject(program.appDelegate.connector, program.file(u"shop.pdb"_s), 1));
        program.appDelegate.connector.close();
    }
    std::unique_ptr<DesktopApplication> start()
    {
        auto desktop = std::make_unique<DesktopApplication>(program.appDelegate, settings);
        desktop->start(program.file(u"shop.pdb"_s));
        desktop->mainWindow.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&desktop->mainWindow));
        return desktop;
    }
    static MenuTree& tree(DesktopApplication& desktop) { return *desktop.mainWindow.findChild<MenuTree*>(); }
    static void end(std::unique_ptr<DesktopApplication>& desktop)
    {
        desktop->shell.applicationWillTerminate();
        desktop.reset();
    }

    TestProgram program;
    DesktopSettings settings{program.file(u"config/Desktop.conf"_s)};
};

TEST_F(TwoStarts, haveTheWindowAtTheSamePlace)
{
    auto first = start();
    const QRect whole = first->mainWindow.geometry();
    const QRect place(whole.left(), whole.top() + 60, whole.width(), 650);
    ASSERT_NE(place, whole);
    first->mainWindow.setGeometry(place);
    end(first);
    const auto second = start();
    EXPECT_EQ(second->mainWindow.geometry(), place);
}

TEST_F(TwoStarts, bringAWindowBackOntoTheScreen)
{
    auto first = start();
    first->mainWindow.setGeometry(5000, 4000, 700, 500);
    end(first);
    const auto second = start();
    const QRect screen = second->mainWindow.screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(second->mainWindow.frameGeometry()));
}

TEST_F(TwoStarts, rememberThatTheWindowFilledTheScreen)
{
    auto first = start();
    first->mainWindow.showMaximized();
    end(first);
    EXPECT_TRUE(start()->mainWindow.isMaximized());
}

TEST_F(TwoStarts, rememberTheLeftPane)
{
    auto first = start();
    QTest::keyClick(&first->mainWindow, Qt::Key_F9);
    tree(*first).itemOf(DocType::Reports)->setExpanded(false);
    end(first);
    auto second = start();
    EXPECT_FALSE(tree(*second).isVisible());
    EXPECT_TRUE(second->shell.mainWindowController.toggleLeftViewButton.isOn());
    EXPECT_FALSE(tree(*second).itemOf(DocType::Reports)->isExpanded());
    QTest::keyClick(&second->mainWindow, Qt::Key_F9);
    end(second);
    EXPECT_TRUE(tree(*start()).isVisible());
}

// --- ending

// A sale that was begun and not saved.
static void startADocument(DesktopProgram& program)
{
    program.workspace().topMenuAction(DocType::SellProduct);
    const auto form = std::dynamic_pointer_cast<ProductDocumentViewController>(
        program.workspace().tabView.activePage()->controller);
    form->mainView.comment.setText(u"for Mr Grey"_s);
    form->mainView.comment.userChanged();
}

TEST(Ending, ofTheSessionWaitsForNothingWhileAllIsSaved)
{
    DesktopProgram program;
    program.openNewProject();
    EXPECT_TRUE(program.desktop.sessionEnds(true));
    EXPECT_TRUE(program.desktop.sessionEnds(false));
    EXPECT_TRUE(program.program.dialogs.questions.empty());
}

TEST(Ending, ofTheSessionIsHeldUpByAnUnsavedDocumentWhenItMayAsk)
{
    DesktopProgram program;
    program.openNewProject();
    startADocument(program);
    EXPECT_TRUE(program.desktop.sessionEnds(false));
    EXPECT_FALSE(program.desktop.sessionEnds(true));
    EXPECT_EQ(program.program.dialogs.questions.size(), 1u);
}

// The event loop until the program ends it; 7 when it does not.
static int run(const std::function<void()>& begin)
{
    QTimer overdue;
    QObject::connect(&overdue, &QTimer::timeout, [] { QApplication::exit(7); });
    overdue.start(5000);
    QTimer::singleShot(0, &overdue, begin);
    return QApplication::exec();
}

TEST(Ending, isWhatClosingTheLastWindowMeans)
{
    DesktopProgram program;
    program.desktop.start({});
    EXPECT_EQ(run([&] { program.desktop.projectWindow.close(); }), 0);
    EXPECT_FALSE(program.desktop.projectWindow.isVisible());
}

TEST(Ending, isWhatQuitMeansWithAProjectThatComesUpAtTheNextStart)
{
    DesktopProgram program;
    program.openNewProject();
    EXPECT_EQ(run([&] { QTest::keyClick(&program.window(), Qt::Key_Q, Qt::ControlModifier); }), 0);
    EXPECT_EQ(program.program.defaults.defaultBusiness(), u"shop"_s);
}

TEST(Ending, waitsForTheAnswerAboutAnUnsavedDocument)
{
    DesktopProgram program;
    program.openNewProject();
    startADocument(program);
    program.program.dialogs.answers = {firstButton + 2}; // cancel
    program.desktop.quit();
    EXPECT_TRUE(program.window().isVisible());
    EXPECT_EQ(run([&] {
                  program.program.dialogs.answers = {firstButton + 1};
                  program.desktop.quit();
              }),
              0);
}

TEST(Failure, ofACommitIsTold)
{
    DesktopProgram program;
    program.openNewProject();
    program.program.appDelegate.connector.onCommitFailed(u"disk full"_s);
    EXPECT_EQ(program.program.dialogs.lastAlert(), u"The changes were not saved!"_s);
}

// --- the program itself

class RealProgram : public testing::Test {
protected:
    RealProgram()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_CONFIG_HOME"_s, program.file(u"xdg"_s));
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.setProgram(QStringLiteral(ZELVOR_PROGRAM));
    }
    ~RealProgram() override
    {
        process.kill();
        process.waitForFinished();
    }
    bool start(const QStringList& arguments)
    {
        process.setArguments(arguments);
        process.start();
        return process.waitForStarted();
    }
    // A look at the lock, which must not take it: the program may want it just now.
    static bool isHeld(const QString& path) { return QFile::exists(path + u".lock"_s); }
    QString newProject(int currency)
    {
        const QString path = program.file(u"corner_shop.pdb"_s);
        EXPECT_TRUE(createProject(program.appDelegate.connector, path, currency));
        program.appDelegate.connector.close();
        return path;
    }
    bool becomesHeld(const QString& path)
    {
        return QTest::qWaitFor([&] { return isHeld(path); }, 20'000);
    }

    TestProgram program;
    QProcess process;
};

TEST_F(RealProgram, takesOneFileAtMostAndNoOption)
{
    for (const QStringList& arguments :
         {QStringList{u"--help"_s}, QStringList{u"-x"_s}, QStringList{u"a.pdb"_s, u"b.pdb"_s}}) {
        ASSERT_TRUE(start(arguments));
        ASSERT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process.exitCode(), 2);
        EXPECT_TRUE(process.readAll().contains("zelvor:"));
    }
    EXPECT_FALSE(QDir(program.file(u"xdg"_s)).exists());
}

class Signalled : public RealProgram, public testing::WithParamInterface<std::tuple<int, int>> {};

// With currency 0 the preferences are up, with 1 the main window, and over it the question whether the month
// is to be closed.
TEST_P(Signalled, endsInOrderAndOpensTheSameProjectNextTime)
{
    const auto [signal, currency] = GetParam();
    const QString path = newProject(currency);
    ASSERT_TRUE(start({path}));
    ASSERT_TRUE(becomesHeld(path)) << process.readAll().toStdString();
    QTest::qWait(300); // the windows come up
    ASSERT_EQ(::kill(static_cast<pid_t>(process.processId()), signal), 0);
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 0);
    EXPECT_FALSE(isHeld(path));
    EXPECT_TRUE(program.appDelegate.connector.open(path));
    program.appDelegate.connector.close();
    const DefaultsStore defaults(program.file(u"xdg/Zelvor/Zelvor.conf"_s));
    EXPECT_EQ(defaults.defaultBusiness(), u"corner_shop"_s);

    ASSERT_TRUE(start({}));
    EXPECT_TRUE(becomesHeld(path));
    ASSERT_EQ(::kill(static_cast<pid_t>(process.processId()), signal), 0);
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0);
}

INSTANTIATE_TEST_SUITE_P(Ways, Signalled,
                         testing::Values(std::tuple(SIGTERM, 1), std::tuple(SIGTERM, 0),
                                         std::tuple(SIGINT, 1), std::tuple(SIGHUP, 1)));

} // namespace zelvor
