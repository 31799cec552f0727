#include "reports/report_view_controller.h"

#include "store/params.h"
#include "support/test_project.h"

#include <gtest/gtest.h>

namespace zelvor {

namespace {

using namespace Qt::Literals::StringLiterals;

qint64 momentOf(int year, int month, int day, int hour = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, 0), QTimeZone::utc()).toSecsSinceEpoch();
}

// A report that only counts how often it was computed.
class CountingReport final : public ReportViewController {
public:
    using ReportViewController::ReportViewController;
    void prepareData() override { setCurrentDate(); }
    void updateReport() override { ++updates; }
    QString getNameForTabView() const override { return u"Report."_s + periodText(); }

    int updates = 0;
};

class ReportFrame : public testing::Test {
protected:
    ReportFrame()
    {
        EXPECT_TRUE(program.createProject<Params>());
        Params params;
        EXPECT_EQ(program.appDelegate.connector.insert(params), 1);
    }
    void setReportPeriod(qint64 reportPeriod)
    {
        const auto params = program.appDelegate.params();
        params->reportPeriod = reportPeriod;
        ASSERT_EQ(program.appDelegate.connector.update(*params), 1);
    }

    TestProgram program{momentOf(2015, 5, 20, 13)};
    CountingReport report{program.appDelegate};
};

} // namespace

TEST_F(ReportFrame, aQuarterThatHoldsADayInMayStartsInApril)
{
    setReportPeriod(2);
    report.setCurrentPeriod();
    EXPECT_EQ(report.dateFrom.moment(), momentOf(2015, 4, 1));
    setReportPeriod(3);
    report.setCurrentPeriod();
    EXPECT_EQ(report.dateFrom.moment(), momentOf(2015, 1, 1));
    setReportPeriod(1);
    report.setCurrentPeriod();
    EXPECT_EQ(report.dateFrom.moment(), momentOf(2015, 5, 1));
}

TEST_F(ReportFrame, withoutSettingsThePeriodStays)
{
    const auto params = program.appDelegate.params();
    ASSERT_EQ(program.appDelegate.connector.remove(*params), 1);
    const qint64 before = report.dateFrom.moment();
    report.setCurrentPeriod();
    EXPECT_EQ(report.dateFrom.moment(), before);
}

TEST_F(ReportFrame, todayIsCoveredAtAnyHourAfterItsFirstSecond)
{
    report.prepareData();
    EXPECT_EQ(report.dateFrom.moment(), momentOf(2015, 5, 20));
    EXPECT_EQ(report.dateTo.moment(), momentOf(2015, 5, 21));
    for (const qint64 second : {1, 12 * 3600, 86399}) {
        const qint64 date = momentOf(2015, 5, 20) + second;
        EXPECT_TRUE(date > report.dateFrom.moment() && date < report.dateTo.moment());
    }
}

TEST_F(ReportFrame, aDayEnds86400SecondsAfterItsMidnightWhateverTheClockDoes)
{
    const auto local = TestProgram::inZone("America/New_York", momentOf(2015, 3, 8, 20)); // clocks go forward
    const CountingReport localReport(local->appDelegate);
    EXPECT_EQ(localReport.getNormalizedDate(local->clock.now(), true), momentOf(2015, 3, 8, 5));
    EXPECT_EQ(localReport.getNormalizedDate(local->clock.now(), false), momentOf(2015, 3, 9, 5));
}

TEST_F(ReportFrame, datesTheWrongWayRoundTurnRedAndComputeNothing)
{
    EXPECT_EQ(report.dateFromLabel.color(), inOrderColor);
    report.dateFrom.setMoment(report.dateTo.moment() + 1);
    EXPECT_TRUE(report.dateFrom.userChanged());
    EXPECT_EQ(report.dateFromLabel.color(), redColor);
    EXPECT_EQ(report.dateToLabel.color(), redColor);
    report.prepareReport();
    EXPECT_EQ(report.updates, 0);
    report.dateTo.setMoment(report.dateFrom.moment());
    EXPECT_TRUE(report.dateTo.userChanged());
    EXPECT_EQ(report.dateToLabel.color(), inOrderColor);
    report.prepareReport();
    EXPECT_EQ(report.updates, 1);
}

} // namespace zelvor
