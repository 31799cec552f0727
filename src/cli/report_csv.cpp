#include "cli/report_printer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr qsizetype pieceSize = 64 * 1024; // bytes

// Quoted where the text would otherwise end the field. What looks like a formula is the user's own text and
// goes through as it is.
QByteArray csvText(const QString& text)
{
    QByteArray field = text.toUtf8();
    const auto isSpecial = [](char c) { return c == ',' || c == '"' || c == '\r' || c == '\n'; };
    if (std::ranges::none_of(field, isSpecial))
        return field;
    return '"' + field.replace('"', "\"\"") + '"';
}

// The shortest digits that read back as the same value, without an exponent; nothing for what is no number.
QByteArray csvNumber(double value)
{
    if (!std::isfinite(value))
        return {};
    std::array<char, 400> digits{};              // the smallest number has over 300
    const double shown = value == 0 ? 0 : value; // no "-0"
    const auto [end, error] =
        std::to_chars(digits.data(), digits.data() + digits.size(), shown, std::chars_format::fixed);
    return {digits.data(), end - digits.data()};
}

QByteArray csvField(const QVariant& cell, CellKind kind, const Calendar& calendar)
{
    switch (cell.typeId()) {
    case QMetaType::Bool:
        return cell.toBool() ? "true" : "false";
    case QMetaType::Int:
    case QMetaType::LongLong:
        if (kind == CellKind::Date)
            return calendar.dateTime(cell.toLongLong()).toString(u"yyyy-MM-ddTHH:mm:ss"_s).toLatin1();
        return QByteArray::number(cell.toLongLong());
    case QMetaType::Double:
        return csvNumber(cell.toDouble());
    default:
        return csvText(cell.toString());
    }
}

} // namespace

bool printCsv(const ReportTable& table, const Calendar& calendar, const Sink& sink)
{
    std::vector<ViewColumn> columns = table.figure ? table.figureColumns : table.view.columns();
    std::erase_if(columns, [](const ViewColumn& column) { return column.hidden; });
    QByteArray text;
    const auto writeLine = [&](const auto& fieldOf) {
        for (const ViewColumn& column : columns)
            text += fieldOf(column) + (&column == &columns.back() ? "\r\n" : ",");
    };
    writeLine([](const ViewColumn& column) { return csvText(column.identifier); });
    const int count = table.view.numberOfRows();
    for (int row = 0; row < count; ++row) {
        writeLine([&](const ViewColumn& column) {
            const QVariant cell = table.figure ? table.figure(row, column.identifier)
                                               : table.view.value(row, column.identifier);
            return csvField(cell, column.kind, calendar);
        });
        if (text.size() > pieceSize && !sink(std::exchange(text, QByteArray())))
            return false;
    }
    return sink(text);
}

} // namespace zelvor
