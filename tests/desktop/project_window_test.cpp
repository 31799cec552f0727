#include "desktop/theme.h"
#include "support/desktop_program.h"

#include <gtest/gtest.h>

#include <QtCore/QFile>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableWidget>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

class Projects : public testing::Test {
protected:
    void make(const QString& name)
    {
        ASSERT_TRUE(createProject(connector(), path(name), 1));
        connector().close();
        know(name);
    }
    void know(const QString& name)
    {
        auto known = program.program.defaults.businesses();
        known.insert(name, path(name));
        program.program.defaults.setBusinesses(known);
    }
    void start()
    {
        program.desktop.start({});
        program.activate(window());
    }
    QString path(const QString& name) { return program.program.file(name + u".pdb"_s); }
    Connector& connector() { return program.program.appDelegate.connector; }
    ProjectWindow& window() { return program.desktop.projectWindow; }
    QTableWidget& table() { return *window().findChild<QTableWidget*>(u"tableView"_s); }
    QPushButton& button(const QString& name) { return *window().findChild<QPushButton*>(name); }
    void clickRow(int row)
    {
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {},
                          table().visualItemRect(table().item(row, 0)).center());
    }
    void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    const ScriptedDialogs& dialogs() { return program.program.dialogs; }

    DesktopProgram program;
};

TEST_F(Projects, windowSaysWhatToDoWhileThereIsNone)
{
    start();
    EXPECT_EQ(window().windowTitle(), u"Project Management"_s);
    EXPECT_TRUE(window().findChild<QLabel*>(u"emptyNote"_s)->isVisible());
    EXPECT_FALSE(table().isVisible());
    EXPECT_TRUE(button(u"createNewBusiness"_s).hasFocus());
}

TEST_F(Projects, areListedByNameWithTheirFiles)
{
    make(u"tea_shop"_s);
    make(u"bakery"_s);
    start();
    ASSERT_EQ(table().rowCount(), 2);
    EXPECT_EQ(table().item(0, 0)->text(), u"bakery"_s);
    EXPECT_EQ(table().item(1, 0)->text(), u"tea shop"_s);
    EXPECT_EQ(table().item(1, 1)->text(), path(u"tea_shop"_s));
    EXPECT_FALSE(button(u"openButton"_s).isEnabled());
    EXPECT_FALSE(button(u"deleteButton"_s).isEnabled());
}

TEST_F(Projects, whoseFileIsGoneAreMarkedByWordAndColour)
{
    know(u"gone"_s);
    start();
    EXPECT_EQ(table().item(0, 1)->text(), u"Missing: "_s + path(u"gone"_s));
    EXPECT_EQ(table().item(0, 1)->foreground().color(), textColor(redColor, window().palette()));
}

TEST_F(Projects, areOpenedByADoubleClick)
{
    make(u"bakery"_s);
    start();
    clickRow(0);
    EXPECT_TRUE(button(u"openButton"_s).isEnabled());
    QTest::mouseDClick(table().viewport(), Qt::LeftButton, {},
                       table().visualItemRect(table().item(0, 0)).center());
    EXPECT_FALSE(window().isVisible());
    EXPECT_TRUE(program.window().isVisible());
    EXPECT_EQ(connector().path(), path(u"bakery"_s));
}

TEST_F(Projects, areOpenedByKeys)
{
    make(u"bakery"_s);
    make(u"tea_shop"_s);
    start();
    EXPECT_TRUE(table().hasFocus());
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(connector().path(), path(u"tea_shop"_s));
    EXPECT_TRUE(program.window().isVisible());
}

TEST_F(Projects, areForgottenAndTheirFilesStay)
{
    make(u"bakery"_s);
    make(u"tea_shop"_s);
    start();
    clickRow(0);
    program.click(u"deleteButton"_s);
    ASSERT_EQ(table().rowCount(), 1);
    EXPECT_EQ(table().item(0, 0)->text(), u"tea shop"_s);
    EXPECT_FALSE(button(u"deleteButton"_s).isEnabled());
    EXPECT_TRUE(QFile::exists(path(u"bakery"_s)));
}

