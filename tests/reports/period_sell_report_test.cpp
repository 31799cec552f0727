#include "reports/literal_sell_report.h"
#include "reports/period_sell_report_view_controller.h"
#include "reports/sell_report_books.h"
#include "reports/sold_sums.h"

#include <gtest/gtest.h>

#include <random>

namespace zelvor {

namespace {

using namespace Qt::Literals::StringLiterals;

QString numberCell(const QVariant& value)
{
    return value.userType() == QMetaType::QString
               ? value.toString()
               : Decimal::fromDouble(value.toDouble(), moneyHandler).toText();
}

class PeriodSellReport : public testing::Test {
protected:
    PeriodSellReport() { controller.prepareData(); }

    void report(qint64 tag = 0)
    {
        controller.mainView.reportTypeSelect.selectTag(tag);
        controller.mainView.reportTypeSelect.userChanged();
        controller.prepareReport();
    }
    void tick(CheckBox& check, bool on = true)
    {
        check.setOn(on);
        check.userChanged();
    }
    // The eight cells and the kind of every shown row.
    QStringList lines() const
    {
        QStringList lines;
        for (int row = 0; row < view.numberOfRows(); ++row) {
            QStringList cells{view.value(row, u"name"_s).toString(), view.value(row, u"unit"_s).toString()};
            for (const QString& number : {u"amount"_s, u"packs"_s, u"baseSum"_s, u"priceSum"_s, u"profit"_s})
                cells << numberCell(view.value(row, number));
            cells << QString::number(view.value(row, u"percent"_s).toDouble(), 'f', 4);
            cells << view.reportRows()[static_cast<std::size_t>(row)]->rowType();
            lines << cells.join(u'|');
        }
        return lines;
    }
    QStringList names() const
    {
        QStringList names;
        for (const PeriodSellReportRow* row : controller.mainView.reportRows())
            names << row->name();
        return names;
    }

