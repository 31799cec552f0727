#include "desktop/journal_page.h"

#include "core/doc_type.h"
#include "desktop/shop_desktop.h"
#include "documents/document_journal_view_controller.h"

#include <QtGui/QContextMenuEvent>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QMenu>
#include <QtWidgets/QScrollBar>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

class JournalPageTest : public testing::Test {
protected:
    void openJournal(DocType type = DocType::ProductJournal)
    {
        shop.workspace().topMenuAction(type);
        ASSERT_NE(qobject_cast<JournalPage*>(shop.window().activePage()), nullptr);
    }
    DocumentJournalViewController& journal()
    {
        return dynamic_cast<DocumentJournalViewController&>(
            *shop.workspace().tabView.body.pages().back().controller);
    }
    // The context menu as a right click brings it up; -1 clicks below the rows.
    QMenu* rightClick(int row)
    {
        TableList* const list = shop.page()->list();
        const QRect rowRect = list->visualRect(shop.cell(std::max(row, 0), u"date"_s));
        const QPoint place = row < 0 ? QPoint(40, list->viewport()->height() - 4) : rowRect.center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, list->viewport()->mapToGlobal(place));
        QApplication::sendEvent(list->viewport(), &event);
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }
    static QAction* deleteItem(QMenu* menu) { return menu->actions().constFirst(); }
    static void choose(QMenu* menu, QAction* item)
    {
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(item).center());
    }

    ShopDesktop shop;
};

