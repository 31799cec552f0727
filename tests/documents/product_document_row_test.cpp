#include "documents/product_document_row.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

Decimal decimal(const char* text)
{
    return Decimal::fromText(QString::fromLatin1(text));
}

ProductDocumentRow rowOf(double amount, double price)
{
    ProductDocumentRow row;
    row.setPriceCost(price);
    row.setAmount(amount);
    return row;
}

TEST(ProductDocumentRow, aProductWithoutAPackSizeHasNoPacks)
{
    for (const double packAmount : {0.0, -5.0}) {
        ProductDocumentRow row = rowOf(10, 1);
        row.product.edit().setPackAmount(packAmount);
        EXPECT_EQ(row.packs(), Decimal(0));
        EXPECT_EQ(row.valueForIdentifier(u"packs"), QVariant(0));
    }
    ProductDocumentRow row = rowOf(10, 1);
    row.product.edit().setPackAmount(3);
    EXPECT_EQ(row.packs(), decimal("3.33"));
    EXPECT_EQ(row.valueForIdentifier(u"packs").toDouble(), 3.33);
}

TEST(ProductDocumentRow, vatIsInsideThePrice)
{
    ProductDocumentRow row = rowOf(1, 120);
    row.setVatRate(20);
    EXPECT_EQ(row.beforeVatValue(), Decimal(100));
    EXPECT_EQ(row.vatValue(), Decimal(20));
    row = rowOf(1, 100);
    row.setVatRate(18);
    EXPECT_EQ(row.beforeVatValue(), decimal("84.75"));
    EXPECT_EQ(row.vatValue(), decimal("15.25"));
    EXPECT_EQ(row.valueForIdentifier(u"vatRate").toDouble(), 0.18);
    EXPECT_EQ(row.valueForIdentifier(u"minusVAT").toDouble(), 84.75);
}

TEST(ProductDocumentRow, gstComesOnTopOfThePrice)
{
    ProductDocumentRow row = rowOf(1, 33.33);
    row.setGstRate(7.5);
    EXPECT_EQ(row.gstValue(), decimal("2.5"));
    EXPECT_EQ(row.plusGST(), decimal("35.83"));
}

TEST(ProductDocumentRow, aCostRenewsItsOwnSumAndTheAmountBoth)
{
    ProductDocumentRow row = rowOf(3, 7);
    row.setBaseCost(4);
    EXPECT_EQ(row.priceCostSum(), 21);
    EXPECT_EQ(row.baseCostSum(), 12);
    row.setPriceCost(8);
    EXPECT_EQ(row.priceCostSum(), 24);
    EXPECT_EQ(row.baseCostSum(), 12);
    row.setBaseCost(5);
    EXPECT_EQ(row.priceCostSum(), 24);
    EXPECT_EQ(row.baseCostSum(), 15);
    row.setAmount(2);
    EXPECT_EQ(row.priceCostSum(), 16);
    EXPECT_EQ(row.baseCostSum(), 10);
}

TEST(ProductDocumentRow, aProductBringsItsCostAndItsPriceAsBothPrices)
{
    auto product = std::make_shared<Product>();
    product->id = 9;
    product->setBaseCost(4);
    product->setPriceCost(7);
    ProductDocumentRow row;
    row.insertProduct(product);
    EXPECT_EQ(row.productID, 9);
    EXPECT_EQ(row.baseCost(), 4);
    EXPECT_EQ(row.priceCost(), 7);
    EXPECT_EQ(row.currentPriceCost(), 7);
}

TEST(ProductDocumentRow, taxRatesKeepTwoDigits)
{
    ProductDocumentRow row;
    row.setVatRate(7.125);
    EXPECT_EQ(row.innerVATRate, decimal("7.12"));
}

} // namespace
} // namespace zelvor
