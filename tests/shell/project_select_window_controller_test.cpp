#include "shell/project_select_window_controller.h"

#include "core/currency_struct.h"
#include "shell/project_creation.h"
#include "support/test_project.h"

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

// The window of known projects, with a folder of its own.
class ProjectWindow : public testing::Test {
protected:
    ProjectWindow()
    {
        window.onProjectOpened = [this] { ++opened; };
        window.showWindow();
    }
    QStringList names() const
    {
        QStringList list;
        for (const Business& business : window.businesses)
            list += business.name;
        return list;
    }
    // A project that the list does not know.
    QString existing(const QString& name)
    {
        const QString path = program.file(name);
        EXPECT_TRUE(createProject(program.appDelegate.connector, path));
        program.appDelegate.connector.close();
        return path;
    }
    void add(const QString& path)
    {
        program.dialogs.openPaths.push_back(path);
        window.openExistingProject();
    }
    bool select(int row)
    {
        window.tableView.selectRow(row);
        return window.tableView.userChanged();
    }

    TestProgram program;
    ProjectSelectWindowController window{program.appDelegate};
    int opened = 0;
};

TEST_F(ProjectWindow, isTitledAndStartsWithoutASelection)
{
    EXPECT_EQ(window.windowTitle.text(), u"Project Management"_s);
    EXPECT_TRUE(window.window.isOpen());
    EXPECT_FALSE(window.openButton.enabled());
    EXPECT_FALSE(window.deleteButton.enabled());
}

TEST_F(ProjectWindow, aNameWithBlanksGivesUnderscoresInFileAndKeyAndBlanksInTheList)
{
    program.dialogs.savePaths.push_back(program.file(u"My Little Shop"_s));
    window.createNewBusiness();
    EXPECT_TRUE(QFile::exists(program.file(u"My_Little_Shop.pdb"_s)));
    EXPECT_EQ(program.defaults.businesses().value(u"My_Little_Shop"_s),
              program.file(u"My_Little_Shop.pdb"_s));
    EXPECT_EQ(program.defaults.defaultBusiness(), u"My_Little_Shop"_s);
    EXPECT_EQ(names(), QStringList{u"My Little Shop"_s});
    EXPECT_EQ(opened, 1);
    EXPECT_FALSE(window.window.isOpen());
    ASSERT_EQ(program.dialogs.savePanels.size(), 1U);
    EXPECT_EQ(program.dialogs.savePanels.front().title, u"Creating new Business"_s);
}

TEST_F(ProjectWindow, theTypedNameWinsOverWhatThePanelAdded)
{
    program.dialogs.savePaths.push_back(program.file(u"shop.pdb"_s));
    window.createNewBusiness();
    EXPECT_TRUE(QFile::exists(program.file(u"shop.pdb"_s)));
    EXPECT_FALSE(QFile::exists(program.file(u"shop.pdb.pdb"_s)));
}

TEST_F(ProjectWindow, aCancelledPanelChangesNothing)
{
    window.createNewBusiness();
    window.openExistingProject();
    EXPECT_TRUE(names().isEmpty());
    EXPECT_EQ(opened, 0);
}

TEST_F(ProjectWindow, aProjectThatCannotBeMadeIsNotListed)
{
    program.dialogs.savePaths.push_back(program.file(u"nowhere/shop"_s));
    window.createNewBusiness();
    EXPECT_TRUE(names().isEmpty());
    EXPECT_TRUE(program.defaults.businesses().isEmpty());
    EXPECT_EQ(opened, 0);
}

TEST_F(ProjectWindow, aNameWithADotKeepsAllButItsLastPart)
{
    add(existing(u"a.b.pdb"_s));
    EXPECT_EQ(names(), QStringList{u"a.b"_s});
    EXPECT_EQ(program.defaults.defaultBusiness(), u"a.b"_s);
}

TEST_F(ProjectWindow, aPathWithBlanksAndOtherLettersIsStoredAndOpenedAsItIs)
{
    QDir().mkpath(program.file(u"b\u00FCcher und mehr %20"_s));
    const QString path = existing(u"b\u00FCcher und mehr %20/l\u00E4den.pdb"_s);
    add(path);
    EXPECT_EQ(program.defaults.businesses().value(u"l\u00E4den"_s), path);
    program.appDelegate.connector.close();
    ASSERT_TRUE(select(0));
    window.openProject();
    EXPECT_EQ(opened, 2);
}

