#pragma once

#include "core/outlets.h"
#include "reports/dynamics_report_view.h"

namespace zelvor {

// What the graph of the dynamics report shows, and the wells of its four colours, which are its legend.
// print/graph_painter.h draws it.
class GraphView {
public:
    explicit GraphView(const Calendar& calendar);

    std::vector<MonthPeriod> dates;
    DynamicsReportView::Rows reportRows;

    ColorWell realizationColor{QStringLiteral("realizationColor")};
    ColorWell marginColor{QStringLiteral("marginColor")};
    ColorWell incomColor{QStringLiteral("incomColor")};
    ColorWell expensesColor{QStringLiteral("expensesColor")};

    // The value at the top of the scale: a round number above all that is shown, at least 1.
    qint64 maxValue() const;
    // By the row's name.
    const Color& colorOf(const DynamicsReportRow& row) const;
    // "1.1.24 - 31.1.24"
    QString label(const MonthPeriod& month) const;

    // Heard by whoever shows the graph.
    std::function<void()> onRedraw;
    void redraw() const;

private:
    QString day(qint64 moment) const;

    const Calendar& m_calendar;
};

} // namespace zelvor
