#include "core/currency_struct.h"

#include <gtest/gtest.h>

#include <QtCore/QSet>

using namespace zelvor;
using namespace Qt::Literals::StringLiterals;

TEST(CurrencyStruct, theThirteenCurrenciesCountFromOneInTheirDeclaredOrder)
{
    ASSERT_EQ(allCurrencies.size(), 13U);
    int raw = 0;
    for (const CurrencyStruct currency : allCurrencies) {
        EXPECT_EQ(rawValue(currency), ++raw);
        EXPECT_EQ(currencyFromInt(raw), currency);
    }
}

TEST(CurrencyStruct, aRawValueOutsideTheListHasNoCase)
{
    EXPECT_FALSE(currencyFromInt(0));
    EXPECT_FALSE(currencyFromInt(14));
    EXPECT_FALSE(currencyFromInt(-1));
}

TEST(CurrencyStruct, codesAndSignsAndFlagsAndNamesTellTheCurrenciesApart)
{
    QSet<QString> codes, signs, images, names;
    for (const CurrencyStruct currency : allCurrencies) {
        codes.insert(currencyShort(currency));
        signs.insert(currencySign(currency));
        images.insert(currencyImage(currency));
        names.insert(currencyName(currency));
        EXPECT_EQ(currencyShort(currency).size(), 3);
        EXPECT_EQ(currencyFromShort(currencyShort(currency)), currency);
    }
    EXPECT_EQ(codes.size(), 13);
    EXPECT_EQ(signs.size(), 13);
    EXPECT_EQ(images.size(), 13);
    EXPECT_EQ(names.size(), 13);
}

TEST(CurrencyStruct, theTextsBelongToTheirCurrency)
{
    EXPECT_EQ(currencyShort(CurrencyStruct::CHF), u"CHF"_s);
    EXPECT_EQ(currencyName(CurrencyStruct::CHF), u"Swiss Franc"_s);
    EXPECT_EQ(currencySign(CurrencyStruct::EUR), u"€"_s);
    EXPECT_EQ(currencySign(CurrencyStruct::PLN), u"zł"_s);
    EXPECT_EQ(currencyShort(CurrencyStruct::TRY), u"TRY"_s);
    EXPECT_FALSE(currencyFromShort(u"eur"));
    EXPECT_FALSE(currencyFromShort(u""));
}
