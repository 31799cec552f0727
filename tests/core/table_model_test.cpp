#include "core/table_model.h"

#include <gtest/gtest.h>

using namespace zelvor;

TEST(TableModel, showsItsIdAndTheEmptyTextForAnUnknownKey)
{
    TableModel record;
    EXPECT_EQ(record.id, 0);
    record.id = 7;
    EXPECT_EQ(record.valueForIdentifier(u"id"), QVariant(qint64(7)));
    EXPECT_EQ(record.valueForIdentifier(u"unknown"), QVariant(QString()));
    EXPECT_EQ(record.valueForIdentifier(u""), QVariant(QString()));
}

TEST(TableModel, sumsOfRecordsHaveTwoDigits)
{
    EXPECT_EQ(TableModelWithNumbers::decimalHandler.scale, 2);
    EXPECT_EQ(taxRateHandler.scale, 3);
    EXPECT_EQ(rateHandler.scale, 4);
    EXPECT_EQ(percentHandler.scale, 4);
    EXPECT_EQ(rowTaxHandler.scale, 5);
    EXPECT_EQ(averageCostHandler.scale, 9);
}
