#pragma once

#include "core/decimal.h"

#include <QtCore/QDateTime>
#include <QtCore/QLocale>
#include <QtCore/QString>

namespace zelvor {

// "### ##0.00" and "-### ##0.00": groups of three parted by a blank, two digits, NaN as "NaN".
QString amountText(const Decimal& value);
QString amountText(double value);
// The nearest whole number, in groups of three parted by a blank: "12 000".
QString wholeNumberText(const Decimal& value);
// Groups of three parted by a blank, at least two and at most `maximumDigits` digits behind the point.
QString exportNumberText(const Decimal& value, int maximumDigits = 2);
// The same with two digits behind the locale's decimal separator.
QString exportNumberText(const Decimal& value, const QLocale& locale);
// A fraction as percent with two digits, groups and signs the locale's: 0.4286 is "42.86%".
QString exportPercentText(const Decimal& fraction, const QLocale& locale);
// A fraction as percent with at most two digits: 0.4286 is "42.86 %".
QString percentText(const Decimal& fraction);
// The default text of a real number in a message: shortest round-trip digits, always with a point: "6.0".
QString realText(double value);
// The locale's short date, without the time.
QString shortDateText(const QDateTime& moment, const QLocale& locale);
// What a person typed into an amount field. Blanks and apostrophes only part groups of three. Of point and
// comma, when both stand there, the last is the decimal separator and the other one parts groups; one that
// stands more than once parts groups. A single one is the decimal separator, whatever the locale ("12,5" and
// "12.5" are 12.5 everywhere), but for this: where the locale uses it as grouping and it parts one to three
// digits, not 0, from exactly three, it parts a group ("1.234" is 1234 in German, 1.234 in English). A comma
// in that place which the locale does not use at all is ambiguous. Ambiguous texts, wrong groups and what is
// no number give NaN, never another number.
Decimal amountFromUserText(QStringView text, const QLocale& locale);

} // namespace zelvor
