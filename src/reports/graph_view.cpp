#include "reports/graph_view.h"

#include "core/localized.h"

#include <algorithm>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

// Told apart in print, on paper without colour and by most people who see few colours.
constexpr Color sellingColor{0, 0.447, 0.698, 1};
constexpr Color amberColor{0.902, 0.624, 0, 1};
constexpr Color greenColor{0, 0.62, 0.451, 1};
constexpr Color crimsonColor{0.8, 0.149, 0.2, 1};

// Beyond it the round number above would leave the whole numbers.
constexpr float largestValue = 1e17F;

} // namespace

GraphView::GraphView(const Calendar& calendar) : m_calendar(calendar)
{
    realizationColor.setColor(sellingColor);
    marginColor.setColor(amberColor);
    incomColor.setColor(greenColor);
    expensesColor.setColor(crimsonColor);
    for (ColorWell* well : {&realizationColor, &marginColor, &incomColor, &expensesColor})
        well->onChange([this] { redraw(); });
}

qint64 GraphView::maxValue() const
{
    float greatest = 0;
    for (const auto& row : reportRows) {
        for (const Decimal& value : row->data) {
            const auto single = static_cast<float>(value.toDouble());
            if (single > greatest) // never what is no number
                greatest = single;
        }
    }
    const auto whole = static_cast<qint64>(std::min(greatest, largestValue));
    qint64 power = 1;
    while (whole / power >= 10)
        power *= 10;
    return power * (whole / power + 1);
}

const Color& GraphView::colorOf(const DynamicsReportRow& row) const
{
    if (row.name == localized("Selling"))
        return realizationColor.color();
    if (row.name == localized("Spendings"))
        return expensesColor.color();
    if (row.name == localized("Income"))
        return incomColor.color();
    return marginColor.color();
}

QString GraphView::day(qint64 moment) const
{
    const DayComponents day = m_calendar.components(moment);
    return u"%1.%2.%3"_s.arg(day.day).arg(day.month).arg(day.year % 100);
}

QString GraphView::label(const MonthPeriod& month) const
{
    // The last day, also where the clock makes it an hour shorter.
    return day(month.first) + u" - "_s + day(month.second - 1);
}

void GraphView::redraw() const
{
    if (onRedraw)
        onRedraw();
}

} // namespace zelvor
