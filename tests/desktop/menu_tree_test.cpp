#include "desktop/menu_tree.h"

#include "desktop/page.h"
#include "support/desktop_program.h"

#include <gtest/gtest.h>

#include <QtGui/QContextMenuEvent>
#include <QtWidgets/QMenu>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

class Tree : public testing::Test {
protected:
    Tree() { program.openNewProject(); }
    MenuTree& tree() { return *program.window().findChild<MenuTree*>(u"menuTree"_s); }
    void click(DocType type)
    {
        QTreeWidgetItem* const item = tree().itemOf(type);
        ASSERT_NE(item, nullptr);
        tree().scrollToItem(item);
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, tree().visualItemRect(item).center());
    }
    void press(Qt::Key key) { QTest::keyClick(&tree(), key); }
    std::size_t tabs() { return program.workspace().tabView.header.tabs().size(); }
    void chooseInContextMenu(const QString& text)
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(30, 30),
                                tree().viewport()->mapToGlobal(QPoint(30, 30)));
        QApplication::sendEvent(tree().viewport(), &event);
        auto* const menu = tree().findChild<QMenu*>();
        ASSERT_NE(menu, nullptr);
        for (QAction* const action : menu->actions()) {
            if (action->text() == text)
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
        }
        QCoreApplication::sendPostedEvents(menu, QEvent::DeferredDelete);
    }

    DesktopProgram program;
};

TEST_F(Tree, showsTheGroupsWithTheirEntriesAndAnIconForEach)
{
    EXPECT_EQ(tree().topLevelItemCount(), 6);
    int rows = 0;
    for (QTreeWidgetItemIterator item(&tree()); *item; ++item) {
        EXPECT_FALSE((*item)->text(0).isEmpty());
        EXPECT_FALSE((*item)->icon(0).isNull()) << (*item)->text(0).toStdString();
        ++rows;
    }
    EXPECT_EQ(rows, 49);
    EXPECT_TRUE(tree().topLevelItem(0)->font(0).bold());
    EXPECT_FALSE(tree().topLevelItem(0)->child(0)->font(0).bold());
}

TEST_F(Tree, opensWhatIsClickedOnce)
{
    click(DocType::ProductCatalog);
    ASSERT_NE(program.window().activePage(), nullptr);
    EXPECT_EQ(program.window().activePage()->view().name(), u"Products Catalog"_s);
    click(DocType::SellProduct);
    EXPECT_EQ(tabs(), 2u);
}

TEST_F(Tree, opensNothingForAGroupButClosesIt)
{
    QTreeWidgetItem* const money = tree().itemOf(DocType::Money);
    click(DocType::Money);
    EXPECT_FALSE(money->isExpanded());
    click(DocType::Money);
    EXPECT_TRUE(money->isExpanded());
    EXPECT_EQ(tabs(), 0u);
    EXPECT_TRUE(program.workspace().stateField.text().isEmpty());
}

TEST_F(Tree, isUsedByKeysAlone)
{
    tree().setFocus();
    tree().setCurrentItem(tree().itemOf(DocType::Money));
    press(Qt::Key_Left);
    EXPECT_FALSE(tree().itemOf(DocType::Money)->isExpanded());
    press(Qt::Key_Down);
    EXPECT_EQ(tree().currentItem(), tree().itemOf(DocType::Products));
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(tabs(), 1u); // a purchase
    tree().setFocus();
    tree().setCurrentItem(tree().itemOf(DocType::Money));
    press(Qt::Key_Return);
    EXPECT_TRUE(tree().itemOf(DocType::Money)->isExpanded());
    EXPECT_EQ(tabs(), 1u);
}

TEST_F(Tree, opensAndClosesAllItsGroupsFromItsOwnMenu)
{
    chooseInContextMenu(u"Collapse All"_s);
    for (int group = 0; group < 6; ++group)
        EXPECT_FALSE(tree().topLevelItem(group)->isExpanded());
    chooseInContextMenu(u"Expand All"_s);
    for (int group = 0; group < 6; ++group)
        EXPECT_TRUE(tree().topLevelItem(group)->isExpanded());
}

TEST_F(Tree, keepsTheClosedGroupsForTheNextTimeAProjectIsOpened)
{
    click(DocType::Reports);
    program.desktop.shell.closeWindow();
    program.desktop.start(program.program.file(u"shop.pdb"_s));
    EXPECT_FALSE(tree().itemOf(DocType::Reports)->isExpanded());
    EXPECT_TRUE(tree().itemOf(DocType::Money)->isExpanded());
}

} // namespace zelvor