TEST_F(ProjectWindow, aFileWithBlanksInItsNameCanBeOpenedAgainAndForgotten)
{
    add(existing(u"my shop.pdb"_s));
    EXPECT_EQ(names(), QStringList{u"my shop"_s});
    EXPECT_EQ(program.defaults.defaultBusiness(), u"my_shop"_s);
    program.appDelegate.connector.close();
    ASSERT_TRUE(select(0));
    window.openProject();
    EXPECT_EQ(opened, 2);
    program.appDelegate.connector.close();
    ASSERT_TRUE(select(0));
    window.deleteProject();
    EXPECT_TRUE(names().isEmpty());
}

TEST_F(ProjectWindow, forgettingAProjectAsksNothingAndForgetsWhichOneToOpen)
{
    add(existing(u"first.pdb"_s));
    add(existing(u"second.pdb"_s));
    program.appDelegate.connector.close();
    ASSERT_TRUE(select(0));
    window.deleteProject();
    EXPECT_EQ(names(), QStringList{u"second"_s});
    EXPECT_FALSE(program.defaults.defaultBusiness());
    EXPECT_TRUE(program.dialogs.questions.empty());
    EXPECT_FALSE(window.openButton.enabled());
}

TEST_F(ProjectWindow, twoProjectsOfOneNameShareAnEntry)
{
    QDir().mkpath(program.file(u"other"_s));
    add(existing(u"shop.pdb"_s));
    const QString second = existing(u"other/shop.pdb"_s);
    add(second);
    EXPECT_EQ(names(), QStringList{u"shop"_s});
    EXPECT_EQ(program.defaults.businesses().value(u"shop"_s), second);
}

TEST_F(ProjectWindow, namesStandInTheOrderOfPlainText)
{
    for (const QString& name : {u"b.pdb"_s, u"B.pdb"_s, u"a.pdb"_s})
        add(existing(name));
    EXPECT_EQ(names(), (QStringList{u"B"_s, u"a"_s, u"b"_s}));
}

TEST_F(ProjectWindow, aForgottenProjectKeepsItsFileAndCanBeAddedAgain)
{
    const QString path = existing(u"shop.pdb"_s);
    add(path);
    program.appDelegate.connector.close();
    ASSERT_TRUE(select(0));
    EXPECT_TRUE(window.deleteButton.userChanged());
    EXPECT_TRUE(names().isEmpty());
    EXPECT_TRUE(program.defaults.businesses().isEmpty());
    EXPECT_FALSE(program.defaults.defaultBusiness());
    EXPECT_TRUE(QFile::exists(path));
    add(path);
    EXPECT_EQ(names(), QStringList{u"shop"_s});
}

TEST_F(ProjectWindow, forgettingNeedsASelection)
{
    add(existing(u"shop.pdb"_s));
    window.deleteProject();
    EXPECT_EQ(names().size(), 1);
}

TEST_F(ProjectWindow, aProjectWhoseFileIsGoneIsOfferedForForgetting)
{
    const QString path = existing(u"my_shop.pdb"_s);
    add(path);
    program.appDelegate.connector.close();
    ASSERT_TRUE(QFile::remove(path));
    ASSERT_TRUE(select(0));
    window.openProject();
    ASSERT_EQ(program.dialogs.questions.size(), 1U);
    EXPECT_EQ(program.dialogs.questions.front().messageText, u"Can't find project file!"_s);
    EXPECT_EQ(program.dialogs.questions.front().informativeText,
              u"Project my shop is not found at specified path. Do you wish to delete useless line?"_s);
    EXPECT_EQ(program.dialogs.questions.front().buttons, (QStringList{u"Delete"_s, u"Cancel"_s}));
    EXPECT_EQ(names().size(), 1);
    program.dialogs.answers.push_back(firstButton + 1);
    window.openProject();
    EXPECT_EQ(names().size(), 1);
    program.dialogs.answers.push_back(firstButton);
    window.openProject();
    EXPECT_TRUE(names().isEmpty());
    EXPECT_EQ(opened, 1);
}