    SellReportBooks books;
    PeriodSellReportViewController controller{books.appDelegate};
    PeriodSellReportView& view = controller.mainView;
};

} // namespace

TEST_F(PeriodSellReport, productsStandBelowTheirGroupsWithSumsAbove)
{
    const qint64 drinks = books.addGroup<ProductGroup>(u"Drinks"_s);
    const qint64 teas = books.addGroup<ProductGroup>(u"Teas"_s, drinks);
    const qint64 unit = books.addUnit(u"kg"_s);
    const qint64 green = books.addProduct(u"Green tea"_s, teas, 0.3, unit);
    const qint64 black = books.addProduct(u"Black tea"_s, teas, 2, unit);
    const qint64 loose = books.addProduct(u"Advice"_s);
    books.sell(1, {{green, 1, 0.1, 0.3}, {black, 5, 10, 8}});
    books.sell(2, {{green, 2, 0.2, 0.45}});
    books.addDocument(DocType::SellIntangibles, books.clock.now(), 1, {{loose, 1, 0, 20}});
    report();
    EXPECT_EQ(lines(), (QStringList{u" Drinks||8|12.5|10.3|8.75|-1.55|-0.1505|productGroup"_s,
                                    u"    Teas||8|12.5|10.3|8.75|-1.55|-0.1505|productGroup"_s,
                                    u"       Black tea|kg|5|2.5|10|8|-2|-0.2000|product"_s,
                                    u"       Green tea|kg|3|10|0.3|0.75|0.45|1.5000|product"_s,
                                    u" Advice||1||0|20|20|1.0000|product"_s,
                                    u" TOTAL||9||10.3|28.75|18.45|1.7913|total"_s}));
}

TEST_F(PeriodSellReport, onlyConfirmedSalesBetweenTheDatesCount)
{
    const qint64 product = books.addProduct(u"Tea"_s);
    const qint64 from = controller.dateFrom.moment();
    const qint64 to = controller.dateTo.moment();
    const std::vector<SellReportBooks::Sold> rows{{product, 1, 1, 2}};
    for (const qint64 date : {from, from + 1, to - 1, to}) // both bounds are outside
        books.addDocument(DocType::SellProduct, date, 1, rows);
    books.addDocument(DocType::SellProduct, from + 2, 1, rows, false);
    for (const DocType type :
         {DocType::BuyProduct, DocType::Return, DocType::MoveProduct, DocType::DeleteProduct})
        books.addDocument(type, from + 2, 1, rows);
    report();
    ASSERT_EQ(names(), (QStringList{u"Tea"_s, u"TOTAL"_s}));
    EXPECT_DOUBLE_EQ(view.reportRows()[0]->amount(), 2);
}

TEST_F(PeriodSellReport, anUnknownTypeShowsNothingAtAll)
{
    books.sell(1, {{books.addProduct(u"Tea"_s), 1, 1, 2}});
    report(3);
    EXPECT_EQ(view.numberOfRows(), 0);
    EXPECT_EQ(view.reportBy(), u"None"_s);
}

TEST_F(PeriodSellReport, aPeriodWithoutSalesShowsNoRowNotEvenTheTotal)
{
    books.addGroup<ProductGroup>(u"Empty"_s);
    for (const qint64 tag : {0, 1, 2}) {
        report(tag);
        EXPECT_EQ(view.numberOfRows(), 0);
    }
}

TEST_F(PeriodSellReport, aProductWhoseGroupWasFilteredOutStandsAtTheTop)
{
    const qint64 teas = books.addGroup<ProductGroup>(u"Teas"_s);
    const qint64 jams = books.addGroup<ProductGroup>(u"Jams"_s);
    books.addProduct(u"Nothing sold"_s);
    books.addProduct(u"Nothing sold either"_s);
    books.sell(1, {{books.addProduct(u"Tea"_s, teas), 1, 1, 2}, {books.addProduct(u"Jam"_s, jams), 1, 1, 2}});
    controller.setProductTypeIDs({jams});
    report();
    EXPECT_EQ(names(), (QStringList{u"Jams"_s, u"Jam"_s, u"Tea"_s, u"TOTAL"_s}));
    EXPECT_EQ(view.reportRows()[2]->parent, nullptr);
    EXPECT_EQ(view.value(2, u"name"_s).toString(), u" Tea"_s);
}

TEST_F(PeriodSellReport, aGroupComesBeforeAProductOfTheSameId)
{
    const qint64 group = books.addGroup<ProductGroup>(u"Teas"_s);
    const qint64 sameID = books.addProduct(u"Green"_s, group);
    const qint64 black = books.addProduct(u"Black"_s, group);
    ASSERT_EQ(group, sameID);
    books.sell(1, {{sameID, 1, 1, 2}, {black, 1, 1, 2}});
    report();
    EXPECT_EQ(names(), (QStringList{u"Teas"_s, u"Black"_s, u"Green"_s, u"TOTAL"_s}));
}

TEST_F(PeriodSellReport, aProductCanTakeThePlaceOfAFilteredGroup)
{
    const qint64 teas = books.addGroup<ProductGroup>(u"Teas"_s);
    const qint64 jams = books.addGroup<ProductGroup>(u"Jams"_s);
    const qint64 first = books.addProduct(u"First"_s);
    ASSERT_EQ(first, teas);
    const qint64 second = books.addProduct(u"Second"_s, teas);
    books.sell(1, {{first, 1, 1, 2}, {second, 4, 1, 2}});
    controller.setProductTypeIDs({jams});
    report();
    EXPECT_EQ(names(), (QStringList{u"First"_s, u"Second"_s, u"TOTAL"_s}));
    EXPECT_EQ(view.reportRows()[1]->parent, view.reportRows()[0]);
    EXPECT_DOUBLE_EQ(view.reportRows()[0]->amount(), 1); // a product gathers nothing
}

TEST_F(PeriodSellReport, aProductThatIsItsOwnParentIsNotReached)
{
    const qint64 group = books.addGroup<ProductGroup>(u"Teas"_s);
    const qint64 other = books.addGroup<ProductGroup>(u"Jams"_s);
    const qint64 product = books.addProduct(u"Tea"_s, group);
    ASSERT_EQ(product, group);
    books.sell(1, {{product, 1, 1, 2}});
    controller.setProductTypeIDs({other});
    report();
    EXPECT_EQ(names(), QStringList{u"TOTAL"_s}); // it still counts
}

TEST_F(PeriodSellReport, aProductWithoutAPackShowsNoPacksAndAddsNone)
{
    const qint64 group = books.addGroup<ProductGroup>(u"Teas"_s);
    books.sell(1, {{books.addProduct(u"Loose"_s, group), 7, 1, 2},
                   {books.addProduct(u"Boxed"_s, group, 4), 6, 1, 2}});
    report();
    EXPECT_EQ(names(), (QStringList{u"Teas"_s, u"Boxed"_s, u"Loose"_s, u"TOTAL"_s}));
    EXPECT_EQ(view.value(0, u"packs"_s), QVariant(1.5));
    EXPECT_EQ(view.value(1, u"packs"_s), QVariant(1.5));
    EXPECT_EQ(view.value(2, u"packs"_s), QVariant(QString()));
    EXPECT_EQ(view.value(3, u"packs"_s), QVariant(QString()));
}

TEST_F(PeriodSellReport, withoutACostTheProfitIsAHundredPercent)
{
    PeriodSellReportRow row;
    EXPECT_DOUBLE_EQ(row.percent(), 1);
    row.setPriceSum(5);
    EXPECT_DOUBLE_EQ(row.percent(), 1);
    row.setBaseSum(3);
    EXPECT_DOUBLE_EQ(row.percent(), 0.6667);
}

TEST_F(PeriodSellReport, sortingNeverMovesTheGrandTotal)
{
    const qint64 group = books.addGroup<ProductGroup>(u"Group"_s);
    books.sell(1, {{books.addProduct(u"B"_s, group), 1, 10, 30},
                   {books.addProduct(u"A"_s, group), 2, 40, 50},
                   {books.addProduct(u"Z"_s), 3, 1, 2},
                   {books.addProduct(u"Y"_s), 9, 100, 90}});
    report();
    const auto sorted = [&](const QString& key, bool ascending) {
        view.sort(key, ascending);
        return names();
    };
    EXPECT_EQ(names(), (QStringList{u"Group"_s, u"A"_s, u"B"_s, u"Z"_s, u"Y"_s, u"TOTAL"_s}));
    EXPECT_EQ(sorted(u"amount"_s, false),
              (QStringList{u"Y"_s, u"Group"_s, u"A"_s, u"B"_s, u"Z"_s, u"TOTAL"_s}));
    EXPECT_EQ(sorted(u"amount"_s, true),
              (QStringList{u"Group"_s, u"B"_s, u"A"_s, u"Z"_s, u"Y"_s, u"TOTAL"_s}));
    EXPECT_EQ(sorted(u"base"_s, true), (QStringList{u"Z"_s, u"Group"_s, u"B"_s, u"A"_s, u"Y"_s, u"TOTAL"_s}));
    EXPECT_EQ(sorted(u"price"_s, false),
              (QStringList{u"Y"_s, u"Group"_s, u"A"_s, u"B"_s, u"Z"_s, u"TOTAL"_s}));
    EXPECT_EQ(sorted(u"profit"_s, true),
              (QStringList{u"Y"_s, u"Z"_s, u"Group"_s, u"A"_s, u"B"_s, u"TOTAL"_s}));
    EXPECT_EQ(sorted(u"percent"_s, false),
              (QStringList{u"Z"_s, u"Group"_s, u"B"_s, u"A"_s, u"Y"_s, u"TOTAL"_s}));
    EXPECT_EQ(sorted(u"name"_s, false),
              (QStringList{u"Z"_s, u"Y"_s, u"Group"_s, u"B"_s, u"A"_s, u"TOTAL"_s}));
    EXPECT_EQ(sorted(u"unit"_s, true), (QStringList{u"Z"_s, u"Y"_s, u"Group"_s, u"B"_s, u"A"_s, u"TOTAL"_s}));
    EXPECT_DOUBLE_EQ(view.reportRows()[2]->amount(), 3); // sums are not added again
}

TEST_F(PeriodSellReport, sortingBeforeTheFirstReportDoesNothing)
{
    view.sort(u"name"_s, true);
    EXPECT_EQ(view.numberOfRows(), 0);
}

TEST_F(PeriodSellReport, anEmployeeWithoutCounterpartiesListsEverySaleWhenTheyAreSummed)
{
    const qint64 busy = books.addManager(u"Busy"_s);
    books.addManager(u"Idle"_s);
    const qint64 customer = books.addContragent(u"Customer"_s, busy);
    const qint64 walkIn = books.addContragent(u"Walk-in"_s);
    const qint64 tea = books.addProduct(u"Tea"_s);
    books.sell(customer, {{tea, 2, 2, 4}});
    books.sell(walkIn, {{tea, 5, 5, 9}});
    report(2);
    view.managersGroupCheck.setOn(true);
    controller.prepareReport();
    ASSERT_EQ(names(),
              (QStringList{u"Busy"_s, u"Tea"_s, u"Idle"_s, u"Tea"_s, u"No manager"_s, u"Tea"_s, u"TOTAL"_s}));
    const auto& rows = view.reportRows();
    EXPECT_DOUBLE_EQ(rows[0]->amount(), 2);
    EXPECT_DOUBLE_EQ(rows[2]->amount(), 7);
    EXPECT_DOUBLE_EQ(rows[4]->amount(), 5);
    EXPECT_DOUBLE_EQ(rows[6]->amount(), 14);
}

TEST_F(PeriodSellReport, employeesShowTheirCounterpartiesAndThoseOfNobodyComeLast)
{
    const qint64 ann = books.addManager(u"Ann"_s);
    const qint64 chain = books.addContragent(u"Chain"_s, ann);
    const qint64 shop = books.addContragent(u"Shop"_s, ann, 0, chain);
    const qint64 stray = books.addContragent(u"Stray"_s, 0, 0, chain);
    const qint64 tea = books.addProduct(u"Tea"_s);
    for (const qint64 customer : {chain, shop, stray})
        books.sell(customer, {{tea, 1, 1, 2}});
    report(2);
    // Below "No manager" the holder's id stands without the offset, so the stray customer is found by the
    // product whose id is the chain's, or by nobody.
    ASSERT_EQ(names(), (QStringList{u"Ann"_s, u"Chain"_s, u"Shop"_s, u"Tea"_s, u"Tea"_s, u"Stray"_s, u"Tea"_s,
                                    u"TOTAL"_s}));
    EXPECT_EQ(view.reportRows()[5]->parentID, chain);
    ASSERT_NE(view.reportRows()[5]->parent, nullptr);
    EXPECT_EQ(view.reportRows()[5]->parent->name(), u"Tea"_s);
}

TEST_F(PeriodSellReport, nobodysCounterpartiesAreListedWhateverTheFilter)
{
    const qint64 ann = books.addManager(u"Ann"_s);
    const qint64 bob = books.addManager(u"Bob"_s);
    const qint64 tea = books.addProduct(u"Tea"_s);
    for (const qint64 manager : {ann, bob, qint64{0}})
        books.sell(books.addContragent(u"Of "_s + QString::number(manager), manager), {{tea, 1, 1, 2}});
    controller.setSelectedManagers({bob});
    report(2);
    EXPECT_EQ(names(),
              (QStringList{u"Bob"_s, u"Of 2"_s, u"Tea"_s, u"No manager"_s, u"Of 0"_s, u"Tea"_s, u"TOTAL"_s}));
}

TEST_F(PeriodSellReport, customersStandBelowTheirHolderOrElseTheirGroup)
{
    const qint64 group = books.addGroup<ContragentGroup>(u"Retail"_s);
    const qint64 chain = books.addContragent(u"Chain"_s, 0, group);
    const qint64 shop = books.addContragent(u"Shop"_s, 0, group, chain);
    books.addContragent(u"Quiet"_s, 0, group);
    const qint64 tea = books.addProduct(u"Tea"_s);
    books.sell(chain, {{tea, 1, 1, 2}});
    books.sell(shop, {{tea, 2, 1, 2}});
    books.sell(0, {{tea, 4, 1, 2}}); // of no customer: not in this form
    report(1);
    EXPECT_EQ(names(), (QStringList{u"Retail"_s, u"Chain"_s, u"Shop"_s, u"Tea"_s, u"Tea"_s, u"TOTAL"_s}));
    EXPECT_DOUBLE_EQ(view.reportRows()[0]->amount(), 3);
    EXPECT_EQ(view.reportRows()[1]->id, chain + 10000);
    tick(view.contragentsGroupCheck);
    EXPECT_EQ(names(), (QStringList{u"Retail"_s, u"Chain"_s, u"Shop"_s, u"TOTAL"_s}));
}

TEST_F(PeriodSellReport, theCheckBoxHidesProductsButNotThoseWithoutAGroup)
{
    const qint64 group = books.addGroup<ProductGroup>(u"Teas"_s);
    books.sell(1, {{books.addProduct(u"Tea"_s, group), 1, 1, 2}, {books.addProduct(u"Loose"_s), 2, 1, 2}});
    report();
    const qint64 statements = books.appDelegate.connector.statementCount();
    tick(view.productsGroupCheck);
    EXPECT_EQ(names(), (QStringList{u"Teas"_s, u"Loose"_s, u"TOTAL"_s}));
    EXPECT_DOUBLE_EQ(view.reportRows()[0]->amount(), 1);
    EXPECT_DOUBLE_EQ(view.reportRows()[2]->amount(), 3);
    tick(view.productsGroupCheck, false);
    EXPECT_EQ(names().size(), 4);
    EXPECT_EQ(books.appDelegate.connector.statementCount(), statements);
}

TEST_F(PeriodSellReport, theTypeSaysWhichCheckBoxesCanBeUsed)
{
    const auto enabled = [this] {
        return std::vector{view.productsGroupCheck.enabled(), view.contragentsGroupCheck.enabled(),
                           view.managersGroupCheck.enabled()};
    };
    EXPECT_EQ(enabled(), (std::vector{true, false, false}));
    view.productsGroupCheck.setOn(true);
    const std::vector<std::vector<bool>> byTag{
        {true, false, false}, {false, true, false}, {false, true, true}, {false, true, true}};
    for (const qint64 tag : {1, 2, 3, 0}) {
        view.reportTypeSelect.selectTag(tag);
        view.reportTypeSelect.userChanged();
        EXPECT_EQ(enabled(), byTag[static_cast<std::size_t>(tag)]) << tag;
        EXPECT_FALSE(view.productsGroupCheck.isOn());
    }
}

TEST_F(PeriodSellReport, theDisplaysTellTheFilters)
{
    EXPECT_EQ(controller.selectedContragentsDisplay.text(), u"all"_s);
    EXPECT_EQ(controller.selectedProductsDisplay.text(), u"all"_s);
    EXPECT_EQ(controller.selectedManagersDisplay.text(), u"all"_s);
    controller.setContragentIDs({1, 2});
    controller.setContragentTypeIDs({1});
    controller.setProductTypeIDs({4});
    controller.setSelectedManagers({3});
    controller.setStringPredicates();
    EXPECT_EQ(controller.selectedContragentsDisplay.text(), u"2 selected"_s);
    EXPECT_EQ(controller.selectedProductsDisplay.text(), u"0 selected"_s);
    EXPECT_EQ(controller.selectedManagersDisplay.text(), u"1 selected"_s);
    controller.clearContragentIDs();
    controller.clearProductIDs();
    controller.clearManagerIDs();
    EXPECT_EQ(controller.selectedContragentsDisplay.text(), u"all"_s);
    EXPECT_EQ(controller.selectedProductsDisplay.text(), u"all"_s);
    EXPECT_EQ(controller.selectedManagersDisplay.text(), u"all"_s);
}

TEST_F(PeriodSellReport, aFilterIsChosenInItsPopover)
{
    const qint64 ann = books.addManager(u"Ann"_s);
    const qint64 group = books.addGroup<ContragentGroup>(u"Retail"_s);
    const qint64 shop = books.addContragent(u"Shop"_s, 0, group);
    books.addContragent(u"Kiosk"_s, 0, group);
    const qint64 teas = books.addGroup<ProductGroup>(u"Teas"_s);
    const qint64 tea = books.addProduct(u"Tea"_s, teas);

    ContragentSelectView& contragents = controller.contragentSelectView;
    controller.selectContragent();
    ASSERT_TRUE(contragents.selectPopover.isOpen());
    for (const auto& node : contragents.all())
        EXPECT_TRUE(node->selected); // no filter is all of them
    for (const auto& node : contragents.all())
        contragents.setValue(node, u"selected"_s, node->name == u"Shop");
    contragents.sendIDs();
    EXPECT_FALSE(contragents.selectPopover.isOpen());
    EXPECT_EQ(controller.selectedContragentsDisplay.text(), u"1 selected"_s);
    EXPECT_EQ(contragents.contragentIDs, std::vector<qint64>{shop});

    controller.selectProduct();
    ASSERT_EQ(controller.productsSelectView.all().size(), 2U);
    controller.productsSelectView.setValue(controller.productsSelectView.all()[1], u"selected"_s, true);
    controller.productsSelectView.sendIDs();
    EXPECT_EQ(controller.selectedProductsDisplay.text(), u"1 selected"_s);
    EXPECT_EQ(controller.productsSelectView.productIDs, std::vector<qint64>{tea});

    controller.selectManager();
    controller.managerSelectView.setValue(0, u"selected"_s, true);
    controller.managerSelectView.sendIDs();
    EXPECT_EQ(controller.selectedManagersDisplay.text(), u"1 selected"_s);
    EXPECT_EQ(controller.managerSelectView.selectedManagers, std::vector<qint64>{ann});
}

TEST_F(PeriodSellReport, aPopoverOpensWithTheTicksOfItsFilter)
{
    const qint64 shop = books.addContragent(u"Shop"_s);
    books.addContragent(u"Kiosk"_s);
    controller.setContragentIDs({shop});
    controller.selectContragent();
    for (const auto& node : controller.contragentSelectView.all())
        EXPECT_EQ(node->selected, node->id == shop);
    controller.clearContragentIDs();
    for (const auto& node : controller.contragentSelectView.all())
        EXPECT_TRUE(node->selected);
}

TEST_F(PeriodSellReport, aChangedCatalogIsReadWhenItsPopoverOpens)
{
    controller.selectProduct();
    controller.productsSelectView.cancelPopover();
    const qint64 statements = books.appDelegate.connector.statementCount();
    for (const NotificationName name :
         {NotificationName::ProductChangedNotification, NotificationName::ContragentChangedNotification,
          NotificationName::ManagerChangedNotification})
        books.appDelegate.notifications.post(name);
    EXPECT_EQ(books.appDelegate.connector.statementCount(), statements);
    books.addProduct(u"Tea"_s);
    controller.selectProduct();
    EXPECT_EQ(controller.productsSelectView.all().size(), 1U);
    books.addProduct(u"Jam"_s);
    books.appDelegate.notifications.post(NotificationName::ProductChangedNotification); // while it is open
    EXPECT_EQ(controller.productsSelectView.all().size(), 2U);
}

TEST_F(PeriodSellReport, theTabTellsItsDates)
{
    const QLocale locale;
    EXPECT_EQ(view.name(), u"Report by Selling For Period. From: "_s +
                               locale.toString(QDate(2015, 3, 15), QLocale::ShortFormat) + u" To: "_s +
                               locale.toString(QDate(2015, 3, 16), QLocale::ShortFormat));
    controller.dateFrom.setMoment(SellReportBooks::moment(2015, 1, 1));
    controller.prepareReport();
    EXPECT_TRUE(view.name().contains(locale.toString(QDate(2015, 1, 1), QLocale::ShortFormat)));
    EXPECT_FALSE(controller.progress.isRunning());
}

TEST_F(PeriodSellReport, rowsAreStyledByTheirKindAndLossesAreRed)
{
    const qint64 group = books.addGroup<ProductGroup>(u"Teas"_s);
    books.sell(1, {{books.addProduct(u"Tea"_s, group), 1, 10, 5}});
    report();
    EXPECT_EQ(view.cellStyle(0, u"name"_s).font, CellFont::GatheringBold12);
    EXPECT_EQ(view.cellStyle(0, u"name"_s).color, inOrderColor);
    EXPECT_EQ(view.cellStyle(0, u"name"_s).alignment, CellAlignment::Left);
    EXPECT_EQ(view.cellStyle(1, u"amount"_s).font, CellFont::Small);
    EXPECT_EQ(view.cellStyle(1, u"amount"_s).color, blackColor);
    EXPECT_EQ(view.cellStyle(1, u"profit"_s).color, redColor);
    EXPECT_EQ(view.cellStyle(0, u"percent"_s).color, redColor);
    EXPECT_EQ(view.cellStyle(2, u"name"_s).alignment, CellAlignment::Right);
    EXPECT_EQ(view.groundColor(), reportGroundColor);
    EXPECT_EQ(view.titleColor(), reportTitleColor);
    EXPECT_TRUE(view.canExportToExcel());
    EXPECT_EQ(view.value(3, u"name"_s), QVariant(QString()));
    EXPECT_EQ(view.value(0, u"other"_s), QVariant(QString()));
}

TEST_F(PeriodSellReport, thePrintIsToldTypeAndGrouping)
{
    EXPECT_EQ(view.reportBy(), u"Products"_s);
    EXPECT_EQ(view.groupedBy(), u"None"_s);
    report(1);
    EXPECT_EQ(view.reportBy(), u"Customers"_s);
    report(2);
    EXPECT_EQ(view.reportBy(), u"Managers"_s);
    for (CheckBox* check : {&view.managersGroupCheck, &view.productsGroupCheck, &view.contragentsGroupCheck})
        check->setOn(true);
    EXPECT_EQ(view.groupedBy(), u"Products;Customers;Managers"_s);
}

TEST_F(PeriodSellReport, aFailingReadShowsNoHalfReport)
{
    books.sell(1, {{books.addProduct(u"Tea"_s), 1, 1, 2}});
    books.appDelegate.connector.execute("COMMIT");
    report();
    ASSERT_EQ(view.numberOfRows(), 2);
    books.connector->failCall(2, FaultInjectingConnector::Read); // groups, then the sales
    controller.prepareReport();
    EXPECT_TRUE(books.connector->hasFailed());
    EXPECT_EQ(view.numberOfRows(), 0);
}

TEST_F(PeriodSellReport, theReportTakesTheSameFewStatementsForOneCustomerAndForMany)
{
    const qint64 tea = books.addProduct(u"Tea"_s);
    const auto statements = [this](qint64 tag) {
        const qint64 before = books.appDelegate.connector.statementCount();
        report(tag);
        return books.appDelegate.connector.statementCount() - before;
    };
    const auto fill = [&](int count) {
        for (int i = 0; i < count; ++i)
            books.sell(books.addContragent(QString::number(i), books.addManager(QString::number(i))),
                       {{tea, 1, 1, 2}});
    };
    fill(1);
    std::vector<qint64> few;
    for (const qint64 tag : {0, 1, 2})
        few.push_back(statements(tag));
    fill(40);
    for (const qint64 tag : {0, 1, 2}) {
        EXPECT_EQ(statements(tag), few[static_cast<std::size_t>(tag)]);
        EXPECT_LE(few[static_cast<std::size_t>(tag)], 7);
    }
}

TEST_F(PeriodSellReport, storedValuesBeyondCentsAreRoundedAfterTheAddition)
{
    SoldSums sums;
    for (int i = 0; i < 10; ++i)
        sums.add({7, {0.004, 1e12, 0.1}});
    sums.add({-3, {1, 2, 3}});
    sums.add({1'000'000, {1, 2, 3}});
    const auto products = sums.products();
    ASSERT_EQ(products.size(), 3U);
    EXPECT_EQ(products[0].productID, -3);
    EXPECT_EQ(products[1].productID, 7);
    EXPECT_EQ(products[1].amount, Decimal::fromText(u"0.04"));
    EXPECT_EQ(products[1].baseSum, Decimal::fromText(u"1e13"));
    EXPECT_EQ(products[1].priceSum, Decimal(1));
    EXPECT_EQ(products[2].productID, 1'000'000);
}

// Generated books and questions; the report must show what its rules say, cell by cell.
class GeneratedSellReport : public PeriodSellReport, public testing::WithParamInterface<unsigned> {
protected:
    int number(int from, int to) { return std::uniform_int_distribution(from, to)(m_random); }
    bool chance(int percent) { return number(1, 100) <= percent; }
    std::vector<qint64> someIDs(int most)
    {
        std::vector<qint64> ids;
        if (chance(50)) {
            for (int i = number(1, 4); i > 0; --i)
                ids.push_back(number(1, most + 1));
        }
        return ids;
    }
    void fill();
    void addDocuments(int count);
    void ask(qint64 tag);

