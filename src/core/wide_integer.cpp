#include "core/wide_integer.h"

namespace zelvor {

namespace {

constexpr UInt128 lowerHalf = ~std::uint64_t(0);

} // namespace

WideInteger wideSum(const WideInteger& a, const WideInteger& b)
{
    WideInteger sum;
    sum.low = a.low + b.low;
    sum.high = a.high + b.high + (sum.low < a.low ? 1 : 0);
    return sum;
}

WideInteger wideDifference(const WideInteger& a, const WideInteger& b)
{
    return {a.high - b.high - (a.low < b.low ? 1 : 0), a.low - b.low};
}

WideInteger wideProduct(UInt128 a, UInt128 b)
{
    const UInt128 aHigh = a >> 64;
    const UInt128 aLow = a & lowerHalf;
    const UInt128 bHigh = b >> 64;
    const UInt128 bLow = b & lowerHalf;
    const UInt128 lowest = aLow * bLow;
    const UInt128 crossA = aHigh * bLow;
    const UInt128 crossB = aLow * bHigh;
    const UInt128 middle = (lowest >> 64) + (crossA & lowerHalf) + (crossB & lowerHalf);
    return {aHigh * bHigh + (crossA >> 64) + (crossB >> 64) + (middle >> 64),
            (middle << 64) | (lowest & lowerHalf)};
}

bool wideProduct(const WideInteger& a, UInt128 b, WideInteger& product)
{
    const WideInteger upper = wideProduct(a.high, b);
    const WideInteger lower = wideProduct(a.low, b);
    UInt128 high;
    if (upper.high != 0 || __builtin_add_overflow(upper.low, lower.high, &high))
        return false;
    product = {high, lower.low};
    return true;
}

WideQuotient wideQuotient(const WideInteger& dividend, UInt128 divisor)
{
    if (dividend.high == 0)
        return {{0, dividend.low / divisor}, dividend.low % divisor};
    WideQuotient result{{dividend.high / divisor, 0}, dividend.high % divisor};
    // Bit by bit: only numbers beyond 38 digits come here.
    for (int bit = 127; bit >= 0; --bit) {
        result.remainder = (result.remainder << 1) | ((dividend.low >> bit) & 1);
        if (result.remainder >= divisor) {
            result.remainder -= divisor;
            result.quotient.low |= UInt128(1) << bit;
        }
    }
    return result;
}

} // namespace zelvor
