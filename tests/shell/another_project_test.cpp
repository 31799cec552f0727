#include "core/currency_struct.h"
#include "documents/product_document_view_controller.h"
#include "shell/application_shell.h"
#include "shell/project_creation.h"
#include "support/test_project.h"

#include <gtest/gtest.h>

#include <QtCore/QFile>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

// One project is open, and the window of the known ones is up beside it.
class AnotherProject : public testing::Test {
protected:
    AnotherProject()
    {
        make(u"first"_s);
        make(u"second"_s);
        program.defaults.setBusinesses({{u"first"_s, path(u"first"_s)},
                                        {u"second"_s, path(u"second"_s)},
                                        {u"third"_s, path(u"third"_s)}});
        program.defaults.setDefaultBusiness(u"first"_s);
        shell.openLastProject();
        program.dialogs.unanswered.clear(); // whether to close the month before
        program.dialogs.questions.clear();
        projects.showWindow();
    }
    QString path(const QString& name) { return program.file(name + u".pdb"_s); }
    void make(const QString& name)
    {
        ASSERT_TRUE(createProject(program.appDelegate.connector, path(name), rawValue(CurrencyStruct::EUR)));
        program.appDelegate.connector.close();
    }
    void open(int row)
    {
        projects.tableView.selectRow(row);
        projects.tableView.userChanged();
        projects.openButton.userChanged();
    }
    void startADocument()
    {
        shell.mainWindowController.topMenuAction(DocType::SellProduct);
        auto* const form = dynamic_cast<ProductDocumentViewController*>(
            shell.mainWindowController.tabView.activePage()->controller.get());
        form->mainView.comment.setText(u"for Mr Grey"_s);
        form->mainView.comment.userChanged();
    }
    QString openPath() const { return program.appDelegate.connector.path(); }

    TestProgram program;
    ApplicationShell shell{program.appDelegate};
    ProjectSelectWindowController& projects = shell.startWindowController;
};

TEST_F(AnotherProject, isOpenedInPlaceOfTheOneThatIs)
{
    open(1);
    EXPECT_EQ(openPath(), path(u"second"_s));
    EXPECT_EQ(shell.windowTitle.text(), u"second"_s);
    EXPECT_TRUE(shell.window.isOpen());
    EXPECT_FALSE(projects.window.isOpen());
}

TEST_F(AnotherProject, isNotOpenedWhileTheUserKeepsAnUnsavedDocument)
{
    startADocument();
    program.dialogs.answers = {firstButton + 2}; // cancel
    open(1);
    EXPECT_EQ(openPath(), path(u"first"_s));
    EXPECT_EQ(shell.mainWindowController.openedView.size(), 1u);
    EXPECT_TRUE(shell.window.isOpen());
}

TEST_F(AnotherProject, isOpenedWhenTheUnsavedDocumentIsDropped)
{
    startADocument();
    program.dialogs.answers = {firstButton + 1};
    open(1);
    EXPECT_EQ(openPath(), path(u"second"_s));
    EXPECT_TRUE(shell.mainWindowController.openedView.empty());
}

TEST_F(AnotherProject, whoseFileIsGoneLeavesTheOpenOneAlone)
{
    open(2);
    EXPECT_EQ(openPath(), path(u"first"_s));
    ASSERT_EQ(program.dialogs.questions.size(), 1u);
    EXPECT_EQ(program.dialogs.questions.back().messageText, u"Can't find project file!"_s);
    program.dialogs.unanswered.back()(firstButton);
    EXPECT_EQ(projects.businesses.size(), 2u);
    EXPECT_EQ(openPath(), path(u"first"_s));
}

TEST_F(AnotherProject, thatIsTheSameOneOnlyClosesTheWindow)
{
    startADocument();
    open(0);
    EXPECT_FALSE(projects.window.isOpen());
    EXPECT_EQ(shell.mainWindowController.openedView.size(), 1u);
    EXPECT_TRUE(program.dialogs.questions.empty());
}

TEST_F(AnotherProject, thatIsDamagedIsToldAndStaysInTheListToBeForgotten)
{
    QFile file(path(u"second"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no project");
    file.close();
    open(1);
    EXPECT_EQ(program.dialogs.lastAlert(), u"Can't open project file!"_s);
    EXPECT_TRUE(projects.window.isOpen());
    EXPECT_FALSE(shell.window.isOpen());
    projects.deleteButton.userChanged();
    EXPECT_EQ(projects.businesses.size(), 2u);
}

TEST_F(AnotherProject, isCreatedInPlaceOfTheOneThatIs)
{
    program.dialogs.savePaths = {program.file(u"brand new"_s)};
    projects.createNewBusiness();
    EXPECT_EQ(openPath(), path(u"brand_new"_s));
    EXPECT_TRUE(shell.preferences.initial);
    EXPECT_FALSE(shell.window.isOpen());
}

TEST_F(AnotherProject, thatIsForgottenLeavesTheOpenOneForTheNextStart)
{
    projects.tableView.selectRow(1);
    projects.deleteProject();
    EXPECT_EQ(program.defaults.defaultBusiness(), u"first"_s);
    shell.showDefaults();
    EXPECT_EQ(shell.preferences.windowTitle.text(), u"Parameters for first"_s);
    projects.tableView.selectRow(0);
    projects.deleteProject();
    EXPECT_FALSE(program.defaults.defaultBusiness());
}

TEST_F(AnotherProject, tellsWhoeverShowsTheListThatItWasReadAnew)
{
    int heard = 0;
    projects.onReload = [&heard] { ++heard; };
    projects.tableView.selectRow(2);
    projects.deleteProject();
    EXPECT_EQ(heard, 1);
}

} // namespace zelvor
