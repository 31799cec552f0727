#include "reports/contragents_report_view_controller.h"
#include "reports/saldo_books.h"

#include <gtest/gtest.h>

namespace zelvor {

namespace {

using namespace Qt::Literals::StringLiterals;
using enum DocType;

class ContragentsReport : public testing::Test {
protected:
    ContragentsReport() { report.prepareData(); }

    QStringList lines()
    {
        report.prepareReport();
        return saldoLines(view);
    }
    QStringList names()
    {
        QStringList names;
        for (const QString& line : lines())
            names << line.section(u'|', 0, 0);
        return names;
    }

    SaldoBooks books;
    ContragentsReportViewController report{books.appDelegate};
    ContragentsReportView& view = report.mainView;
    qint64 from = report.dateFrom.moment();
    qint64 to = report.dateTo.moment();
};

} // namespace

TEST_F(ContragentsReport, theFirstDocumentTellsTheStartAndEachTypeItsSide)
{
    const auto acme = books.contragent(u"Acme"_s, 999);
    qint64 date = from;
    books.document<MoneyDocument>(MoneyFromContragent, ++date, *acme, 1, -50);
    for (const DocType type : {BuyProduct, Return})
        books.document(type, ++date, *acme, 10, 7);
    books.document<PropertyDocument>(BuyProperty, ++date, *acme, 100, 7);
    for (const DocType type : {SellProduct, SellIntangibles})
        books.document(type, ++date, *acme, 1000, 7);
    books.document<PropertyDocument>(SellProperty, ++date, *acme, 10000, 7);
    books.document<MoneyDocument>(MoneyToContragent, ++date, *acme, 100000, 7);
    EXPECT_EQ(lines(), (QStringList{u"START PERIOD:|-50|0|0|-50"_s, u"Acme|-50|112000|121|-111929"_s,
                                    u"END PERIOD:|-50|112000|121|-111929"_s}));
}

TEST_F(ContragentsReport, withoutAnyBalanceAndDocumentACounterpartyDoesNotShow)
{
    books.contragent(u"Idle"_s);
    EXPECT_EQ(names(), (QStringList{u"START PERIOD:"_s, u"END PERIOD:"_s}));
}

// Kept as it has always been: the balance of today, also when the period is long past.
TEST_F(ContragentsReport, withoutDocumentsTodaysBalanceIsShownForAPastPeriodToo)
{
    const auto acme = books.contragent(u"Acme"_s, -12.5);
    books.document(SellProduct, SaldoBooks::moment(2015, 1, 5), *acme, 12.5, 0);
    report.dateFrom.setMoment(SaldoBooks::moment(2014, 1, 1));
    report.dateTo.setMoment(SaldoBooks::moment(2014, 2, 1));
    EXPECT_EQ(lines(), (QStringList{u"START PERIOD:|-12.5|0|0|-12.5"_s, u"Acme|-12.5|0|0|-12.5"_s,
                                    u"END PERIOD:|-12.5|0|0|-12.5"_s}));
}

TEST_F(ContragentsReport, aDocumentAtTheStartIsOutsideAndOneAtTheEndIsInside)
{
    const auto acme = books.contragent(u"Acme"_s);
    books.document(SellProduct, from, *acme, 1, 0);
    books.document(SellProduct, from + 1, *acme, 10, -1);
    books.document(SellProduct, to, *acme, 100, -11);
    books.document(SellProduct, to + 1, *acme, 1000, -111);
    books.document(SellProduct, to - 1, *acme, 10000, 0, false);
    EXPECT_EQ(lines()[1], u"Acme|-1|110|0|-111"_s);
}

TEST_F(ContragentsReport, aDocumentOfTodayAtAnyHourIsInsideTodaysPeriod)
{
    const auto acme = books.contragent(u"Acme"_s);
    books.document(SellProduct, SaldoBooks::moment(2015, 3, 15) + 1, *acme, 1, 0);
    books.document(SellProduct, SaldoBooks::moment(2015, 3, 15, 23) + 3599, *acme, 1, 0);
    EXPECT_EQ(lines()[1], u"Acme|0|2|0|-2"_s);
}

TEST_F(ContragentsReport, documentsOfOneSecondBeginWithTheProductsThenAssetsThenMoneyByTheirIds)
{
    const auto money = books.contragent(u"Money first stored"_s);
    books.document<MoneyDocument>(MoneyToContragent, to, *money, 1, 30);
    books.document<PropertyDocument>(BuyProperty, to, *money, 1, 20);
    const auto goods = books.contragent(u"Goods"_s);
    books.document<PropertyDocument>(BuyProperty, to, *goods, 1, 20);
    books.document(SellProduct, to, *goods, 1, 10);
    books.document(SellProduct, to, *goods, 1, 11);
    const auto early = books.contragent(u"Earlier"_s);
    books.document(SellProduct, to, *early, 1, 10);
    books.document<MoneyDocument>(MoneyToContragent, to - 1, *early, 1, 30);
    lines();
    const auto startOf = [&](int row) { return view.rows()[static_cast<std::size_t>(row)]->startSaldo(); };
    EXPECT_EQ(view.rows()[1]->name, u"Earlier"_s);
    EXPECT_EQ(startOf(1), 30);
    EXPECT_EQ(startOf(2), 10) << "Goods";
    EXPECT_EQ(startOf(3), 20) << "Money first stored";
}

TEST_F(ContragentsReport, groupsGatherAtAnyDepthAndParentCounterpartiesShowTheirOwn)
{
    const auto outer = books.group(u"Customers"_s);
    const auto inner = books.group(u"Big ones"_s, outer->id);
    const auto holding = books.member(u"Holding"_s, 0, inner->id);
    const auto branch = books.member(u"Branch"_s, 0, 0, holding->id);
    books.member(u"Loner"_s, 3, 0);
    books.document(SellProduct, to, *holding, 10, 100);
    books.document(BuyProduct, to, *branch, 5, 20);
    EXPECT_EQ(lines(), (QStringList{u"START PERIOD:|123|0|0|123"_s, u"Customers|120|10|5|115"_s,
                                    u"   Big ones|120|10|5|115"_s, u"      Holding|100|10|0|90"_s,
                                    u"         Branch|20|0|5|25"_s, u"Loner|3|0|0|3"_s,
                                    u"END PERIOD:|123|10|5|118"_s}));
}

TEST_F(ContragentsReport, withBothKindsOfParentTheCounterpartyWins)
{
    const auto group = books.group(u"Group"_s);
    const auto holding = books.member(u"Holding"_s, 1, 0);
    books.member(u"Branch"_s, 2, group->id, holding->id);
    EXPECT_EQ(names(), (QStringList{u"START PERIOD:"_s, u"Holding"_s, u"   Branch"_s, u"END PERIOD:"_s}));
}

TEST_F(ContragentsReport, rowsStandByNameGroupsFirstAtTheTop)
{
    books.contragent(u"b"_s, 1);
    books.contragent(u"A"_s, 1);
    const auto second = books.group(u"zz"_s);
    const auto first = books.group(u"y"_s);
    books.member(u"n"_s, 1, second->id);
    books.member(u"m"_s, 1, second->id);
    books.member(u"same"_s, 4, first->id);
    books.member(u"same"_s, 5, first->id);
    EXPECT_EQ(lines().mid(1, 8),
              (QStringList{u"y|9|0|0|9"_s, u"   same|4|0|0|4"_s, u"   same|5|0|0|5"_s, u"zz|2|0|0|2"_s,
                           u"   m|1|0|0|1"_s, u"   n|1|0|0|1"_s, u"A|1|0|0|1"_s, u"b|1|0|0|1"_s}));
}

TEST_F(ContragentsReport, filtersLetThroughWhatTheyNameAndARowWithoutItsParentStandsAtTheTop)
{
    const auto group = books.group(u"Group"_s);
    const auto other = books.group(u"Other"_s);
    const auto holding = books.member(u"Holding"_s, 1, group->id);
    const auto branch = books.member(u"Branch"_s, 2, 0, holding->id);
    books.member(u"Else"_s, 4, other->id);
    report.setContragentIDs({branch->id});
    EXPECT_EQ(lines(),
              (QStringList{u"START PERIOD:|2|0|0|2"_s, u"Branch|2|0|0|2"_s, u"END PERIOD:|2|0|0|2"_s}));
    report.setContragentIDs({});
    report.setContragentTypeIDs({other->id});
    EXPECT_EQ(names(), (QStringList{u"START PERIOD:"_s, u"Other"_s, u"   Else"_s, u"Holding"_s,
                                    u"   Branch"_s, u"END PERIOD:"_s}));
}

TEST_F(ContragentsReport, aGroupWhoseMembersCancelOutIsHiddenAndTheyAreNot)
{
    const auto group = books.group(u"Group"_s);
    books.member(u"Plus"_s, 5, group->id);
    books.member(u"Minus"_s, -5, group->id);
    EXPECT_EQ(names(), (QStringList{u"START PERIOD:"_s, u"   Minus"_s, u"   Plus"_s, u"END PERIOD:"_s}));
}

TEST_F(ContragentsReport, groupedShowsGroupsAndFootersAloneWithoutAnyQuery)
{
    const auto group = books.group(u"Group"_s);
    books.member(u"Inside"_s, 5, group->id);
    books.contragent(u"Outside"_s, 6);
    lines();
    view.selectRow(1);
    const qint64 before = books.db.statementCount();
    report.groupCheck.setOn(true);
    report.groupCheck.userChanged();
    EXPECT_EQ(saldoLines(view),
              (QStringList{u"START PERIOD:|11|0|0|11"_s, u"Group|5|0|0|5"_s, u"END PERIOD:|11|0|0|11"_s}));
    EXPECT_EQ(view.selectedRow(), 1);
    report.groupCheck.setOn(false);
    report.groupCheck.userChanged();
    EXPECT_EQ(view.numberOfRows(), 5);
    EXPECT_EQ(books.db.statementCount(), before);
}

TEST_F(ContragentsReport, theNumberOfStatementsDoesNotGrowWithTheCounterparties)
{
    const auto statements = [&] {
        const qint64 before = books.db.statementCount();
        report.prepareReport();
        return books.db.statementCount() - before;
    };
    books.document(SellProduct, to, *books.contragent(u"One"_s), 1, 0);
    const qint64 few = statements();
    for (int i = 0; i < 20; ++i)
        books.document(SellProduct, to, *books.contragent(QString::number(i)), 1, 0);
    EXPECT_EQ(statements(), few);
}

TEST_F(ContragentsReport, counterpartiesThatAreEachOthersParentsAreStillListed)
{
    const auto one = books.member(u"One"_s, 1, 0);
    const auto two = books.member(u"Two"_s, 2, 0, one->id);
    one->parentContragentID = two->id;
    books.store(*one);
    books.member(u"Self"_s, 4, 0, two->id + 1);
    QStringList shown = names();
    for (QString& name : shown)
        name = name.trimmed();
    shown.sort();
    EXPECT_EQ(shown, (QStringList{u"END PERIOD:"_s, u"One"_s, u"START PERIOD:"_s, u"Self"_s, u"Two"_s}));
}

TEST_F(ContragentsReport, theTitleTellsTheFilterAndTheDates)
{
    EXPECT_TRUE(view.name().startsWith(u"Report by All Counterparties. From: "_s)) << qPrintable(view.name());
    EXPECT_TRUE(view.name().contains(u" To: "_s));
    EXPECT_EQ(report.selectedContragents.text(), u"All Counterparties"_s);
    report.setContragentTypeIDs({1});
    report.setStringPredicates();
    EXPECT_EQ(report.selectedContragents.text(), u"All Counterparties"_s) << "groups alone make no choice";
    report.prepareReport();
    EXPECT_TRUE(view.name().startsWith(u"Report by Selected Counterparties. From: "_s));
    EXPECT_EQ(view.titleColor(), reportTitleColor);
    EXPECT_EQ(view.groundColor(), reportGroundColor);
    EXPECT_TRUE(view.canExportToExcel());
}

TEST_F(ContragentsReport, thePopoverHandsOverWhatIsTicked)
{
    const auto acme = books.contragent(u"Acme"_s, 1);
    books.contragent(u"Bolt"_s, 2);
    report.selectContragent();
    EXPECT_TRUE(report.contragentSelectView.selectPopover.isOpen());
    const auto nodes = report.contragentSelectView.contragents();
    ASSERT_EQ(nodes.size(), 2U);
    EXPECT_TRUE(nodes[0]->selected && nodes[1]->selected) << "an empty filter has everything ticked";
    report.contragentSelectView.setValue(nodes[1], u"selected"_s, false);
    report.contragentSelectView.okButton.userChanged();
    EXPECT_FALSE(report.contragentSelectView.selectPopover.isOpen());
    EXPECT_EQ(report.selectedContragents.text(), u"Selected Counterparties"_s);
    EXPECT_EQ(names(), (QStringList{u"START PERIOD:"_s, u"Acme"_s, u"END PERIOD:"_s}));
    EXPECT_EQ(view.target(), u"Selected Counterparties"_s);
    report.clearContragentIDs();
    EXPECT_EQ(report.selectedContragents.text(), u"All Counterparties"_s);
    EXPECT_EQ(names().size(), 4);
}

TEST_F(ContragentsReport, thePopoverListsACounterpartyThatWasAddedMeanwhile)
{
    report.selectContragent();
    EXPECT_TRUE(report.contragentSelectView.contragents().empty());
    books.contragent(u"New"_s);
    books.appDelegate.notifications.post(NotificationName::ContragentChangedNotification);
    EXPECT_EQ(report.contragentSelectView.contragents().size(), 1U);
}

TEST_F(ContragentsReport, aConfirmedDocumentComputesAgainAtOnceOnTheScreenOtherwiseWhenAsked)
{
    const auto acme = books.contragent(u"Acme"_s);
    NotificationCenter& center = books.appDelegate.notifications;
    books.document(SellProduct, to, *acme, 1, 0);
    center.post(NotificationName::DocWithContragentChangedNotification);
    EXPECT_EQ(view.numberOfRows(), 0) << "nobody asked for a report yet";
    EXPECT_EQ(lines()[1], u"Acme|0|1|0|-1"_s);
    books.document(SellProduct, to, *acme, 2, 0);
    const qint64 stored = books.db.statementCount();
    center.post(NotificationName::DocWithContragentChangedNotification);
    EXPECT_EQ(books.db.statementCount(), stored) << "not on the screen";
    EXPECT_EQ(saldoLines(view)[1], u"Acme|0|3|0|-3"_s);
    view.setVisible(true);
    books.document(SellProduct, to, *acme, 4, 0);
    bool reloaded = false;
    view.onReload([&] { reloaded = true; });
    center.post(NotificationName::DocWithContragentChangedNotification);
    EXPECT_TRUE(reloaded);
    EXPECT_EQ(saldoLines(view)[1], u"Acme|0|7|0|-7"_s);
}

TEST_F(ContragentsReport, theSelectionStaysOnItsCounterparty)
{
    books.contragent(u"Acme"_s, 1);
    const auto bolt = books.contragent(u"Bolt"_s, 1);
    lines();
    view.selectRow(2);
    books.contragent(u"Able"_s, 1);
    lines();
    ASSERT_EQ(view.selectedRow(), 3);
    EXPECT_EQ(view.rows()[3]->contragent->id, bolt->id);
    report.setContragentIDs({bolt->id + 1});
    lines();
    EXPECT_EQ(view.selectedRow(), -1);
}

TEST_F(ContragentsReport, aRowOpensTheStatementOfItsCounterpartyForTheComputedPeriod)
{
    const auto group = books.group(u"Group"_s);
    const auto acme = books.member(u"Acme"_s, 1, group->id);
    lines();
    report.dateFrom.setMoment(5);
    for (const int row : {-1, 0, 1, 2, 3, 4})
        view.doubleAction(row);
    ASSERT_EQ(books.openedReports.size(), 1U) << "neither groups nor footers open one";
    EXPECT_EQ(books.openedReports[0].contragentID, acme->id);
    EXPECT_EQ(books.openedReports[0].start, from);
    EXPECT_EQ(books.openedReports[0].finish, to);
}

TEST_F(ContragentsReport, datesTheWrongWayRoundLeaveTheOldTable)
{
    books.contragent(u"Acme"_s, 1);
    lines();
    report.dateFrom.setMoment(to + 1);
    report.dateFrom.userChanged();
    EXPECT_EQ(report.dateFromLabel.color(), redColor);
    EXPECT_EQ(report.dateToLabel.color(), redColor);
    report.setContragentIDs({77});
    EXPECT_EQ(lines().size(), 3);
    EXPECT_EQ(view.start(), from);
}

TEST_F(ContragentsReport, cellsHaveTheStyleOfReportTables)
{
    const auto group = books.group(u"Group"_s);
    books.member(u"Debtor"_s, -3, group->id);
    lines();
    for (const int gathering : {0, 1, 3}) {
        EXPECT_EQ(view.cellStyle(gathering, u"name"_s).font, CellFont::GatheringBold12);
        EXPECT_EQ(view.cellStyle(gathering, u"name"_s).color, inOrderColor);
    }
    EXPECT_EQ(view.cellStyle(2, u"name"_s).font, CellFont::Small);
    EXPECT_EQ(view.cellStyle(2, u"name"_s).color, blackColor);
    EXPECT_EQ(view.cellStyle(2, u"name"_s).alignment, CellAlignment::Left);
    EXPECT_EQ(view.cellStyle(2, u"debit"_s).color, blackColor);
    EXPECT_EQ(view.cellStyle(2, u"debit"_s).alignment, CellAlignment::Right);
    for (const int row : {0, 1, 2, 3}) {
        EXPECT_EQ(view.cellStyle(row, u"startSaldo"_s).color, redColor);
        EXPECT_EQ(view.cellStyle(row, u"finishSaldo"_s).color, redColor);
    }
    EXPECT_EQ(view.cellStyle(9, u"name"_s).font, CellStyle().font);
}

TEST_F(ContragentsReport, theColumnsAreTheNumberTheNameAndTheFourFigures)
{
    books.contragent(u"Acme"_s, 1);
    lines();
    QStringList identifiers;
    for (const ViewColumn& column : view.columns()) {
        identifiers << column.identifier;
        EXPECT_FALSE(column.title.isEmpty());
    }
    EXPECT_EQ(identifiers, (QStringList{u"number"_s, u"name"_s, u"startSaldo"_s, u"debit"_s, u"credit"_s,
                                        u"finishSaldo"_s}));
    EXPECT_EQ(view.value(1, u"number"_s), QVariant(2));
    EXPECT_EQ(view.value(1, u"other"_s), QVariant(QString()));
    EXPECT_EQ(view.value(3, u"name"_s), QVariant(QString()));
}

TEST_F(ContragentsReport, aFailedReadShowsNoHalfOfAReport)
{
    books.contragent(u"Acme"_s, 1);
    lines();
    books.db.execute("ROLLBACK");
    books.db.close();
    EXPECT_TRUE(lines().isEmpty());
}

TEST(ContragentsReportPeriod, aDayWithTwentyThreeHoursEndsAnHourIntoTheNextOneAndALongDayAnHourBefore)
{
    const QTimeZone zone("Europe/Berlin");
    SaldoBooks books(zone);
    const auto acme = books.contragent(u"Acme"_s);
    const auto at = [&](int month, int day, int hour) {
        return QDateTime(QDate(2015, month, day), QTime(hour, 30), zone).toSecsSinceEpoch();
    };
    books.document(SellProduct, at(3, 30, 0), *acme, 1, 0);    // the day after the short one
    books.document(SellProduct, at(10, 25, 23), *acme, 10, 0); // the last hour of the long one
    const auto debitOf = [&](int month, int day) {
        books.clock.set(at(month, day, 12));
        ContragentsReportViewController report(books.appDelegate);
        report.prepareData();
        EXPECT_EQ(report.dateTo.moment() - report.dateFrom.moment(), 86'400);
        report.prepareReport();
        return report.mainView.rows().back()->debitSum();
    };
    EXPECT_EQ(debitOf(3, 29), 1);
    EXPECT_EQ(debitOf(10, 25), 0);
    EXPECT_EQ(debitOf(10, 26), 0);
}

} // namespace zelvor
