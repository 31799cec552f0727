#pragma once

#include "core/decimal.h"

#include <QtCore/QString>

namespace zelvor {

// What one warehouse holds in a row of the products on warehouses report.
struct StockData {
    QString name;   // of the warehouse
    Decimal amount; // base units
    Decimal sum;    // at base cost, currency of the project
    Decimal reserv; // kept for the third figure of the table; always 0
};

} // namespace zelvor
