#pragma once

#include <QtCore/QString>

#include <array>
#include <optional>

namespace zelvor {

// The currencies that the program knows. The raw value, 1 to 13, is the id of the currency's row and what
// every currency field of a record holds. Codes follow ISO 4217.
enum class CurrencyStruct : int { EUR = 1, USD, GBP, CHF, JPY, CNY, RUB, UAH, PLN, CZK, SEK, CAD, TRY };

inline constexpr std::array<CurrencyStruct, 13> allCurrencies{
    CurrencyStruct::EUR, CurrencyStruct::USD, CurrencyStruct::GBP, CurrencyStruct::CHF, CurrencyStruct::JPY,
    CurrencyStruct::CNY, CurrencyStruct::RUB, CurrencyStruct::UAH, CurrencyStruct::PLN, CurrencyStruct::CZK,
    CurrencyStruct::SEK, CurrencyStruct::CAD, CurrencyStruct::TRY};

constexpr int rawValue(CurrencyStruct currency)
{
    return static_cast<int>(currency);
}
// Nothing for a raw value outside 1 to 13.
std::optional<CurrencyStruct> currencyFromInt(qint64 raw);
std::optional<CurrencyStruct> currencyFromShort(QStringView code);
// The full name, localised: "Swiss Franc".
QString currencyName(CurrencyStruct currency);
// The code: "CHF".
QString currencyShort(CurrencyStruct currency);
// The symbol: "€".
QString currencySign(CurrencyStruct currency);
// The name of the flag icon.
QString currencyImage(CurrencyStruct currency);

} // namespace zelvor
