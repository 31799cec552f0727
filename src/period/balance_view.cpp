#include "period/balance_view.h"

#include "core/localized.h"
#include "period/balance_view_controller.h"

#include <algorithm>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

BalanceView::BalanceView(BalanceViewController& owner)
    : TableView(localized("Balance"), reportTitleColor), m_controller(owner)
{
    setGroundColor(reportGroundColor);
}

const std::vector<std::shared_ptr<BalanceRow>>& BalanceView::rows() const
{
    m_controller.refresh(); // a sheet that nobody looked at is computed now
    return m_rows;
}

void BalanceView::setRows(std::vector<std::shared_ptr<BalanceRow>> rows)
{
    const bool hadSelection = selectedRow() >= 0 && selectedRow() < static_cast<int>(m_rows.size());
    const auto selected = hadSelection ? m_rows[static_cast<std::size_t>(selectedRow())] : nullptr;
    m_rows = std::move(rows);
    const auto place = selected ? std::ranges::find(m_rows, selected) : m_rows.end();
    selectRow(place == m_rows.end() ? -1 : static_cast<int>(place - m_rows.begin()));
    reloadData();
}

std::vector<ViewColumn> BalanceView::columns() const
{
    return {{u"name"_s, localized("Name")},
            {u"debet"_s, localized("Debit"), CellKind::Amount, CellAlignment::Right},
            {u"credit"_s, localized("Credit"), CellKind::Amount, CellAlignment::Right}};
}

const BalanceRow* BalanceView::rowAt(int row) const
{
    const auto& shown = rows();
    return row >= 0 && row < static_cast<int>(shown.size()) ? shown[static_cast<std::size_t>(row)].get()
                                                            : nullptr;
}

QVariant BalanceView::value(int row, const QString& identifier) const
{
    const BalanceRow* line = rowAt(row);
    return line ? line->valueForIdentifier(identifier) : QVariant(QString());
}

CellStyle BalanceView::cellStyle(int row, const QString& identifier) const
{
    const BalanceRow* line = rowAt(row);
    if (!line)
        return {};
    CellStyle style;
    if (line->groupRow) {
        style.font = CellFont::GatheringBold14;
        style.color = identifier == u"credit" ? redColor : inOrderColor;
    }
    style.alignment = identifier == u"name" && !line->total ? CellAlignment::Left : CellAlignment::Right;
    return style;
}

} // namespace zelvor
