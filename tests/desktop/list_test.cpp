#include "desktop/list_delegate.h"
#include "desktop/sample_views.h"
#include "desktop/table_list.h"
#include "desktop/tree_list.h"
#include "desktop/watched_model.h"

#include <gtest/gtest.h>

#include <QtCore/QMimeData>
#include <QtGui/QDropEvent>
#include <QtGui/QHelpEvent>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionButton>
#include <QtWidgets/QToolTip>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

void showSmall(QWidget& list)
{
    list.resize(420, 300);
    list.show();
    list.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&list));
    list.setFocus();
}

void click(QAbstractItemView& list, const QModelIndex& index)
{
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(index).center());
}

void doubleClick(QAbstractItemView& list, const QModelIndex& index)
{
    click(list, index);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(index).center());
}

void clickHeader(QHeaderView& header, int section)
{
    const int x = header.sectionViewportPosition(section) + header.sectionSize(section) / 2;
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, {x, header.height() / 2});
}

// The tip of the cell, empty when none shows.
QString tipOver(QAbstractItemView& list, const QModelIndex& index)
{
    QToolTip::hideText();
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    const QPoint place = list.visualRect(index).center();
    QHelpEvent event(QEvent::ToolTip, place, list.viewport()->mapToGlobal(place));
    QApplication::sendEvent(list.viewport(), &event);
    return QToolTip::isVisible() ? QToolTip::text() : QString();
}

int widgetsIn(const QWidget& list)
{
    return static_cast<int>(list.findChildren<QWidget*>().size());
}

constexpr int nameColumn = 1;
constexpr int amountColumn = 2;
constexpr int tickColumn = 3;

} // namespace

// --- tables

class TableListTest : public ::testing::Test {
protected:
    void open(int rows = 3)
    {
        view.addNumbered(rows);
        list = std::make_unique<TableList>(view, calendar);
        ASSERT_NO_FATAL_FAILURE(showSmall(*list));
        new QAbstractItemModelTester(list->model(), QAbstractItemModelTester::FailureReportingMode::Fatal,
                                     list->model());
    }
    QModelIndex cell(int row, int column = nameColumn) { return list->model()->index(row, column); }
    QString top() { return list->indexAt({5, 2}).siblingAtColumn(nameColumn).data().toString(); }
    QString currentName() { return list->currentIndex().siblingAtColumn(nameColumn).data().toString(); }

    SampleTable view;
    Calendar calendar{QTimeZone::utc()};
    std::unique_ptr<TableList> list;
};

