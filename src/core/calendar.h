#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QTimeZone>

#include <vector>

namespace zelvor {

// The step of a day everywhere, also across a change of the clock.
inline constexpr qint64 secondsPerDay = 86400;

// The current moment, in whole seconds since 1970-01-01 00:00:00 UTC.
class Clock {
public:
    virtual ~Clock() = default;
    virtual qint64 now() const = 0;
};

// The clock of the machine.
class SystemClock final : public Clock {
public:
    qint64 now() const override;
};

// A clock that stands where it was set: for replaying history and for tests.
class FixedClock final : public Clock {
public:
    explicit FixedClock(qint64 moment = 0) : m_moment(moment) {}
    qint64 now() const override { return m_moment; }
    void set(qint64 moment) { m_moment = moment; }

private:
    qint64 m_moment;
};

// Year, month 1 to 12, day 1 to 31 of the Gregorian calendar.
struct DayComponents {
    int year = 1970;
    int month = 1;
    int day = 1;
    friend bool operator==(const DayComponents&, const DayComponents&) = default;
};

// Calendar work in one time zone. All moments are whole seconds since 1970 UTC. Remembers what it learned of
// the zone, so one calendar serves one thread.
class Calendar {
public:
    explicit Calendar(const QTimeZone& zone) : m_zone(zone) {}
    const QTimeZone& zone() const { return m_zone; }

    DayComponents components(qint64 moment) const;
    // The first moment of that local day, also where the clock skips midnight.
    qint64 startOfDay(const DayComponents& day) const;
    // The first moment of the local day that holds `moment`.
    qint64 clearDate(qint64 moment) const { return startOfDay(components(moment)); }
    // The midnight that begins (isStart) the moment's local day, or 86,400 seconds later.
    qint64 normalizedDate(qint64 moment, bool isStart) const;
    // The first moment of the local month that holds `moment`.
    qint64 startOfMonth(qint64 moment) const;
    // The first moment of the report period that holds `moment`: reportPeriod 2 is a quarter, 3 a year,
    // anything else a month.
    qint64 startOfReportPeriod(qint64 moment, qint64 reportPeriod) const;
    // Local date and time; a time that the clock skips is the first moment after the gap.
    qint64 moment(const QDate& date, const QTime& time) const;
    QDateTime dateTime(qint64 moment) const;

private:
    // A stretch of time, from inclusive to exclusive, in which the zone keeps one offset.
    struct Span {
        qint64 from;
        qint64 until;
        qint64 offset;
    };

    qint64 offsetAt(qint64 moment) const;
    Span spanAt(qint64 moment) const;
    qint64 changeBetween(qint64 before, qint64 after) const;
    qint64 firstMoment(qint64 local) const;

    QTimeZone m_zone;
    // Asking the zone costs microseconds, and one confirmation asks many times. In order of time; the last
    // one used is tried first.
    mutable std::vector<Span> m_spans;
    mutable std::size_t m_lastSpan = 0;
};

// A period number is the year and the month written one after the other without a leading zero: 20153 is
// March 2015, 201412 December 2014.
int periodNumber(int year, int month);
struct PeriodParts {
    int year;
    int month;
};
// Splits after the first four digits; number must be at least 10000.
PeriodParts splitPeriodNumber(qint64 number);

} // namespace zelvor
