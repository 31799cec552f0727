#include "reports/dynamics_report_row.h"

#include <optional>

namespace zelvor {

namespace {

// The N of "prefix_N".
std::optional<std::size_t> numberBehind(QStringView identifier, QStringView prefix)
{
    if (!identifier.startsWith(prefix))
        return std::nullopt;
    bool isNumber = false;
    const quint64 number = identifier.mid(prefix.size()).toULongLong(&isNumber);
    return isNumber ? std::optional<std::size_t>(number) : std::nullopt;
}

} // namespace

QVariant DynamicsReportRow::change(std::size_t month) const
{
    if (month == 0 || month >= data.size() || data[month - 1].isZero())
        return QString();
    // By the size of the month before, so that a loss which turns into a profit is a rise.
    const Decimal& before = data[month - 1];
    return data[month].minus(before, decimalHandler).dividedBy(before.absolute(), percentHandler).toDouble();
}

QVariant DynamicsReportRow::valueForIdentifier(QStringView identifier) const
{
    if (identifier == u"name")
        return name;
    if (const auto month = numberBehind(identifier, u"col_"))
        return *month < data.size() ? QVariant(data[*month].toDouble()) : QVariant(QString());
    if (const auto month = numberBehind(identifier, u"percent_"))
        return change(*month);
    return QString();
}

} // namespace zelvor
