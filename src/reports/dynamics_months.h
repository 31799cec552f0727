#pragma once

#include "core/calendar.h"
#include "core/decimal.h"
#include "store/connector.h"

#include <utility>
#include <vector>

namespace zelvor {

// The first moment of a month and that of the next one.
using MonthPeriod = std::pair<qint64, qint64>;

// The months from the one that holds `dateFrom` on, as long as their first day is before `dateTo`.
std::vector<MonthPeriod> monthsBetween(const Calendar& calendar, qint64 dateFrom, qint64 dateTo);

// The figures of a month, from confirmed documents.
struct MonthFigures {
    Decimal income;    // received from counterparties, loans apart
    Decimal spendings; // loans apart
    Decimal selling;   // sold goods and services, at the selling price
    Decimal cost;      // the same at base cost
};

// The figures of consecutive months; documents and rows are read once for all of them.
std::vector<MonthFigures> readMonthFigures(Connector& connector, const std::vector<MonthPeriod>& months);

} // namespace zelvor
