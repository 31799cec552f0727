#pragma once

#include "core/decimal.h"

#include <QtCore/QDateTime>
#include <QtCore/QLocale>
#include <QtCore/QString>

namespace zelvor {

// "### ##0.00" and "-### ##0.00": groups of three parted by a blank, two digits, NaN as "NaN".
QString amountText(const Decimal& value);
QString amountText(double value);
// Groups of three parted by a blank, at least two and at most `maximumDigits` digits behind the point.
QString exportNumberText(const Decimal& value, int maximumDigits = 2);
// A fraction as percent with at most two digits: 0.4286 is "42.86 %".
QString percentText(const Decimal& fraction);
// The default text of a real number in a message: shortest round-trip digits, always with a point: "6.0".
QString realText(double value);
// The locale's short date, without the time.
QString shortDateText(const QDateTime& moment, const QLocale& locale);
// What a person typed into an amount field, in their locale or with a point: "12,5" and "12.5" are 12.5,
// "1 234,50" is 1234.50; what is ambiguous or no number is NaN, never another number.
Decimal amountFromUserText(QStringView text, const QLocale& locale);

} // namespace zelvor
