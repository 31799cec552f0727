#include "desktop/page.h"
#include "desktop/quick_open.h"
#include "documents/product_document_view_controller.h"
#include "support/desktop_menu.h"
#include "support/desktop_program.h"

#include <gtest/gtest.h>

#include <QtCore/QSet>
#include <QtGui/QClipboard>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStackedWidget>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

class MenuBar : public testing::Test {
protected:
    MenuBar() { program.openNewProject(); }
    MainWindow& window() { return program.window(); }
    QAction* command(const QString& name) { return window().findChild<QAction*>(name); }
    void key(int keyCode, Qt::KeyboardModifiers modifiers = {})
    {
        QWidget* const focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : &window(), static_cast<Qt::Key>(keyCode), modifiers);
    }
    std::size_t tabs() { return program.workspace().tabView.header.tabs().size(); }
    int activeTab() { return program.workspace().tabView.header.activTab.value_or(-1); }
    void openThreeTabs()
    {
        for (const DocType type :
             {DocType::ProductCatalog, DocType::StockCatalog, DocType::MeasurementCatalog})
            program.workspace().topMenuAction(type);
    }

    DesktopProgram program;
};

TEST_F(MenuBar, hasAnEntryForEverythingInTheMenuTree)
{
    int entries = 0;
    for (const auto& group : program.desktop.shell.mainMenuController.sourceListItems) {
        for (const auto& item : group->children) {
            const QAction* const entry = command(docTypeCase(item->type));
            ASSERT_NE(entry, nullptr) << docTypeCase(item->type).toStdString();
            EXPECT_EQ(withoutMnemonic(entry->text()), item->title);
            EXPECT_FALSE(entry->icon().isNull());
            ++entries;
        }
    }
    EXPECT_EQ(entries, 43);
}

TEST_F(MenuBar, opensWhatIsChosenWithTheMouse)
{
    chooseFromMenu(window(), u"Catalogs"_s, u"StockCatalog"_s);
    ASSERT_NE(window().activePage(), nullptr);
    EXPECT_EQ(&window().activePage()->view(), program.workspace().openedView.front());
    chooseFromMenu(window(), u"Documents"_s, u"SellProduct"_s);
    EXPECT_EQ(tabs(), 2u);
}

TEST_F(MenuBar, saysInTheStateLineWhatIsNotReleased)
{
    chooseFromMenu(window(), u"Reports"_s, u"DynamicsReport"_s);
    EXPECT_EQ(tabs(), 0u);
    EXPECT_EQ(program.workspace().stateField.text(), u"Sorry this menu item not released yet!"_s);
}

TEST_F(MenuBar, givesNoLetterOfAMenuTwice)
{
    QList<QMenu*> menus = window().menuBar()->findChildren<QMenu*>();
    ASSERT_GE(menus.size(), 8);
    QList<QList<QAction*>> lists{window().menuBar()->actions()};
    for (const QMenu* menu : menus)
        lists.append(menu->actions());
    for (const QList<QAction*>& list : lists) {
        QSet<QString> letters;
        for (const QAction* action : list) {
            if (action->isSeparator() || action->text().isEmpty())
                continue;
            const QString letter = QKeySequence::mnemonic(action->text()).toString();
            EXPECT_FALSE(letter.isEmpty()) << action->text().toStdString();
            EXPECT_FALSE(letters.contains(letter)) << action->text().toStdString();
            letters.insert(letter);
        }
    }
}

TEST_F(MenuBar, isReachedByItsMnemonics)
{
    QTest::keyClick(&window(), Qt::Key_C, Qt::AltModifier); // Catalogs
    QMenu* const menu = menuOf(window(), u"Catalogs"_s);
    ASSERT_TRUE(QTest::qWaitFor([menu] { return menu->isVisible(); }));
    QTest::keyClick(menu, Qt::Key_W); // Warehouses
    EXPECT_EQ(tabs(), 1u);
}

