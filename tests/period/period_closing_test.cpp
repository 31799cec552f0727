#include "catalogs/property.h"
#include "catalogs/stock_history.h"
#include "catalogs/stock_row.h"
#include "period/period_closing.h"
#include "store/user_write.h"
#include "support/test_project.h"

#include <gtest/gtest.h>

namespace zelvor {

namespace {

using namespace Qt::Literals::StringLiterals;

qint64 momentOf(int year, int month, int day, int hour = 0, int minute = 0, int second = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute, second), QTimeZone::utc())
        .toSecsSinceEpoch();
}

class WorkspaceNotes final : public Workspace {
public:
    void setStateString(const QString& text) override { states.append(text); }
    void updateCurrencies(const Params& params) override { updates.push_back(params.id); }

    QStringList states;
    std::vector<qint64> updates;
};

class PeriodClosingTest : public testing::Test {
protected:
    PeriodClosingTest()
    {
        EXPECT_TRUE((program.createProject<Params, StockRow, StockHistory, Property>()));
        Params params;
        EXPECT_EQ(connector.insert(params), 1);
        program.appDelegate.setWorkspace(&workspace);
    }

    void setToday(int year, int month, int day) { program.clock.set(momentOf(year, month, day, 15, 30)); }
    void setLastPeriodSaved(qint64 period)
    {
        const auto params = program.appDelegate.params();
        params->lastPeriodSaved = period;
        ASSERT_EQ(connector.update(*params), 1);
    }
    qint64 lastPeriodSaved() { return program.appDelegate.params()->lastPeriodSaved; }
    bool closeMonth()
    {
        const auto params = program.appDelegate.params();
        return closing.closePeriod(closing.getStartPeriodDateFromDate(program.clock.now(), *params), *params);
    }
    void addStock(qint64 stockID, qint64 productID, double amount, double reserved)
    {
        StockRow row;
        row.stockID = stockID;
        row.productID = productID;
        row.setAmount(amount);
        row.setAmountReserved(reserved);
        ASSERT_EQ(connector.insert(row), 1);
    }
    qint64 addProperty(double cost, qint64 months, qint64 soldDate = 0)
    {
        Property property;
        property.name = u"Lathe"_s;
        property.setBaseCost(cost);
        property.setCurrentCost(cost);
        property.isAmortized = true;
        property.amortizationPeriod = months;
        property.soldDate = soldDate;
        EXPECT_EQ(connector.insert(property), 1);
        return property.id;
    }
    double currentCost(qint64 id) { return connector.select<Property>(id)->currentCost(); }
    std::vector<std::shared_ptr<StockHistory>> history() { return connector.freeSQL<StockHistory>(); }
    std::optional<int> monthsFor(qint64 saved)
    {
        std::optional<int> months = 0;
        closing.isPeriodSaved(saved, &months);
        return months;
    }

    TestProgram program{momentOf(2015, 3, 10)};
    Connector& connector = program.appDelegate.connector;
    WorkspaceNotes workspace;
    PeriodClosing closing{program.appDelegate};
};

} // namespace

TEST_F(PeriodClosingTest, theLastFinishedMonthOfAJanuaryIsDecemberOfTheYearBefore)
{
    setToday(2015, 1, 31);
    EXPECT_EQ(closing.getLastComponents(), (DayComponents{2014, 12, 31}));
    setToday(2015, 3, 1);
    EXPECT_EQ(closing.getLastComponents(), (DayComponents{2015, 2, 28}));
    setToday(2016, 3, 31);
    EXPECT_EQ(closing.getLastComponents(), (DayComponents{2016, 2, 29}));
}

TEST_F(PeriodClosingTest, thePeriodToSaveIsTheMonthBeforeTodayWithoutALeadingZero)
{
    setToday(2015, 3, 10);
    EXPECT_EQ(closing.getPeriodToSave(), 20152);
    setToday(2015, 1, 1);
    EXPECT_EQ(closing.getPeriodToSave(), 201412);
}

TEST_F(PeriodClosingTest, aProjectThatNeverClosedAMonthHasNoneSaved)
{
    std::optional<int> months = 7;
    EXPECT_FALSE(closing.isPeriodSaved(0, &months));
    EXPECT_EQ(months, 7); // left alone
}

TEST_F(PeriodClosingTest, aSavedDecemberCoversDecemberAndCountsMinusTwelveMonths)
{
    setToday(2015, 1, 15);
    EXPECT_TRUE(closing.isPeriodSaved(201412));
    EXPECT_EQ(monthsFor(201412), -12);
}

