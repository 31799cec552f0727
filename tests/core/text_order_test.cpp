#include "core/text_order.h"

#include <gtest/gtest.h>

using namespace zelvor;

TEST(TextOrder, comparesByCodePoint)
{
    EXPECT_TRUE(textLess(u"Z", u"a"));
    EXPECT_TRUE(textLess(u"z", u"\u00e4"));
    EXPECT_TRUE(textLess(u"Tea 10", u"Tea 9"));
    EXPECT_FALSE(textLess(u"a", u"a"));
}

TEST(TextOrder, aBeginningStandsBeforeTheWholeText)
{
    EXPECT_TRUE(textLess(u"", u"a"));
    EXPECT_TRUE(textLess(u"Tea", u"Tea 1"));
    EXPECT_FALSE(textLess(u"Tea 1", u"Tea"));
    EXPECT_FALSE(textLess(u"", u""));
}

TEST(TextOrder, lettersOutsideTheBasicPlaneStandBehindAllInsideIt)
{
    EXPECT_TRUE(textLess(u"\uffe5", u"\U0001F642"));
    EXPECT_FALSE(textLess(u"\U0001F642", u"\uffe5"));
    EXPECT_TRUE(textLess(u"\U0001F642", u"\U0001F643"));
    EXPECT_TRUE(textLess(u"\U0001F642", u"\U0001F942"));
}
