#include "print/export/excel_table.h"

#include "core/formats.h"
#include "core/localized.h"

#include <algorithm>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

bool isWholeNumber(const QVariant& cell)
{
    return cell.typeId() == QMetaType::Int || cell.typeId() == QMetaType::LongLong;
}

bool isNumber(const QVariant& cell)
{
    return cell.typeId() == QMetaType::Double || isWholeNumber(cell);
}

} // namespace

QString ExcelTexts::number(const Decimal& value) const
{
    return exportNumberText(value, m_locale);
}

QString ExcelTexts::number(double value) const
{
    return number(Decimal::fromDouble(value));
}

QString ExcelTexts::percent(double fraction) const
{
    return exportPercentText(Decimal::fromDouble(fraction), m_locale);
}

QString ExcelTexts::number(const QVariant& cell) const
{
    return isNumber(cell) ? number(cell.toDouble()) : QString();
}

QString ExcelTexts::date(const QVariant& cell) const
{
    return isWholeNumber(cell) ? shortDateText(m_calendar.dateTime(cell.toLongLong()), m_locale) : QString();
}

QString ExcelTexts::flag(const QVariant& cell)
{
    if (cell.typeId() != QMetaType::Bool)
        return {};
    return cell.toBool() ? localized("yes") : localized("no");
}

QString ExcelTexts::cell(const QVariant& cell, CellKind kind) const
{
    switch (kind) {
    case CellKind::Amount:
        return number(cell);
    case CellKind::Percent:
        return isNumber(cell) ? percent(cell.toDouble()) : QString();
    case CellKind::Date:
        return date(cell);
    case CellKind::CheckBox:
        return flag(cell);
    default:
        return cell.toString();
    }
}

ExcelTable::ExcelTable(const std::vector<ViewColumn>& columns)
{
    QStringList titles;
    for (const ViewColumn& column : columns) {
        if (!column.hidden)
            titles << column.title;
    }
    addRow(titles);
}

ExcelTable::ExcelTable(const std::vector<ViewColumn>& columns, const QStringList& identifiers)
{
    QStringList titles;
    for (const QString& identifier : identifiers)
        titles << std::ranges::find(columns, identifier, &ViewColumn::identifier)->title;
    addRow(titles);
}

void ExcelTable::addRow(const QStringList& cells)
{
    m_text += u"<tr><td>"_s + cells.join("</td><td>"_L1) + u"</td></tr>"_s;
}

QString ExcelTable::take()
{
    return std::exchange(m_text, QString()) + u"</table>"_s;
}

} // namespace zelvor
