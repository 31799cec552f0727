#include "cli/report_printer.h"
#include "core/formats.h"
#include "core/localized.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

QString shownCell(const QVariant& cell, CellKind kind, const Calendar& calendar)
{
    if (cell.typeId() == QMetaType::QString)
        return cell.toString().simplified().isEmpty() ? QString() : cell.toString().replace(u'\n', u' ');
    switch (kind) {
    case CellKind::Amount:
        return amountText(cell.toDouble());
    case CellKind::Percent:
        return percentText(Decimal::fromDouble(cell.toDouble()));
    case CellKind::CheckBox:
        return cell.toBool() ? localized("yes") : localized("no");
    case CellKind::Date:
        return calendar.dateTime(cell.toLongLong()).toString(u"yyyy-MM-dd HH:mm:ss"_s);
    default:
        return cell.toString();
    }
}

// The texts of one line, by column.
class TextLines {
public:
    TextLines(const ReportTable& table, const Calendar& calendar)
        : m_table(table), m_calendar(calendar), m_columns(table.view.columns())
    {
        measure();
    }

    QByteArray titles() const
    {
        return line([](const ViewColumn& column) { return column.title; });
    }
    QByteArray row(int row) const
    {
        return line([&](const ViewColumn& column) { return cell(row, column); });
    }

private:
    QString cell(int row, const ViewColumn& column) const
    {
        return shownCell(m_table.view.value(row, column.identifier), column.kind, m_calendar);
    }

    void measure()
    {
        for (const ViewColumn& column : m_columns) {
            qsizetype width = column.title.size();
            for (int row = 0; row < m_table.view.numberOfRows(); ++row)
                width = std::max(width, cell(row, column).size());
            m_widths.push_back(width);
        }
    }

    template <class Text>
    QByteArray line(Text text) const
    {
        QString line;
        for (std::size_t i = 0; i < m_columns.size(); ++i) {
            const bool left = m_columns[i].alignment == CellAlignment::Left;
            const QString shown = text(m_columns[i]);
            line += (i == 0 ? QString() : u"  "_s) +
                    (left ? shown.leftJustified(m_widths[i]) : shown.rightJustified(m_widths[i]));
        }
        while (line.endsWith(u' '))
            line.chop(1);
        return line.toUtf8() + '\n';
    }

    const ReportTable& m_table;
    const Calendar& m_calendar;
    const std::vector<ViewColumn> m_columns;
    std::vector<qsizetype> m_widths;
};

} // namespace

bool printText(const ReportTable& table, const Calendar& calendar, const Sink& sink)
{
    const TextLines lines(table, calendar);
    if (!sink(table.view.name().toUtf8() + "\n\n" + lines.titles()))
        return false;
    for (int row = 0; row < table.view.numberOfRows(); ++row) {
        if (!sink(lines.row(row)))
            return false;
    }
    return true;
}

} // namespace zelvor
