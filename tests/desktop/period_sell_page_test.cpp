#include "desktop/period_sell_page.h"

#include "core/doc_type.h"
#include "desktop/selection_popover.h"
#include "desktop/shop_desktop.h"
#include "desktop/theme.h"
#include "reports/period_sell_report_view_controller.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

class PeriodSellPageTest : public testing::Test {
protected:
    void SetUp() override
    {
        shop.sell(shop.acme, shop.tea, 2, 7);
        shop.sell(shop.zenith, shop.coffee, 1, 9);
        shop.sell(shop.zenith, shop.cup, 4, 3);
        shop.workspace().topMenuAction(DocType::PeriodSellReport);
        ASSERT_NE(qobject_cast<PeriodSellPage*>(shop.window().activePage()), nullptr);
    }
    // The names without their indents.
    QStringList names()
    {
        QStringList texts = shop.shown(u"name"_s);
        for (QString& text : texts)
            text = text.trimmed();
        return texts;
    }
    void refresh() { shop.click(u"refreshButton"_s); }
    QAbstractItemView* ticks() { return shop.widget<QAbstractItemView>(u"selectionList"_s); }
    // Clicks the tick of the record with that name in the open popover.
    void tick(const QString& name)
    {
        QAbstractItemView* const list = ticks();
        ASSERT_NE(list, nullptr);
        const QModelIndexList found = list->model()->match(list->model()->index(0, 0), Qt::DisplayRole, name,
                                                           1, Qt::MatchExactly | Qt::MatchRecursive);
        ASSERT_EQ(found.size(), 1) << qPrintable(name);
        shop.clickCell(list, found.first().siblingAtColumn(1));
    }
    bool isTicked(const QString& name)
    {
        QAbstractItemView* const list = ticks();
        const QModelIndexList found = list->model()->match(list->model()->index(0, 0), Qt::DisplayRole, name,
                                                           1, Qt::MatchExactly | Qt::MatchRecursive);
        return !found.isEmpty() &&
               found.first().siblingAtColumn(1).data(Qt::CheckStateRole).toInt() == Qt::Checked;
    }
    void chooseOnly(const QString& button, const QString& name)
    {
        shop.click(button);
        shop.click(u"tickNoneButton"_s);
        tick(name);
        shop.click(u"okButton"_s);
    }
    QString display(const QString& outletName) { return shop.widget<QLineEdit>(outletName)->text(); }
    bool isEnabled(const QString& check) { return shop.widget<QCheckBox>(check)->isEnabled(); }

    ShopDesktop shop;
};

TEST_F(PeriodSellPageTest, saysWhatToDoUntilItIsAsked)
{
    EXPECT_EQ(names(), QStringList());
    EXPECT_EQ(shop.widget<QLabel>(u"emptyText"_s)->text(), u"Choose the period and press \"Refresh\"."_s);
    EXPECT_TRUE(shop.widget<QLineEdit>(u"dateFrom"_s)->hasFocus());
}

