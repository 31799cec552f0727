#include "product_form.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

TEST(AverageCost, shipmentIsSharedAndReservesCount)
{
    TeaShop shop;
    shop.tea->setBaseCost(5);
    shop.store(*shop.tea);
    shop.stockRow(*shop.main, *shop.tea, 8, 2);
    const auto form = shop.formWithTea(DocType::BuyProduct, 10, 7);
    EXPECT_TRUE(form->setRowValue(0, u"includeShipment"_s, Decimal(1)));
    form->shipment.setValue(Decimal(7));
    EXPECT_TRUE(form->shipment.userChanged());
    ASSERT_TRUE(form->confirmDoc());
    EXPECT_EQ(shop.read(*shop.tea)->baseCost(), 6.35);
    EXPECT_EQ(shop.balance(), 77);
    EXPECT_EQ(shop.db.select<ProductDocument>(form->document->id)->documentRows[0]->baseCost(), 7);
}

TEST(AverageCost, allWarehousesCount)
{
    TeaShop shop;
    shop.stockRow(*shop.main, *shop.tea, 5);
    shop.stockRow(*shop.shop, *shop.tea, 5);
    ASSERT_TRUE(shop.formWithTea(DocType::BuyProduct, 10, 6)->confirmDoc());
    EXPECT_EQ(shop.read(*shop.tea)->baseCost(), 5);
}

TEST(AverageCost, theFirstPurchaseSetsTheCostWithItsShareOfShipment)
{
    TeaShop shop;
    const auto form = shop.formWithTea(DocType::BuyProduct, 10, 6);
    shop.add(*form, *shop.cup, 10, 2);
    EXPECT_TRUE(form->setRowValue(0, u"includeShipment"_s, Decimal(1)));
    form->shipment.setValue(Decimal(6));
    EXPECT_TRUE(form->shipment.userChanged());
    ASSERT_TRUE(form->confirmDoc());
    EXPECT_EQ(shop.read(*shop.tea)->baseCost(), 6.6);
    EXPECT_EQ(shop.read(*shop.cup)->baseCost(), 2);
}

TEST(AverageCost, theShareOfShipmentKeepsItsFractions)
{
    TeaShop shop;
    const auto form = shop.form(DocType::BuyProduct);
    shop.add(*form, *shop.tea, 10, 1);
    shop.add(*form, *shop.cup, 13, 1);
    EXPECT_TRUE(form->setRowValue(0, u"price"_s, Decimal::fromText(u"1.05")));
    EXPECT_TRUE(form->setRowValue(1, u"price"_s, Decimal::fromText(u"1.5")));
    for (int row = 0; row < 2; ++row)
        EXPECT_TRUE(form->setRowValue(row, u"includeShipment"_s, Decimal(1)));
    form->shipment.setValue(Decimal(1));
    EXPECT_TRUE(form->shipment.userChanged());
    ASSERT_TRUE(form->confirmDoc());
    // 1.00 on 30.00 is 0.033333333; 10.50 with its share is 10.85, and 1.085 is 1.08 half to even.
    EXPECT_EQ(shop.read(*shop.tea)->baseCost(), 1.08);
    EXPECT_EQ(shop.read(*shop.cup)->baseCost(), 1.55);
}

TEST(AverageCost, shipmentWithoutARowToBearItIsLostToTheCost)
{
    TeaShop shop;
    const auto form = shop.formWithTea(DocType::BuyProduct, 10, 6);
    form->shipment.setValue(Decimal(6));
    EXPECT_TRUE(form->shipment.userChanged());
    ASSERT_TRUE(form->confirmDoc());
    EXPECT_EQ(shop.read(*shop.tea)->baseCost(), 6);
    EXPECT_EQ(shop.balance(), 66);
}

TEST(AverageCost, nothingOfNothingIsNoNumber)
{
    TeaShop shop;
    const auto form = shop.formWithTea(DocType::BuyProduct, 10, 6);
    shop.add(*form, *shop.cup, 0, 2);
    ASSERT_TRUE(form->confirmDoc());
    EXPECT_EQ(shop.read(*shop.tea)->baseCost(), 6);
    EXPECT_TRUE(std::isnan(shop.read(*shop.cup)->baseCost()));
}

TEST(AverageCost, aReturnAveragesLikeAPurchase)
{
    TeaShop shop;
    shop.stockRow(*shop.main, *shop.tea, 10);
    const auto form = shop.formWithTea(DocType::Return, 10, 8);
    ASSERT_TRUE(form->confirmDoc());
    EXPECT_EQ(shop.read(*shop.tea)->baseCost(), 6);
    EXPECT_EQ(shop.onHand(*shop.main, *shop.tea), 20);
    EXPECT_EQ(shop.balance(), 80);
    EXPECT_EQ(form->document->stockFromID, 0);
}

} // namespace
} // namespace zelvor
