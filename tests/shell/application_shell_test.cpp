#include "shell/application_shell.h"

#include "core/currency_struct.h"
#include "shell/project_creation.h"
#include "support/test_project.h"

#include <gtest/gtest.h>

#include <QtCore/QFile>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

class Start : public testing::Test {
protected:
    // A project among the known ones, the one to open at the next start.
    void known(const QString& key, int currency = rawValue(CurrencyStruct::EUR))
    {
        const QString path = program.file(key + u".pdb"_s);
        ASSERT_TRUE(createProject(program.appDelegate.connector, path, currency));
        program.appDelegate.connector.close();
        program.defaults.setBusinesses({{key, path}});
        program.defaults.setDefaultBusiness(key);
    }
    bool projectWindowIsUp() const { return shell.startWindowController.window.isOpen(); }

    TestProgram program;
    ApplicationShell shell{program.appDelegate};
};

TEST_F(Start, theFirstOneShowsTheProjectWindow)
{
    shell.openLastProject();
    EXPECT_TRUE(projectWindowIsUp());
    EXPECT_FALSE(shell.window.isOpen());
}

TEST_F(Start, aDefaultProjectThatIsNotKnownShowsTheProjectWindow)
{
    program.defaults.setDefaultBusiness(u"gone"_s);
    shell.openLastProject();
    EXPECT_TRUE(projectWindowIsUp());
}

TEST_F(Start, aProjectFileThatWasMovedAwayShowsTheProjectWindowWithoutAWord)
{
    known(u"shop"_s);
    ASSERT_TRUE(QFile::remove(program.file(u"shop.pdb"_s)));
    shell.openLastProject();
    EXPECT_TRUE(projectWindowIsUp());
    EXPECT_TRUE(program.dialogs.alerts.empty());
    EXPECT_TRUE(program.dialogs.questions.empty());
}

TEST_F(Start, aNameWithUnderscoresIsTitledWithBlanks)
{
    known(u"my_little_shop"_s);
    shell.openLastProject();
    EXPECT_TRUE(shell.window.isOpen());
    EXPECT_FALSE(projectWindowIsUp());
    EXPECT_EQ(shell.windowTitle.text(), u"my little shop"_s);
}

TEST_F(Start, afterClosingTheMainWindowTheNextOneShowsTheProjectWindow)
{
    known(u"shop"_s);
    shell.openLastProject();
    shell.closeWindow();
    EXPECT_TRUE(projectWindowIsUp());
    EXPECT_FALSE(shell.window.isOpen());
    EXPECT_FALSE(program.appDelegate.connector.isOpen());
    shell.startWindowController.window.close();
    shell.openLastProject();
    EXPECT_TRUE(projectWindowIsUp());
}

TEST_F(Start, afterQuittingTheNextOneOpensTheProjectAgain)
{
    known(u"shop"_s);
    shell.openLastProject();
    shell.applicationWillTerminate();
    EXPECT_FALSE(program.appDelegate.connector.isOpen());
    shell.openLastProject();
    EXPECT_TRUE(shell.window.isOpen());
    EXPECT_TRUE(program.appDelegate.connector.isOpen());
}

TEST_F(Start, aProjectWithoutACurrencyGoesToThePreferences)
{
    known(u"shop"_s, 0);
    Connector& db = program.appDelegate.connector;
    ASSERT_TRUE(db.open(program.file(u"shop.pdb"_s)));
    Params params = *program.appDelegate.params();
    params.companyName = u"All else is set"_s;
    params.showCurrentBalance = true;
    ASSERT_EQ(db.update(params), 1);
    db.close();
    shell.openLastProject();
    EXPECT_FALSE(shell.window.isOpen());
    EXPECT_TRUE(shell.preferences.window.isOpen());
    EXPECT_TRUE(shell.preferences.initial);

    params.defaultCurrency = rawValue(CurrencyStruct::GBP);
    ASSERT_EQ(db.update(params), 1);
    shell.checkDefaultCurrency();
    EXPECT_TRUE(shell.window.isOpen());
}

TEST_F(Start, aMissingSettingsRowEndsQuietly)
{
    known(u"shop"_s);
    ASSERT_TRUE(program.appDelegate.connector.open(program.file(u"shop.pdb"_s)));
    const auto params = program.appDelegate.params();
    ASSERT_EQ(program.appDelegate.connector.remove(*params), 1);
    shell.checkDefaultCurrency();
    EXPECT_FALSE(shell.window.isOpen());
    EXPECT_FALSE(shell.preferences.window.isOpen());
    EXPECT_TRUE(program.dialogs.alerts.empty());
}

TEST_F(Start, aProjectMadeInTheProjectWindowGoesOnToThePreferences)
{
    shell.openLastProject();
    program.dialogs.savePaths.push_back(program.file(u"new"_s));
    shell.startWindowController.createNewBusiness();
    EXPECT_TRUE(shell.preferences.window.isOpen());
    EXPECT_FALSE(projectWindowIsUp());
}

TEST_F(Start, anOpenedProjectOffersToCloseTheLastMonth)
{
    known(u"shop"_s);
    program.dialogs.answers.push_back(firstButton);
    shell.openLastProject();
    ASSERT_EQ(program.dialogs.questions.size(), 1U);
    EXPECT_EQ(program.dialogs.questions.front().messageText, u"Need to close last month."_s);
    EXPECT_EQ(program.appDelegate.params()->lastPeriodSaved, shell.mainWindowController.getPeriodToSave());
}

} // namespace zelvor
