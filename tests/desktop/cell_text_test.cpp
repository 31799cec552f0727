#include "desktop/cell_text.h"

#include <gtest/gtest.h>

#include <limits>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

const QLocale american(QLocale::English, QLocale::UnitedStates);
const QLocale german(QLocale::German, QLocale::Germany);
const QLocale russian(QLocale::Russian, QLocale::Russia);

QString shown(const QVariant& value, CellKind kind, const QLocale& locale = american)
{
    return cellText(value, kind, Calendar(QTimeZone::utc()), locale);
}

Decimal number(const char* text)
{
    return Decimal::fromText(QString::fromLatin1(text));
}

} // namespace

TEST(CellText, anAmountHasTwoDecimalsAndGroupsPartedByAThinBlank)
{
    EXPECT_EQ(shown(0.0, CellKind::Amount), u"0.00"_s);
    EXPECT_EQ(shown(12.5, CellKind::Amount), u"12.50"_s);
    EXPECT_EQ(shown(999.0, CellKind::Amount), u"999.00"_s);
    EXPECT_EQ(shown(1234567.891, CellKind::Amount), u"1\u202f234\u202f567.89"_s);
    EXPECT_EQ(shown(-1234.5, CellKind::Amount), u"-1\u202f234.50"_s);
    EXPECT_EQ(shown(-123.0, CellKind::Amount), u"-123.00"_s);
}

TEST(CellText, anAmountHasTheDecimalMarkOfTheLocaleAndTheSameGroups)
{
    EXPECT_EQ(shown(1234.5, CellKind::Amount, german), u"1\u202f234,50"_s);
    EXPECT_EQ(shown(1234.5, CellKind::Amount, russian), u"1\u202f234,50"_s);
    EXPECT_EQ(screenAmount(number("1234.5"), german), u"1\u202f234,50"_s);
}

TEST(CellText, anAmountOfNextToNothingIsNotANegativeZero)
{
    EXPECT_EQ(shown(-0.001, CellKind::Amount), u"0.00"_s);
    EXPECT_EQ(shown(-0.0, CellKind::Amount), u"0.00"_s);
}

TEST(CellText, whatIsNoAmountSaysSo)
{
    EXPECT_EQ(shown(std::numeric_limits<double>::quiet_NaN(), CellKind::Amount), u"NaN"_s);
    EXPECT_EQ(screenAmount(Decimal::nan(), german), u"NaN"_s);
}

TEST(CellText, aFractionIsShownAsPercent)
{
    EXPECT_EQ(shown(0.4286, CellKind::Percent), u"42.86\u202f%"_s);
    EXPECT_EQ(shown(0.5, CellKind::Percent), u"50.00\u202f%"_s);
    EXPECT_EQ(shown(2.185, CellKind::Percent), u"218.50\u202f%"_s);
    EXPECT_EQ(shown(0.12346, CellKind::Percent), u"12.35\u202f%"_s);
    EXPECT_EQ(shown(std::numeric_limits<double>::quiet_NaN(), CellKind::Percent), u"NaN"_s);
    EXPECT_EQ(shown(0.4286, CellKind::Percent, german), u"42,86\u202f%"_s);
    EXPECT_EQ(shown(-12.5, CellKind::Percent), u"-1\u202f250.00\u202f%"_s);
}

TEST(CellText, aMomentIsShownInTheZoneOfTheCalendarWithTheWholeYear)
{
    const qlonglong moment = 1'700'000'000; // 14 November 2023, 22:13:20 UTC
    EXPECT_EQ(shown(moment, CellKind::Date), u"11/14/2023 22:13"_s);
    EXPECT_EQ(shown(moment, CellKind::Date, german), u"14.11.2023 22:13"_s);
    EXPECT_EQ(shown(moment, CellKind::Date, russian), u"14.11.2023 22:13"_s);
    EXPECT_EQ(cellText(moment, CellKind::Date, Calendar(QTimeZone("Asia/Tokyo")), german),
              u"15.11.2023 07:13"_s);
}

TEST(CellText, theFormatOfADateHasFourDigitsOfTheYearInEveryLocale)
{
    for (const QLocale& locale : {american, german, russian, QLocale(QLocale::French, QLocale::France),
                                  QLocale(QLocale::Japanese, QLocale::Japan), QLocale::c()}) {
        const QDate day(2023, 11, 14);
        EXPECT_TRUE(locale.toString(day, shortDateFormat(locale)).contains(u"2023"_s))
            << qPrintable(locale.name());
        EXPECT_EQ(shortDateFormat(locale).count(u'y'), 4) << qPrintable(locale.name());
        EXPECT_EQ(shortDateTimeFormat(locale), shortDateFormat(locale) + u" HH:mm"_s);
    }
}

TEST(CellText, aTextStandsAsItIsOnOneLineWhateverTheColumn)
{
    EXPECT_EQ(shown(u"<b>R&D</b> 1.5"_s, CellKind::Text, german), u"<b>R&D</b> 1.5"_s);
    EXPECT_EQ(shown(u"two\nlines"_s, CellKind::Text), u"two lines"_s);
    for (const CellKind kind : {CellKind::Amount, CellKind::Percent, CellKind::Date, CellKind::Integer})
        EXPECT_EQ(shown(QString(), kind), QString()) << "an empty cell is not 0";
}

TEST(CellText, aWholeNumberIsWrittenPlainlyAndATickSaysNothing)
{
    EXPECT_EQ(shown(qlonglong(12345), CellKind::Integer), u"12345"_s);
    EXPECT_EQ(shown(true, CellKind::CheckBox), QString());
}

TEST(CellText, aNumberToBeEditedHasNoGroupsAndLosesNoDigit)
{
    EXPECT_EQ(editedNumber(number("1234.5"), american), u"1234.50"_s);
    EXPECT_EQ(editedNumber(number("1234.5"), german), u"1234,50"_s);
    EXPECT_EQ(editedNumber(number("0.12345"), american), u"0.12345"_s);
    EXPECT_EQ(editedNumber(number("7"), american, 0), u"7"_s);
    EXPECT_EQ(editedNumber(number("7.25"), american, 0), u"7.25"_s);
    EXPECT_EQ(editedNumber(number("1.1"), russian, 4), u"1,1000"_s);
    EXPECT_EQ(editedNumber(Decimal::nan(), german), u"NaN"_s);
}

} // namespace zelvor
