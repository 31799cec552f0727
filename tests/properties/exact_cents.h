#pragma once

#include <cmath>
#include <cstdint>

namespace zelvor::audit {

// The auditor's own arithmetic: sums, quantities and percentages are whole hundredths. It has nothing of the
// decimal that it checks.
using Cents = std::int64_t;
__extension__ typedef __int128 Wide;

// The quotient rounded half to even; the divisor is not 0.
inline Cents halfEven(Wide dividend, Wide divisor)
{
    if (divisor < 0) {
        dividend = -dividend;
        divisor = -divisor;
    }
    Wide quotient = dividend / divisor;
    Wide rest = dividend % divisor;
    if (rest < 0) {
        --quotient;
        rest += divisor;
    }
    if (2 * rest > divisor || (2 * rest == divisor && quotient % 2 != 0))
        ++quotient;
    return static_cast<Cents>(quotient);
}

// Hundredths times hundredths.
inline Cents product(Cents a, Cents b)
{
    return halfEven(Wide(a) * b, 100);
}

// A stored real as hundredths.
inline Cents hundredths(double stored)
{
    return std::llround(stored * 100);
}

} // namespace zelvor::audit