TEST_F(PeriodClosingTest, anyClosedMonthOfTheYearCoversItsDecember)
{
    setToday(2015, 1, 15);
    EXPECT_TRUE(closing.isPeriodSaved(201411));
    EXPECT_TRUE(closing.isPeriodSaved(20141));
    EXPECT_FALSE(closing.isPeriodSaved(201311));
    closing.checkPeriod();
    EXPECT_EQ(program.dialogs.questions.size(), 1U); // nothing saved at all
    setLastPeriodSaved(201411);
    closing.checkPeriod();
    EXPECT_EQ(program.dialogs.questions.size(), 1U);
}

TEST_F(PeriodClosingTest, aSavedNovemberDoesNotCoverTheNextJanuary)
{
    setToday(2015, 2, 15);
    EXPECT_FALSE(closing.isPeriodSaved(201411));
    EXPECT_EQ(monthsFor(201411), -10);
}

TEST_F(PeriodClosingTest, monthsAreOnlyCountedForAValueThatIsThere)
{
    std::optional<int> none;
    EXPECT_TRUE(closing.isPeriodSaved(20152, &none));
    EXPECT_FALSE(none.has_value());
    EXPECT_EQ(monthsFor(20151), 1);
    EXPECT_EQ(monthsFor(20154), -2);
}

TEST_F(PeriodClosingTest, theLimitOfAClosedMonthIsItsLastSecond)
{
    EXPECT_EQ(closing.timeIntervalFromInt(201411), momentOf(2014, 12, 1) - 1);
    EXPECT_EQ(closing.timeIntervalFromInt(20152), momentOf(2015, 3, 1) - 1);
}

TEST_F(PeriodClosingTest, theLimitOfAClosedDecemberLiesAYearBack)
{
    EXPECT_EQ(closing.timeIntervalFromInt(201412), momentOf(2014, 1, 1) - 1);
}

TEST_F(PeriodClosingTest, noClosedMonthLetsEveryDocumentPass)
{
    EXPECT_EQ(closing.timeIntervalFromInt(0), 0);
    EXPECT_EQ(closing.timeIntervalFromInt(-201411), 0);
}

TEST_F(PeriodClosingTest, thePeriodOfADateIsItsMonthWhateverTheReportsShow)
{
    Params params;
    for (const qint64 reportPeriod : {1, 2, 3}) {
        params.reportPeriod = reportPeriod;
        EXPECT_EQ(closing.getStartPeriodDateFromDate(momentOf(2015, 5, 20, 13), params),
                  momentOf(2015, 5, 1));
    }
}

TEST_F(PeriodClosingTest, aClearedDateIsTheStartOfItsLocalDay)
{
    const auto local = TestProgram::inZone("America/New_York");
    const PeriodClosing localClosing(local->appDelegate);
    // 2015-03-09 03:30 UTC is the evening of the 8th there, after the clocks went forward.
    EXPECT_DOUBLE_EQ(localClosing.clearDate(momentOf(2015, 3, 9, 3, 30)),
                     static_cast<double>(momentOf(2015, 3, 8, 5)));
    EXPECT_DOUBLE_EQ(closing.clearDate(momentOf(2015, 3, 9, 0)),
                     closing.clearDate(momentOf(2015, 3, 9, 23, 59, 59)));
}

TEST_F(PeriodClosingTest, aMonthClosesWithoutStockAndAssets)
{
    ASSERT_TRUE(closeMonth());
    EXPECT_EQ(lastPeriodSaved(), 20152);
    EXPECT_TRUE(history().empty());
}

TEST_F(PeriodClosingTest, theStockIsKeptAsItStandsAtTheClosing)
{
    addStock(1, 7, 12.5, 2.25);
    addStock(2, 7, -3, 0);
    ASSERT_TRUE(closeMonth());
    const auto rows = history();
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0]->date, momentOf(2015, 3, 1));
    EXPECT_EQ(rows[0]->stockID, 1);
    EXPECT_EQ(rows[0]->productID, 7);
    EXPECT_EQ(rows[0]->innerAmount, Decimal::fromText(u"12.5"));
    EXPECT_EQ(rows[0]->innerAmountReserved, Decimal::fromText(u"2.25"));
    EXPECT_EQ(rows[1]->stockID, 2);
    EXPECT_EQ(rows[1]->innerAmount, Decimal(-3));
}

TEST_F(PeriodClosingTest, aFirstClosingDepreciatesOnce)
{
    const qint64 lathe = addProperty(1000, 12);
    const qint64 sold = addProperty(1000, 12, momentOf(2015, 1, 5));
    ASSERT_TRUE(closeMonth());
    EXPECT_DOUBLE_EQ(currentCost(lathe), 916.67);
    EXPECT_DOUBLE_EQ(currentCost(sold), 1000);
}

