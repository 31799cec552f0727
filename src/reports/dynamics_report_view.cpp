#include "reports/dynamics_report_view.h"

#include "core/localized.h"

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

DynamicsReportView::DynamicsReportView(const Calendar& calendar, const GraphView& graph)
    : ReportView(localized("Dynamics")), m_calendar(calendar), m_graph(graph)
{}

void DynamicsReportView::setRows(std::vector<MonthPeriod> dates, Rows reportRows)
{
    m_dates = std::move(dates);
    m_reportRows = std::move(reportRows);
    if (selectedRow() >= numberOfRows())
        selectRow(-1);
    reloadData();
}

QString DynamicsReportView::monthTitle(const MonthPeriod& month) const
{
    const DayComponents first = m_calendar.components(month.first);
    return QString::number(first.month) + u'.' + QString::number(first.year);
}

std::vector<ViewColumn> DynamicsReportView::columns() const
{
    std::vector<ViewColumn> columns{{u"name"_s, localized("Name")}};
    for (std::size_t month = 0; month < m_dates.size(); ++month) {
        const QString number = QString::number(month);
        columns.push_back(
            {u"col_"_s + number, monthTitle(m_dates[month]), CellKind::Amount, CellAlignment::Right});
        if (month > 0)
            columns.push_back({u"percent_"_s + number, u"%"_s, CellKind::Percent, CellAlignment::Right});
    }
    return columns;
}

QVariant DynamicsReportView::value(int row, const QString& identifier) const
{
    if (row < 0 || row >= numberOfRows())
        return QString();
    return m_reportRows[static_cast<std::size_t>(row)]->valueForIdentifier(identifier);
}

CellStyle DynamicsReportView::cellStyle(int row, const QString& identifier) const
{
    CellStyle style{CellFont::Small};
    if (identifier != u"name")
        style.alignment = CellAlignment::Right;
    if (identifier.startsWith(u"percent_") && value(row, identifier).toDouble() < 0)
        style.color = redColor;
    return style;
}

} // namespace zelvor
