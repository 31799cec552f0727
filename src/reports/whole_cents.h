#pragma once

#include <QtCore/QtGlobal>

#include <cmath>

namespace zelvor {

// The whole cents of a stored real that has nothing behind them; false for any other value. What the program
// stores are whole cents, so that a sum over many rows can be one of whole numbers. Ninety million values of
// the largest size still fit their sum.
inline bool wholeCents(double value, qint64& cents)
{
    constexpr double mostCents = 1e11;
    const double scaled = value * 100;
    if (!(std::abs(scaled) < mostCents))
        return false;
    cents = static_cast<qint64>(scaled + (scaled < 0 ? -0.5 : 0.5));
    return static_cast<double>(cents) / 100 == value;
}

} // namespace zelvor
