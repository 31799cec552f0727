#include "reports/expend_report_view.h"

#include "core/localized.h"

#include <algorithm>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

ExpendReportView::ExpendReportView(AppDelegate& owner) : ReportView(QString()), m_appDelegate(owner) {}

const ExpendReportRow::Children& ExpendReportView::rows() const
{
    refresh();
    return m_rows;
}

void ExpendReportView::setRows(ExpendReportRow::Children rows)
{
    const bool hadSelection = selectedRow() >= 0 && selectedRow() < static_cast<int>(m_rows.size());
    const auto selected = hadSelection ? m_rows[static_cast<std::size_t>(selectedRow())] : nullptr;
    m_rows = std::move(rows);
    const auto place = selected ? std::ranges::find(m_rows, selected) : m_rows.end();
    selectRow(place == m_rows.end() ? -1 : static_cast<int>(place - m_rows.begin()));
    reloadData();
}

std::vector<ViewColumn> ExpendReportView::columns() const
{
    // The order of the export.
    return {{u"name"_s, localized("Name")},
            {u"date"_s, localized("Date"), CellKind::Date, CellAlignment::Center},
            {u"constant"_s, localized("Constant"), CellKind::Amount, CellAlignment::Right},
            {u"variable"_s, localized("Variable"), CellKind::Amount, CellAlignment::Right},
            {u"total"_s, localized("Total"), CellKind::Amount, CellAlignment::Right},
            {u"comment"_s, localized("Comment")}};
}

const ExpendReportRow* ExpendReportView::rowAt(int row) const
{
    const auto& shown = rows();
    return row >= 0 && row < static_cast<int>(shown.size()) ? shown[static_cast<std::size_t>(row)].get()
                                                            : nullptr;
}

QVariant ExpendReportView::value(int row, const QString& identifier) const
{
    const ExpendReportRow* line = rowAt(row);
    return line ? line->valueForIdentifier(identifier) : QVariant(QString());
}

CellStyle ExpendReportView::cellStyle(int row, const QString& identifier) const
{
    const ExpendReportRow* line = rowAt(row);
    if (!line)
        return {};
    CellStyle style;
    style.font = line->groupRow ? CellFont::GatheringBold12 : CellFont::Small;
    style.color = line->groupRow ? inOrderColor : blackColor;
    if (identifier == u"date")
        style.alignment = CellAlignment::Center;
    else if (identifier == u"constant" || identifier == u"variable" || identifier == u"total")
        style.alignment = CellAlignment::Right;
    return style;
}

void ExpendReportView::openDocument(int row)
{
    const ExpendReportRow* line = rowAt(row);
    if (line && line->document)
        m_appDelegate.workspace().openDocWithID(line->document->id, u"Money"_s);
}

} // namespace zelvor
