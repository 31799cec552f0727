#pragma once

#include <QtCore/QString>

#include <compare>
#include <concepts>
#include <cstdint>

namespace zelvor {

// A 128-bit whole number; the extension keyword keeps -Wpedantic quiet.
__extension__ typedef __int128 Int128;
__extension__ typedef unsigned __int128 UInt128;

// Rounds half to even at a number of digits behind the decimal point, 0 to 38 of them. A value with fewer
// digits stays as it is. Nothing raises: overflow and a zero divisor give NaN.
struct RoundingHandler {
    int scale = 2;
};

inline constexpr RoundingHandler moneyHandler{2};   // sums and quantities
inline constexpr RoundingHandler taxRateHandler{3}; // tax rates of a product, percent
inline constexpr RoundingHandler rateHandler{4};    // exchange rates
inline constexpr RoundingHandler percentHandler{4}; // percentages of reports, fractions
inline constexpr RoundingHandler rowTaxHandler{5};  // tax inside a document row
inline constexpr RoundingHandler averageCostHandler{9};

// An exact base-10 number: coefficient / 10^scale with a 128-bit coefficient (38 digits, scale 0 to 38),
// or NaN. Everything that is money, quantity or rate is one of these; a binary floating-point value comes
// in through its shortest round-trip text and goes out as the nearest double. NaN spreads through every
// operation and compares unordered.
class Decimal {
public:
    static constexpr int maxScale = 38;

    constexpr Decimal() = default;
    constexpr Decimal(std::integral auto whole) : m_coefficient(whole) {}
    static constexpr Decimal fromParts(Int128 coefficient, int scale) { return Decimal(coefficient, scale); }
    static constexpr Decimal nan()
    {
        Decimal result;
        result.m_scale = nanScale;
        return result;
    }

    // The value of the shortest decimal text that reads back as `value`: 2.345 is exactly 2.345. NaN and
    // infinities, and values that 38 digits cannot hold, give NaN.
    static Decimal fromDouble(double value);
    // The same, rounded; the road of every stored real, so it has a fast path.
    static Decimal fromDouble(double value, RoundingHandler handler);
    // Reads [+-]digits[.digits][e[+-]digits], nothing else: no blanks, no grouping, no comma. Anything
    // else, and what 38 digits cannot hold, gives NaN.
    static Decimal fromText(QStringView text);

    bool isNaN() const { return m_scale == nanScale; }
    bool isZero() const { return !isNaN() && m_coefficient == 0; }
    bool isNegative() const { return !isNaN() && m_coefficient < 0; }
    bool isPositive() const { return !isNaN() && m_coefficient > 0; }
    Int128 coefficient() const { return m_coefficient; }
    int scale() const { return m_scale; }

    // The nearest double; NaN for NaN.
    double toDouble() const;
    // Plain digits without exponent or grouping, trailing zeros behind the point cut off: "12.5", "NaN".
    QString toText() const;
    // Exactly `digits` digits behind the point (rounded half to even): "12.50".
    QString toFixedText(int digits) const;

    Decimal rounded(RoundingHandler handler) const;
    Decimal negated() const;
    Decimal absolute() const { return isNegative() ? negated() : *this; }
    // The exact sum, with no rounding; NaN when it needs more than 38 digits.
    Decimal plus(const Decimal& other) const;
    // The four operations round once, from all digits of the exact result, and give NaN only when the
    // rounded result has no form with 38 digits.
    Decimal plus(const Decimal& other, RoundingHandler handler) const;
    Decimal minus(const Decimal& other, RoundingHandler handler) const;
    Decimal times(const Decimal& other, RoundingHandler handler) const;
    Decimal dividedBy(const Decimal& other, RoundingHandler handler) const;

    // By value: 1.0 equals 1.00. NaN is unordered and unequal to everything, itself too.
    friend std::partial_ordering operator<=>(const Decimal& a, const Decimal& b) { return compare(a, b); }
    friend bool operator==(const Decimal& a, const Decimal& b) { return compare(a, b) == 0; }

private:
    static constexpr std::int32_t nanScale = -1;
    constexpr Decimal(Int128 coefficient, int scale) : m_coefficient(coefficient), m_scale(scale) {}
    static std::partial_ordering compare(const Decimal& a, const Decimal& b);

    Int128 m_coefficient = 0;
    std::int32_t m_scale = 0;
};

} // namespace zelvor
