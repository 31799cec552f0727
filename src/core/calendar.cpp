#include "core/calendar.h"

#include <algorithm>
#include <chrono>
#include <limits>

namespace zelvor {

namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

// Ten million days either way: keeps a damaged date from overflowing the calendar's years.
constexpr qint64 outermostMoment = 10'000'000 * secondsPerDay;

// Seconds from 1970-01-01 00:00 to that day's 00:00 on a clock without a time zone. A day past the end of
// the month runs on into the next one.
qint64 localSeconds(int year, int month, int day)
{
    const std::chrono::year_month first = std::chrono::year(year) / month;
    return (sys_days(first / 1).time_since_epoch().count() + day - 1) * secondsPerDay;
}

} // namespace

qint64 SystemClock::now() const
{
    return std::chrono::duration_cast<std::chrono::seconds>(
               std::chrono::system_clock::now().time_since_epoch())
        .count();
}

// What the zone itself tells of the moment.
Calendar::Span Calendar::spanAt(qint64 moment) const
{
    const QDateTime time = QDateTime::fromSecsSinceEpoch(moment, Qt::UTC);
    Span span{std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max(),
              m_zone.offsetFromUtc(time)};
    if (!m_zone.hasTransitions())
        return span;
    const QTimeZone::OffsetData previous = m_zone.previousTransition(time.addSecs(1));
    if (previous.atUtc.isValid())
        span.from = previous.atUtc.toSecsSinceEpoch();
    const QTimeZone::OffsetData next = m_zone.nextTransition(time);
    if (next.atUtc.isValid())
        span.until = next.atUtc.toSecsSinceEpoch();
    return span;
}

qint64 Calendar::offsetAt(qint64 moment) const
{
    const auto holds = [moment](const Span& span) { return span.from <= moment && moment < span.until; };
    if (m_lastSpan < m_spans.size() && holds(m_spans[m_lastSpan]))
        return m_spans[m_lastSpan].offset;
    auto place = std::ranges::upper_bound(m_spans, moment, {}, &Span::until);
    if (place == m_spans.end() || !holds(*place))
        place = m_spans.insert(place, spanAt(moment));
    m_lastSpan = static_cast<std::size_t>(place - m_spans.begin());
    return place->offset;
}

// The first moment after `before`, at most at `after`, at which the clock no longer has the offset that it
// has at `before`.
qint64 Calendar::changeBetween(qint64 before, qint64 after) const
{
    const qint64 offset = offsetAt(before);
    while (after - before > 1) {
        const qint64 middle = before + (after - before) / 2;
        (offsetAt(middle) == offset ? before : after) = middle;
    }
    return after;
}

// The first moment at which a clock in the zone shows this local time, or the first after it when the clock
// skips it. An offset is less than a day, so a day before and a day after embrace every candidate.
qint64 Calendar::firstMoment(qint64 local) const
{
    const qint64 before = local - secondsPerDay;
    const qint64 after = local + secondsPerDay;
    const qint64 oldOffset = offsetAt(before);
    const qint64 newOffset = offsetAt(after);
    if (oldOffset == newOffset)
        return local - oldOffset;
    const qint64 change = changeBetween(before, after);
    if (local - oldOffset < change)
        return local - oldOffset;
    return std::max(local - newOffset, change);
}

DayComponents Calendar::components(qint64 moment) const
{
    const qint64 held = std::clamp(moment, -outermostMoment, outermostMoment);
    const std::chrono::sys_seconds local{std::chrono::seconds(held + offsetAt(held))};
    const year_month_day day{std::chrono::floor<days>(local)};
    return {static_cast<int>(day.year()), static_cast<int>(static_cast<unsigned>(day.month())),
            static_cast<int>(static_cast<unsigned>(day.day()))};
}

qint64 Calendar::startOfDay(const DayComponents& day) const
{
    return firstMoment(localSeconds(day.year, day.month, day.day));
}

qint64 Calendar::normalizedDate(qint64 moment, bool isStart) const
{
    return clearDate(moment) + (isStart ? 0 : secondsPerDay);
}

qint64 Calendar::startOfMonth(qint64 moment) const
{
    const DayComponents day = components(moment);
    return startOfDay({day.year, day.month, 1});
}

qint64 Calendar::startOfReportPeriod(qint64 moment, qint64 reportPeriod) const
{
    const DayComponents day = components(moment);
    if (reportPeriod == 3)
        return startOfDay({day.year, 1, 1});
    if (reportPeriod == 2)
        return startOfDay({day.year, (day.month - 1) / 3 * 3 + 1, 1});
    return startOfDay({day.year, day.month, 1});
}

qint64 Calendar::moment(const QDate& date, const QTime& time) const
{
    return firstMoment(localSeconds(date.year(), date.month(), date.day()) +
                       time.msecsSinceStartOfDay() / 1000);
}

QDateTime Calendar::dateTime(qint64 moment) const
{
    return QDateTime::fromSecsSinceEpoch(moment, m_zone);
}

int periodNumber(int year, int month)
{
    return year * (month < 10 ? 10 : 100) + month;
}

PeriodParts splitPeriodNumber(qint64 number)
{
    qint64 monthRange = 1;
    while (number / monthRange >= 10000)
        monthRange *= 10;
    return {static_cast<int>(number / monthRange), static_cast<int>(number % monthRange)};
}

} // namespace zelvor
