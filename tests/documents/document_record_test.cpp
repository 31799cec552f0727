#include "support/books.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

TEST(DocumentRecord, anUnconfirmedDocumentShowsNumberZeroAndCanBeWritten)
{
    ProductDocument document;
    document.insertDocType(DocType::BuyProduct);
    EXPECT_EQ(document.docNumber, 0);
    EXPECT_EQ(document.name(),
              u"Product Document '"_s + docTypeName(DocType::BuyProduct) + u"' #0 (write)"_s);
    EXPECT_EQ(document.titleFontColor(), redColor);
}

TEST(DocumentRecord, aConfirmedDocumentIsReadOnlyByItsTitle)
{
    ProductDocument document;
    document.insertDocType(DocType::SellProduct);
    document.docNumber = 12;
    document.confirmed = true;
    EXPECT_EQ(document.name(),
              u"Product Document '"_s + docTypeName(DocType::SellProduct) + u"' #12 (read)"_s);
    EXPECT_EQ(document.journalName(),
              u"Product Document '"_s + docTypeName(DocType::SellProduct) + u"' #12"_s);
    EXPECT_EQ(document.titleFontColor(), inOrderColor);
}

TEST(DocumentRecord, theJournalNamesASpendingAndAnAsset)
{
    Books books;
    MoneyDocument money;
    money.insertDocType(DocType::MoneyToExpend);
    money.settExpend(books.expend(u"Rent"_s));
    EXPECT_EQ(money.journalName(),
              u"Money Document '"_s + docTypeName(DocType::MoneyToExpend) + u"' (Rent) #0"_s);
    EXPECT_EQ(money.name(), u"Money Document '"_s + docTypeName(DocType::MoneyToExpend) + u"' #0 (write)"_s);
    PropertyDocument property;
    property.insertDocType(DocType::BuyProperty);
    property.insertProperty(books.property(u"Van"_s, 100));
    EXPECT_EQ(property.journalName(),
              u"Property Document '"_s + docTypeName(DocType::BuyProperty) + u"' #0 (Van)"_s);
}

TEST(DocumentRecord, aCounterHandsOutTheNextNumberAndKeepsIt)
{
    DocumentNumber number;
    EXPECT_EQ(number.getNextNumber(), 1);
    EXPECT_EQ(number.getNextNumber(), 2);
    EXPECT_EQ(number.docNumber, 2);
}

TEST(DocumentRecord, aTypeOutsideTheListIsNoType)
{
    ProductDocument document;
    document.docTypeID = 50;
    EXPECT_EQ(document.docType(), DocType::NilType);
}

TEST(DocumentRecord, realsAreRoundedOnTheirWayIn)
{
    ProductDocument document;
    document.setDocSum(2.345);
    EXPECT_EQ(document.innerDocSum, Decimal::fromText(u"2.34"));
    document.setDocSum(2.355);
    EXPECT_EQ(document.innerDocSum, Decimal::fromText(u"2.36"));
    MoneyDocument money;
    EXPECT_EQ(money.exchangeRate(), 1.0);
    money.setExchangeRate(0.92345);
    EXPECT_EQ(money.innerExchangeRate, Decimal::fromText(u"0.9234"));
}

TEST(DocumentRecord, subtotalTakesVatFirst)
{
    ProductDocument document;
    document.setDocSum(130);
    document.setShipment(10);
    document.setVatSum(20);
    document.setGstSum(5);
    EXPECT_EQ(document.subtotal(), Decimal(120));
    document.withGST = true;
    EXPECT_EQ(document.subtotal(), Decimal(115));
    document.withVAT = true;
    EXPECT_EQ(document.subtotal(), Decimal(100));
}

TEST(DocumentRecord, aStoredDocumentComesBackWithItsRowsAndLinks)
{
    Books books;
    const auto tea = books.product(u"Tea"_s, 7, 4);
    ProductDocument document;
    document.insertDocType(DocType::SellProduct);
    document.insertContragent(books.contragent(u"Acme"_s));
    document.insertStockFrom(books.stock(u"Main"_s));
    for (int i = 0; i < 2; ++i) {
        auto row = std::make_shared<ProductDocumentRow>();
        row->insertProduct(tea);
        row->setAmount(3);
        row->includeShipment = i == 1;
        document.documentRows.push_back(row);
    }
    const auto stored = books.read(*books.store(document));
    ASSERT_EQ(stored->documentRows.size(), 2U);
    EXPECT_EQ(stored->documentRows[1]->docID, stored->id);
    EXPECT_EQ(stored->documentRows[1]->product->name, u"Tea"_s);
    EXPECT_EQ(stored->documentRows[1]->priceCostSum(), 21);
    EXPECT_TRUE(stored->documentRows[1]->includeShipment);
    EXPECT_EQ(stored->valueForIdentifier(u"contragent"), u"Acme"_s);
    EXPECT_EQ(stored->valueForIdentifier(u"stockFrom"), u"Main"_s);
    EXPECT_EQ(stored->valueForIdentifier(u"stockTo"), QString());
    EXPECT_EQ(stored->valueForIdentifier(u"unknown"), QString());
}

} // namespace
} // namespace zelvor
