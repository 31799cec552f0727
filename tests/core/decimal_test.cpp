#include "core/decimal.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace zelvor;
using namespace Qt::Literals::StringLiterals;

namespace {

Decimal number(QStringView text)
{
    return Decimal::fromText(text);
}

} // namespace

TEST(Decimal, aHalfIsRoundedToTheEvenNeighbour)
{
    EXPECT_EQ(number(u"2.345").rounded(moneyHandler).toText(), u"2.34"_s);
    EXPECT_EQ(number(u"2.355").rounded(moneyHandler).toText(), u"2.36"_s);
    EXPECT_EQ(number(u"-2.345").rounded(moneyHandler).toText(), u"-2.34"_s);
    EXPECT_EQ(number(u"-2.355").rounded(moneyHandler).toText(), u"-2.36"_s);
    EXPECT_EQ(number(u"2.3450000001").rounded(moneyHandler).toText(), u"2.35"_s);
}

TEST(Decimal, aDoubleIsRoundedByItsShortestTextAndNotByItsBinaryTail)
{
    // The double 2.675 lies below 2.675, 1.005 too; the digits that people typed decide.
    EXPECT_EQ(Decimal::fromDouble(2.675, moneyHandler).toText(), u"2.68"_s);
    EXPECT_EQ(Decimal::fromDouble(1.005, moneyHandler).toText(), u"1"_s);
    EXPECT_EQ(Decimal::fromDouble(2.345, moneyHandler).toText(), u"2.34"_s);
    EXPECT_EQ(Decimal::fromDouble(2.355, moneyHandler).toText(), u"2.36"_s);
    EXPECT_EQ(Decimal::fromDouble(2.345), number(u"2.345"));
}

TEST(Decimal, everyCentUpToTenThousandSurvivesTheDoubleAndBack)
{
    for (int cents = -1'000'000; cents <= 1'000'000; ++cents) {
        const Decimal sum = Decimal::fromParts(cents, 2);
        ASSERT_EQ(Decimal::fromDouble(sum.toDouble(), moneyHandler), sum) << cents;
    }
}

TEST(Decimal, whatIsNoFiniteNumberIsNaN)
{
    EXPECT_TRUE(Decimal::fromDouble(std::numeric_limits<double>::quiet_NaN()).isNaN());
    EXPECT_TRUE(Decimal::fromDouble(std::numeric_limits<double>::infinity(), moneyHandler).isNaN());
    EXPECT_TRUE(Decimal::fromDouble(1e38).isNaN());
    EXPECT_TRUE(Decimal::fromDouble(1e-39).isNaN());
    EXPECT_TRUE(Decimal::fromDouble(1e-39, moneyHandler).isZero());
}

TEST(Decimal, nanSpreadsAndComparesUnordered)
{
    const Decimal nan = Decimal::nan();
    const Decimal one(1);
    EXPECT_TRUE(one.plus(nan).isNaN());
    EXPECT_TRUE(nan.plus(one, moneyHandler).isNaN());
    EXPECT_TRUE(one.minus(nan, moneyHandler).isNaN());
    EXPECT_TRUE(nan.times(one, moneyHandler).isNaN());
    EXPECT_TRUE(one.dividedBy(nan, moneyHandler).isNaN());
    EXPECT_TRUE(nan.rounded(moneyHandler).isNaN());
    EXPECT_TRUE(nan.negated().isNaN());
    EXPECT_TRUE(nan.absolute().isNaN());
    EXPECT_TRUE(std::isnan(nan.toDouble()));
    EXPECT_FALSE(nan == nan);
    EXPECT_FALSE(nan < one);
    EXPECT_FALSE(nan > one);
    EXPECT_FALSE(nan.isZero() || nan.isNegative() || nan.isPositive());
    EXPECT_EQ(nan.toText(), u"NaN"_s);
}

TEST(Decimal, aZeroDivisorGivesNaN)
{
    EXPECT_TRUE(Decimal(1).dividedBy(Decimal(0), moneyHandler).isNaN());
    EXPECT_TRUE(Decimal(0).dividedBy(number(u"0.00"), moneyHandler).isNaN());
}

TEST(Decimal, overflowGivesNaNAndTheLargestNumberDoesNot)
{
    const Decimal largest = number(QString(38, u'9'));
    EXPECT_FALSE(largest.isNaN());
    EXPECT_TRUE(largest.plus(Decimal(1)).isNaN());
    EXPECT_TRUE(largest.plus(number(u"0.1")).isNaN());
    EXPECT_EQ(largest.plus(number(u"0.1"), moneyHandler).isNaN(), true);
    EXPECT_EQ(largest.plus(number(u"0.001"), moneyHandler), largest);
    EXPECT_TRUE(largest.times(Decimal(2), moneyHandler).isNaN());
    EXPECT_TRUE(number(QString(39, u'9')).isNaN());
}