TEST_F(Projects, thatAreMissingCanBeTakenOffTheListWhenAsked)
{
    know(u"gone"_s);
    start();
    clickRow(0);
    program.program.dialogs.answers = {firstButton};
    program.click(u"openButton"_s);
    ASSERT_EQ(dialogs().questions.size(), 1u);
    EXPECT_EQ(dialogs().questions.back().messageText, u"Can't find project file!"_s);
    EXPECT_TRUE(window().isVisible());
    EXPECT_TRUE(window().findChild<QLabel*>(u"emptyNote"_s)->isVisible());
}

TEST_F(Projects, thatAreDamagedGiveAMessageAndTheWindowStays)
{
    make(u"bakery"_s);
    make(u"tea_shop"_s);
    QFile file(path(u"bakery"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("flour and water");
    file.close();
    start();
    clickRow(0);
    program.click(u"openButton"_s);
    EXPECT_EQ(dialogs().lastAlert(), u"Can't open project file!"_s);
    EXPECT_FALSE(dialogs().alerts.back().informativeText.isEmpty());
    EXPECT_TRUE(window().isVisible());
    clickRow(1);
    program.click(u"openButton"_s);
    EXPECT_TRUE(program.window().isVisible());
}

TEST_F(Projects, thatAnotherProgramHoldsAreLeftOrOpenedForReading)
{
    make(u"bakery"_s);
    Connector other;
    ASSERT_TRUE(other.open(path(u"bakery"_s)));
    start();
    clickRow(0);
    program.program.dialogs.answers = {firstButton + 1, firstButton};
    program.click(u"openButton"_s);
    EXPECT_TRUE(window().isVisible());
    EXPECT_FALSE(connector().isOpen());
    program.click(u"openButton"_s);
    EXPECT_TRUE(program.window().isVisible());
    EXPECT_TRUE(connector().isReadOnly());
    other.close();
}

TEST_F(Projects, areCreatedAndSetUpThroughTheWindows)
{
    start();
    program.program.dialogs.savePaths = {program.program.file(u"my new shop"_s)};
    program.click(u"createNewBusiness"_s);
    EXPECT_FALSE(window().isVisible());
    EXPECT_TRUE(program.desktop.preferencesWindow.isVisible());
    EXPECT_FALSE(program.window().isVisible());
    EXPECT_TRUE(QFile::exists(path(u"my_new_shop"_s)));
    program.activate(program.desktop.preferencesWindow);
    auto* const currency = program.find<QComboBox>(u"currencySelect"_s);
    ASSERT_NE(currency, nullptr);
    EXPECT_TRUE(currency->hasFocus());
    QTest::keyClick(currency, Qt::Key_Down); // EUR
    program.click(u"applyButton"_s);
    program.click(u"closeWindow"_s);
    EXPECT_FALSE(program.desktop.preferencesWindow.isVisible());
    EXPECT_TRUE(program.window().isVisible());
    EXPECT_EQ(program.window().windowTitle(), u"my new shop"_s);
    EXPECT_EQ(program.program.appDelegate.params()->defaultCurrency, 1);
}

TEST_F(Projects, thatLieSomewhereElseAreAddedToTheList)
{
    make(u"bakery"_s);
    program.program.defaults.setBusinesses({});
    start();
    program.program.dialogs.openPaths = {path(u"bakery"_s)};
    program.click(u"openExistingProject"_s);
    EXPECT_TRUE(program.window().isVisible());
    EXPECT_EQ(program.program.defaults.businesses().value(u"bakery"_s), path(u"bakery"_s));
}

TEST_F(Projects, stayWhenAFilePanelIsCancelled)
{
    start();
    program.click(u"createNewBusiness"_s);
    program.click(u"openExistingProject"_s);
    EXPECT_TRUE(window().isVisible());
    EXPECT_TRUE(dialogs().alerts.empty());
}

TEST_F(Projects, areNeverOverwritten)
{
    make(u"bakery"_s);
    start();
    const qint64 size = QFile(path(u"bakery"_s)).size();
    program.program.dialogs.savePaths = {path(u"bakery"_s)};
    program.click(u"createNewBusiness"_s);
    EXPECT_EQ(dialogs().alerts.size(), 1u);
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(QFile(path(u"bakery"_s)).size(), size);
}

} // namespace zelvor
