#include "desktop/cell_text.h"

#include "core/formats.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr char16_t thinBlank = u'\u202f'; // narrow, and no line breaks at it

// The engine's plain text with the separators of a screen.
QString onScreen(QString text, const QLocale& locale)
{
    text.replace(u'.', locale.decimalPoint());
    return text.replace(u' ', QChar(thinBlank));
}

// Always with two decimals: percents stand below each other.
QString screenPercent(const Decimal& fraction, const QLocale& locale)
{
    const QString percent = screenAmount(fraction.times(Decimal(100), moneyHandler), locale);
    return fraction.isNaN() ? percent : percent + QChar(thinBlank) + u'%';
}

} // namespace

QString screenAmount(const Decimal& amount, const QLocale& locale)
{
    return onScreen(amountText(amount), locale);
}

QString editedNumber(const Decimal& number, const QLocale& locale, int decimals)
{
    if (number.isNaN())
        return number.toText();
    const QString exact = number.toText();
    const qsizetype point = exact.indexOf(u'.');
    const qsizetype digits = point < 0 ? 0 : exact.size() - point - 1;
    QString text = digits > decimals ? exact : number.toFixedText(decimals);
    return text.replace(u'.', locale.decimalPoint());
}

QString shortDateFormat(const QLocale& locale)
{
    QString format = locale.dateFormat(QLocale::ShortFormat);
    if (!format.contains("yyyy"_L1))
        format.replace("yy"_L1, "yyyy"_L1);
    return format;
}

QString shortDateTimeFormat(const QLocale& locale)
{
    return shortDateFormat(locale) + u" HH:mm"_s;
}

QString cellText(const QVariant& value, CellKind kind, const Calendar& calendar, const QLocale& locale)
{
    if (value.typeId() == QMetaType::QString)
        return value.toString().replace(u'\n', u' ');
    switch (kind) {
    case CellKind::Amount:
        return screenAmount(Decimal::fromDouble(value.toDouble(), moneyHandler), locale);
    case CellKind::Percent:
        return screenPercent(Decimal::fromDouble(value.toDouble()), locale);
    case CellKind::Date:
        return locale.toString(calendar.dateTime(value.toLongLong()), shortDateTimeFormat(locale));
    case CellKind::CheckBox:
        return {};
    default:
        return value.toString();
    }
}

} // namespace zelvor
