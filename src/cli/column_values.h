#pragma once

#include "store/connector.h"

#include <QtCore/QJsonObject>

#include <vector>

namespace zelvor {

// A value for one stored column, already of the column's kind.
struct ColumnValue {
    const ColumnInfo* column;
    Parameter value;
};
using ColumnValues = std::vector<ColumnValue>;

const ColumnInfo* columnNamed(const TableInfo& table, const QString& name);

// The values of a JSON object by column name. Every value must be of its column's kind; a currency may be
// given by its code. On an error answers none and fills `error`.
std::optional<ColumnValues> columnValuesFromJson(const TableInfo& table, const QJsonObject& values,
                                                 QString* error);
// The value of a cell of a CSV file: decimal text, whole number, "true"/"false"/"yes"/"no"/"1"/"0", or text.
std::optional<Parameter> parameterFromText(const TableInfo& table, const ColumnInfo& column,
                                           const QString& text);

// The number of a currency column when the text is a currency's code.
std::optional<qint64> currencyOfColumn(const TableInfo& table, const ColumnInfo& column, const QString& code);

// Puts the values into the record, rounded as a read from the file would. False when the connector failed.
bool loadValues(Connector& connector, TableModel& record, const ColumnValues& values);

} // namespace zelvor
