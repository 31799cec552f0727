#include "reports/payment_calendar_view.h"

#include "core/localized.h"
#include "reports/payment_calendar_view_controller.h"

#include <algorithm>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

PaymentCalendarView::PaymentCalendarView(PaymentCalendarViewController& owner)
    : TableView(localized("Payment Calendar"), reportTitleColor), m_controller(owner)
{
    setGroundColor(reportGroundColor);
}

const PaymentCalendarView::Rows& PaymentCalendarView::rows() const
{
    m_controller.refresh(); // a calendar that nobody looked at is read now
    return m_rows;
}

void PaymentCalendarView::setRows(Rows rows)
{
    std::shared_ptr<DocumentModel> selected;
    if (selectedRow() >= 0 && selectedRow() < static_cast<int>(m_rows.size()))
        selected = m_rows[static_cast<std::size_t>(selectedRow())]->document;
    m_rows = std::move(rows);
    const auto place = std::ranges::find_if(m_rows, [&selected](const auto& row) {
        return selected && row->document && row->document->id == selected->id &&
               row->document->docTypeID == selected->docTypeID;
    });
    selectRow(place == m_rows.end() ? -1 : static_cast<int>(place - m_rows.begin()));
    reloadData();
}

std::vector<ViewColumn> PaymentCalendarView::columns() const
{
    using enum CellKind;
    using enum CellAlignment;
    return {{u"name"_s, localized("Document")},
            {u"date"_s, localized("Date"), Date},
            {u"payToDate"_s, localized("Pay To"), Date},
            {u"sum"_s, localized("Sum"), Amount, Right},
            {u"leftToPayIn"_s, localized("We Wait"), Amount, Right},
            {u"leftToPayOut"_s, localized("Wait For Us"), Amount, Right}};
}

const PaymentCalendarRow* PaymentCalendarView::rowAt(int row) const
{
    const Rows& shown = rows();
    const bool inside = row >= 0 && row < static_cast<int>(shown.size());
    return inside ? shown[static_cast<std::size_t>(row)].get() : nullptr;
}

QVariant PaymentCalendarView::value(int row, const QString& identifier) const
{
    const PaymentCalendarRow* line = rowAt(row);
    return line ? line->valueForIdentifier(identifier) : QVariant(QString());
}

CellStyle PaymentCalendarView::cellStyle(int row, const QString& identifier) const
{
    const PaymentCalendarRow* line = rowAt(row);
    if (!line)
        return {};
    CellStyle style;
    const bool isDebt = identifier == u"leftToPayIn" || identifier == u"leftToPayOut";
    style.alignment = isDebt || identifier == u"sum" ? CellAlignment::Right : CellAlignment::Left;
    if (line->total) {
        style.font = CellFont::GatheringBold12;
        style.color = inOrderColor;
        style.alignment = CellAlignment::Right;
        return style;
    }
    style.font = CellFont::Small;
    if (isDebt && m_controller.isOverdue(*line))
        style.color = redColor;
    return style;
}

void PaymentCalendarView::doubleAction(int row)
{
    m_controller.openDocument(row);
}

} // namespace zelvor
