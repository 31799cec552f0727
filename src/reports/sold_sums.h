#pragma once

#include "core/decimal.h"

#include <QtCore/QtGlobal>

#include <array>
#include <map>
#include <vector>

namespace zelvor {

// What was sold of one product; the sums are exact and then rounded to cents.
struct SoldProduct {
    qint64 productID = 0;
    Decimal amount;
    Decimal baseSum;
    Decimal priceSum;
};

// One stored row of a selling document.
struct SoldRow {
    qint64 productID = 0;
    std::array<double, 3> values{}; // amount, base sum, price sum
};

// Sums rows by product without rounding any of them on the way. Values of whole cents, which is what the
// program stores, are added as whole numbers; whatever else a file holds is added as decimals beside them.
class SoldSums {
public:
    void add(const SoldRow& row);
    void clear();
    // In ascending order of product id.
    std::vector<SoldProduct> products();

private:
    using Cents = std::array<qint64, 3>;
    struct Cell {
        Cents cents{};
        bool sold = false;
    };
    Cell& cellOf(qint64 productID);
    void addRest(qint64 productID, std::size_t column, double value);
    SoldProduct productOf(qint64 productID, const Cell& cell) const;

    std::vector<qint64> m_soldIDs;                   // the cells of m_dense that are in use
    std::vector<Cell> m_dense;                       // by product id
    std::map<qint64, Cell> m_sparse;                 // ids that no ordinary catalog reaches
    std::map<qint64, std::array<Decimal, 3>> m_rest; // what is not in whole cents
};

} // namespace zelvor