TEST_F(PeriodSellPageTest, showsTheSalesOfTodayByProductsWithTheirTotal)
{
    refresh();
    QAbstractItemModelTester tester(shop.page()->list()->tableModel());
    EXPECT_EQ(names(), (QStringList{u"Drinks"_s, u"Coffee"_s, u"Tea"_s, u"Dishes"_s, u"Cup"_s, u"TOTAL"_s}));
    EXPECT_EQ(shop.shown(u"priceSum"_s),
              (QStringList{u"23.00"_s, u"9.00"_s, u"14.00"_s, u"12.00"_s, u"12.00"_s, u"35.00"_s}));
    EXPECT_EQ(shop.shown(u"profit"_s).last(), u"21.00"_s);
    EXPECT_EQ(shop.heading(), u"Report by Selling For Period. From: 11/14/23 To: 11/15/23"_s);
    EXPECT_EQ(shop.page()->list()->palette().color(QPalette::Base),
              groundColor(reportGroundColor, QApplication::palette()));
    EXPECT_TRUE(shop.cell(0, u"name"_s).data(Qt::FontRole).value<QFont>().bold());
    EXPECT_FALSE(shop.cell(1, u"name"_s).data(Qt::FontRole).value<QFont>().bold());
    EXPECT_TRUE(shop.cell(5, u"name"_s).data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
}

TEST_F(PeriodSellPageTest, aPeriodWithoutSalesSaysSo)
{
    shop.type(u"dateTo"_s, u"11/14/2023"_s);
    refresh();
    EXPECT_EQ(names(), QStringList());
    EXPECT_EQ(shop.widget<QLabel>(u"emptyText"_s)->text(), u"Nothing was sold in this period."_s);
    shop.click(u"currentPeriodButton"_s);
    EXPECT_EQ(shop.widget<QLineEdit>(u"dateFrom"_s)->text(), u"11/1/2023"_s);
    EXPECT_EQ(shop.widget<QLabel>(u"emptyText"_s)->text(), u"Choose the period and press \"Refresh\"."_s);
    shop.type(u"dateTo"_s, u"15"_s);
    refresh();
    ASSERT_FALSE(names().isEmpty());
    EXPECT_EQ(names().last(), u"TOTAL"_s);
}

TEST_F(PeriodSellPageTest, datesTheWrongWayRoundKeepTheOldReport)
{
    refresh();
    shop.type(u"dateFrom"_s, u"11/20/2023"_s);
    EXPECT_EQ(shop.ink(u"dateFromLabel"_s), ShopDesktop::red());
    EXPECT_EQ(shop.ink(u"dateToLabel"_s), ShopDesktop::red());
    refresh();
    EXPECT_EQ(names().size(), 6);
    EXPECT_EQ(shop.heading(), u"Report by Selling For Period. From: 11/14/23 To: 11/15/23"_s);
    shop.type(u"dateFrom"_s, u"11/14/2023"_s);
    EXPECT_EQ(shop.ink(u"dateFromLabel"_s), ShopDesktop::blue());
}

TEST_F(PeriodSellPageTest, returnInADateComputesTheReport)
{
    auto* const field = shop.widget<QLineEdit>(u"dateFrom"_s);
    field->selectAll();
    QTest::keyClicks(field, u"11/1/2023"_s);
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(shop.heading(), u"Report by Selling For Period. From: 11/1/23 To: 11/15/23"_s);
    EXPECT_EQ(names().size(), 6);
}

TEST_F(PeriodSellPageTest, returnOnWhatIsNoDateComputesNothing)
{
    auto* const field = shop.widget<QLineEdit>(u"dateFrom"_s);
    field->selectAll();
    QTest::keyClicks(field, u"11/31/2023"_s);
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(field->text(), u"11/14/2023"_s);
    EXPECT_EQ(names(), QStringList());
}

TEST_F(PeriodSellPageTest, theKindOfReportDecidesWhichGroupsCanBeHidden)
{
    const auto expectEnabled = [this](bool products, bool contragents, bool managers) {
        EXPECT_EQ(isEnabled(u"productsGroupCheck"_s), products);
        EXPECT_EQ(isEnabled(u"contragentsGroupCheck"_s), contragents);
        EXPECT_EQ(isEnabled(u"managersGroupCheck"_s), managers);
    };
    expectEnabled(true, false, false);
    shop.click(u"productsGroupCheck"_s);
    shop.click(u"reportType1"_s);
    expectEnabled(false, true, false);
    EXPECT_FALSE(shop.widget<QCheckBox>(u"productsGroupCheck"_s)->isChecked());
    shop.click(u"reportType2"_s);
    expectEnabled(false, true, true);
    shop.click(u"reportType0"_s);
    expectEnabled(true, false, false);
}

TEST_F(PeriodSellPageTest, customersAndManagersAreTheUpperRowsOfTheirReports)
{
    shop.click(u"reportType1"_s);
    refresh();
    EXPECT_EQ(names(), (QStringList{u"Buyers"_s, u"Acme"_s, u"Tea"_s, u"Zenith"_s, u"Coffee"_s, u"Cup"_s,
                                    u"TOTAL"_s}));
    shop.click(u"reportType2"_s);
    refresh();
    EXPECT_EQ(names(), (QStringList{u"Ann"_s, u"Acme"_s, u"Tea"_s, u"Bob"_s, u"Zenith"_s, u"Coffee"_s,
                                    u"Cup"_s, u"TOTAL"_s}));
    shop.click(u"managersGroupCheck"_s);
    refresh();
    EXPECT_EQ(names().mid(0, 5), (QStringList{u"Ann"_s, u"Tea"_s, u"Bob"_s, u"Coffee"_s, u"Cup"_s}));
}

TEST_F(PeriodSellPageTest, theGroupChecksHideTheProductsAndKeepTheSums)
{
    refresh();
    shop.click(u"productsGroupCheck"_s);
    EXPECT_EQ(names(), (QStringList{u"Drinks"_s, u"Dishes"_s, u"TOTAL"_s}));
    EXPECT_EQ(shop.shown(u"priceSum"_s), (QStringList{u"23.00"_s, u"12.00"_s, u"35.00"_s}));
    shop.click(u"productsGroupCheck"_s);
    EXPECT_EQ(names().size(), 6);
}

TEST_F(PeriodSellPageTest, sortingLeavesTheTotalLastAndOutlivesARefresh)
{
    refresh();
    shop.clickHeader(u"priceSum"_s);
    EXPECT_EQ(names(), (QStringList{u"Dishes"_s, u"Cup"_s, u"Drinks"_s, u"Coffee"_s, u"Tea"_s, u"TOTAL"_s}));
    shop.clickHeader(u"priceSum"_s);
    const QStringList descending{u"Drinks"_s, u"Tea"_s, u"Coffee"_s, u"Dishes"_s, u"Cup"_s, u"TOTAL"_s};
    EXPECT_EQ(names(), descending);
    shop.clickHeader(u"packs"_s); // does not sort
    refresh();
    EXPECT_EQ(names(), descending);
    EXPECT_EQ(shop.page()->list()->horizontalHeader()->sortIndicatorSection(),
              shop.cell(0, u"priceSum"_s).column());
}

TEST_F(PeriodSellPageTest, aTickedGroupCarriesItsProductsAndTheDisplayCounts)
{
    EXPECT_EQ(display(u"selectedProductsDisplay"_s), u"all"_s);
    shop.click(u"chooseProducts"_s);
    EXPECT_TRUE(isTicked(u"Tea"_s)); // an empty filter lets everything through
    shop.click(u"tickNoneButton"_s);
    EXPECT_FALSE(isTicked(u"Tea"_s));
    tick(u"Drinks"_s);
    EXPECT_TRUE(isTicked(u"Tea"_s));
    EXPECT_TRUE(isTicked(u"Coffee"_s));
    EXPECT_FALSE(isTicked(u"Cup"_s));
    shop.click(u"okButton"_s);
    EXPECT_EQ(shop.find(u"selectPopover"_s), nullptr);
    EXPECT_EQ(display(u"selectedProductsDisplay"_s), u"2 selected"_s);
    EXPECT_EQ(shop.widget<QWidget>(u"chooseProducts"_s)->accessibleDescription(), u"2 selected"_s);
    refresh();
    EXPECT_EQ(names(), (QStringList{u"Drinks"_s, u"Coffee"_s, u"Tea"_s, u"TOTAL"_s}));

    shop.click(u"clearProducts"_s);
    EXPECT_EQ(display(u"selectedProductsDisplay"_s), u"all"_s);
    refresh();
    EXPECT_EQ(names().size(), 6);
}

TEST_F(PeriodSellPageTest, customersAndManagersFilterTheirReports)
{
    chooseOnly(u"chooseContragents"_s, u"Zenith"_s);
    EXPECT_EQ(display(u"selectedContragentsDisplay"_s), u"1 selected"_s);
    shop.click(u"reportType1"_s);
    refresh();
    EXPECT_FALSE(names().contains(u"Acme"_s));
    EXPECT_TRUE(names().contains(u"Zenith"_s));

    chooseOnly(u"chooseManagers"_s, u"Ann"_s);
    EXPECT_EQ(display(u"selectedManagersDisplay"_s), u"1 selected"_s);
    shop.click(u"reportType2"_s);
    refresh();
    EXPECT_EQ(names(), (QStringList{u"Ann"_s, u"Acme"_s, u"Tea"_s, u"TOTAL"_s}));
}

TEST_F(PeriodSellPageTest, tickingEverythingIsNoFilter)
{
    chooseOnly(u"chooseProducts"_s, u"Cup"_s);
    shop.click(u"chooseProducts"_s);
    EXPECT_FALSE(isTicked(u"Tea"_s));
    shop.click(u"tickAllButton"_s);
    shop.click(u"okButton"_s);
    EXPECT_EQ(display(u"selectedProductsDisplay"_s), u"all"_s);
}

TEST_F(PeriodSellPageTest, cancelLeavesTheFilterAsItWas)
{
    shop.click(u"chooseManagers"_s);
    tick(u"Ann"_s);
    shop.click(u"cancelButton"_s);
    EXPECT_EQ(shop.find(u"selectPopover"_s), nullptr);
    EXPECT_EQ(display(u"selectedManagersDisplay"_s), u"all"_s);
    shop.click(u"chooseManagers"_s);
    EXPECT_TRUE(isTicked(u"Ann"_s));
}

TEST_F(PeriodSellPageTest, aPopoverIsWorkedByTheKeyboardAlone)
{
    shop.widget<QWidget>(u"chooseProducts"_s)->setFocus();
    shop.pressKey(Qt::Key_Space);
    ASSERT_NE(ticks(), nullptr);
    shop.click(u"tickNoneButton"_s);
    shop.widget<QLineEdit>(u"searchLine"_s);
    QLineEdit* const search = shop.find<QWidget>(u"selectPopover"_s)->findChild<QLineEdit*>(u"searchLine"_s);
    search->setFocus();
    QTest::keyClicks(search, u"cup"_s);
    shop.pressKey(Qt::Key_Down); // into the list
    EXPECT_TRUE(ticks()->hasFocus());
    shop.pressKey(Qt::Key_End);
    shop.pressKey(Qt::Key_Space);
    shop.pressKey(Qt::Key_Return);
    EXPECT_EQ(shop.find(u"selectPopover"_s), nullptr);
    EXPECT_EQ(display(u"selectedProductsDisplay"_s), u"1 selected"_s);
}

TEST_F(PeriodSellPageTest, theKeysOfTheMenuReachWhatIsInFront)
{
    QTest::keyClick(&shop.window(), Qt::Key_F5);
    EXPECT_EQ(names().size(), 6);
    shop.click(u"chooseProducts"_s);
    QWidget* const popover = shop.find(u"selectPopover"_s);
    ticks()->setFocus();
    shop.pressKey(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(popover->isAncestorOf(QApplication::focusWidget()));
    EXPECT_EQ(QApplication::focusWidget()->objectName(), u"searchLine"_s);
    EXPECT_FALSE(shop.page()->can(PageCommand::Refresh));
    ticks()->setFocus();
    shop.page()->perform(PageCommand::Find); // from the menu bar
    EXPECT_TRUE(popover->isAncestorOf(QApplication::focusWidget()));
}

TEST_F(PeriodSellPageTest, aPopoverDoesNotStayBehindOnAnotherPage)
{
    shop.click(u"chooseProducts"_s);
    shop.workspace().topMenuAction(DocType::BalanceSheet);
    EXPECT_EQ(shop.find(u"selectPopover"_s), nullptr);
    shop.click(u"groupCheckBox"_s); // nothing lies over the page
    EXPECT_TRUE(shop.widget<QCheckBox>(u"groupCheckBox"_s)->isChecked());
}

TEST_F(PeriodSellPageTest, theTotalStaysInSightOfALongReport)
{
    refresh();
    TableList* const list = shop.page()->list();
    EXPECT_EQ(shop.find(u"totalStrip"_s), nullptr);
    EXPECT_FALSE(list->isRowHidden(5));
    const int tall = shop.window().height() - list->height() + 4 * list->rowHeight(0);
    shop.window().setMinimumHeight(0);
    shop.window().resize(shop.window().width(), tall);
    QTest::qWait(1);
    QWidget* const strip = shop.find(u"totalStrip"_s);
    ASSERT_NE(strip, nullptr);
    EXPECT_TRUE(list->isRowHidden(5));
    EXPECT_EQ(strip->mapTo(shop.page(), QPoint()).y(), list->geometry().bottom() + 1);
    EXPECT_EQ(names().size(), 6);
    shop.clickHeader(u"priceSum"_s);
    EXPECT_TRUE(list->isRowHidden(5));

    shop.page()->perform(PageCommand::Find); // among the matches the total has no place
    QTest::keyClicks(QApplication::focusWidget(), u"tea"_s);
    EXPECT_EQ(shop.find(u"totalStrip"_s), nullptr);
    EXPECT_EQ(names(), QStringList{u"Tea"_s});
}

TEST_F(PeriodSellPageTest, saysWhileTheTableIsNotWhatWasChosen)
{
    shop.click(u"reportType1"_s);
    EXPECT_EQ(shop.find(u"outdatedNote"_s), nullptr); // nothing stands there that could be out of date
    refresh();
    EXPECT_EQ(shop.find(u"outdatedNote"_s), nullptr);
    shop.click(u"reportType0"_s);
    EXPECT_NE(shop.find(u"outdatedNote"_s), nullptr);
    refresh();
    EXPECT_EQ(shop.find(u"outdatedNote"_s), nullptr);
    chooseOnly(u"chooseProducts"_s, u"Cup"_s);
    EXPECT_NE(shop.find(u"outdatedNote"_s), nullptr);
}

TEST_F(PeriodSellPageTest, aProductAddedMeanwhileStandsInThePopover)
{
    Product mug;
    mug.name = u"Mug & Co"_s;
    mug.parentID = shop.dishes.id;
    ASSERT_EQ(shop.program.appDelegate.connector.insert(mug), 1);
    shop.program.appDelegate.notifications.post(NotificationName::ProductChangedNotification);
    shop.click(u"chooseProducts"_s);
    EXPECT_TRUE(isTicked(u"Mug & Co"_s));
}

TEST_F(PeriodSellPageTest, followsTheAppearanceWhileItIsOpen)
{
    const QColor light = shop.ink(u"dateFromLabel"_s);
    applyAppearance(*qApp, Appearance::Dark);
    QApplication::processEvents();
    EXPECT_EQ(shop.page()->list()->palette().color(QPalette::Base),
              groundColor(reportGroundColor, QApplication::palette()));
    EXPECT_EQ(shop.ink(u"dateFromLabel"_s), ShopDesktop::blue());
    EXPECT_NE(ShopDesktop::blue(), light);
    applyAppearance(*qApp, Appearance::Light);
    QApplication::processEvents();
    EXPECT_EQ(shop.ink(u"dateFromLabel"_s), light);
}

TEST_F(PeriodSellPageTest, thePopoversGoWithThePage)
{
    EXPECT_EQ(shop.window().findChildren<SelectionPopover*>().size(), 3);
    shop.click(u"chooseProducts"_s); // also an open one
    ASSERT_NE(shop.find(u"popoverShield"_s), nullptr);
    shop.workspace().closeTab(*shop.workspace().tabView.body.activTab);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(shop.window().findChildren<SelectionPopover*>().size(), 0);
    EXPECT_EQ(shop.window().findChild<QWidget*>(u"popoverShield"_s), nullptr);
}

} // namespace zelvor