TEST_F(ProjectWindow, openingAKnownProjectMakesItTheOneOfTheNextStart)
{
    add(existing(u"first.pdb"_s));
    add(existing(u"my_second.pdb"_s));
    program.appDelegate.connector.close();
    ASSERT_TRUE(select(0));
    EXPECT_TRUE(window.openButton.userChanged());
    EXPECT_EQ(program.defaults.defaultBusiness(), u"first"_s);
    EXPECT_EQ(opened, 3);
    EXPECT_TRUE(program.appDelegate.connector.isOpen());
}

TEST_F(ProjectWindow, whatIsNoProjectIsNotListed)
{
    QFile file(program.file(u"text.pdb"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no project");
    file.close();
    add(file.fileName());
    EXPECT_TRUE(names().isEmpty());
    EXPECT_EQ(opened, 0);
}

TEST_F(ProjectWindow, aProjectThatCannotBeMadeOrOpenedIsReported)
{
    program.dialogs.savePaths.push_back(program.file(u"nowhere/shop"_s));
    window.createNewBusiness();
    EXPECT_EQ(program.dialogs.lastAlert(), u"Can't open project file!"_s);
    add(program.file(u"missing.pdb"_s));
    EXPECT_EQ(program.dialogs.alerts.size(), 2U);
    EXPECT_EQ(program.dialogs.lastAlert(), u"Can't open project file!"_s);
    EXPECT_TRUE(window.window.isOpen());
}

TEST_F(ProjectWindow, aProjectInUseCanBeOpenedForReading)
{
    const QString path = existing(u"shop.pdb"_s);
    Connector other;
    ASSERT_TRUE(other.open(path));
    program.dialogs.answers.push_back(firstButton);
    add(path);
    ASSERT_EQ(program.dialogs.questions.size(), 1U);
    const Alert& question = program.dialogs.questions.front();
    EXPECT_EQ(question.messageText, u"The project is in use by another program."_s);
    EXPECT_TRUE(question.informativeText.contains(u"in use by"_s));
    EXPECT_EQ(question.buttons, (QStringList{u"Open Read-Only"_s, u"Cancel"_s}));
    EXPECT_EQ(opened, 1);
    EXPECT_TRUE(program.appDelegate.connector.isReadOnly());
    EXPECT_EQ(program.defaults.defaultBusiness(), u"shop"_s);
    EXPECT_EQ(names(), QStringList{u"shop"_s});
    EXPECT_FALSE(window.window.isOpen());
}

TEST_F(ProjectWindow, aProjectInUseCanBeLeftAlone)
{
    const QString path = existing(u"shop.pdb"_s);
    Connector other;
    ASSERT_TRUE(other.open(path));
    program.dialogs.answers.push_back(firstButton + 1);
    add(path);
    EXPECT_EQ(opened, 0);
    EXPECT_FALSE(program.appDelegate.connector.isOpen());
    EXPECT_TRUE(names().isEmpty());
    EXPECT_TRUE(program.dialogs.alerts.empty());
    EXPECT_TRUE(window.window.isOpen());
}

TEST_F(ProjectWindow, aKnownProjectInUseIsAskedForInTheSameWay)
{
    const QString path = existing(u"my_shop.pdb"_s);
    add(path);
    program.appDelegate.connector.close();
    Connector other;
    ASSERT_TRUE(other.open(path));
    ASSERT_TRUE(select(0));
    program.dialogs.answers = {firstButton + 1, firstButton};
    window.openProject();
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(names().size(), 1);
    window.openProject();
    EXPECT_EQ(opened, 2);
    EXPECT_TRUE(program.appDelegate.connector.isReadOnly());
    EXPECT_EQ(program.defaults.defaultBusiness(), u"my_shop"_s);
    EXPECT_EQ(program.dialogs.questions.size(), 2U);
}

TEST_F(ProjectWindow, aProjectThatVanishedWhileTheQuestionStoodIsReported)
{
    const QString path = existing(u"shop.pdb"_s);
    Connector other;
    ASSERT_TRUE(other.open(path));
    add(path);
    ASSERT_EQ(program.dialogs.unanswered.size(), 1U);
    other.close();
    ASSERT_TRUE(QFile::remove(path));
    program.dialogs.unanswered.front()(firstButton);
    EXPECT_EQ(program.dialogs.lastAlert(), u"Can't open project file!"_s);
    EXPECT_EQ(opened, 0);
}

} // namespace zelvor
