#pragma once

#include "core/decimal.h"

#include <QtCore/QString>
#include <QtCore/QVariant>

namespace zelvor {

// The root of all records and report rows.
class TableModel {
public:
    TableModel() = default;
    virtual ~TableModel() = default;

    qint64 id = 0; // 0 for a record that has not been stored

    // The value that a list shows in the column of that identifier: "id" here; an unknown key gives the
    // empty text.
    virtual QVariant valueForIdentifier(QStringView key) const;

protected:
    TableModel(const TableModel&) = default;
    TableModel& operator=(const TableModel&) = default;
};

// A record with money or quantities: two digits, half to even.
class TableModelWithNumbers : public TableModel {
public:
    static constexpr RoundingHandler decimalHandler = moneyHandler;
};

} // namespace zelvor
