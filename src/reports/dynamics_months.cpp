#include "reports/dynamics_months.h"

#include "core/doc_type.h"
#include "reports/sale_rows.h"
#include "reports/whole_cents.h"

#include <algorithm>

namespace zelvor {

namespace {

// A sum of stored money, each rounded as a read of its record rounds it.
class MoneySum {
public:
    void add(double stored)
    {
        qint64 cents = 0;
        if (wholeCents(stored, cents))
            m_cents += cents;
        else
            m_rest = m_rest.plus(Decimal::fromDouble(stored, moneyHandler), moneyHandler);
    }
    Decimal sum() const { return Decimal::fromParts(m_cents, moneyHandler.scale).plus(m_rest, moneyHandler); }

private:
    qint64 m_cents = 0;
    Decimal m_rest;
};

struct MonthSums {
    MoneySum income;
    MoneySum spendings;
    MoneySum selling;
    MoneySum cost;
};

// Finds the month of a date. The rows of a document, and documents in the order of their dates, ask for the
// same month again and again.
class MonthFinder {
public:
    MonthFinder(const std::vector<MonthPeriod>& months, std::vector<MonthSums>& sums)
        : m_months(months), m_sums(sums)
    {}
    // The date lies within the months.
    MonthSums& sumsOf(qint64 date)
    {
        if (date < m_months[m_last].first || date >= m_months[m_last].second) {
            const auto next = std::ranges::upper_bound(m_months, date, {}, &MonthPeriod::first);
            m_last = static_cast<std::size_t>(next - m_months.begin()) - 1;
        }
        return m_sums[m_last];
    }

private:
    const std::vector<MonthPeriod>& m_months;
    std::vector<MonthSums>& m_sums;
    std::size_t m_last = 0;
};

bool addSales(Connector& connector, const DatesBetween& dates, MonthFinder& months)
{
    return scanSaleRows(connector, dates, "date", "price_cost_sum, base_cost_sum",
                        [&months](qint64 date, const Statement& row) {
                            MonthSums& sums = months.sumsOf(date);
                            sums.selling.add(row.real(1));
                            sums.cost.add(row.real(2));
                        });
}

bool addMoney(Connector& connector, const DatesBetween& dates, MonthFinder& months)
{
    return connector.scan(
        "SELECT doc_type_id, date, doc_sum FROM money_doc"
        " WHERE (doc_type_id=? OR doc_type_id=?) AND is_loans=0 AND date>? AND date<? AND is_confirmed=1",
        {DocType::MoneyFromContragent, DocType::MoneyToExpend, dates.after, dates.before},
        [&months](const Statement& document) {
            const bool isIncome = document.integer(0) == rawValue(DocType::MoneyFromContragent);
            MonthSums& sums = months.sumsOf(document.integer(1));
            (isIncome ? sums.income : sums.spendings).add(document.real(2));
        });
}

} // namespace

std::vector<MonthPeriod> monthsBetween(const Calendar& calendar, qint64 dateFrom, qint64 dateTo)
{
    std::vector<MonthPeriod> months;
    DayComponents day = calendar.components(dateFrom);
    day.day = 1;
    for (qint64 from = calendar.startOfDay(day); from < dateTo; from = months.back().second) {
        day.year += day.month == 12 ? 1 : 0;
        day.month = day.month % 12 + 1;
        months.emplace_back(from, calendar.startOfDay(day));
    }
    return months;
}

std::vector<MonthFigures> readMonthFigures(Connector& connector, const std::vector<MonthPeriod>& months)
{
    std::vector<MonthFigures> figures(months.size());
    if (months.empty())
        return figures;
    std::vector<MonthSums> sums(months.size());
    MonthFinder finder(months, sums);
    const DatesBetween dates{months.front().first - 1, months.back().second};
    if (!addSales(connector, dates, finder) || !addMoney(connector, dates, finder))
        return figures; // no half of a report
    std::ranges::transform(sums, figures.begin(), [](const MonthSums& month) {
        return MonthFigures{month.income.sum(), month.spendings.sum(), month.selling.sum(), month.cost.sum()};
    });
    return figures;
}

} // namespace zelvor
