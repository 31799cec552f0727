#include "core/formats.h"

#include <gtest/gtest.h>

#include <limits>

using namespace zelvor;
using namespace Qt::Literals::StringLiterals;

namespace {

Decimal number(QStringView text)
{
    return Decimal::fromText(text);
}

const QLocale english(QLocale::English, QLocale::UnitedStates);
const QLocale german(QLocale::German, QLocale::Germany);
const QLocale russian(QLocale::Russian, QLocale::Russia);
const QLocale swiss(QLocale::German, QLocale::Switzerland);

// What was read, as text: shows both numbers when a comparison fails.
std::string read(QStringView text, const QLocale& locale)
{
    return amountFromUserText(text, locale).toText().toStdString();
}

} // namespace

TEST(Formats, amountsHaveGroupsOfThreeAndTwoDigits)
{
    EXPECT_EQ(amountText(number(u"0")), u"0.00"_s);
    EXPECT_EQ(amountText(number(u"999.5")), u"999.50"_s);
    EXPECT_EQ(amountText(number(u"1000")), u"1 000.00"_s);
    EXPECT_EQ(amountText(number(u"1234567.891")), u"1 234 567.89"_s);
    EXPECT_EQ(amountText(number(u"-100")), u"-100.00"_s);
    EXPECT_EQ(amountText(number(u"-123456.7")), u"-123 456.70"_s);
    EXPECT_EQ(amountText(number(u"-0.004")), u"0.00"_s);
    EXPECT_EQ(amountText(2.345), u"2.34"_s);
    EXPECT_EQ(amountText(Decimal::nan()), u"NaN"_s);
}

TEST(Formats, exportedNumbersHaveAtLeastTwoAndAtMostTheGivenDigits)
{
    EXPECT_EQ(exportNumberText(number(u"1234.5")), u"1 234.50"_s);
    EXPECT_EQ(exportNumberText(number(u"1234.56789"), 4), u"1 234.5679"_s);
    EXPECT_EQ(exportNumberText(number(u"1234.5"), 4), u"1 234.50"_s);
    EXPECT_EQ(exportNumberText(number(u"12.3450"), 4), u"12.345"_s);
    EXPECT_EQ(exportNumberText(Decimal::nan(), 4), u"NaN"_s);
}

TEST(Formats, exportedNumbersHaveTheDecimalSeparatorOfTheLocaleAndBlanksBetweenGroups)
{
    const QLocale german(QLocale::German, QLocale::Germany);
    EXPECT_EQ(exportNumberText(number(u"1234567.891"), QLocale::c()), u"1 234 567.89"_s);
    EXPECT_EQ(exportNumberText(number(u"1234567.891"), german), u"1 234 567,89"_s);
    EXPECT_EQ(exportNumberText(number(u"-1000"), german), u"-1 000,00"_s);
    EXPECT_EQ(exportNumberText(number(u"0.125"), german), u"0,12"_s);
    EXPECT_EQ(exportNumberText(Decimal::nan(), german), u"NaN"_s);
}

TEST(Formats, exportedFractionsAreTwoDigitsOfPercent)
{
    EXPECT_EQ(exportPercentText(number(u"0.4286"), QLocale::c()), u"42.86%"_s);
    EXPECT_EQ(exportPercentText(number(u"1"), QLocale::c()), u"100.00%"_s);
    EXPECT_EQ(exportPercentText(number(u"-0.5"), QLocale::c()), u"-50.00%"_s);
    EXPECT_EQ(exportPercentText(number(u"12.3456"), QLocale(QLocale::German, QLocale::Germany)),
              u"1.234,56%"_s);
    EXPECT_EQ(exportPercentText(Decimal::nan(), QLocale::c()), u"NaN"_s);
}

TEST(Formats, fractionsAreShownAsPercent)
{
    EXPECT_EQ(percentText(number(u"0.4286")), u"42.86 %"_s);
    EXPECT_EQ(percentText(number(u"1")), u"100 %"_s);
    EXPECT_EQ(percentText(number(u"-0.005")), u"-0.5 %"_s);
    EXPECT_EQ(percentText(number(u"12.5")), u"1 250 %"_s);
    EXPECT_EQ(percentText(Decimal::nan()), u"NaN"_s);
}

TEST(Formats, aRealInAMessageAlwaysHasAPoint)
{
    EXPECT_EQ(realText(6), u"6.0"_s);
    EXPECT_EQ(realText(0), u"0.0"_s);
    EXPECT_EQ(realText(-12.5), u"-12.5"_s);
    EXPECT_EQ(realText(0.1 + 0.2), u"0.30000000000000004"_s);
    EXPECT_EQ(realText(100000), u"100000.0"_s);
    EXPECT_EQ(realText(1e22), u"1.0e+22"_s);
    EXPECT_EQ(realText(1.5e-7), u"1.5e-07"_s);
    EXPECT_EQ(realText(std::numeric_limits<double>::infinity()), u"inf"_s);
    EXPECT_EQ(realText(std::numeric_limits<double>::quiet_NaN()), u"nan"_s);
}

