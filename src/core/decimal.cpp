#include "core/decimal.h"

#include "core/wide_integer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace zelvor {

namespace {

constexpr auto powersOfTen = [] {
    std::array<UInt128, Decimal::maxScale + 1> powers{};
    powers[0] = 1;
    for (std::size_t i = 1; i < powers.size(); ++i)
        powers[i] = powers[i - 1] * 10;
    return powers;
}();

// Powers of ten that a double holds exactly.
constexpr std::array<double, 23> exactPowers{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                             1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                             1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

constexpr UInt128 powerOfTen(int exponent)
{
    return powersOfTen[static_cast<std::size_t>(exponent)];
}

constexpr UInt128 largestCoefficient = powersOfTen[Decimal::maxScale] - 1;
constexpr int digitsOf64Bits =
    18; // 10^18 is the largest power of ten that times any 64-bit number fits 128 bits

constexpr bool fits64Bits(Int128 value)
{
    return value == static_cast<std::int64_t>(value);
}

constexpr UInt128 magnitude(Int128 value)
{
    return value < 0 ? -static_cast<UInt128>(value) : static_cast<UInt128>(value);
}

constexpr Int128 withSign(UInt128 size, bool negative)
{
    return negative ? -static_cast<Int128>(size) : static_cast<Int128>(size);
}

int heldScale(RoundingHandler handler)
{
    return std::clamp(handler.scale, 0, Decimal::maxScale);
}

// Whether half-even rounding takes the next whole number after `quotient`.
template <class Whole>
constexpr bool roundsUp(Whole quotient, Whole remainder, Whole divisor, bool restBehind = false)
{
    const Whole missing = divisor - remainder;
    if (remainder != missing)
        return remainder > missing;
    return restBehind || (quotient & 1) != 0;
}

template <class Whole>
constexpr Whole roundedQuotient(Whole dividend, Whole divisor)
{
    const Whole quotient = dividend / divisor;
    return quotient + (roundsUp<Whole>(quotient, dividend % divisor, divisor) ? 1 : 0);
}

// size / 10^digits, half to even.
UInt128 withoutDigits(UInt128 size, int digits)
{
    if (size <= std::numeric_limits<std::uint64_t>::max() && digits <= digitsOf64Bits) {
        const auto small = static_cast<std::uint64_t>(size);
        // The two usual cases with a divisor that the compiler knows: no division instruction.
        if (digits == 2)
            return roundedQuotient<std::uint64_t>(small, 100);
        if (digits == 4)
            return roundedQuotient<std::uint64_t>(small, 10000);
        return roundedQuotient<std::uint64_t>(small, static_cast<std::uint64_t>(powerOfTen(digits)));
    }
    return roundedQuotient<UInt128>(size, powerOfTen(digits));
}

// size / 10^digits, half to even; digits may go up to twice maxScale. `restBehind` tells that the true
// value lies a little above size.
WideInteger withoutDigits(WideInteger size, int digits, bool restBehind)
{
    while (digits > Decimal::maxScale) {
        const WideQuotient cut = wideQuotient(size, powerOfTen(digits - Decimal::maxScale));
        restBehind = restBehind || cut.remainder != 0;
        size = cut.quotient;
        digits = Decimal::maxScale;
    }
    if (digits == 0)
        return size;
    const UInt128 divisor = powerOfTen(digits);
    const WideQuotient cut = wideQuotient(size, divisor);
    const bool up = roundsUp<UInt128>(cut.quotient.low, cut.remainder, divisor, restBehind);
    return up ? wideSum(cut.quotient, {0, 1}) : cut.quotient;
}

// The decimal of that value, with zeros behind the point cut off as far as its 38 digits ask for it.
Decimal fromWide(WideInteger size, int scale, bool negative)
{
    while (scale > 0 && !size.isBelow({0, largestCoefficient + 1})) {
        const WideQuotient cut = wideQuotient(size, 10);
        if (cut.remainder != 0)
            return Decimal::nan();
        size = cut.quotient;
        --scale;
    }
    if (!size.isBelow({0, largestCoefficient + 1}))
        return Decimal::nan();
    return Decimal::fromParts(withSign(size.low, negative), scale);
}

// a + b with numbers of any size, exact in 256 bits, rounded to `scale` digits.
Decimal wideSum(const Decimal& a, const Decimal& b, int scale)
{
    const int common = std::max(a.scale(), b.scale());
    const WideInteger sizeA = wideProduct(magnitude(a.coefficient()), powerOfTen(common - a.scale()));
    const WideInteger sizeB = wideProduct(magnitude(b.coefficient()), powerOfTen(common - b.scale()));
    bool negative = a.isNegative();
    WideInteger size;
    if (a.isNegative() == b.isNegative()) {
        size = wideSum(sizeA, sizeB);
    } else if (sizeA.isBelow(sizeB)) {
        size = wideDifference(sizeB, sizeA);
        negative = b.isNegative();
    } else {
        size = wideDifference(sizeA, sizeB);
    }
    if (common > scale)
        return fromWide(withoutDigits(size, common - scale, false), scale, negative);
    return fromWide(size, common, negative);
}

// The coefficients' quotient with `digits` more digits, half to even, in as many divisions as 256 bits need.
Decimal wideQuotient(UInt128 dividend, UInt128 divisor, int digits, int scale, bool negative)
{
    WideInteger quotient{0, dividend / divisor};
    UInt128 remainder = dividend % divisor;
    if (digits < 0)
        return fromWide(withoutDigits(quotient, -digits, remainder != 0), scale, negative);
    while (digits > 0) {
        const int step = std::min(digits, Decimal::maxScale);
        if (!wideProduct(quotient, powerOfTen(step), quotient))
            return Decimal::nan();
        const WideQuotient next = wideQuotient(wideProduct(remainder, powerOfTen(step)), divisor);
        const WideInteger longer = wideSum(quotient, next.quotient);
        if (longer.isBelow(quotient))
            return Decimal::nan();
        quotient = longer;
        remainder = next.remainder;
        digits -= step;
    }
    if (roundsUp<UInt128>(quotient.low, remainder, divisor))
        quotient = wideSum(quotient, {0, 1});
    return fromWide(quotient, scale, negative);
}

// coefficient * 10^exponent, or NaN.
Decimal fromExponent(UInt128 size, int exponent, bool negative)
{
    if (size == 0)
        return Decimal();
    if (exponent <= 0)
        return exponent < -Decimal::maxScale ? Decimal::nan()
                                             : Decimal::fromParts(withSign(size, negative), -exponent);
    if (exponent >= Decimal::maxScale || size > largestCoefficient / powerOfTen(exponent))
        return Decimal::nan();
    return Decimal::fromParts(withSign(size * powerOfTen(exponent), negative), 0);
}

// A finite double as its shortest round-trip digits: digits * 10^exponent.
struct ShortestDigits {
    std::uint64_t digits = 0;
    int exponent = 0;
    bool negative = false;
};

ShortestDigits shortestDigits(double value)
{
    std::array<char, 32> buffer;
    const char* const end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::scientific).ptr;
    ShortestDigits result;
    const char* at = buffer.data();
    if (*at == '-') {
        result.negative = true;
        ++at;
    }
    bool behindPoint = false;
    for (; *at != 'e'; ++at) {
        if (*at == '.') {
            behindPoint = true;
            continue;
        }
        result.digits = result.digits * 10 + static_cast<std::uint64_t>(*at - '0');
        result.exponent -= behindPoint ? 1 : 0;
    }
    ++at;
    at += *at == '+' ? 1 : 0; // from_chars reads no plus
    int exponent = 0;
    std::from_chars(at, end, exponent);
    result.exponent += exponent;
    return result;
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

// The digits of a text, gathered one by one. Zeros wait until a digit follows that makes them count.
class DigitReader {
public:
    // False when 38 digits are not enough.
    bool add(int digit, bool behindPoint)
    {
        m_exponent -= behindPoint ? 1 : 0;
        if (digit == 0) {
            m_waitingZeros += m_size == 0 ? 0 : 1;
            return true;
        }
        m_count += m_waitingZeros + 1;
        if (m_count > Decimal::maxScale)
            return false;
        m_size = m_size * powerOfTen(static_cast<int>(m_waitingZeros) + 1) + static_cast<UInt128>(digit);
        m_waitingZeros = 0;
        return true;
    }
    Decimal result(qint64 exponent, bool negative) const
    {
        constexpr qint64 farAway = 1000;
        const qint64 total = std::clamp(m_exponent + m_waitingZeros + exponent, -farAway, farAway);
        return fromExponent(m_size, static_cast<int>(total), negative);
    }

private:
    UInt128 m_size = 0;
    qint64 m_count = 0;
    qint64 m_waitingZeros = 0;
    qint64 m_exponent = 0;
};

// Reads [+-]digits to the end of the text into value, held within +-10^15; false for anything else.
bool readExponent(QStringView text, qint64& value)
{
    constexpr qint64 limit = 1'000'000'000'000'000;
    const bool negative = text.startsWith(u'-');
    if (negative || text.startsWith(u'+'))
        text = text.sliced(1);
    if (text.isEmpty())
        return false;
    value = 0;
    for (const QChar c : text) {
        if (!isDigit(c))
            return false;
        value = std::min(value * 10 + (c.unicode() - u'0'), limit);
    }
    value = negative ? -value : value;
    return true;
}

std::string digitsText(UInt128 size)
{
    std::array<char, 40> buffer;
    std::size_t at = buffer.size();
    do {
        buffer[--at] = static_cast<char>('0' + static_cast<int>(size % 10));
        size /= 10;
    } while (size != 0);
    return std::string(buffer.data() + at, buffer.size() - at);
}

} // namespace

Decimal Decimal::fromDouble(double value)
{
    if (!std::isfinite(value))
        return nan();
    const ShortestDigits shortest = shortestDigits(value);
    return fromExponent(shortest.digits, shortest.exponent, shortest.negative);
}

Decimal Decimal::fromDouble(double value, RoundingHandler handler)
{
    const int scale = heldScale(handler);
    // Up to 15 digits name one double each, so a whole number of that many digits which leads back to the
    // value has the digits of its shortest text.
    if (scale < static_cast<int>(exactPowers.size())) {
        const double power = exactPowers[static_cast<std::size_t>(scale)];
        const double whole = std::nearbyint(value * power);
        if (std::abs(whole) < 1e15 && whole / power == value)
            return fromParts(static_cast<std::int64_t>(whole), scale);
    }
    if (!std::isfinite(value))
        return nan();
    const ShortestDigits shortest = shortestDigits(value);
    const int surplus = -shortest.exponent - scale;
    if (surplus <= 0)
        return fromExponent(shortest.digits, shortest.exponent, shortest.negative);
    if (surplus > digitsOf64Bits) // 17 digits at most, so far below half of the last place
        return Decimal();
    return fromParts(withSign(withoutDigits(shortest.digits, surplus), shortest.negative), scale);
}

Decimal Decimal::fromText(QStringView text)
{
    const bool negative = text.startsWith(u'-');
    if (negative || text.startsWith(u'+'))
        text = text.sliced(1);
    DigitReader reader;
    qsizetype at = 0;
    const auto readDigits = [&](bool behindPoint) {
        const qsizetype start = at;
        for (; at < text.size() && isDigit(text[at]); ++at) {
            if (!reader.add(text[at].unicode() - u'0', behindPoint))
                return false;
        }
        return at > start;
    };
    if (!readDigits(false))
        return nan();
    if (at < text.size() && text[at] == u'.') {
        ++at;
        if (!readDigits(true))
            return nan();
    }
    qint64 exponent = 0;
    if (at < text.size() && (text[at] == u'e' || text[at] == u'E')) {
        if (!readExponent(text.sliced(at + 1), exponent))
            return nan();
        at = text.size();
    }
    return at == text.size() ? reader.result(exponent, negative) : nan();
}

double Decimal::toDouble() const
{
    if (isNaN())
        return std::numeric_limits<double>::quiet_NaN();
    constexpr std::int64_t exactWhole = std::int64_t(1) << 53;
    if (m_coefficient < exactWhole && m_coefficient > -exactWhole &&
        m_scale < static_cast<int>(exactPowers.size())) {
        // Both operands are exact, so the one division rounds once and correctly.
        return static_cast<double>(static_cast<std::int64_t>(m_coefficient)) /
               exactPowers[static_cast<std::size_t>(m_scale)];
    }
    std::string text = isNegative() ? "-" : "";
    text.append(digitsText(magnitude(m_coefficient))).append("e-").append(std::to_string(m_scale));
    double value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

QString Decimal::toText() const
{
    if (isNaN())
        return QStringLiteral("NaN");
    Decimal shortest = *this;
    while (shortest.m_scale > 0 && shortest.m_coefficient % 10 == 0) {
        shortest.m_coefficient /= 10;
        --shortest.m_scale;
    }
    return shortest.toFixedText(shortest.m_scale);
}

QString Decimal::toFixedText(int digits) const
{
    if (isNaN())
        return QStringLiteral("NaN");
    const Decimal value = rounded({digits});
    const auto places = static_cast<std::size_t>(value.m_scale);
    std::string text = digitsText(magnitude(value.m_coefficient));
    if (text.size() <= places)
        text.insert(0, places + 1 - text.size(), '0');
    const auto wanted = static_cast<std::size_t>(std::max(digits, 0));
    if (wanted > 0) {
        text.append(wanted - places, '0');
        text.insert(text.size() - wanted, 1, '.');
    }
    if (value.isNegative())
        text.insert(0, 1, '-');
    return QString::fromStdString(text);
}

Decimal Decimal::rounded(RoundingHandler handler) const
{
    const int scale = heldScale(handler);
    if (m_scale <= scale)
        return *this;
    const UInt128 size = withoutDigits(magnitude(m_coefficient), m_scale - scale);
    return fromParts(withSign(size, m_coefficient < 0), scale);
}

Decimal Decimal::negated() const
{
    return isNaN() ? nan() : fromParts(-m_coefficient, m_scale);
}

Decimal Decimal::plus(const Decimal& other) const
{
    if (isNaN() || other.isNaN())
        return nan();
    Int128 sum = 0;
    if (m_scale == other.m_scale) {
        if (!__builtin_add_overflow(m_coefficient, other.m_coefficient, &sum) &&
            magnitude(sum) <= largestCoefficient)
            return fromParts(sum, m_scale);
    } else if (fits64Bits(m_coefficient) && fits64Bits(other.m_coefficient) &&
               std::abs(m_scale - other.m_scale) <= digitsOf64Bits) {
        const int scale = std::max(m_scale, other.m_scale);
        sum = m_coefficient * static_cast<Int128>(powerOfTen(scale - m_scale)) +
              other.m_coefficient * static_cast<Int128>(powerOfTen(scale - other.m_scale));
        if (magnitude(sum) <= largestCoefficient)
            return fromParts(sum, scale);
    }
    return wideSum(*this, other, maxScale);
}

Decimal Decimal::plus(const Decimal& other, RoundingHandler handler) const
{
    // Sums of one scale are what the books add all day.
    if (m_scale == other.m_scale && !isNaN() && m_scale <= handler.scale && fits64Bits(m_coefficient) &&
        fits64Bits(other.m_coefficient))
        return fromParts(m_coefficient + other.m_coefficient, m_scale);
    const Decimal exact = plus(other);
    if (!exact.isNaN())
        return exact.rounded(handler);
    if (isNaN() || other.isNaN())
        return nan();
    return wideSum(*this, other, heldScale(handler));
}

Decimal Decimal::minus(const Decimal& other, RoundingHandler handler) const
{
    return plus(other.negated(), handler);
}

Decimal Decimal::times(const Decimal& other, RoundingHandler handler) const
{
    if (isNaN() || other.isNaN())
        return nan();
    const int scale = heldScale(handler);
    const int productScale = m_scale + other.m_scale;
    const int surplus = productScale - scale;
    Int128 product = 0;
    if (surplus <= maxScale && !__builtin_mul_overflow(m_coefficient, other.m_coefficient, &product) &&
        magnitude(product) <= largestCoefficient) {
        if (surplus <= 0)
            return fromParts(product, productScale);
        return fromParts(withSign(withoutDigits(magnitude(product), surplus), product < 0), scale);
    }
    const WideInteger size = wideProduct(magnitude(m_coefficient), magnitude(other.m_coefficient));
    const bool negative = isNegative() != other.isNegative();
    if (surplus <= 0)
        return fromWide(size, productScale, negative);
    return fromWide(withoutDigits(size, surplus, false), scale, negative);
}

Decimal Decimal::dividedBy(const Decimal& other, RoundingHandler handler) const
{
    if (isNaN() || other.isNaN() || other.m_coefficient == 0)
        return nan();
    const int scale = heldScale(handler);
    const int digits = scale - m_scale + other.m_scale;
    const UInt128 dividend = magnitude(m_coefficient);
    const UInt128 divisor = magnitude(other.m_coefficient);
    const bool negative = (m_coefficient < 0) != (other.m_coefficient < 0);
    UInt128 scaled = 0;
    if (digits >= 0 && digits <= maxScale && !__builtin_mul_overflow(dividend, powerOfTen(digits), &scaled)) {
        constexpr UInt128 largest64 = std::numeric_limits<std::uint64_t>::max();
        const UInt128 size = scaled <= largest64 && divisor <= largest64
                                 ? roundedQuotient<std::uint64_t>(static_cast<std::uint64_t>(scaled),
                                                                  static_cast<std::uint64_t>(divisor))
                                 : roundedQuotient<UInt128>(scaled, divisor);
        if (size <= largestCoefficient)
            return fromParts(withSign(size, negative), scale);
    }
    return wideQuotient(dividend, divisor, digits, scale, negative);
}

std::partial_ordering Decimal::compare(const Decimal& a, const Decimal& b)
{
    if (a.isNaN() || b.isNaN())
        return std::partial_ordering::unordered;
    if (a.m_scale == b.m_scale || a.isNegative() != b.isNegative())
        return a.m_coefficient <=> b.m_coefficient;
    const int common = std::max(a.m_scale, b.m_scale);
    if (common <= digitsOf64Bits && fits64Bits(a.m_coefficient) && fits64Bits(b.m_coefficient))
        return a.m_coefficient * static_cast<Int128>(powerOfTen(common - a.m_scale)) <=>
               b.m_coefficient * static_cast<Int128>(powerOfTen(common - b.m_scale));
    const WideInteger sizeA = wideProduct(magnitude(a.m_coefficient), powerOfTen(common - a.m_scale));
    const WideInteger sizeB = wideProduct(magnitude(b.m_coefficient), powerOfTen(common - b.m_scale));
    if (sizeA == sizeB)
        return std::partial_ordering::equivalent;
    return sizeA.isBelow(sizeB) != a.isNegative() ? std::partial_ordering::less
                                                  : std::partial_ordering::greater;
}

} // namespace zelvor