    std::mt19937 m_random{GetParam()};
    int m_products = 0;
    int m_groups = 0;
    int m_contragents = 0;
    int m_managers = 0;
};

void GeneratedSellReport::fill()
{
    const auto name = [this] { return u"n"_s + QString::number(number(0, 40)); }; // equal names happen
    m_groups = number(1, 6);
    m_managers = number(1, 5);
    m_contragents = number(1, 15);
    m_products = number(1, 30);
    for (int i = 0; i < m_groups; ++i) {
        books.addGroup<ProductGroup>(name(), i == 0 ? 0 : number(0, i));
        books.addGroup<ContragentGroup>(name(), i == 0 ? 0 : number(0, i));
    }
    books.addUnit(u"kg"_s);
    for (int i = 0; i < m_managers; ++i)
        books.addManager(name());
    for (int i = 1; i <= m_contragents; ++i)
        books.addContragent(name(), number(0, m_managers), number(0, m_groups),
                            chance(25) ? number(0, i - 1) : 0);
    for (int i = 0; i < m_products; ++i)
        books.addProduct(name(), number(0, m_groups + 1), number(0, 3) * 0.7, number(0, 2));
    addDocuments(number(0, 60));
}

void GeneratedSellReport::addDocuments(int count)
{
    const std::vector types{DocType::SellProduct, DocType::SellProduct, DocType::SellIntangibles,
                            DocType::Return};
    for (int i = 0; i < count; ++i) {
        std::vector<SellReportBooks::Sold> rows;
        for (int row = number(1, 5); row > 0; --row)
            rows.push_back({number(1, m_products + 1), number(-200, 2000) / 100.0, number(0, 99999) / 100.0,
                            number(0, 99999) / 100.0});
        books.addDocument(types[static_cast<std::size_t>(number(0, 3))],
                          books.clock.now() + number(-90, 90) * 86400, number(0, m_contragents + 1), rows,
                          chance(90));
    }
}

void GeneratedSellReport::ask(qint64 tag)
{
    PeriodSellReportQuery query;
    query.dateFrom = books.clock.now() - number(0, 95) * 86400;
    query.dateTo = query.dateFrom + number(0, 150) * 86400;
    query.productTypeIDs = someIDs(m_groups);
    query.productIDs = someIDs(m_products);
    query.contragentIDs = someIDs(m_contragents);
    query.contragentTypeIDs = someIDs(m_groups);
    query.selectedManagers = someIDs(m_managers);
    const QStringList keys{u"name"_s, u"amount"_s, u"base"_s, u"price"_s, u"profit"_s, u"percent"_s};
    LiteralSellReport::Options options{
        tag, chance(20), chance(20), chance(50), chance(50) ? keys[number(0, 5)] : QString(), chance(50)};

    controller.dateFrom.setMoment(query.dateFrom);
    controller.dateTo.setMoment(query.dateTo);
    controller.setProductTypeIDs(query.productTypeIDs);
    controller.setProductIDs(query.productIDs);
    controller.setContragentIDs(query.contragentIDs);
    controller.setContragentTypeIDs(query.contragentTypeIDs);
    controller.setSelectedManagers(query.selectedManagers);
    view.reportTypeSelect.selectTag(tag);
    view.reportTypeChanged();
    view.productsGroupCheck.setOn(options.productsGroup);
    view.contragentsGroupCheck.setOn(options.contragentsGroup);
    view.managersGroupCheck.setOn(options.managersGroup);
    controller.prepareReport();
    if (!options.sortKey.isEmpty())
        view.sort(options.sortKey, options.ascending);
    ASSERT_EQ(
        lines().join(u'\n').toStdString(),
        LiteralSellReport(books.appDelegate.connector, query, options).lines().join(u'\n').toStdString())
        << "tag " << tag;
}

TEST_P(GeneratedSellReport, showsWhatItsRulesSayCellByCell)
{
    fill();
    for (int question = 0; question < 12; ++question)
        ask(question % 3);
}

INSTANTIATE_TEST_SUITE_P(Books, GeneratedSellReport, testing::Range(1U, 61U));

} // namespace zelvor