TEST_F(PeriodClosingTest, monthsThatWereLeftOpenAreDepreciatedTogether)
{
    const qint64 lathe = addProperty(1000, 12);
    const qint64 nearlyGone = addProperty(100, 2);
    setToday(2015, 5, 2);
    setLastPeriodSaved(20151);
    ASSERT_TRUE(closeMonth()); // February to April
    EXPECT_DOUBLE_EQ(currentCost(lathe), 750.01);
    EXPECT_DOUBLE_EQ(currentCost(nearlyGone), 0);
    EXPECT_EQ(lastPeriodSaved(), 20154);
    EXPECT_TRUE(history().empty());
}

TEST_F(PeriodClosingTest, overTheTurnOfTheYearOneMonthIsDepreciated)
{
    const qint64 lathe = addProperty(1000, 12);
    setToday(2015, 2, 2);
    setLastPeriodSaved(201411);
    ASSERT_TRUE(closeMonth());
    EXPECT_DOUBLE_EQ(currentCost(lathe), 916.67);
    setToday(2015, 1, 2);
    setLastPeriodSaved(201412);
    ASSERT_TRUE(closeMonth()); // asked for by hand: -12 counts as one
    EXPECT_DOUBLE_EQ(currentCost(lathe), 833.34);
}

TEST_F(PeriodClosingTest, theNotificationsComeInOrderWhileTheTransactionIsOpen)
{
    std::vector<bool> open;
    const auto watch = program.appDelegate.notifications.observeAll([&](const Notification& notification) {
        open.push_back(connector.inTransaction());
        EXPECT_EQ(notification.object, &closing);
        EXPECT_EQ(lastPeriodSaved(), 20152); // they read the transaction's own data
    });
    ASSERT_TRUE(closeMonth());
    EXPECT_EQ(program.posted.names, (std::vector{NotificationName::PropertiesChangedNotification,
                                                 NotificationName::BalanceChangedNotification}));
    EXPECT_EQ(open, (std::vector{true, true}));
    EXPECT_FALSE(connector.inTransaction());
}

TEST_F(PeriodClosingTest, aFailingSnapshotLeavesTheMonthOpen)
{
    addStock(1, 7, 1, 0);
    addStock(1, 8, 1, 0);
    program.connector->failCall(2, FaultInjectingConnector::Insert);
    const auto params = program.appDelegate.params();
    EXPECT_FALSE(closing.closePeriod(momentOf(2015, 3, 1), *params));
    EXPECT_EQ(params->lastPeriodSaved, 0);
    EXPECT_EQ(lastPeriodSaved(), 0);
    EXPECT_TRUE(history().empty());
    EXPECT_TRUE(program.posted.names.empty());
    EXPECT_FALSE(connector.inTransaction());
}

TEST_F(PeriodClosingTest, whicheverCallFailsNothingOfTheClosingRemains)
{
    addStock(1, 7, 1, 0);
    addStock(1, 8, 1, 0);
    const qint64 lathe = addProperty(1000, 12);
    constexpr unsigned watched =
        FaultInjectingConnector::Begin | FaultInjectingConnector::Commit | FaultInjectingConnector::Writes;
    const auto params = program.appDelegate.params();
    int failures = 0;
    for (int call = 1;; ++call) {
        program.connector->failCall(call, watched);
        const bool closed = closing.closePeriod(momentOf(2015, 3, 1), *params);
        const bool failed = program.connector->hasFailed();
        program.connector->failCall(0);
        ASSERT_NE(closed, failed) << "call " << call;
        if (closed)
            break;
        ++failures;
        EXPECT_EQ(params->lastPeriodSaved, 0);
        EXPECT_EQ(lastPeriodSaved(), 0);
        EXPECT_TRUE(history().empty());
        EXPECT_DOUBLE_EQ(currentCost(lathe), 1000);
    }
    EXPECT_EQ(failures, 6); // begin, two snapshots, the asset, the settings, commit
    EXPECT_EQ(params->lastPeriodSaved, 20152);
}

TEST_F(PeriodClosingTest, aMonthClosedInsideAnotherWriteIsTakenBackWithIt)
{
    addStock(1, 7, 1, 0);
    const auto params = program.appDelegate.params();
    {
        UserWrite write(connector);
        EXPECT_TRUE(closing.closePeriodInside(momentOf(2015, 3, 1), *params));
        EXPECT_EQ(lastPeriodSaved(), 20152);
        EXPECT_EQ(history().size(), 1U);
        EXPECT_TRUE(connector.inTransaction());
        EXPECT_EQ(program.posted.count(NotificationName::BalanceChangedNotification), 1U);
        write.fail();
        EXPECT_FALSE(write.finish());
    }
    EXPECT_EQ(lastPeriodSaved(), 0);
    EXPECT_TRUE(history().empty());
}

