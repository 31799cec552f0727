#include "reports/contragent_report_view_controller.h"

#include "reports/saldo_books.h"

#include <gtest/gtest.h>

namespace zelvor {

namespace {

using namespace Qt::Literals::StringLiterals;
using enum DocType;

class ContragentReport : public testing::Test {
protected:
    ContragentReport()
    {
        report.prepareData();
        report.setContragentFromID(acme->id);
    }

    QStringList lines()
    {
        report.prepareReport();
        return saldoLines(view);
    }

    SaldoBooks books;
    std::shared_ptr<Contragent> acme = books.contragent(u"Acme"_s, 42);
    ContragentReportViewController report{books.appDelegate};
    ContragentReportView& view = report.mainView;
    qint64 from = report.dateFrom.moment();
    qint64 to = report.dateTo.moment();
};

} // namespace

TEST_F(ContragentReport, withoutDocumentsBothTitleRowsHaveTodaysBalanceAndNothingStandsBetween)
{
    acme->setBalance(-17.25);
    books.store(*acme);
    report.dateFrom.setMoment(100);
    report.dateTo.setMoment(200);
    EXPECT_EQ(lines(), (QStringList{u"START PERIOD:|-17.25|0|0|"_s, u"END PERIOD:||0|0|-17.25"_s}));
}

TEST_F(ContragentReport, eachDocumentStartsWhereTheOneBeforeFinishedAndTheEndHasAllSums)
{
    const auto other = books.contragent(u"Other"_s);
    qint64 date = to;
    // Stored the wrong way round: the dates say the order.
    books.document<MoneyDocument>(MoneyToContragent, date, *acme, 100000, 7);
    books.document<PropertyDocument>(SellProperty, --date, *acme, 10000, 7);
    books.document(SellIntangibles, --date, *acme, 1000, 7);
    books.document(SellProduct, --date, *acme, 1000, 7);
    books.document<PropertyDocument>(BuyProperty, --date, *acme, 100, 7);
    books.document(Return, --date, *acme, 10.5, 7);
    books.document(BuyProduct, --date, *acme, 10, 7);
    books.document<MoneyDocument>(MoneyFromContragent, --date, *acme, 1, -50);
    books.document(SellProduct, date - 1, *other, 5, 0);
    EXPECT_EQ(
        lines(),
        (QStringList{
            u"START PERIOD:|-50|0|0|"_s, u"Money Document 'Payment from Counterparty' #8 (read)|-50||1|-49"_s,
            u"Product Document 'Purchase' #7 (read)|-49||10|-39"_s,
            u"Product Document '"_s + docTypeName(Return) + u"' #6 (read)|-39||10.5|-28.5"_s,
            u"Property Document '"_s + docTypeName(BuyProperty) + u"' #5 (read)|-28.5||100|71.5"_s,
            u"Product Document 'Sale' #4 (read)|71.5|1000||-928.5"_s,
            u"Product Document '"_s + docTypeName(SellIntangibles) + u"' #3 (read)|-928.5|1000||-1928.5"_s,
            u"Property Document '"_s + docTypeName(SellProperty) + u"' #2 (read)|-1928.5|10000||-11928.5"_s,
            u"Money Document 'Payment to Counterparty' #1 (read)|-11928.5|100000||-111928.5"_s,
            u"END PERIOD:||112000|121.5|-111928.5"_s}));
}

TEST_F(ContragentReport, aDocumentAtTheStartIsOutsideAndOneAtTheEndIsInside)
{
    books.document(SellProduct, from, *acme, 1, 0);
    books.document(SellProduct, from + 1, *acme, 10, 0);
    books.document(SellProduct, to, *acme, 100, 0);
    books.document(SellProduct, to + 1, *acme, 1000, 0);
    books.document(SellProduct, to - 1, *acme, 10000, 0, false);
    EXPECT_EQ(lines().last(), u"END PERIOD:||110|0|-110"_s);
    EXPECT_EQ(view.numberOfRows(), 4);
}

TEST_F(ContragentReport, documentsOfOneSecondStandByKindAndThenByTheirIds)
{
    books.document<MoneyDocument>(MoneyToContragent, to, *acme, 4, 0);
    books.document<PropertyDocument>(SellProperty, to, *acme, 3, 0);
    books.document(SellProduct, to, *acme, 1, 0);
    books.document(SellProduct, to, *acme, 2, 0);
    lines();
    for (int row = 1; row <= 4; ++row)
        EXPECT_EQ(view.value(row, u"debit"_s).toDouble(), row);
}

TEST_F(ContragentReport, aDocumentWithoutASumShowsNeitherDebitNorCredit)
{
    books.document(SellProduct, to, *acme, 0, 9);
    EXPECT_EQ(lines()[1], u"Product Document 'Sale' #1 (read)|9|||9"_s);
}

TEST_F(ContragentReport, theDateIsTheDocumentsAndBlankInTheTitleRows)
{
    books.document(SellProduct, to - 5, *acme, 1, 0);
    lines();
    EXPECT_EQ(view.value(0, u"date"_s), QVariant(QString()));
    EXPECT_EQ(view.value(1, u"date"_s), QVariant(to - 5));
    EXPECT_EQ(view.value(2, u"date"_s), QVariant(QString()));
    EXPECT_TRUE(view.rows()[0].titleRow() && !view.rows()[1].titleRow() && view.rows()[2].titleRow());
}

TEST_F(ContragentReport, withoutACounterpartyNothingIsComputedAndTheOldTableStays)
{
    EXPECT_EQ(lines().size(), 2);
    report.clearContragent();
    EXPECT_TRUE(report.selectedContragent.text().isEmpty());
    report.dateFrom.setMoment(5);
    EXPECT_EQ(lines().size(), 2);
    EXPECT_EQ(view.start(), from);
    ContragentReportViewController fresh(books.appDelegate);
    fresh.prepareData();
    fresh.prepareReport();
    EXPECT_EQ(fresh.mainView.numberOfRows(), 0);
}

TEST_F(ContragentReport, datesTheWrongWayRoundLeaveTheOldTable)
{
    lines();
    report.dateFrom.setMoment(to + 1);
    EXPECT_EQ(lines().size(), 2);
    EXPECT_EQ(report.dateFromLabel.color(), redColor);
    EXPECT_EQ(view.start(), from);
    EXPECT_EQ(view.finish(), to);
}

TEST_F(ContragentReport, theTitleHasTheNameAndTheDates)
{
    lines();
    EXPECT_TRUE(view.name().startsWith(u"Report By Counterparty 'Acme' From: "_s)) << qPrintable(view.name());
    EXPECT_TRUE(view.name().contains(u" To: "_s));
    EXPECT_EQ(view.target(), u"Acme"_s);
    EXPECT_EQ(view.titleColor(), reportTitleColor);
    EXPECT_EQ(view.groundColor(), reportGroundColor);
}

TEST_F(ContragentReport, theChooserHandsOverOneCounterpartyAndListsNewOnes)
{
    report.selectContragent();
    EXPECT_TRUE(report.contragentSelectView.selectPopover.isOpen());
    EXPECT_EQ(report.contragentSelectView.contragents().size(), 1U);
    const auto bolt = books.contragent(u"Bolt"_s, 5);
    books.appDelegate.notifications.post(NotificationName::ContragentChangedNotification);
    ASSERT_EQ(report.contragentSelectView.contragents().size(), 2U);
    report.contragentSelectView.doubleAction(report.contragentSelectView.contragents()[1]);
    EXPECT_FALSE(report.contragentSelectView.selectPopover.isOpen());
    EXPECT_EQ(report.contragent()->id, bolt->id);
    EXPECT_EQ(report.selectedContragent.text(), u"Bolt"_s);
    EXPECT_EQ(lines()[0], u"START PERIOD:|5|0|0|"_s);
}

TEST_F(ContragentReport, aRenamedCounterpartyIsShownByItsNewName)
{
    acme->name = u"Acme & Sons"_s;
    books.store(*acme);
    books.appDelegate.notifications.post(NotificationName::ContragentChangedNotification);
    EXPECT_EQ(report.selectedContragent.text(), u"Acme & Sons"_s);
}

TEST_F(ContragentReport, aConfirmedDocumentComputesAgainAtOnceOnTheScreenOtherwiseWhenAsked)
{
    lines();
    NotificationCenter& center = books.appDelegate.notifications;
    books.document(SellProduct, to, *acme, 1, 0);
    const qint64 stored = books.db.statementCount();
    center.post(NotificationName::DocWithContragentChangedNotification);
    EXPECT_EQ(books.db.statementCount(), stored);
    EXPECT_EQ(view.numberOfRows(), 3);
    view.setVisible(true);
    books.document(SellProduct, to, *acme, 1, 0);
    bool reloaded = false;
    view.onReload([&] { reloaded = true; });
    center.post(NotificationName::DocWithContragentChangedNotification);
    EXPECT_TRUE(reloaded);
    EXPECT_EQ(view.numberOfRows(), 4);
}

TEST_F(ContragentReport, aRowOpensItsDocumentByItsClass)
{
    const auto money = books.document<MoneyDocument>(MoneyToContragent, to, *acme, 1, 0);
    const auto asset = books.document<PropertyDocument>(BuyProperty, to - 1, *acme, 1, 0);
    const auto goods = books.document(SellProduct, to - 2, *acme, 1, 0);
    lines();
    for (const int row : {-1, 0, 1, 2, 3, 4, 5})
        view.doubleAction(row);
    EXPECT_EQ(books.openedDocuments,
              (QStringList{u"Product %1"_s.arg(goods->id), u"Property %1"_s.arg(asset->id),
                           u"Money %1"_s.arg(money->id)}));
}

TEST_F(ContragentReport, theSelectionStaysOnItsDocument)
{
    const auto first = books.document(SellProduct, to, *acme, 1, 0);
    lines();
    view.selectRow(1);
    books.document(SellProduct, to - 1, *acme, 1, 0);
    lines();
    ASSERT_EQ(view.selectedRow(), 2);
    EXPECT_EQ(view.rows()[2].document->id, first->id);
    view.selectRow(0);
    lines();
    EXPECT_EQ(view.selectedRow(), -1);
}

TEST_F(ContragentReport, anotherReportOpensItReadyForItsPeriod)
{
    const auto hidden = books.contragent(u"Gone"_s, 8);
    hidden->isHidden = true;
    books.store(*hidden);
    ContragentReportViewController opened(books.appDelegate);
    EXPECT_TRUE(opened.openReport(hidden->id, 1000, 2000));
    EXPECT_EQ(opened.mainView.start(), 1000);
    EXPECT_EQ(opened.mainView.finish(), 2000);
    EXPECT_EQ(opened.mainView.numberOfRows(), 2);
    EXPECT_TRUE(opened.mainView.name().startsWith(u"Report By Counterparty 'Gone' From: "_s));
    EXPECT_FALSE(opened.openReport(777, 1000, 2000));
}

TEST_F(ContragentReport, cellsHaveTheStyleOfReportTables)
{
    books.document(SellProduct, to, *acme, 1, 0);
    lines();
    for (const int title : {0, 2}) {
        EXPECT_EQ(view.cellStyle(title, u"name"_s).font, CellFont::GatheringBold12);
        EXPECT_EQ(view.cellStyle(title, u"debit"_s).color, inOrderColor);
    }
    EXPECT_EQ(view.cellStyle(1, u"name"_s).font, CellFont::Small);
    EXPECT_EQ(view.cellStyle(1, u"finishSaldo"_s).color, blackColor) << "a statement marks nothing in red";
    EXPECT_EQ(view.cellStyle(1, u"date"_s).alignment, CellAlignment::Left);
    EXPECT_EQ(view.cellStyle(1, u"credit"_s).alignment, CellAlignment::Right);
    for (const ViewColumn& column : view.columns())
        EXPECT_FALSE(column.title.isEmpty());
    EXPECT_EQ(view.value(7, u"name"_s), QVariant(QString()));
}

TEST_F(ContragentReport, goesByTheIndexOfTheCounterparty)
{
    for (const char* table : {"product_doc", "property_doc", "money_doc"}) {
        QString plan;
        const std::string sql = std::string("EXPLAIN QUERY PLAN SELECT * FROM ") + table +
                                " WHERE date>1 AND date<=9 AND contragent_id=1 AND contragent_id<>0 AND "
                                "is_confirmed=1 ORDER BY date, id";
        EXPECT_TRUE(books.db.scan(sql, {}, [&](const Statement& row) { plan += row.text(3) + u'\n'; }));
        EXPECT_TRUE(plan.contains(u"_contragent (contragent_id=? AND date>? AND date<?)"_s))
            << qPrintable(plan);
        EXPECT_FALSE(plan.contains(u"TEMP B-TREE"_s)) << qPrintable(plan);
    }
}

} // namespace zelvor
