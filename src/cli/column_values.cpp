#include "cli/column_values.h"

#include "cli/operation_reader.h"
#include "core/currency_struct.h"

#include <algorithm>
#include <string>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

bool isCurrencyColumn(const TableInfo& table, const ColumnInfo& column)
{
    const std::string_view name = column.name;
    return (name == "currency_id" && std::string_view(table.name) == "account") || name == "default_currency";
}

Parameter valueOf(OperationReader& reader, const TableInfo& table, const ColumnInfo& column,
                  const QString& name)
{
    switch (column.kind) {
    case ColumnKind::Boolean:
        return reader.boolean(name, false);
    case ColumnKind::Real:
        return reader.number(name, Decimal()).toDouble();
    case ColumnKind::Text:
        return reader.text(name);
    case ColumnKind::Integer:
        break;
    }
    const QJsonValue value = reader.value(name);
    if (value.isString()) {
        if (const std::optional<qint64> currency = currencyOfColumn(table, column, value.toString()))
            return *currency;
    }
    return reader.integer(name, 0);
}

} // namespace

const ColumnInfo* columnNamed(const TableInfo& table, const QString& name)
{
    const auto found = std::ranges::find_if(
        table.columns, [&](const ColumnInfo& column) { return name == QLatin1StringView(column.name); });
    return found == table.columns.end() ? nullptr : &*found;
}

std::optional<qint64> currencyOfColumn(const TableInfo& table, const ColumnInfo& column, const QString& code)
{
    const auto currency = currencyFromShort(code);
    if (!currency || !isCurrencyColumn(table, column))
        return std::nullopt;
    return rawValue(*currency);
}

std::optional<ColumnValues> columnValuesFromJson(const TableInfo& table, const QJsonObject& object,
                                                 QString* error)
{
    OperationReader reader(object, u"values"_s);
    ColumnValues values;
    for (const ColumnInfo& column : table.columns) {
        const QString name = QString::fromLatin1(column.name);
        if (reader.has(name))
            values.push_back({&column, valueOf(reader, table, column, name)});
    }
    *error = reader.error();
    return error->isEmpty() ? std::optional(std::move(values)) : std::nullopt;
}

std::optional<Parameter> parameterFromText(const TableInfo& table, const ColumnInfo& column,
                                           const QString& text)
{
    switch (column.kind) {
    case ColumnKind::Boolean:
        if (text == u"true" || text == u"yes" || text == u"1")
            return Parameter(true);
        if (text == u"false" || text == u"no" || text == u"0")
            return Parameter(false);
        return std::nullopt;
    case ColumnKind::Real: {
        const Decimal number = acceptedNumber(text);
        return number.isNaN() ? std::nullopt : std::optional(Parameter(number.toDouble()));
    }
    case ColumnKind::Integer: {
        if (const std::optional<qint64> currency = currencyOfColumn(table, column, text))
            return Parameter(*currency);
        bool isNumber = false;
        const qint64 number = text.toLongLong(&isNumber);
        return isNumber ? std::optional(Parameter(number)) : std::nullopt;
    }
    case ColumnKind::Text:
        break;
    }
    return isStorableText(text) ? std::optional(Parameter(text)) : std::nullopt;
}

// A record takes its columns from a statement's row; so the values go through one.
bool loadValues(Connector& connector, TableModel& record, const ColumnValues& values)
{
    if (values.empty())
        return true;
    std::string sql = "SELECT ?";
    std::vector<Parameter> parameters;
    for (const ColumnValue& value : values) {
        if (!parameters.empty())
            sql += ",?";
        parameters.push_back(value.value);
    }
    return connector.scan(sql, parameters, [&](const Statement& row) {
        for (std::size_t i = 0; i < values.size(); ++i)
            values[i].column->load(record, row, static_cast<int>(i));
    });
}

} // namespace zelvor