TEST_F(JournalPageTest, showsTheDocumentsOfTodayWithTheirColours)
{
    shop.sell(shop.acme, shop.tea, 2, 7);
    shop.sell(shop.zenith, shop.cup, 1, 3, false);
    openJournal();
    QAbstractItemModelTester tester(shop.page()->list()->tableModel());
    EXPECT_EQ(shop.heading(), u"Product Documents From: 11/14/23 To: 11/15/23"_s);
    EXPECT_EQ(shop.shown(u"contragent"_s), (QStringList{u"Acme"_s, u"Acme"_s, u"Zenith"_s}));
    EXPECT_EQ(shop.shown(u"number"_s), (QStringList{u"1"_s, u"1"_s, u"0"_s}));
    EXPECT_EQ(shop.shown(u"sum"_s), (QStringList{u"600.00"_s, u"14.00"_s, u"0.00"_s}));
    EXPECT_TRUE(shop.cell(1, u"sum"_s).data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
    EXPECT_EQ(shop.cell(1, u"journalName"_s).data(Qt::ForegroundRole).value<QColor>(), ShopDesktop::blue());
    EXPECT_EQ(shop.cell(2, u"journalName"_s).data(Qt::ForegroundRole).value<QColor>(), ShopDesktop::red());
    // Colour is never the only sign.
    EXPECT_EQ(shop.cell(1, u"confirmed"_s).data(Qt::CheckStateRole).toInt(), Qt::Checked);
    EXPECT_EQ(shop.cell(2, u"confirmed"_s).data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
}

TEST_F(JournalPageTest, aTypedDateReadsAnewAndTheTabFollows)
{
    shop.sell(shop.acme, shop.tea, 2, 7);
    openJournal();
    shop.type(u"dateTo"_s, u"11/14/2023"_s);
    EXPECT_EQ(shop.shown(u"number"_s), QStringList());
    EXPECT_EQ(shop.heading(), u"Product Documents From: 11/14/23 To: 11/14/23"_s);
    EXPECT_EQ(shop.workspace().tabView.header.tabs().back().title, shop.heading());
    EXPECT_EQ(shop.page()->list()->accessibleName(), shop.heading());
    EXPECT_TRUE(shop.find(u"emptyText"_s));
    shop.type(u"dateTo"_s, u"15"_s); // the month and the year stay
    EXPECT_EQ(shop.shown(u"number"_s), (QStringList{u"1"_s, u"1"_s}));
    EXPECT_FALSE(shop.find(u"emptyText"_s));
}

TEST_F(JournalPageTest, datesTheWrongWayRoundTurnTheirLabelsRed)
{
    openJournal();
    EXPECT_EQ(shop.ink(u"dateFromLabel"_s), ShopDesktop::blue());
    shop.type(u"dateFrom"_s, u"11/20/2023"_s);
    EXPECT_EQ(shop.ink(u"dateFromLabel"_s), ShopDesktop::red());
    EXPECT_EQ(shop.ink(u"dateToLabel"_s), ShopDesktop::red());
    EXPECT_EQ(shop.widget<QLabel>(u"periodNote"_s)->text(), u"(before the start)"_s); // not by colour alone
    EXPECT_EQ(shop.shown(u"number"_s), QStringList());
    shop.type(u"dateFrom"_s, u"11/14/2023"_s);
    EXPECT_EQ(shop.ink(u"dateToLabel"_s), ShopDesktop::blue());
    EXPECT_EQ(shop.widget<QLabel>(u"periodNote"_s)->text(), u"(not included)"_s);
}

TEST_F(JournalPageTest, theButtonTakesTheRunningReportPeriod)
{
    openJournal();
    shop.click(u"currentPeriodButton"_s);
    EXPECT_EQ(shop.widget<QLineEdit>(u"dateFrom"_s)->text(), u"11/1/2023"_s);
    EXPECT_EQ(shop.widget<QLineEdit>(u"dateTo"_s)->text(), u"11/15/2023"_s);
    EXPECT_EQ(shop.heading(), u"Product Documents From: 11/1/23 To: 11/15/23"_s);
}

TEST_F(JournalPageTest, theTypesArePartedByLinesAndAChosenOneFilters)
{
    shop.sell(shop.acme, shop.tea, 2, 7);
    openJournal(DocType::AllDocumentsJournal);
    auto* const types = shop.widget<QComboBox>(u"docTypeSelect"_s);
    int lines = 0;
    for (int i = 0; i < types->count(); ++i)
        lines += types->itemData(i, Qt::AccessibleDescriptionRole).toString() == u"separator" ? 1 : 0;
    EXPECT_EQ(lines, 3);
    EXPECT_EQ(shop.shown(u"number"_s).size(), 2);
    types->setFocus();
    for (int steps = 0; steps < types->count() && types->currentText() != u"(Product) Sale"; ++steps)
        QTest::keyClick(types, Qt::Key_Down);
    EXPECT_EQ(journal().docTypeSelect.selectedTag(), rawValue(DocType::SellProduct));
    EXPECT_EQ(shop.shown(u"journalName"_s), QStringList{u"Product Document 'Sale' #1"_s});
}

TEST_F(JournalPageTest, aDocumentConfirmedElsewhereStandsThereAtOnce)
{
    openJournal();
    EXPECT_EQ(shop.shown(u"number"_s).size(), 1);
    shop.sell(shop.acme, shop.tea, 2, 7);
    EXPECT_EQ(shop.shown(u"sum"_s), (QStringList{u"600.00"_s, u"14.00"_s}));
}

TEST_F(JournalPageTest, theContextMenuDeletesADraftAfterAQuestion)
{
    const qint64 draft = shop.sell(shop.acme, shop.tea, 2, 7, false);
    openJournal();
    QMenu* menu = rightClick(1);
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(deleteItem(menu)->text(), u"Delete Document"_s);
    ASSERT_TRUE(deleteItem(menu)->isEnabled());
    shop.program.dialogs.answers = {firstButton + 1};
    choose(menu, deleteItem(menu));
    ASSERT_EQ(shop.program.dialogs.questions.size(), 1u);
    EXPECT_TRUE(shop.isStored<ProductDocument>(draft));

    menu = rightClick(1);
    ASSERT_NE(menu, nullptr);
    shop.program.dialogs.answers = {firstButton};
    choose(menu, deleteItem(menu));
    EXPECT_FALSE(shop.isStored<ProductDocument>(draft));
    EXPECT_EQ(shop.shown(u"sum"_s), QStringList{u"600.00"_s});
}

TEST_F(JournalPageTest, theMenuKeyMeansTheRowUnderTheCursor)
{
    shop.sell(shop.acme, shop.tea, 2, 7, false);
    openJournal();
    TableList* const list = shop.page()->list();
    for (const int row : {1, 0}) { // the draft, then the confirmed purchase
        shop.clickCell(list, shop.cell(row, u"date"_s));
        QContextMenuEvent event(QContextMenuEvent::Keyboard, list->rect().center(),
                                list->mapToGlobal(list->rect().center()));
        QApplication::sendEvent(list, &event);
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        EXPECT_EQ(list->currentRow(), row);
        EXPECT_EQ(deleteItem(menu)->isEnabled(), row == 1);
        menu->close();
    }
}

TEST_F(JournalPageTest, theCursorStaysAmongTheFoundDocumentsAfterADelete)
{
    shop.sell(shop.zenith, shop.tea, 1, 3, false);
    shop.sell(shop.acme, shop.tea, 1, 4);
    shop.sell(shop.zenith, shop.tea, 1, 5);
    openJournal();
    shop.page()->perform(PageCommand::Find);
    QTest::keyClicks(QApplication::focusWidget(), u"zen"_s);
    ASSERT_EQ(shop.shown(u"contragent"_s).size(), 2);
    shop.clickCell(shop.page()->list(), shop.cell(0, u"date"_s));
    shop.program.dialogs.answers = {firstButton};
    shop.pressKey(Qt::Key_Delete);
    EXPECT_EQ(shop.shown(u"sum"_s), QStringList{u"5.00"_s});
    EXPECT_EQ(shop.page()->list()->currentIndex().row(), 0);
}

TEST_F(JournalPageTest, anAnswerAfterTheTabIsClosedDeletesNothing)
{
    const qint64 draft = shop.sell(shop.acme, shop.tea, 2, 7, false);
    openJournal();
    shop.clickCell(shop.page()->list(), shop.cell(1, u"date"_s));
    shop.pressKey(Qt::Key_Delete);
    ASSERT_EQ(shop.program.dialogs.unanswered.size(), 1u);
    shop.workspace().closeTab(*shop.workspace().tabView.body.activTab);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    shop.program.dialogs.unanswered.front()(firstButton);
    EXPECT_TRUE(shop.isStored<ProductDocument>(draft));
}

TEST_F(JournalPageTest, theContextMenuLeavesConfirmedDocumentsAlone)
{
    openJournal();
    QMenu* const onRow = rightClick(0);
    ASSERT_NE(onRow, nullptr);
    EXPECT_FALSE(deleteItem(onRow)->isEnabled());
    choose(onRow, deleteItem(onRow));
    onRow->close();
    QMenu* const below = rightClick(-1);
    ASSERT_NE(below, nullptr);
    EXPECT_FALSE(deleteItem(below)->isEnabled());
    below->close();
    EXPECT_TRUE(shop.program.dialogs.questions.empty());
}

TEST_F(JournalPageTest, theDeleteKeyTakesDraftsOnly)
{
    const qint64 draft = shop.sell(shop.acme, shop.tea, 2, 7, false);
    openJournal();
    shop.program.dialogs.answers = {firstButton};
    shop.clickCell(shop.page()->list(), shop.cell(0, u"date"_s));
    EXPECT_FALSE(shop.page()->can(PageCommand::Delete));
    shop.pressKey(Qt::Key_Delete);
    EXPECT_TRUE(shop.program.dialogs.questions.empty());

    shop.clickCell(shop.page()->list(), shop.cell(1, u"date"_s));
    EXPECT_TRUE(shop.page()->can(PageCommand::Delete));
    shop.pressKey(Qt::Key_Delete);
    EXPECT_FALSE(shop.isStored<ProductDocument>(draft));
    EXPECT_EQ(shop.shown(u"sum"_s), QStringList{u"600.00"_s});
    EXPECT_EQ(shop.page()->list()->currentRow(), 0); // the cursor stays in the list
}

TEST_F(JournalPageTest, aDraftConfirmedWhileTheQuestionStandsIsKept)
{
    const qint64 draft = shop.sell(shop.acme, shop.tea, 2, 7, false);
    openJournal();
    shop.clickCell(shop.page()->list(), shop.cell(1, u"date"_s));
    shop.pressKey(Qt::Key_Delete);
    ASSERT_EQ(shop.program.dialogs.unanswered.size(), 1u);
    ShopDesktop::Form form(shop.program.appDelegate,
                           shop.program.appDelegate.connector.select<ProductDocument>(draft));
    form.prepareData();
    ASSERT_TRUE(form.confirmDoc());
    shop.program.dialogs.unanswered.front()(firstButton);
    EXPECT_TRUE(shop.isStored<ProductDocument>(draft));
}

TEST_F(JournalPageTest, aDoubleClickOrEnterOpensTheDocumentOnce)
{
    shop.sell(shop.acme, shop.tea, 2, 7);
    openJournal();
    const std::size_t tabs = shop.workspace().tabView.header.tabs().size();
    shop.doubleClickCell(shop.page()->list(), shop.cell(1, u"date"_s));
    ASSERT_EQ(shop.workspace().tabView.header.tabs().size(), tabs + 1);
    EXPECT_EQ(shop.workspace().tabView.header.tabs().back().title, u"Product Document 'Sale' #1 (read)"_s);

    shop.workspace().tabView.openExistingTab(static_cast<int>(tabs) - 1);
    ASSERT_NE(shop.page(), nullptr);
    shop.page()->list()->setFocus();
    shop.pressKey(Qt::Key_Return);
    EXPECT_EQ(shop.workspace().tabView.header.tabs().size(), tabs + 1);
    EXPECT_EQ(shop.workspace().tabView.body.activTab, static_cast<int>(tabs));
}

TEST_F(JournalPageTest, theClickedOrderAndTheSelectedDocumentOutliveARefresh)
{
    shop.sell(shop.zenith, shop.tea, 2, 7);
    openJournal();
    shop.clickHeader(u"sum"_s);
    EXPECT_EQ(shop.shown(u"sum"_s), (QStringList{u"14.00"_s, u"600.00"_s}));
    shop.clickCell(shop.page()->list(), shop.cell(1, u"date"_s));
    shop.sell(shop.acme, shop.cup, 1, 3);
    EXPECT_EQ(shop.shown(u"sum"_s), (QStringList{u"3.00"_s, u"14.00"_s, u"600.00"_s}));
    EXPECT_EQ(shop.page()->list()->currentRow(), 2);
    shop.click(u"refreshButton"_s);
    EXPECT_EQ(shop.shown(u"sum"_s), (QStringList{u"3.00"_s, u"14.00"_s, u"600.00"_s}));
    EXPECT_EQ(shop.page()->list()->currentRow(), 2);
}

TEST_F(JournalPageTest, refreshTakesTheDateThatIsBeingTyped)
{
    openJournal();
    auto* const field = shop.widget<QLineEdit>(u"dateFrom"_s);
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, u"11/1/2023"_s);
    ASSERT_TRUE(shop.page()->can(PageCommand::Refresh));
    shop.page()->perform(PageCommand::Refresh);
    EXPECT_EQ(shop.heading(), u"Product Documents From: 11/1/23 To: 11/15/23"_s);
}

TEST_F(JournalPageTest, theSearchLineLeavesTheRowsThatMatch)
{
    shop.sell(shop.zenith, shop.tea, 2, 7);
    openJournal();
    shop.page()->perform(PageCommand::Find);
    QTest::keyClicks(QApplication::focusWidget(), u"zen"_s);
    EXPECT_EQ(shop.shown(u"contragent"_s), QStringList{u"Zenith"_s});
}

TEST_F(JournalPageTest, longTextsAreCutOffBeforeTheListScrollsSideways)
{
    shop.acme.name = u"Acme Household Goods and Garden Furniture"_s;
    shop.stock.name = u"Main warehouse at the old harbour"_s;
    Connector& connector = shop.program.appDelegate.connector;
    ASSERT_EQ(connector.update(shop.acme), 1);
    ASSERT_EQ(connector.update(shop.stock), 1);
    const auto sale = shop.form(DocType::SellProduct, shop.acme);
    shop.addRow(*sale, shop.tea, 2, 7);
    sale->mainView.comment.setText(u"to be called for on Thursday, not before noon"_s);
    sale->mainView.comment.userChanged();
    ASSERT_TRUE(sale->confirmDoc());
    shop.window().resize(1440, 900);
    openJournal();
    QCoreApplication::processEvents();
    const TableList& list = *shop.page()->list();
    EXPECT_EQ(list.horizontalScrollBar()->maximum(), 0);
    for (int column = 0; column < list.model()->columnCount(); ++column)
        EXPECT_GE(list.columnWidth(column), list.horizontalHeader()->sectionSizeHint(column)) << column;
    for (const QString& whole : {u"number"_s, u"journalName"_s, u"date"_s, u"sum"_s}) {
        const QModelIndex cell = shop.cell(1, whole);
        EXPECT_GE(list.columnWidth(cell.column()), list.sizeHintForIndex(cell).width())
            << whole.toStdString();
    }
}

} // namespace zelvor
