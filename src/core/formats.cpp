#include "core/formats.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

// Parts the digits before the point of a plain number text into groups of three by blanks.
QString grouped(QString text)
{
    const qsizetype first = text.startsWith(u'-') ? 1 : 0;
    const qsizetype point = text.indexOf(u'.');
    for (qsizetype place = (point < 0 ? text.size() : point) - 3; place > first; place -= 3)
        text.insert(place, u' ');
    return text;
}

// Cuts zeros off the end until only `minimumDigits` digits stand behind the point.
void cutZeros(QString& text, qsizetype minimumDigits)
{
    const qsizetype point = text.indexOf(u'.');
    if (point < 0)
        return;
    while (text.size() - point - 1 > minimumDigits && text.endsWith(u'0'))
        text.chop(1);
    if (text.endsWith(u'.'))
        text.chop(1);
}

} // namespace

QString amountText(const Decimal& value)
{
    if (value.isNaN())
        return value.toText();
    return grouped(value.toFixedText(2));
}

QString amountText(double value)
{
    return amountText(Decimal::fromDouble(value, moneyHandler));
}

QString wholeNumberText(const Decimal& value)
{
    return value.isNaN() ? value.toText() : grouped(value.toFixedText(0));
}

QString exportNumberText(const Decimal& value, int maximumDigits)
{
    if (value.isNaN())
        return value.toText();
    QString text = value.toFixedText(std::max(maximumDigits, 2));
    cutZeros(text, 2);
    return grouped(text);
}

QString exportNumberText(const Decimal& value, const QLocale& locale)
{
    return exportNumberText(value).replace(u'.', locale.decimalPoint());
}

QString exportPercentText(const Decimal& fraction, const QLocale& locale)
{
    const Decimal percent = fraction.times(Decimal(100), moneyHandler);
    return percent.isNaN() ? percent.toText()
                           : locale.toString(percent.toDouble(), 'f', 2) + locale.percent();
}

QString percentText(const Decimal& fraction)
{
    const Decimal percent = fraction.times(Decimal(100), moneyHandler);
    return percent.isNaN() ? percent.toText() : grouped(percent.toText()) + u" %"_s;
}

QString realText(double value)
{
    if (!std::isfinite(value))
        return std::isnan(value) ? u"nan"_s : value < 0 ? u"-inf"_s : u"inf"_s;
    const double size = std::abs(value);
    const bool plain = size == 0 || (size >= 1e-4 && size < 1e16);
    std::array<char, 64> buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                      plain ? std::chars_format::fixed : std::chars_format::scientific);
    QString text = QString::fromLatin1(buffer.data(), result.ptr - buffer.data());
    if (!text.contains(u'.')) {
        const qsizetype exponent = text.indexOf(u'e');
        text.insert(exponent < 0 ? text.size() : exponent, u".0"_s);
    }
    return text;
}

QString shortDateText(const QDateTime& moment, const QLocale& locale)
{
    return locale.toString(moment.date(), QLocale::ShortFormat);
}

namespace {

bool isBlankOrApostrophe(QChar c)
{
    return c.isSpace() || c == u'\'' || c == u'\u2019';
}

// The digits of a whole number whose groups are parted by `isSeparator`; nothing when a group is wrong.
template <class Predicate>
std::optional<QString> digitsOfGroups(QStringView text, Predicate isSeparator)
{
    QString digits;
    qsizetype groupSize = 0;
    bool isFirstGroup = true;
    for (const QChar c : text) {
        if (isSeparator(c)) {
            if (isFirstGroup ? groupSize < 1 || groupSize > 3 : groupSize != 3)
                return std::nullopt;
            isFirstGroup = false;
            groupSize = 0;
            continue;
        }
        const int digit = c.digitValue();
        if (digit < 0)
            return std::nullopt;
        digits += QChar(u'0' + digit);
        ++groupSize;
    }
    if (!isFirstGroup && groupSize != 3)
        return std::nullopt;
    return digits;
}

// Which of the marks in the unsigned text is the decimal separator. A null `mark` means none.
struct DecimalMark {
    bool ambiguous = false;
    QChar mark = {};
};

DecimalMark singleMark(QStringView text, QChar mark, const QLocale& locale)
{
    if (QStringView(locale.decimalPoint()) == QStringView(&mark, 1))
        return {.mark = mark};
    const qsizetype place = text.indexOf(mark);
    const bool partsGroup = place >= 1 && place <= 3 && text.size() - place - 1 == 3 && text[0] != u'0';
    if (!partsGroup)
        return {.mark = mark};
    if (QStringView(locale.groupSeparator()) == QStringView(&mark, 1))
        return {};
    return {.ambiguous = mark == u',', .mark = mark};
}

DecimalMark decimalMark(QStringView text, const QLocale& locale)
{
    const qsizetype points = text.count(u'.');
    const qsizetype commas = text.count(u',');
    if (points > 0 && commas > 0)
        return {.mark = text.lastIndexOf(u'.') > text.lastIndexOf(u',') ? u'.' : u','};
    if (points + commas == 1)
        return singleMark(text, points == 1 ? u'.' : u',', locale);
    return {};
}

} // namespace

Decimal amountFromUserText(QStringView text, const QLocale& locale)
{
    text = text.trimmed();
    const bool negative = text.startsWith(u'-') || text.startsWith(u'\u2212');
    if (negative || text.startsWith(u'+'))
        text = text.sliced(1).trimmed();

    const DecimalMark decimal = decimalMark(text, locale);
    if (decimal.ambiguous || text.count(decimal.mark) > 1)
        return Decimal::nan();
    const qsizetype place = decimal.mark.isNull() ? -1 : text.indexOf(decimal.mark);
    const QStringView wholePart = place < 0 ? text : text.first(place);
    const QStringView fraction = place < 0 ? QStringView() : text.sliced(place + 1);

    // Only one kind of grouping in one number.
    QChar groupMark;
    const auto isSeparator = [&groupMark](QChar c) {
        if (c != u'.' && c != u',' && !isBlankOrApostrophe(c))
            return false;
        if (groupMark.isNull())
            groupMark = c;
        return c == groupMark;
    };
    const std::optional<QString> whole = digitsOfGroups(wholePart, isSeparator);
    const std::optional<QString> behind = digitsOfGroups(fraction, [](QChar) { return false; });
    if (!whole || !behind || whole->isEmpty() + behind->isEmpty() == 2)
        return Decimal::nan();
    QString plain = whole->isEmpty() ? u"0"_s : *whole;
    if (!behind->isEmpty())
        plain += u'.' + *behind;
    const Decimal size = Decimal::fromText(plain);
    return negative ? size.negated() : size;
}

} // namespace zelvor
