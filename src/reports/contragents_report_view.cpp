#include "reports/contragents_report_view.h"

#include "core/localized.h"

#include <algorithm>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

// Whether both rows are of one counterparty, group or footer.
bool isSame(const ContragentsReportRow& a, const ContragentsReportRow& b)
{
    if (a.footer || b.footer)
        return a.footer == b.footer && a.name == b.name;
    return a.groupRow == b.groupRow && a.contragent->id == b.contragent->id;
}

} // namespace

ContragentsReportView::ContragentsReportView(AppDelegate& owner) : ReportView(QString()), m_appDelegate(owner)
{}

const std::vector<const ContragentsReportRow*>& ContragentsReportView::rows() const
{
    refresh();
    return m_rows;
}

const QString& ContragentsReportView::target() const
{
    refresh();
    return m_target;
}

void ContragentsReportView::setRows(std::vector<const ContragentsReportRow*> rows)
{
    const auto place = static_cast<std::size_t>(selectedRow());
    const ContragentsReportRow* const selected = place < m_rows.size() ? m_rows[place] : nullptr;
    const auto now = std::ranges::find_if(
        rows, [selected](const ContragentsReportRow* row) { return selected && isSame(*row, *selected); });
    selectRow(now == rows.end() ? -1 : static_cast<int>(now - rows.begin()));
    m_rows = std::move(rows);
    reloadData();
}

void ContragentsReportView::openContragentReport(int row)
{
    const ContragentsReportRow* line = rowAt(row);
    if (line && line->contragent && !line->groupRow)
        m_appDelegate.workspace().addContragentReport(line->contragent->id, start(), finish());
}

std::vector<ViewColumn> ContragentsReportView::columns() const
{
    using enum CellKind;
    using enum CellAlignment;
    return {{u"number"_s, u"#"_s, Integer, Right},
            {u"name"_s, localized("Counterparty")},
            {u"startSaldo"_s, localized("Start Balance"), Amount, Right},
            {u"debit"_s, localized("Debit (-)"), Amount, Right},
            {u"credit"_s, localized("Credit (+)"), Amount, Right},
            {u"finishSaldo"_s, localized("End Balance"), Amount, Right}};
}

const ContragentsReportRow* ContragentsReportView::rowAt(int row) const
{
    const auto& shown = rows();
    return row >= 0 && row < static_cast<int>(shown.size()) ? shown[static_cast<std::size_t>(row)] : nullptr;
}

QVariant ContragentsReportView::value(int row, const QString& identifier) const
{
    const ContragentsReportRow* line = rowAt(row);
    if (!line)
        return QString();
    return identifier == u"number" ? QVariant(row + 1) : line->valueForIdentifier(identifier);
}

CellStyle ContragentsReportView::cellStyle(int row, const QString& identifier) const
{
    const ContragentsReportRow* line = rowAt(row);
    if (!line)
        return {};
    CellStyle style;
    style.font = line->groupRow ? CellFont::GatheringBold12 : CellFont::Small;
    style.color = line->groupRow ? inOrderColor : blackColor;
    if ((identifier == u"startSaldo" && line->innerStartSaldo().isNegative()) ||
        (identifier == u"finishSaldo" && line->innerFinishSaldo().isNegative()))
        style.color = redColor;
    style.alignment = identifier == u"name" ? CellAlignment::Left : CellAlignment::Right;
    return style;
}

} // namespace zelvor