TEST(Formats, datesAreShortAndInTheLocalesWay)
{
    const QDateTime moment(QDate(2024, 3, 5), QTime(23, 59), Qt::UTC);
    EXPECT_EQ(shortDateText(moment, english), u"3/5/24"_s);
    EXPECT_EQ(shortDateText(moment, russian), u"05.03.2024"_s);
}

TEST(UserAmount, aCommaAndAPointAreBothReadAsDecimalSeparator)
{
    for (const QLocale& locale : {english, german, russian, swiss, QLocale::c()}) {
        EXPECT_EQ(read(u"12.50", locale), "12.5") << locale.name().toStdString();
        EXPECT_EQ(read(u"12,50", locale), "12.5") << locale.name().toStdString();
        EXPECT_EQ(read(u"12,5", locale), "12.5") << locale.name().toStdString();
        EXPECT_EQ(read(u"-0.75", locale), "-0.75") << locale.name().toStdString();
        EXPECT_EQ(read(u"0.125", locale), "0.125") << locale.name().toStdString();
        EXPECT_EQ(read(u"1234.567", locale), "1234.567") << locale.name().toStdString();
        EXPECT_EQ(read(u".5", locale), "0.5") << locale.name().toStdString();
        EXPECT_EQ(read(u"5.", locale), "5") << locale.name().toStdString();
        EXPECT_EQ(read(u"1234", locale), "1234") << locale.name().toStdString();
    }
}

TEST(UserAmount, aSingleGroupOfThreeIsReadAsTheLocaleGroups)
{
    EXPECT_EQ(read(u"1.234", german), "1234");
    EXPECT_EQ(read(u"1.234", english), "1.234");
    EXPECT_EQ(read(u"1.234", russian), "1.234");
    EXPECT_EQ(read(u"1,234", english), "1234");
    EXPECT_EQ(read(u"1,234", german), "1.234");
    EXPECT_EQ(read(u"1,234", swiss), "NaN");
    EXPECT_EQ(read(u"0,125", english), "0.125");
}

TEST(UserAmount, groupsArePartedByBlanksApostrophesPointsOrCommas)
{
    EXPECT_EQ(read(u"1 234,50", german), "1234.5");
    EXPECT_EQ(read(u"1 234.50", english), "1234.5");
    EXPECT_EQ(read(u"1\u00a0234\u00a0567,50", russian), "1234567.5");
    EXPECT_EQ(read(u"12\u202f345", german), "12345");
    EXPECT_EQ(read(u"1\u2019234.50", swiss), "1234.5");
    EXPECT_EQ(read(u"1.234,50", english), "1234.5");
    EXPECT_EQ(read(u"1,234.50", german), "1234.5");
    EXPECT_EQ(read(u"1.234.567", english), "1234567");
    EXPECT_EQ(read(u"1,234,567", russian), "1234567");
    EXPECT_EQ(read(u"1 234.567", german), "1234.567");
}

TEST(UserAmount, signsAndBlanksAroundTheNumberAreRead)
{
    EXPECT_EQ(read(u"  7 ", german), "7");
    EXPECT_EQ(read(u"+7", german), "7");
    EXPECT_EQ(read(u"- 7,5", german), "-7.5");
    EXPECT_EQ(read(u"\u22127", german), "-7");
    EXPECT_EQ(read(u"\u0661\u0662,5", german), "12.5");
}

TEST(UserAmount, whatIsNoNumberIsNeverAnotherNumber)
{
    for (const QLocale& locale : {english, german, russian, swiss}) {
        for (const char16_t* text : {u"",
                                     u" ",
                                     u"-",
                                     u".",
                                     u",",
                                     u"abc",
                                     u"1e5",
                                     u"1 23",
                                     u"1 2345",
                                     u"12.34.56",
                                     u"1,23,456",
                                     u"1.234.56",
                                     u"1234.567.890",
                                     u"1.234,567,8",
                                     u"1.234,5.6",
                                     u"1,234.567,8",
                                     u"1 234.567,8",
                                     u"--1",
                                     u"1-",
                                     u"1.5 0",
                                     u"$5",
                                     u"5%",
                                     u" 1 234 ,5",
                                     u"NaN",
                                     u"1'23"})
            EXPECT_EQ(read(text, locale), "NaN") << QString::fromUtf16(text).toStdString();
    }
    EXPECT_EQ(read(QString(39, u'9'), german), "NaN");
}
