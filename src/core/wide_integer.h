#pragma once

#include "core/decimal.h"

namespace zelvor {

// An unsigned 256-bit whole number: holds the product of two 38-digit coefficients, with which a decimal
// result is rounded once and from all its digits.
struct WideInteger {
    UInt128 high = 0;
    UInt128 low = 0;

    friend constexpr bool operator==(const WideInteger&, const WideInteger&) = default;
    constexpr bool isZero() const { return high == 0 && low == 0; }
    constexpr bool isBelow(const WideInteger& other) const
    {
        return high != other.high ? high < other.high : low < other.low;
    }
};

// Sum and difference modulo 2^256.
WideInteger wideSum(const WideInteger& a, const WideInteger& b);
WideInteger wideDifference(const WideInteger& a, const WideInteger& b);
WideInteger wideProduct(UInt128 a, UInt128 b);
// False, and product untouched, when the product needs more than 256 bits.
bool wideProduct(const WideInteger& a, UInt128 b, WideInteger& product);

struct WideQuotient {
    WideInteger quotient;
    UInt128 remainder;
};
// The divisor must be above 0 and below 2^127.
WideQuotient wideQuotient(const WideInteger& dividend, UInt128 divisor);

} // namespace zelvor