TEST(Decimal, aResultThatFitsIsRightThoughItsRawProductDoesNotFit)
{
    const Decimal small = number(u"0.00000000000000000000000000000000000002");
    EXPECT_EQ(number(QString(38, u'9')).times(small, moneyHandler), Decimal(2));
    EXPECT_EQ(number(u"123456789012345678901234567890").dividedBy(number(u"0.00000001"), moneyHandler),
              number(u"12345678901234567890123456789000000000"));
}

TEST(Decimal, aSumWithoutHandlerKeepsAllDigits)
{
    EXPECT_EQ(number(u"0.001").plus(number(u"1000000000")).toText(), u"1000000000.001"_s);
    EXPECT_EQ(number(u"10000000000000000000000000000000000000")
                  .plus(number(u"1.50").minus(number(u"0.50"), moneyHandler)),
              number(u"10000000000000000000000000000000000001"));
}

TEST(Decimal, valuesWithDifferentScalesCompareByValue)
{
    EXPECT_EQ(Decimal::fromParts(10, 1), Decimal::fromParts(100, 2));
    EXPECT_LT(number(u"-1.01"), number(u"-1.001"));
    EXPECT_GT(number(u"99999999999999999999999999999999999999"),
              number(u"0.00000000000000000000000000000000000001"));
    EXPECT_LT(number(u"-0.1"), Decimal(0));
    EXPECT_NE(number(u"1.00000000000000000000000000000000001"), Decimal(1));
}

TEST(Decimal, textIsReadWholeOrNotAtAll)
{
    EXPECT_EQ(number(u"12.50"), Decimal::fromParts(125, 1));
    EXPECT_EQ(number(u"+0.5"), Decimal::fromParts(5, 1));
    EXPECT_EQ(number(u"-1.5e3"), Decimal(-1500));
    EXPECT_EQ(number(u"15E-1"), Decimal::fromParts(15, 1));
    EXPECT_EQ(number(u"0e999999999999999999999999"), Decimal(0));
    EXPECT_EQ(number(u"0001.5"_s + QString(60, u'0')), Decimal::fromParts(15, 1));
    EXPECT_EQ(number(u"1"_s + QString(40, u'0') + u"e-40"_s), Decimal(1));
    for (const char16_t* text : {u"",
                                 u"-",
                                 u".",
                                 u".5",
                                 u"5.",
                                 u"1,5",
                                 u"1 000",
                                 u" 1",
                                 u"1 ",
                                 u"1e",
                                 u"1e+",
                                 u"1.5.2",
                                 u"--1",
                                 u"NaN",
                                 u"inf",
                                 u"0x10",
                                 u"1e400",
                                 u"1e-400",
                                 u"1e99999999999999999999",
                                 u"\u0661",
                                 u"1e5.0",
                                 u"1a"})
        EXPECT_TRUE(number(text).isNaN()) << QString::fromUtf16(text).toStdString();
}

TEST(Decimal, textsShowPlainDigits)
{
    EXPECT_EQ(number(u"12.500").toText(), u"12.5"_s);
    EXPECT_EQ(number(u"1e20").toText(), u"100000000000000000000"_s);
    EXPECT_EQ(number(u"-0.05").toText(), u"-0.05"_s);
    EXPECT_EQ(number(u"-0").toText(), u"0"_s);
    EXPECT_EQ(number(u"12.5").toFixedText(2), u"12.50"_s);
    EXPECT_EQ(number(u"0.125").toFixedText(2), u"0.12"_s);
    EXPECT_EQ(number(u"-0.004").toFixedText(2), u"0.00"_s);
    EXPECT_EQ(number(u"7").toFixedText(0), u"7"_s);
    EXPECT_EQ(number(u"0.05").toFixedText(4), u"0.0500"_s);
}

TEST(Decimal, theNearestDoubleComesOutOfLongNumbersToo)
{
    EXPECT_EQ(number(u"0.1").toDouble(), 0.1);
    EXPECT_EQ(number(u"9007199254740993").toDouble(), 9007199254740992.0);
    EXPECT_EQ(number(u"0.1000000000000000055511151231257827021").toDouble(), 0.1);
    EXPECT_EQ(number(u"-123456789012345678901234567890.12345").toDouble(), -1.2345678901234568e29);
}

TEST(Decimal, eachStepIsRoundedToTheScaleOfItsHandler)
{
    const Decimal third = Decimal(1).dividedBy(Decimal(3), rateHandler);
    EXPECT_EQ(third.toText(), u"0.3333"_s);
    EXPECT_EQ(third.times(Decimal(3), rateHandler).toText(), u"0.9999"_s);
    EXPECT_EQ(Decimal(1).dividedBy(Decimal(3), averageCostHandler).toText(), u"0.333333333"_s);
    EXPECT_EQ(number(u"-0.125").times(Decimal(1), moneyHandler).toText(), u"-0.12"_s);
    EXPECT_EQ(Decimal(1).dividedBy(Decimal(-8), moneyHandler).toText(), u"-0.12"_s);
}
