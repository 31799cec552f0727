#include "core/currency_struct.h"

#include "core/localized.h"

namespace zelvor {

namespace {

struct CurrencyEntry {
    QStringView code;
    const char* name;
    QStringView sign; // no two currencies share a sign, since it stands alone beside amounts
    QStringView image;
};

// In the order of the raw values, from 1.
constexpr std::array<CurrencyEntry, 13> entries{{
    {u"EUR", QT_TRANSLATE_NOOP("Zelvor", "Euro"), u"€", u"flag-eu"},
    {u"USD", QT_TRANSLATE_NOOP("Zelvor", "US Dollar"), u"$", u"flag-us"},
    {u"GBP", QT_TRANSLATE_NOOP("Zelvor", "British Pound"), u"£", u"flag-gb"},
    {u"CHF", QT_TRANSLATE_NOOP("Zelvor", "Swiss Franc"), u"Fr.", u"flag-ch"},
    {u"JPY", QT_TRANSLATE_NOOP("Zelvor", "Japanese Yen"), u"¥", u"flag-jp"},
    {u"CNY", QT_TRANSLATE_NOOP("Zelvor", "Chinese Yuan"), u"CN¥", u"flag-cn"},
    {u"RUB", QT_TRANSLATE_NOOP("Zelvor", "Russian Ruble"), u"₽", u"flag-ru"},
    {u"UAH", QT_TRANSLATE_NOOP("Zelvor", "Ukrainian Hryvnia"), u"₴", u"flag-ua"},
    {u"PLN", QT_TRANSLATE_NOOP("Zelvor", "Polish Zloty"), u"zł", u"flag-pl"},
    {u"CZK", QT_TRANSLATE_NOOP("Zelvor", "Czech Koruna"), u"Kč", u"flag-cz"},
    {u"SEK", QT_TRANSLATE_NOOP("Zelvor", "Swedish Krona"), u"kr", u"flag-se"},
    {u"CAD", QT_TRANSLATE_NOOP("Zelvor", "Canadian Dollar"), u"C$", u"flag-ca"},
    {u"TRY", QT_TRANSLATE_NOOP("Zelvor", "Turkish Lira"), u"₺", u"flag-tr"},
}};

const CurrencyEntry& entry(CurrencyStruct currency)
{
    return entries[static_cast<std::size_t>(currency) - 1];
}

} // namespace

std::optional<CurrencyStruct> currencyFromInt(qint64 raw)
{
    if (raw < 1 || raw > static_cast<qint64>(entries.size()))
        return std::nullopt;
    return static_cast<CurrencyStruct>(raw);
}

std::optional<CurrencyStruct> currencyFromShort(QStringView code)
{
    for (const CurrencyStruct currency : allCurrencies) {
        if (entry(currency).code == code)
            return currency;
    }
    return std::nullopt;
}

QString currencyName(CurrencyStruct currency)
{
    return localized(entry(currency).name);
}

QString currencyShort(CurrencyStruct currency)
{
    return entry(currency).code.toString();
}

QString currencySign(CurrencyStruct currency)
{
    return entry(currency).sign.toString();
}

QString currencyImage(CurrencyStruct currency)
{
    return entry(currency).image.toString();
}

} // namespace zelvor