TEST_F(PeriodClosingTest, aClosingThatFailsInsideAnotherWritePostsNothing)
{
    addStock(1, 7, 1, 0);
    const auto params = program.appDelegate.params();
    UserWrite write(connector);
    program.connector->failCall(1, FaultInjectingConnector::Update);
    EXPECT_FALSE(closing.closePeriodInside(momentOf(2015, 3, 1), *params));
    EXPECT_EQ(params->lastPeriodSaved, 0);
    EXPECT_TRUE(program.posted.names.empty());
}

TEST_F(PeriodClosingTest, theFirstOpeningAsksToCloseTheLastMonth)
{
    closing.checkPeriod();
    ASSERT_EQ(program.dialogs.questions.size(), 1U);
    const Alert& question = program.dialogs.questions.front();
    EXPECT_EQ(question.messageText, u"Need to close last month."_s);
    EXPECT_EQ(question.informativeText, u"Last month doesn't closed. Would you like to close it "
                                        u"now?\nIMPORTANT! After this procedure you can "
                                        u"not confirm any document with date from last month!"_s);
    EXPECT_EQ(question.buttons, (QStringList{u"Proceed"_s, u"Cancel"_s}));
    EXPECT_EQ(question.alertStyle, 1);
    EXPECT_EQ(lastPeriodSaved(), 0); // not answered
}

TEST_F(PeriodClosingTest, proceedClosesTheMonthAndCancelDoesNot)
{
    program.dialogs.answers = {firstButton + 1, firstButton};
    closing.checkPeriod();
    EXPECT_EQ(lastPeriodSaved(), 0);
    closing.checkPeriod(); // the question comes again
    EXPECT_EQ(lastPeriodSaved(), 20152);
    EXPECT_TRUE(program.dialogs.alerts.empty());
    closing.checkPeriod();
    EXPECT_EQ(program.dialogs.questions.size(), 2U);
}

TEST_F(PeriodClosingTest, aFailedClosingIsToldWithAnAlert)
{
    program.dialogs.answers = {firstButton};
    program.connector->failCall(1, FaultInjectingConnector::Update);
    closing.checkPeriod();
    ASSERT_EQ(program.dialogs.alerts.size(), 1U);
    const Alert& alert = program.dialogs.alerts.front();
    EXPECT_EQ(alert.messageText, u"Failed to close month"_s);
    EXPECT_EQ(alert.informativeText, u"For unknown reasons we can not close month. Please try later."_s);
    EXPECT_EQ(alert.buttons, QStringList{u"Close"_s});
    EXPECT_EQ(alert.alertStyle, 0);
}

TEST_F(PeriodClosingTest, ratesStoredWhileTheQuestionStoodAreNotOverwritten)
{
    class LateDialogs final : public Dialogs {
    public:
        void showAlert(const Alert&) override {}
        void ask(const Alert&, std::function<void(int)> given) override { answer = std::move(given); }
        std::optional<QString> savePath(const SavePanel&) override { return {}; }
        std::optional<QString> openPath(const OpenPanel&) override { return {}; }
        std::function<void(int)> answer;
    };
    LateDialogs late;
    AppDelegate& first = program.appDelegate;
    AppDelegate second({first.clock, first.calendar, late, first.defaults});
    const QString path = connector.path();
    connector.close();
    ASSERT_TRUE(second.connector.open(path));
    PeriodClosing other(second);
    other.checkPeriod();
    const auto params = second.params();
    params->lastCurrencyUpdate = 4711;
    ASSERT_EQ(second.connector.update(*params), 1);
    late.answer(firstButton);
    EXPECT_EQ(second.params()->lastCurrencyUpdate, 4711);
    EXPECT_EQ(second.params()->lastPeriodSaved, 20152);
}

TEST_F(PeriodClosingTest, ratesOfAnotherDayAreFetchedWithoutWaitingForTheAnswer)
{
    closing.checkPeriod();
    EXPECT_EQ(workspace.updates, std::vector<qint64>{1});
    EXPECT_TRUE(workspace.states.isEmpty());
}

TEST_F(PeriodClosingTest, ratesOfTodayAreToldInTheStateLine)
{
    const auto params = program.appDelegate.params();
    params->lastCurrencyUpdate = momentOf(2015, 3, 10, 23, 59);
    ASSERT_EQ(connector.update(*params), 1);
    closing.checkPeriod();
    EXPECT_TRUE(workspace.updates.empty());
    EXPECT_EQ(workspace.states, QStringList{u"All currencies are up to date"_s});
}

TEST_F(PeriodClosingTest, aProjectWithoutSettingsIsNotAsked)
{
    const auto params = program.appDelegate.params();
    ASSERT_EQ(connector.remove(*params), 1);
    closing.checkPeriod();
    EXPECT_TRUE(program.dialogs.questions.empty());
    EXPECT_TRUE(workspace.updates.empty());
    EXPECT_TRUE(workspace.states.isEmpty());
}

} // namespace zelvor
