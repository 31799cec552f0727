#pragma once

#include "core/calendar.h"
#include "core/decimal.h"
#include "core/view.h"

#include <QtCore/QLocale>
#include <QtCore/QString>
#include <QtCore/QVariant>

namespace zelvor {

// How a value of a list stands on the screen: amounts with two decimals and groups parted by a thin blank,
// fractions as percent in the same way, moments as short local date and time. A text is shown as it is, on
// one line.
QString cellText(const QVariant& value, CellKind kind, const Calendar& calendar, const QLocale& locale);
QString screenAmount(const Decimal& amount, const QLocale& locale);
// For an edit field: no groups, at least two decimals, the locale's own decimal separator.
QString editedNumber(const Decimal& number, const QLocale& locale, int decimals = 2);
// "21.11.2026 10:32" in the locale's short form, the year always with four digits.
QString shortDateTimeFormat(const QLocale& locale);
QString shortDateFormat(const QLocale& locale);

} // namespace zelvor
