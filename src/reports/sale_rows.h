#pragma once

#include "store/connector.h"

#include <functional>
#include <string>

namespace zelvor {

// Moments between two others, both of which are outside.
struct DatesBetween {
    qint64 after;
    qint64 before;
};

// Takes a row of a sale: a value of its document's head, and the row's columns from 1 on.
using TakeSaleRow = std::function<void(qint64 head, const Statement& row)>;

// Walks the rows of the confirmed sales of goods and services between the dates, in no order. Of the head it
// reads one whole number, of the rows the named columns. False when the read failed.
bool scanSaleRows(Connector& connector, const DatesBetween& dates, const std::string& headColumn,
                  const std::string& rowColumns, const TakeSaleRow& take);

} // namespace zelvor
