#include "desktop/balance_page.h"

#include "core/doc_type.h"
#include "desktop/shop_desktop.h"
#include "period/balance_view_controller.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QHeaderView>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

class BalancePageTest : public testing::Test {
protected:
    void SetUp() override
    {
        shop.workspace().topMenuAction(DocType::BalanceSheet);
        ASSERT_NE(qobject_cast<BalancePage*>(shop.window().activePage()), nullptr);
    }
    int rowOf(const QString& name) { return static_cast<int>(shop.shown(u"name"_s).indexOf(name)); }
    // Leaves room for three lines.
    void makeShort()
    {
        const TableList* const list = shop.page()->list();
        const int tall = shop.window().height() - list->height() + 3 * list->rowHeight(0);
        shop.window().setMinimumHeight(0);
        shop.window().resize(shop.window().width(), tall);
        QTest::qWait(1);
    }

    ShopDesktop shop;
};

TEST_F(BalancePageTest, showsEveryLineOfTheSheetOnReportGround)
{
    QAbstractItemModelTester tester(shop.page()->list()->tableModel());
    EXPECT_EQ(shop.heading(), u"Balance on 11/14/2023, EUR"_s);
    EXPECT_EQ(shop.shown(u"name"_s),
              (QStringList{u"Products On Warehouses"_s, u"  Main"_s, u"Customers / Suppliers"_s, u"  Acme"_s,
                           u"TOTAL:"_s, u"BALANCE:"_s}));
    EXPECT_EQ(shop.shown(u"debet"_s),
              (QStringList{u"600.00"_s, u"600.00"_s, u""_s, u""_s, u"600.00"_s, u""_s}));
    EXPECT_EQ(shop.shown(u"credit"_s),
              (QStringList{u""_s, u""_s, u"600.00"_s, u"600.00"_s, u"600.00"_s, u""_s}));
    EXPECT_EQ(shop.page()->list()->palette().color(QPalette::Base),
              groundColor(reportGroundColor, QApplication::palette()));
}

TEST_F(BalancePageTest, headingsAndClosingLinesAreBoldObliqueInBlue)
{
    const QFont heading = shop.cell(0, u"name"_s).data(Qt::FontRole).value<QFont>();
    EXPECT_TRUE(heading.bold());
    EXPECT_TRUE(heading.italic());
    EXPECT_EQ(shop.cell(0, u"name"_s).data(Qt::ForegroundRole).value<QColor>(), ShopDesktop::blue());
    EXPECT_EQ(shop.cell(2, u"credit"_s).data(Qt::ForegroundRole).value<QColor>(), ShopDesktop::red());
    EXPECT_FALSE(shop.cell(1, u"name"_s).data(Qt::FontRole).value<QFont>().bold());
    const auto alignment = [this](int row) {
        return shop.cell(row, u"name"_s).data(Qt::TextAlignmentRole).toInt();
    };
    EXPECT_TRUE(alignment(0) & Qt::AlignLeft);
    EXPECT_TRUE(alignment(rowOf(u"TOTAL:"_s)) & Qt::AlignRight);
}

TEST_F(BalancePageTest, theCheckBoxLeavesGroupsAndClosingLines)
{
    shop.click(u"groupCheckBox"_s);
    EXPECT_EQ(shop.shown(u"name"_s), (QStringList{u"Products On Warehouses"_s, u"Customers / Suppliers"_s,
                                                  u"TOTAL:"_s, u"BALANCE:"_s}));
    shop.click(u"groupCheckBox"_s);
    EXPECT_EQ(shop.shown(u"name"_s).size(), 6);
}

TEST_F(BalancePageTest, theSelectedLineStaysSelectedWhenOthersAreHidden)
{
    shop.clickCell(shop.page()->list(), shop.cell(2, u"name"_s));
    shop.click(u"groupCheckBox"_s);
    EXPECT_EQ(shop.page()->list()->currentRow(), 1);
    EXPECT_EQ(shop.shown(u"name"_s)[1], u"Customers / Suppliers"_s);
}

TEST_F(BalancePageTest, aSaleConfirmedElsewhereIsInTheSheetAtOnce)
{
    shop.sell(shop.zenith, shop.tea, 10, 7);
    EXPECT_EQ(shop.shown(u"debet"_s)[rowOf(u"  Zenith"_s)], u"70.00"_s);
    EXPECT_EQ(shop.shown(u"debet"_s)[rowOf(u"BALANCE:"_s)], u"50.00"_s); // 70 owed for what had cost 20
}

TEST_F(BalancePageTest, refreshReadsWhatChangedWithoutANotice)
{
    Contragent late = *shop.program.appDelegate.connector.select<Contragent>(shop.zenith.id);
    late.setBalance(-25);
    ASSERT_EQ(shop.program.appDelegate.connector.update(late), 1);
    EXPECT_EQ(rowOf(u"  Zenith"_s), -1);
    shop.click(u"refreshButton"_s);
    EXPECT_EQ(shop.shown(u"debet"_s)[rowOf(u"  Zenith"_s)], u"25.00"_s);
    EXPECT_TRUE(shop.page()->can(PageCommand::Refresh));
    EXPECT_FALSE(shop.page()->can(PageCommand::Edit));
}

TEST_F(BalancePageTest, noLineIsMissingWhenTheSheetGrowsAboveTheStrip)
{
    makeShort();
    ASSERT_NE(shop.find(u"totalStrip"_s), nullptr);
    const TableList* const list = shop.page()->list();
    for (const Contragent& customer : {shop.zenith, shop.acme}) {
        shop.sell(customer, shop.tea, 10, 7);
        const int count = list->tableModel()->rowCount();
        for (int row = 0; row < count; ++row)
            EXPECT_EQ(list->isRowHidden(row), row >= count - 2) << row;
    }
}

TEST_F(BalancePageTest, amongTheFoundLinesNoneStandsInTheStrip)
{
    makeShort();
    ASSERT_NE(shop.find(u"totalStrip"_s), nullptr);
    shop.page()->perform(PageCommand::Find);
    QTest::keyClicks(QApplication::focusWidget(), u"a"_s);
    EXPECT_EQ(shop.find(u"totalStrip"_s), nullptr);
    for (int row = 0; row < shop.page()->list()->tableModel()->rowCount(); ++row)
        EXPECT_FALSE(shop.page()->list()->isRowHidden(row)) << row;
}

} // namespace zelvor