TEST_F(TableListTest, enterF2AndADoubleClickRunTheActionOfTheRow)
{
    open();
    click(*list, cell(1));
    EXPECT_EQ(view.selectedRow(), 1);
    QTest::keyClick(list.get(), Qt::Key_Return);
    QTest::keyClick(list.get(), Qt::Key_Enter, Qt::KeypadModifier);
    QTest::keyClick(list.get(), Qt::Key_F2);
    EXPECT_EQ(view.actions, (std::vector<int>{1, 1, 1}));
    doubleClick(*list, cell(2));
    EXPECT_EQ(view.actions, (std::vector<int>{1, 1, 1, 2}));
    QTest::keyClick(list.get(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(view.actions.size(), 4U);
}

TEST_F(TableListTest, aRowThatThePageSeesToIsNotLeftToTheView)
{
    open();
    std::vector<int> asked;
    list->rowAction = [&](int row) {
        asked.push_back(row);
        return row == 1;
    };
    click(*list, cell(1));
    QTest::keyClick(list.get(), Qt::Key_Return);
    EXPECT_TRUE(view.actions.empty());
    click(*list, cell(2));
    QTest::keyClick(list.get(), Qt::Key_Return);
    EXPECT_EQ(view.actions, std::vector<int>{2});
    EXPECT_EQ(asked, (std::vector<int>{1, 2}));
}

TEST_F(TableListTest, enterOnACellThatIsTypedIntoEditsIt)
{
    open();
    click(*list, cell(1, amountColumn));
    QTest::keyClick(list.get(), Qt::Key_Return);
    EXPECT_TRUE(view.actions.empty());
    auto* const editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(editor, nullptr);
    QTest::keyClicks(editor, u"12.5"_s);
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_EQ(view.rows[1].amount, 12.5);
    EXPECT_EQ(cell(1, amountColumn).data().toString(), u"12.50"_s);
}

TEST_F(TableListTest, spaceTurnsTheTickOfTheRow)
{
    open();
    click(*list, cell(1));
    QTest::keyClick(list.get(), Qt::Key_Space);
    EXPECT_TRUE(view.rows[1].ticked);
    EXPECT_EQ(cell(1, tickColumn).data(Qt::CheckStateRole).toInt(), Qt::Checked);
    QTest::keyClick(list.get(), Qt::Key_Space);
    EXPECT_FALSE(view.rows[1].ticked);
    view.refuses = true;
    QTest::keyClick(list.get(), Qt::Key_Space);
    EXPECT_EQ(cell(1, tickColumn).data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
}

TEST_F(TableListTest, aClickOnTheBoxTicksAndOneBesideItDoesNot)
{
    open();
    click(*list, cell(1, tickColumn));
    EXPECT_TRUE(view.rows[1].ticked);
    const QRect place = list->visualRect(cell(1, tickColumn));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, {place.left() + 2, place.center().y()});
    EXPECT_TRUE(view.rows[1].ticked);
    QTest::mouseClick(list->viewport(), Qt::RightButton, {}, place.center());
    EXPECT_TRUE(view.rows[1].ticked);
    click(*list, cell(1, tickColumn));
    EXPECT_FALSE(view.rows[1].ticked);
    doubleClick(*list, cell(1, tickColumn));
    EXPECT_TRUE(view.actions.empty());
}

TEST_F(TableListTest, aClickOnAHeaderSortsTheSecondOneTheOtherWayRound)
{
    open();
    click(*list, cell(1));
    QHeaderView& header = *list->horizontalHeader();
    EXPECT_FALSE(header.isSortIndicatorShown());
    clickHeader(header, nameColumn);
    EXPECT_EQ(top(), u"Row 0"_s);
    EXPECT_EQ(header.sortIndicatorOrder(), Qt::AscendingOrder);
    clickHeader(header, nameColumn);
    EXPECT_EQ(top(), u"Row 2"_s);
    EXPECT_EQ(header.sortIndicatorOrder(), Qt::DescendingOrder);
    clickHeader(header, nameColumn);
    EXPECT_EQ(top(), u"Row 0"_s);
    EXPECT_EQ(currentName(), u"Row 1"_s);
    clickHeader(header, amountColumn); // sorts nothing, and takes no mark
    EXPECT_EQ(header.sortIndicatorSection(), nameColumn);
    EXPECT_EQ(header.sortIndicatorOrder(), Qt::AscendingOrder);
}

TEST_F(TableListTest, theCursorStaysOnItsRecordWhenRowsComeBeforeIt)
{
    open();
    click(*list, cell(1));
    view.rows.insert(view.rows.begin(), {u"New"_s, 0, false});
    view.selectRow(2);
    view.reloadData();
    EXPECT_EQ(currentName(), u"Row 1"_s);
    EXPECT_TRUE(list->selectionModel()->isRowSelected(2));
    clickHeader(*list->horizontalHeader(), nameColumn);
    clickHeader(*list->horizontalHeader(), nameColumn);
    EXPECT_EQ(currentName(), u"Row 1"_s);
    EXPECT_EQ(view.selectedRow(), 1);
}

TEST_F(TableListTest, whatAFilterHidesIsNotSelected)
{
    open(12);
    click(*list, cell(3));
    list->tableModel()->setFilter(u"row 3"_s);
    EXPECT_EQ(currentName(), u"Row 3"_s);
    EXPECT_EQ(list->currentRow(), 3);
    list->tableModel()->setFilter(u"row 10"_s);
    EXPECT_EQ(list->currentRow(), -1);
    EXPECT_EQ(view.selectedRow(), -1);
    QTest::keyClick(list.get(), Qt::Key_Return);
    EXPECT_TRUE(view.actions.empty());
}

TEST_F(TableListTest, nothingScrollsWhenTheRowsAreReadAnew)
{
    open(500);
    click(*list, cell(1));
    list->scrollTo(cell(300), QAbstractItemView::PositionAtTop);
    const QString before = top();
    const int scrolled = list->verticalScrollBar()->value();
    ASSERT_GT(scrolled, 1000);
    view.rows[310].name = u"Other"_s;
    view.reloadData();
    EXPECT_EQ(list->verticalScrollBar()->value(), scrolled);
    view.rows.push_back({u"New"_s, 0, false});
    view.reloadData();
    EXPECT_EQ(list->verticalScrollBar()->value(), scrolled);
    EXPECT_EQ(top(), before);
    EXPECT_EQ(currentName(), u"Row 1"_s);
}

TEST_F(TableListTest, anotherFilterShowsItsFirstRows)
{
    open(500);
    list->scrollToBottom();
    list->tableModel()->setFilter(u"row"_s);
    EXPECT_EQ(list->verticalScrollBar()->value(), 0);
    EXPECT_EQ(top(), u"Row 0"_s);
}

TEST_F(TableListTest, showsWhatChangedWhileNobodyLooked)
{
    open();
    list->hide();
    view.addNumbered(2); // nobody is told
    list->show();
    EXPECT_EQ(list->model()->rowCount(), 5);
}

TEST_F(TableListTest, aNameThatIsCutOffIsToldWholeAndAsItIsWritten)
{
    view.rows.push_back({u"<b>Tea</b> & "_s + QString(300, u'x'), 0, false});
    open();
    const QString tip = tipOver(*list, cell(0));
    EXPECT_TRUE(tip.contains(u"&lt;b&gt;Tea&lt;/b&gt; &amp; x"_s)) << tip.toStdString();
    EXPECT_TRUE(Qt::mightBeRichText(tip)); // so that the escapes are read
    EXPECT_EQ(tipOver(*list, cell(1)), QString());
}

TEST_F(TableListTest, rowsAreAsHighAsTheirFontAsks)
{
    open();
    EXPECT_EQ(list->rowHeight(0), listRowHeight(list->fontMetrics()));
    const int before = list->rowHeight(0);
    QFont larger = list->font();
    larger.setPointSizeF(larger.pointSizeF() * 2);
    list->setFont(larger);
    EXPECT_GT(list->rowHeight(0), before * 3 / 2);
    EXPECT_EQ(list->rowHeight(2), listRowHeight(list->fontMetrics()));
    EXPECT_GE(list->rowHeight(0), list->fontMetrics().height());
}

TEST_F(TableListTest, aHundredThousandRowsNeedNoMoreWidgetsThanTen)
{
    open(10);
    list->grab();
    const int few = widgetsIn(*list);
    view.addNumbered(100'000);
    view.reloadData();
    list->scrollToBottom();
    list->grab();
    EXPECT_EQ(list->model()->rowCount(), 100'010);
    EXPECT_EQ(widgetsIn(*list), few);
    EXPECT_EQ(list->indexWidget(cell(100'009)), nullptr);
    EXPECT_GT(list->verticalScrollBar()->value(), 1'000'000);
}

// --- trees

class TreeListTest : public ::testing::Test {
protected:
    // Drinks(Hot(Tea) Water) Dishes(Cup) Soap, all open
    void open()
    {
        const auto drinks = view.addGroup(u"Drinks"_s);
        const auto hot = view.addGroup(u"Hot"_s, drinks);
        view.add(u"Tea"_s, hot);
        view.add(u"Water"_s, drinks);
        view.add(u"Cup"_s, view.addGroup(u"Dishes"_s));
        view.add(u"Soap"_s);
        show();
        list->expandAll();
    }
    void show()
    {
        list = std::make_unique<TreeList>(view, calendar);
        ASSERT_NO_FATAL_FAILURE(showSmall(*list));
        new QAbstractItemModelTester(list->model(), QAbstractItemModelTester::FailureReportingMode::Fatal,
                                     list->model());
    }
    QModelIndex row(const QString& name, int column = 0)
    {
        const QModelIndexList found =
            list->model()->match(list->model()->index(0, 0), Qt::DisplayRole, name, 1,
                                 Qt::MatchExactly | Qt::MatchCaseSensitive | Qt::MatchRecursive);
        return found.isEmpty() ? QModelIndex() : found.first().siblingAtColumn(column);
    }
    SampleTree::Sample sample(const QString& name)
    {
        return SampleTree::sample(list->outlineModel()->node(row(name)));
    }
    // Only rows that stand open, from top to bottom.
    QString shown()
    {
        QStringList names;
        for (QModelIndex index = list->model()->index(0, 0); index.isValid(); index = list->indexBelow(index))
            names << index.data().toString();
        return names.join(u' ');
    }
    QString holderOf(const QString& name) { return row(name).parent().data().toString(); }
    QString currentName() { return list->currentIndex().siblingAtColumn(0).data().toString(); }
    // Drags the row to the point and lets go; whether the list would take it there.
    bool drop(const QString& dragged, const QPoint& point)
    {
        const std::unique_ptr<QMimeData> data(list->model()->mimeData({row(dragged)}));
        QWidget* const ground = list->viewport();
        QDragEnterEvent enter(point, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(ground, &enter);
        QDragMoveEvent move(point, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(ground, &move);
        const bool taken = move.isAccepted();
        EXPECT_EQ(list->showDropIndicator(), taken);
        QDropEvent drop(point, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(ground, &drop);
        return taken;
    }
    bool dropOn(const QString& dragged, const QString& target)
    {
        return drop(dragged, list->visualRect(row(target)).center());
    }

    SampleTree view;
    Calendar calendar{QTimeZone::utc()};
    std::unique_ptr<TreeList> list;
};

TEST_F(TreeListTest, enterF2AndADoubleClickRunTheActionOfTheRow)
{
    open();
    click(*list, row(u"Tea"_s));
    EXPECT_EQ(view.selectedItem(), sample(u"Tea"_s));
    QTest::keyClick(list.get(), Qt::Key_Return);
    QTest::keyClick(list.get(), Qt::Key_F2);
    doubleClick(*list, row(u"Drinks"_s));
    EXPECT_EQ(view.actions, (std::vector<QString>{u"Tea"_s, u"Tea"_s, u"Drinks"_s}));
    EXPECT_TRUE(list->isExpanded(row(u"Drinks"_s))); // a double click opens the form, not the group
    list->rowAction = [](const OutlineView::Node&) { return true; };
    QTest::keyClick(list.get(), Qt::Key_Return);
    EXPECT_EQ(view.actions.size(), 3U);
}

TEST_F(TreeListTest, aClickOnTheBoxAndSpaceTick)
{
    open();
    click(*list, row(u"Tea"_s, 1));
    EXPECT_TRUE(sample(u"Tea"_s)->ticked);
    QTest::keyClick(list.get(), Qt::Key_Space);
    EXPECT_FALSE(sample(u"Tea"_s)->ticked);
    click(*list, row(u"Cup"_s));
    QTest::keyClick(list.get(), Qt::Key_Space);
    EXPECT_TRUE(sample(u"Cup"_s)->ticked);
    doubleClick(*list, row(u"Cup"_s, 1));
    EXPECT_TRUE(view.actions.empty());
}

TEST_F(TreeListTest, aClickOnAHeaderSortsTheSecondOneTheOtherWayRound)
{
    open();
    click(*list, row(u"Tea"_s));
    clickHeader(*list->header(), 0);
    EXPECT_EQ(shown(), u"Dishes Cup Drinks Hot Tea Water Soap"_s);
    clickHeader(*list->header(), 0);
    EXPECT_EQ(shown(), u"Soap Drinks Water Hot Tea Dishes Cup"_s);
    EXPECT_EQ(currentName(), u"Tea"_s);
    EXPECT_EQ(list->header()->sortIndicatorOrder(), Qt::DescendingOrder);
}

TEST_F(TreeListTest, whatStandsOpenStaysOpenWhenTheTreeIsReadAnew)
{
    open();
    list->collapse(row(u"Dishes"_s));
    click(*list, row(u"Tea"_s));
    view.add(u"Jug"_s, sample(u"Dishes"_s));
    view.add(u"Milk"_s, sample(u"Drinks"_s));
    view.reloadData();
    EXPECT_EQ(shown(), u"Drinks Hot Tea Water Milk Dishes Soap"_s);
    EXPECT_EQ(currentName(), u"Tea"_s);
}

TEST_F(TreeListTest, aGroupThatClosesOverTheCursorTakesIt)
{
    open();
    click(*list, row(u"Tea"_s));
    list->collapse(row(u"Drinks"_s));
    EXPECT_EQ(currentName(), u"Drinks"_s);
    EXPECT_EQ(view.selectedItem(), sample(u"Drinks"_s));
}

TEST_F(TreeListTest, aFilterOpensWhatItFindsAndLeavesTheGroupsAsTheyWere)
{
    open();
    list->collapse(row(u"Drinks"_s));
    list->setFilter(u"TEA"_s);
    EXPECT_EQ(shown(), u"Drinks Hot Tea"_s);
    list->setFilter({});
    EXPECT_EQ(shown(), u"Drinks Dishes Cup Soap"_s);
    click(*list, row(u"Cup"_s));
    list->setFilter(u"soap"_s);
    EXPECT_EQ(view.selectedItem(), nullptr);
    QTest::keyClick(list.get(), Qt::Key_Return);
    EXPECT_TRUE(view.actions.empty());
}

TEST_F(TreeListTest, nothingScrollsWhenTheTreeIsReadAnew)
{
    const auto all = view.addGroup(u"All"_s);
    for (int i = 0; i < 500; ++i)
        view.add(u"Row %1"_s.arg(i), all);
    show();
    list->expandAll();
    click(*list, row(u"Row 1"_s));
    list->scrollTo(row(u"Row 300"_s), QAbstractItemView::PositionAtTop);
    const int scrolled = list->verticalScrollBar()->value();
    ASSERT_GT(scrolled, 1000);
    view.add(u"Last"_s, all);
    view.reloadData();
    EXPECT_EQ(list->verticalScrollBar()->value(), scrolled);
    all->children[310]->name = u"Other"_s;
    view.reloadData();
    EXPECT_EQ(list->verticalScrollBar()->value(), scrolled);
    EXPECT_EQ(list->indexAt({60, 2}).data().toString(), u"Row 300"_s);
    EXPECT_EQ(currentName(), u"Row 1"_s);
}

TEST_F(TreeListTest, showsWhatChangedWhileNobodyLooked)
{
    open();
    list->hide();
    view.add(u"Late"_s); // nobody is told
    list->show();
    EXPECT_EQ(shown(), u"Drinks Hot Tea Water Dishes Cup Soap Late"_s);
}

TEST_F(TreeListTest, rowsAreAsHighAsTheirFontAsks)
{
    open();
    const int before = list->visualRect(row(u"Tea"_s)).height();
    EXPECT_EQ(before, listRowHeight(list->fontMetrics()));
    QFont larger = list->font();
    larger.setPointSizeF(larger.pointSizeF() * 2);
    list->setFont(larger);
    EXPECT_EQ(list->visualRect(row(u"Tea"_s)).height(), listRowHeight(list->fontMetrics()));
    EXPECT_GT(list->visualRect(row(u"Tea"_s)).height(), before * 3 / 2);
}

TEST_F(TreeListTest, aNameThatIsCutOffIsToldWholeAndAsItIsWritten)
{
    open();
    sample(u"Soap"_s)->name = u"<i>Soap</i> "_s + QString(300, u'x');
    view.reloadData();
    const QString tip = tipOver(*list, list->model()->index(2, 0));
    EXPECT_TRUE(tip.contains(u"&lt;i&gt;Soap&lt;/i&gt; x"_s)) << tip.toStdString();
    EXPECT_EQ(tipOver(*list, row(u"Tea"_s)), QString());
}

TEST_F(TreeListTest, aHundredThousandRowsNeedNoMoreWidgetsThanTen)
{
    open();
    list->grab();
    const int few = widgetsIn(*list);
    const SampleTree::Sample dishes = sample(u"Dishes"_s);
    for (int i = 0; i < 100'000; ++i)
        view.add(u"Row %1"_s.arg(i), dishes);
    view.reloadData();
    list->scrollToBottom();
    list->grab();
    EXPECT_EQ(list->model()->rowCount(row(u"Dishes"_s)), 100'001);
    EXPECT_EQ(widgetsIn(*list), few);
    EXPECT_GT(list->verticalScrollBar()->value(), 1'000'000);
}

TEST_F(TreeListTest, aRowIsDroppedOnAGroupAndStaysInSight)
{
    open();
    EXPECT_TRUE(dropOn(u"Soap"_s, u"Hot"_s));
    EXPECT_EQ(holderOf(u"Soap"_s), u"Hot"_s);
    EXPECT_EQ(currentName(), u"Soap"_s);
    list->collapse(row(u"Dishes"_s));
    EXPECT_TRUE(dropOn(u"Water"_s, u"Dishes"_s));
    EXPECT_EQ(shown(), u"Drinks Hot Tea Soap Dishes Cup Water"_s); // opened for the row
}

TEST_F(TreeListTest, anOpenGroupThatIsMovedIntoAClosedOneStandsOpenWhenThatOneOpens)
{
    open();
    list->collapse(row(u"Dishes"_s));
    ASSERT_TRUE(view.acceptDrop(u"Hot"_s, sample(u"Dishes"_s))); // as its form does it
    ASSERT_EQ(shown(), u"Drinks Water Dishes Soap"_s);
    list->expand(row(u"Dishes"_s));
    EXPECT_EQ(shown(), u"Drinks Water Dishes Cup Hot Tea Soap"_s);
    list->collapse(row(u"Hot"_s));
    list->collapse(row(u"Dishes"_s));
    list->expand(row(u"Dishes"_s));
    EXPECT_EQ(shown(), u"Drinks Water Dishes Cup Hot Soap"_s);
}

TEST_F(TreeListTest, aDropThatMakesNoSenseIsRefusedWithoutAMark)
{
    open();
    const QString before = shown();
    EXPECT_FALSE(dropOn(u"Drinks"_s, u"Drinks"_s));
    EXPECT_FALSE(dropOn(u"Drinks"_s, u"Hot"_s));
    EXPECT_FALSE(dropOn(u"Dishes"_s, u"Tea"_s));
    EXPECT_FALSE(dropOn(u"Dishes"_s, u"Soap"_s));
    EXPECT_EQ(shown(), before);
}

TEST_F(TreeListTest, aDropOnTheEmptyGroundGoesToTheTopLevel)
{
    open();
    EXPECT_TRUE(drop(u"Tea"_s, {60, list->viewport()->height() - 4}));
    EXPECT_EQ(holderOf(u"Tea"_s), QString());
    EXPECT_EQ(shown(), u"Drinks Hot Water Dishes Cup Soap Tea"_s);
}

TEST_F(TreeListTest, aDropBetweenTwoRowsGoesToTheirHolder)
{
    open();
    EXPECT_TRUE(drop(u"Soap"_s, list->visualRect(row(u"Water"_s)).topLeft() + QPoint(20, 0)));
    EXPECT_EQ(holderOf(u"Soap"_s), u"Drinks"_s);
}

} // namespace zelvor
