#include "core/calendar.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

using namespace zelvor;

namespace {

Calendar calendarOf(const char* zone)
{
    return Calendar(QTimeZone(zone));
}

// Seconds since 1970 of a moment in Greenwich.
qint64 utc(int year, int month, int day, int hour = 0, int minute = 0, int second = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute, second), Qt::UTC).toSecsSinceEpoch();
}

} // namespace

TEST(Calendar, twoMomentsOfOneLocalDayClearToOneValue)
{
    const Calendar calendar = calendarOf("America/New_York");
    const qint64 start = utc(2015, 3, 5, 5);
    EXPECT_EQ(calendar.clearDate(start), start);
    EXPECT_EQ(calendar.clearDate(utc(2015, 3, 5, 18, 30)), start);
    EXPECT_EQ(calendar.clearDate(start + secondsPerDay - 1), start);
    EXPECT_EQ(calendar.clearDate(start + secondsPerDay), start + secondsPerDay);
    EXPECT_EQ(calendar.clearDate(start - 1), start - secondsPerDay);
}

TEST(Calendar, daysBefore1970AreDaysToo)
{
    const Calendar calendar = calendarOf("UTC");
    EXPECT_EQ(calendar.components(-1), (DayComponents{1969, 12, 31}));
    EXPECT_EQ(calendar.clearDate(-1), -secondsPerDay);
}

TEST(Calendar, theDayOfAMomentFollowsTheZone)
{
    const qint64 moment = utc(2015, 12, 31, 22);
    EXPECT_EQ(calendarOf("UTC").components(moment), (DayComponents{2015, 12, 31}));
    EXPECT_EQ(calendarOf("Europe/Moscow").components(moment), (DayComponents{2016, 1, 1}));
}

TEST(Calendar, aDayWhoseMidnightIsSkippedStartsAtItsFirstMoment)
{
    // On that day the clock went from 23:59:59 to 01:00:00.
    const Calendar brazil = calendarOf("America/Sao_Paulo");
    EXPECT_EQ(brazil.startOfDay({2018, 11, 4}), utc(2018, 11, 4, 3));
    EXPECT_EQ(brazil.dateTime(brazil.startOfDay({2018, 11, 4})).time(), QTime(1, 0));
    EXPECT_EQ(brazil.clearDate(utc(2018, 11, 4, 20)), utc(2018, 11, 4, 3));
    EXPECT_EQ(brazil.clearDate(utc(2018, 11, 4, 2, 59, 59)), utc(2018, 11, 3, 3));
    const Calendar lebanon = calendarOf("Asia/Beirut");
    EXPECT_EQ(lebanon.startOfDay({2018, 3, 25}), utc(2018, 3, 24, 22));
    EXPECT_EQ(lebanon.dateTime(lebanon.startOfDay({2018, 3, 25})).time(), QTime(1, 0));
}

TEST(Calendar, aDayWhoseMidnightComesTwiceStartsAtTheFirst)
{
    // The clock went from 01:00 back to 00:00: midnight came at 04:00 and again at 05:00 in Greenwich.
    EXPECT_EQ(calendarOf("America/Havana").startOfDay({2018, 11, 4}), utc(2018, 11, 4, 4));
    // The clock went from 00:00 back to 23:00: the new day had shown nothing yet.
    const Calendar brazil = calendarOf("America/Sao_Paulo");
    EXPECT_EQ(brazil.startOfDay({2018, 2, 18}), utc(2018, 2, 18, 3));
    EXPECT_EQ(brazil.components(utc(2018, 2, 18, 2, 30)), (DayComponents{2018, 2, 17}));
}

TEST(Calendar, aDayThatTheZoneLeftOutIsTheStartOfTheNext)
{
    const Calendar samoa = calendarOf("Pacific/Apia");
    EXPECT_EQ(samoa.startOfDay({2011, 12, 30}), samoa.startOfDay({2011, 12, 31}));
    EXPECT_EQ(samoa.startOfDay({2011, 12, 31}), utc(2011, 12, 30, 10));
    EXPECT_EQ(samoa.startOfDay({2012, 1, 1}), utc(2011, 12, 31, 10));
}

TEST(Calendar, momentsOfTwoCenturiesLieInTheDaysThatTheirStartsBegin)
{
    for (const char* name : {"America/Sao_Paulo", "Asia/Beirut", "Europe/Berlin", "America/Havana", "UTC",
                             "Africa/Casablanca", "Australia/Lord_Howe", "Asia/Kathmandu", "Pacific/Apia"}) {
        const Calendar calendar = calendarOf(name);
        std::mt19937_64 source(20150131);
        std::uniform_int_distribution<qint64> moments(utc(1900, 1, 1), utc(2100, 1, 1));
        for (int i = 0; i < 10000; ++i) {
            const qint64 moment = moments(source);
            const qint64 start = calendar.clearDate(moment);
            const DayComponents day = calendar.components(moment);
            ASSERT_EQ(QDate(day.year, day.month, day.day), calendar.dateTime(moment).date())
                << name << moment;
            ASSERT_LE(start, moment) << name << moment;
            ASSERT_EQ(calendar.components(start), day) << name << moment;
            ASSERT_NE(calendar.components(start - 1), day) << name << moment;
        }
    }
}