TEST_F(MenuBar, closesTheTabInFront)
{
    openThreeTabs();
    key(Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(tabs(), 2u);
    chooseFromMenu(window(), u"File"_s, u"closeTab"_s);
    EXPECT_EQ(tabs(), 1u);
}

TEST_F(MenuBar, goesRoundTheTabs)
{
    openThreeTabs();
    key(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(activeTab(), 0);
    key(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(activeTab(), 1);
    key(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    key(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(activeTab(), 2);
    key(Qt::Key_1, Qt::AltModifier);
    EXPECT_EQ(activeTab(), 0);
    key(Qt::Key_3, Qt::AltModifier);
    EXPECT_EQ(activeTab(), 2);
}

TEST_F(MenuBar, offersForTheTabsTheirTitles)
{
    openThreeTabs();
    const QAction* const second = command(u"tab2"_s);
    EXPECT_TRUE(second->isVisible());
    EXPECT_TRUE(withoutMnemonic(second->text()).endsWith(program.workspace().tabView.header.tabs()[1].title));
    EXPECT_FALSE(command(u"tab4"_s)->isVisible());
}

TEST_F(MenuBar, offersOnlyWhatThePageInFrontCan)
{
    EXPECT_FALSE(command(u"print"_s)->isEnabled());
    EXPECT_FALSE(command(u"export"_s)->isEnabled());
    EXPECT_FALSE(command(u"save"_s)->isEnabled());
    EXPECT_FALSE(command(u"closeTab"_s)->isEnabled());
    openThreeTabs();
    const Page* const page = window().activePage();
    EXPECT_EQ(command(u"find"_s)->isEnabled(), page->can(PageCommand::Find));
    EXPECT_EQ(command(u"print"_s)->isEnabled(), page->can(PageCommand::Print));
    EXPECT_TRUE(command(u"closeTab"_s)->isEnabled());
}

namespace {

// A page whose abilities a test sets; it counts what it was told to do.
class CountingPage : public Page {
public:
    using Page::Page;
    bool can(PageCommand command) const override { return command == able; }
    void perform(PageCommand command) override { performed.push_back(command); }
    PageCommand able = PageCommand::Save;
    std::vector<PageCommand> performed;
};

} // namespace

// The abilities of a page change without a word to the menu bar: a draft was edited, a row selected.
TEST_F(MenuBar, asksThePageAtEachKeyWhatItCan)
{
    openThreeTabs();
    auto* const stack = window().findChild<QStackedWidget*>(u"pages"_s);
    auto* const page = new CountingPage(*program.workspace().openedView.back(), stack);
    stack->addWidget(page);
    stack->setCurrentWidget(page);
    page->setFocusPolicy(Qt::StrongFocus);
    page->setFocus();
    key(Qt::Key_S, Qt::ControlModifier);
    key(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(page->performed, std::vector{PageCommand::Save});
    page->able = PageCommand::Confirm;
    key(Qt::Key_Return, Qt::ControlModifier);
    key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(page->performed, (std::vector{PageCommand::Save, PageCommand::Confirm}));
    for (const auto& [able, keyCode, modifiers] :
         std::initializer_list<std::tuple<PageCommand, Qt::Key, Qt::KeyboardModifiers>>{
             {PageCommand::Find, Qt::Key_F, Qt::ControlModifier},
             {PageCommand::Edit, Qt::Key_F2, Qt::NoModifier},
             {PageCommand::Refresh, Qt::Key_F5, Qt::NoModifier},
             {PageCommand::Print, Qt::Key_P, Qt::ControlModifier}}) {
        page->able = able;
        key(keyCode, modifiers);
        EXPECT_EQ(page->performed.back(), able);
    }
}

TEST_F(MenuBar, editsTheFieldThatHasTheFocus)
{
    QLineEdit* const field = window().quickOpen();
    field->setFocus();
    field->setText(u"bicycle"_s);
    chooseFromMenu(window(), u"Edit"_s, u"selectAll"_s);
    EXPECT_EQ(field->selectedText(), u"bicycle"_s);
    chooseFromMenu(window(), u"Edit"_s, u"cut"_s);
    EXPECT_TRUE(field->text().isEmpty());
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"bicycle"_s);
    chooseFromMenu(window(), u"Edit"_s, u"paste"_s);
    chooseFromMenu(window(), u"Edit"_s, u"paste"_s);
    EXPECT_EQ(field->text(), u"bicyclebicycle"_s);
    chooseFromMenu(window(), u"Edit"_s, u"undo"_s);
    EXPECT_EQ(field->text(), u"bicycle"_s);
}

TEST_F(MenuBar, offersNoEditingWithoutAField)
{
    QPushButton* const sale = program.find<QPushButton>(u"startSale"_s);
    sale->setFocus();
    EXPECT_FALSE(command(u"paste"_s)->isEnabled());
    window().quickOpen()->setFocus();
    EXPECT_TRUE(command(u"paste"_s)->isEnabled());
}

TEST_F(MenuBar, changesTheAppearanceAtOnceAndRemembersIt)
{
    command(u"appearanceDark"_s)->trigger();
    EXPECT_TRUE(isDark(QApplication::palette()));
    EXPECT_EQ(program.settings.appearance(), Appearance::Dark);
    EXPECT_TRUE(command(u"appearanceDark"_s)->isChecked());
    command(u"appearanceLight"_s)->trigger();
    EXPECT_FALSE(isDark(QApplication::palette()));
    EXPECT_FALSE(command(u"appearanceDark"_s)->isChecked());
}

TEST_F(MenuBar, keepsTheLanguageForTheNextStartAndSaysSo)
{
    command(u"languageRussian"_s)->trigger();
    EXPECT_EQ(program.settings.language(), u"ru"_s);
    EXPECT_EQ(program.workspace().stateField.text(), u"The language changes at the next start."_s);
    command(u"languageSystem"_s)->trigger();
    EXPECT_TRUE(program.settings.language().isEmpty());
}

TEST_F(MenuBar, goesToTheFullScreenAndBack)
{
    key(Qt::Key_F11);
    EXPECT_TRUE(window().isFullScreen());
    key(Qt::Key_F11);
    EXPECT_FALSE(window().isFullScreen());
}

TEST_F(MenuBar, showsThePreferences)
{
    key(Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_TRUE(program.desktop.preferencesWindow.isVisible());
}

TEST_F(MenuBar, showsTheProjectsBesideTheOpenOne)
{
    chooseFromMenu(window(), u"File"_s, u"manageProjects"_s);
    EXPECT_TRUE(program.desktop.projectWindow.isVisible());
    EXPECT_TRUE(window().isVisible());
    program.desktop.projectWindow.close();
    EXPECT_FALSE(program.desktop.projectWindow.isVisible());
    EXPECT_TRUE(program.program.appDelegate.connector.isOpen());
}

TEST_F(MenuBar, closesTheProject)
{
    chooseFromMenu(window(), u"File"_s, u"closeProject"_s);
    EXPECT_FALSE(window().isVisible());
    EXPECT_TRUE(program.desktop.projectWindow.isVisible());
    EXPECT_FALSE(program.program.appDelegate.connector.isOpen());
}

TEST_F(MenuBar, createsAnotherProjectInPlaceOfTheOpenOne)
{
    program.program.dialogs.savePaths = {program.program.file(u"tea shop"_s)};
    chooseFromMenu(window(), u"File"_s, u"newProject"_s);
    EXPECT_EQ(program.program.appDelegate.connector.path(), program.program.file(u"tea_shop.pdb"_s));
    EXPECT_TRUE(program.desktop.preferencesWindow.isVisible());
    EXPECT_FALSE(window().isVisible());
}

TEST_F(MenuBar, asksToQuit)
{
    QSignalSpy quits(&window(), &MainWindow::quitRequested);
    key(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(quits.count(), 1);
}

TEST_F(MenuBar, tellsAboutTheProgram)
{
    QApplication::setApplicationVersion(u"1.2.3"_s);
    chooseFromMenu(window(), u"Help"_s, u"about"_s);
    auto* const about = program.find<QDialog>(u"aboutWindow"_s);
    ASSERT_NE(about, nullptr);
    EXPECT_EQ(about->findChild<QLabel*>(u"version"_s)->text(), u"Version 1.2.3"_s);
    QTest::keyClick(about, Qt::Key_Escape);
    EXPECT_EQ(program.find(u"aboutWindow"_s), nullptr);
}

} // namespace zelvor
