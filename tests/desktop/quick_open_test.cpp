#include "desktop/quick_open.h"

#include "catalogs/measurement_view_controller.h"
#include "catalogs/stock_view_controller.h"
#include "desktop/page.h"
#include "support/desktop_program.h"

#include <gtest/gtest.h>

#include <QtWidgets/QTreeWidget>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

class FindAnything : public testing::Test {
protected:
    FindAnything()
    {
        program.openNewProject();
        QTest::keyClick(&program.window(), Qt::Key_K, Qt::ControlModifier);
    }
    QuickOpen* field() { return program.window().quickOpen(); }
    QTreeWidget* list() { return program.window().findChild<QTreeWidget*>(u"quickOpenList"_s); }
    QStringList found()
    {
        QStringList titles;
        for (int row = 0; row < list()->topLevelItemCount(); ++row)
            titles << list()->topLevelItem(row)->text(0);
        return titles;
    }
    void type(const QString& text) { QTest::keyClicks(field(), text); }
    QString activeTitle()
    {
        Page* const page = program.window().activePage();
        return page ? page->view().name() : QString();
    }

    DesktopProgram program;
};

TEST_F(FindAnything, getsTheCursorByItsKeyAndListsEverything)
{
    EXPECT_TRUE(field()->hasFocus());
    EXPECT_TRUE(list()->isVisible());
    EXPECT_EQ(list()->topLevelItemCount(), 43);
}

TEST_F(FindAnything, findsByAnyPartOfTheWordsInAnyOrder)
{
    type(u"period sal"_s);
    EXPECT_EQ(found(), QStringList{u"Sales for a Period"_s});
}

TEST_F(FindAnything, putsWhatBeginsWithTheTypedTextFirst)
{
    type(u"sal"_s);
    ASSERT_GE(found().size(), 3);
    EXPECT_TRUE(found().constFirst().startsWith(u"Sal"_s));
}

TEST_F(FindAnything, putsTheEntryOfThatVeryNameBeforeLongerOnes)
{
    type(u"counterparties"_s);
    EXPECT_EQ(found(), (QStringList{u"Counterparties"_s, u"Counterparties Report"_s}));
}

TEST_F(FindAnything, opensTheFirstOneByEnter)
{
    type(u"warehouses"_s);
    QTest::keyClick(field(), Qt::Key_Return);
    EXPECT_EQ(program.workspace().openedView.size(), 1u);
    EXPECT_EQ(activeTitle(), program.workspace().stockController->view.name());
    EXPECT_FALSE(list()->isVisible());
    EXPECT_TRUE(field()->text().isEmpty());
    EXPECT_FALSE(field()->hasFocus());
}

TEST_F(FindAnything, opensAnotherOneByArrowsAndEnter)
{
    type(u"sal"_s);
    const QString third = found().at(2);
    QTest::keyClick(field(), Qt::Key_Down);
    QTest::keyClick(field(), Qt::Key_Down);
    EXPECT_EQ(list()->currentItem()->text(0), third);
    QTest::keyClick(field(), Qt::Key_Up);
    QTest::keyClick(field(), Qt::Key_Up);
    QTest::keyClick(field(), Qt::Key_Up);
    EXPECT_EQ(list()->currentItem(), list()->topLevelItem(0));
}

TEST_F(FindAnything, opensWhatIsClicked)
{
    type(u"units"_s);
    const QRect row = list()->visualItemRect(list()->topLevelItem(0));
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, row.center());
    EXPECT_EQ(activeTitle(), program.workspace().measurementController->view.name());
}

TEST_F(FindAnything, findsThePagesThatAreOpen)
{
    program.workspace().topMenuAction(DocType::MeasurementCatalog);
    program.workspace().topMenuAction(DocType::StockCatalog);
    QTest::keyClick(&program.window(), Qt::Key_K, Qt::ControlModifier);
    type(program.workspace().measurementController->view.name());
    EXPECT_EQ(list()->topLevelItem(0)->text(1), u"Open page"_s);
    QTest::keyClick(field(), Qt::Key_Return);
    EXPECT_EQ(program.workspace().tabView.header.activTab, 0);
}

TEST_F(FindAnything, saysThatNothingWasFound)
{
    type(u"zzz"_s);
    EXPECT_EQ(found(), QStringList{u"Nothing of that name."_s});
    QTest::keyClick(field(), Qt::Key_Return);
    EXPECT_TRUE(program.workspace().openedView.empty());
}

TEST_F(FindAnything, isLeftByEscape)
{
    program.workspace().topMenuAction(DocType::StockCatalog);
    QTest::keyClick(&program.window(), Qt::Key_K, Qt::ControlModifier);
    type(u"uni"_s);
    QTest::keyClick(field(), Qt::Key_Escape);
    EXPECT_FALSE(list()->isVisible());
    EXPECT_TRUE(field()->text().isEmpty());
    EXPECT_FALSE(field()->hasFocus());
}

TEST_F(FindAnything, staysInsideTheWindow)
{
    EXPECT_TRUE(program.window().rect().contains(list()->geometry()));
}

} // namespace zelvor
