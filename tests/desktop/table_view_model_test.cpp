#include "desktop/table_view_model.h"

#include "core/doc_type.h"
#include "desktop/document_page_fixture.h"
#include "desktop/sample_views.h"
#include "desktop/shop_desktop.h"
#include "desktop/watched_model.h"

#include <QtTest/QSignalSpy>

namespace zelvor {
namespace {

// --- the model by itself

class TableModelTest : public ::testing::Test {
protected:
    TableModelTest()
    {
        view.rows = {
            {u"Green tea, Assam"_s, 12, false}, {u"Чай Assam"_s, 1234.5, false}, {u"Cup"_s, 7, true}};
        view.reloadData();
    }
    // The names that show, from top to bottom.
    QString names()
    {
        QStringList texts;
        for (int row = 0; row < model.rowCount(); ++row)
            texts << model.index(row, 1).data().toString();
        return texts.join(u'|');
    }
    QString found(const QString& filter)
    {
        model.setFilter(filter);
        return names();
    }

    SampleTable view;
    Calendar calendar{QTimeZone::utc()};
    TableViewModel model{view, calendar};
};

TEST_F(TableModelTest, findsItsWordsInAnyOrderAndCase)
{
    EXPECT_EQ(found(u"assam GREEN"_s), u"Green tea, Assam"_s);
    EXPECT_EQ(found(u"  ASS "_s), u"Green tea, Assam|Чай Assam"_s);
    EXPECT_EQ(found(u"assam чАЙ"_s), u"Чай Assam"_s);
    EXPECT_EQ(found(u"assam cup"_s), QString());
    EXPECT_EQ(found(u" "_s), u"Green tea, Assam|Чай Assam|Cup"_s);
}

TEST_F(TableModelTest, findsAnAmountAsItStandsAndAsItIsTyped)
{
    EXPECT_EQ(found(u"1234.5"_s), u"Чай Assam"_s);
    EXPECT_EQ(found(u"tea 12"_s), u"Green tea, Assam"_s);
}

TEST_F(TableModelTest, looksForNothingInColumnsThatDoNotShow)
{
    view.rows[0].amount = 1;
    EXPECT_EQ(found(u"0"_s), u"Green tea, Assam|Чай Assam|Cup"_s); // the cents
    EXPECT_EQ(found(u"2"_s), u"Чай Assam"_s);                      // not the hidden number of the cup
}

TEST_F(TableModelTest, knowsTheViewsRowsBehindAFilter)
{
    model.setFilter(u"cup"_s);
    ASSERT_EQ(model.rowCount(), 1);
    EXPECT_EQ(model.viewRow(0), 2);
    EXPECT_EQ(model.shownRow(2), 0);
    EXPECT_EQ(model.shownRow(0), -1);
    EXPECT_EQ(model.viewRow(1), -1);
    EXPECT_TRUE(model.setData(model.index(0, 3), Qt::Unchecked, Qt::CheckStateRole));
    EXPECT_FALSE(view.rows[2].ticked);
}

TEST_F(TableModelTest, tellsOfChangedValuesInPlaceAndOfOtherRowsByAReset)
{
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    const QPersistentModelIndex cup = model.index(2, 1);
    view.rows[2].name = u"Mug"_s;
    view.reloadData();
    EXPECT_EQ(resets.count(), 0);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(cup.data().toString(), u"Mug"_s);
    view.rows.push_back({u"Jug"_s, 1, false});
    view.reloadData();
    EXPECT_EQ(resets.count(), 1);
    EXPECT_EQ(model.rowCount(), 4);
}

TEST_F(TableModelTest, leavesNoListenerBehindWhenItGoes)
{
    const std::size_t before = view.listenerCount();
    for (int i = 0; i < 100; ++i)
        const TableViewModel passing(view, calendar);
    view.reloadData();
    EXPECT_LE(view.listenerCount(), before + 1); // the last one is counted until another comes
}

TEST_F(TableModelTest, keepsQtsRulesUnderChangesFiltersAndSorting)
{
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    view.addNumbered(40);
    view.reloadData();
    model.setFilter(u"row 1"_s);
    EXPECT_EQ(model.rowCount(), 13); // 1, 10 to 19, 21 and 31
    view.rows.resize(20);
    view.reloadData();
    model.sort(1, Qt::DescendingOrder);
    model.setFilter({});
    EXPECT_EQ(model.rowCount(), 20);
    EXPECT_EQ(names().left(9), u"Чай Assam"_s);
    EXPECT_FALSE(model.setData(model.index(0, 1), u"Name"_s, Qt::DisplayRole));
    view.rows.clear();
    view.reloadData();
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_FALSE(model.index(0, 0).isValid());
}

// --- over journals and reports

class ReportModelTest : public ::testing::Test {
protected:
    void open(DocType type)
    {
        shop.workspace().topMenuAction(type);
        ASSERT_NE(shop.page(), nullptr);
    }
    ShopDesktop shop;
};

TEST_F(ReportModelTest, ofTheJournalKeepsQtsRulesAllTheWay)
{
    open(DocType::ProductJournal);
    QWidget* const page = shop.page();
    const BaseView& view = shop.page()->list()->shownView();
    ASSERT_EQ(watchModels(*page), 1);
    EXPECT_EQ(shop.shown(u"contragent"_s), QStringList{u"Acme"_s});
    shop.sell(shop.zenith, shop.cup, 1, 3, false);
    shop.sell(shop.acme, shop.tea, 2, 7);
    EXPECT_EQ(shop.shown(u"contragent"_s).size(), 3);
    shop.clickHeader(u"sum"_s);
    EXPECT_EQ(shop.shown(u"sum"_s), (QStringList{u"0.00"_s, u"14.00"_s, u"600.00"_s}));
    shop.clickHeader(u"sum"_s);
    EXPECT_EQ(shop.shown(u"sum"_s), (QStringList{u"600.00"_s, u"14.00"_s, u"0.00"_s}));
    shop.page()->searchLine()->setText(u"acme"_s);
    EXPECT_EQ(shop.shown(u"sum"_s), (QStringList{u"600.00"_s, u"14.00"_s}));
    open(DocType::BalanceSheet);
    ASSERT_NE(shop.page(), page);
    shop.sell(shop.acme, shop.coffee, 1, 9);
    shop.workspace().tabView.openExistingTab(view.index());
    ASSERT_EQ(shop.page(), page);
    EXPECT_EQ(shop.shown(u"sum"_s).size(), 3);
    shop.page()->searchLine()->clear();
    EXPECT_EQ(shop.shown(u"sum"_s).size(), 4);
}

TEST_F(ReportModelTest, ofTheBalanceKeepsQtsRulesAllTheWay)
{
    open(DocType::BalanceSheet);
    ASSERT_EQ(watchModels(*shop.page()), 1);
    const qsizetype lines = shop.shown(u"name"_s).size();
    shop.click(u"groupCheckBox"_s);
    EXPECT_LT(shop.shown(u"name"_s).size(), lines);
    shop.click(u"groupCheckBox"_s);
    EXPECT_EQ(shop.shown(u"name"_s).size(), lines);
    shop.sell(shop.zenith, shop.tea, 2, 7);
    shop.page()->refresh();
    shop.page()->searchLine()->setText(u"main"_s);
    EXPECT_EQ(shop.shown(u"name"_s), QStringList{u"  Main"_s});
    open(DocType::ProductJournal);
    shop.sell(shop.zenith, shop.tea, 2, 7);
    open(DocType::BalanceSheet);
    shop.page()->searchLine()->clear();
    EXPECT_GE(shop.shown(u"name"_s).size(), lines);
}

// --- over the rows of a document

class DocumentModelTest : public DocumentPageTest {};

TEST_F(DocumentModelTest, keepsQtsRulesAllTheWay)
{
    openFilled(DocType::SellProduct);
    ASSERT_EQ(watchModels(*program.window().activePage()), 2); // the rows and the tree of products
    typeRow(u"chai"_s, u"2"_s, u"18"_s);
    typeRow(u"chang"_s, u"3"_s, u"19"_s);
    EXPECT_EQ(table()->tableModel()->rowCount(), 2);
    EXPECT_TRUE(form()->setRowValue(0, u"amount"_s, Decimal(5)));
    EXPECT_EQ(text(0, u"amount"_s), u"5.00"_s);
    program.clickCell(table(), cell(0, u"amount"_s));
    press(Qt::Key_F2);
    write(u"4"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(text(0, u"amount"_s), u"4.00"_s);
    table()->tableModel()->sort(table()->tableModel()->columnWithIdentifier(u"name"_s), Qt::DescendingOrder);
    program.type(u"contragentDiscount"_s, u"50"_s);
    program.clickCell(table(), cell(0, u"name"_s));
    table()->setFocus();
    press(Qt::Key_Delete);
    EXPECT_EQ(table()->tableModel()->rowCount(), 1);
    workspace().topMenuAction(DocType::StockCatalog);
    workspace().tabView.openExistingTab(0);
    program.click(u"confirmButton"_s);
    EXPECT_EQ(table()->tableModel()->rowCount(), 1);
}

} // namespace
} // namespace zelvor
