#include "catalogs/property.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

Property assetOfTwelveMonths()
{
    Property asset;
    asset.setBaseCost(1000);
    asset.setCurrentCost(1000);
    asset.isAmortized = true;
    asset.amortizationPeriod = 12;
    return asset;
}

TEST(Depreciation, twelveStepsLeaveTheRestAndTheThirteenthTakesIt)
{
    Property asset = assetOfTwelveMonths();
    asset.proceedAmortization();
    EXPECT_EQ(asset.currentCost(), 916.67);
    for (int step = 2; step <= 12; ++step)
        asset.proceedAmortization();
    EXPECT_EQ(asset.currentCost(), 0.04);
    asset.proceedAmortization();
    EXPECT_EQ(asset.currentCost(), 0);
    asset.proceedAmortization();
    EXPECT_EQ(asset.currentCost(), 0);
    EXPECT_EQ(asset.baseCost(), 1000);
}

TEST(Depreciation, withoutAPeriodOrSwitchedOffTheCostNeverChanges)
{
    Property withoutPeriod = assetOfTwelveMonths();
    withoutPeriod.amortizationPeriod = 0;
    withoutPeriod.proceedAmortization();
    EXPECT_EQ(withoutPeriod.currentCost(), 1000);
    Property switchedOff = assetOfTwelveMonths();
    switchedOff.isAmortized = false;
    switchedOff.proceedAmortization();
    EXPECT_EQ(switchedOff.currentCost(), 1000);
}

TEST(Depreciation, aManualCostShortensTheLifeNotTheStep)
{
    Property asset = assetOfTwelveMonths();
    asset.setCurrentCost(100);
    asset.proceedAmortization();
    EXPECT_EQ(asset.currentCost(), 16.67);
    asset.proceedAmortization();
    EXPECT_EQ(asset.currentCost(), 0);
    asset.setCurrentCost(83.33);
    asset.proceedAmortization();
    EXPECT_EQ(asset.currentCost(), 0) << "exactly one step is left";
}

TEST(FixedAsset, answersItsColumnsAndTheEmptyTextOtherwise)
{
    Property asset = assetOfTwelveMonths();
    asset.date = 5;
    asset.name = u"Van"_s;
    asset.descriptionString = u"white"_s;
    EXPECT_EQ(asset.valueForIdentifier(u"date").toLongLong(), 5);
    EXPECT_EQ(asset.valueForIdentifier(u"name").toString(), u"Van"_s);
    EXPECT_EQ(asset.valueForIdentifier(u"baseCost").toDouble(), 1000);
    EXPECT_EQ(asset.valueForIdentifier(u"currentCost").toDouble(), 1000);
    EXPECT_TRUE(asset.valueForIdentifier(u"amortized").toBool());
    EXPECT_TRUE(asset.valueForIdentifier(u"isAmortized").toBool());
    EXPECT_EQ(asset.valueForIdentifier(u"period").toLongLong(), 12);
    EXPECT_EQ(asset.valueForIdentifier(u"description").toString(), u"white"_s);
    EXPECT_EQ(asset.valueForIdentifier(u"soldDate").toLongLong(), 0);
    EXPECT_EQ(asset.valueForIdentifier(u"cost"), QVariant(QString()));
}

} // namespace
} // namespace zelvor