TEST(Calendar, everyHourAroundTheChangesOfTheClockLiesInItsDay)
{
    for (const char* name : {"America/Sao_Paulo", "Asia/Beirut", "America/Havana", "Africa/Cairo"}) {
        const Calendar calendar = calendarOf(name);
        for (qint64 moment = utc(2010, 1, 1); moment < utc(2016, 1, 1); moment += 1800) {
            const qint64 start = calendar.clearDate(moment);
            const QDate day = calendar.dateTime(moment).date();
            ASSERT_EQ(calendar.dateTime(start).date(), day) << name << moment;
            ASSERT_NE(calendar.dateTime(start - 1).date(), day) << name << moment;
        }
    }
}

TEST(Calendar, theEndOfADayIsAlways86400SecondsAfterItsStart)
{
    const Calendar calendar = calendarOf("Europe/Berlin");
    const qint64 start = utc(2018, 3, 24, 23); // the day has 23 hours
    EXPECT_EQ(calendar.normalizedDate(utc(2018, 3, 25, 12), true), start);
    EXPECT_EQ(calendar.normalizedDate(utc(2018, 3, 25, 12), false), start + 86400);
}

TEST(Calendar, reportPeriodsStartWithTheirMonthQuarterOrYear)
{
    const Calendar calendar = calendarOf("Europe/Berlin");
    const qint64 moment = utc(2015, 8, 31, 21, 59, 59);
    EXPECT_EQ(calendar.startOfMonth(moment), utc(2015, 7, 31, 22));
    EXPECT_EQ(calendar.startOfMonth(moment + 1), utc(2015, 8, 31, 22));
    EXPECT_EQ(calendar.startOfReportPeriod(moment, 1), utc(2015, 7, 31, 22));
    EXPECT_EQ(calendar.startOfReportPeriod(moment, 2), utc(2015, 6, 30, 22));
    EXPECT_EQ(calendar.startOfReportPeriod(moment, 3), utc(2014, 12, 31, 23));
    EXPECT_EQ(calendar.startOfReportPeriod(moment, 0), utc(2015, 7, 31, 22));
    EXPECT_EQ(calendar.startOfReportPeriod(utc(2015, 12, 15), 2), utc(2015, 9, 30, 22));
    EXPECT_EQ(calendar.startOfReportPeriod(utc(2015, 1, 15), 2), utc(2014, 12, 31, 23));
}

TEST(Calendar, aLocalTimeThatTheClockSkipsIsTheFirstMomentAfterTheGap)
{
    const Calendar calendar = calendarOf("America/New_York");
    EXPECT_EQ(calendar.moment({2018, 3, 11}, {1, 59, 59}), utc(2018, 3, 11, 6, 59, 59));
    EXPECT_EQ(calendar.moment({2018, 3, 11}, {2, 30}), utc(2018, 3, 11, 7));
    EXPECT_EQ(calendar.moment({2018, 3, 11}, {3, 0}), utc(2018, 3, 11, 7));
    EXPECT_EQ(calendar.moment({2018, 11, 4}, {1, 30}), utc(2018, 11, 4, 5, 30)); // the first of the two
    EXPECT_EQ(calendar.moment({2018, 11, 4}, {2, 0}), utc(2018, 11, 4, 7));
}

TEST(Calendar, aDamagedDateDoesNotOverflow)
{
    const Calendar calendar = calendarOf("Europe/Berlin");
    EXPECT_GT(calendar.components(std::numeric_limits<qint64>::max()).year, 9999);
    EXPECT_LT(calendar.components(std::numeric_limits<qint64>::min()).year, 0);
    EXPECT_EQ(calendar.components(utc(2015, 7, 1, 22)), (DayComponents{2015, 7, 2}));
    EXPECT_EQ(calendar.components(utc(2015, 1, 1, 22)), (DayComponents{2015, 1, 1}));
}

TEST(FixedClock, standsWhereItWasSet)
{
    FixedClock clock(5);
    EXPECT_EQ(clock.now(), 5);
    clock.set(7);
    EXPECT_EQ(clock.now(), 7);
}

TEST(SystemClock, tellsTheMachinesSeconds)
{
    const qint64 before = QDateTime::currentSecsSinceEpoch();
    const qint64 now = SystemClock().now();
    EXPECT_GE(now, before);
    EXPECT_LE(now, QDateTime::currentSecsSinceEpoch());
}

TEST(PeriodNumber, isTheYearAndTheMonthWithoutALeadingZero)
{
    EXPECT_EQ(periodNumber(2015, 3), 20153);
    EXPECT_EQ(periodNumber(2014, 12), 201412);
    EXPECT_EQ(periodNumber(2015, 1), 20151);
    EXPECT_EQ(periodNumber(2015, 10), 201510);
}

TEST(PeriodNumber, splitsAfterTheFirstFourDigitsWithOneOrTwoDigitsOfMonth)
{
    EXPECT_EQ(splitPeriodNumber(201412).year, 2014);
    EXPECT_EQ(splitPeriodNumber(201412).month, 12);
    EXPECT_EQ(splitPeriodNumber(20151).year, 2015);
    EXPECT_EQ(splitPeriodNumber(20151).month, 1);
    for (int month = 1; month <= 12; ++month) {
        EXPECT_EQ(splitPeriodNumber(periodNumber(1999, month)).year, 1999);
        EXPECT_EQ(splitPeriodNumber(periodNumber(1999, month)).month, month);
    }
}
