#include "core/doc_type.h"

#include <gtest/gtest.h>

#include <QtCore/QSet>

#include <vector>

using namespace zelvor;
using namespace Qt::Literals::StringLiterals;

namespace {

std::vector<DocType> allTypes()
{
    std::vector<DocType> types;
    for (int raw = 0; raw < docTypeCount; ++raw)
        types.push_back(*typeFromInt(raw));
    return types;
}

} // namespace

TEST(DocType, theRawValueZeroIsNoTypeAndTheParentOfTheGroups)
{
    EXPECT_EQ(typeFromInt(0), DocType::NilType);
    for (const DocType group : {DocType::Money, DocType::Products, DocType::PropertyGroup, DocType::Reports,
                                DocType::Organization, DocType::Catalogs})
        EXPECT_EQ(rawValue(docTypeMenuGroup(group)), 0) << docTypeCase(group).toStdString();
}

TEST(DocType, aRawValueOutsideTheFiftyHasNoCase)
{
    EXPECT_EQ(typeFromInt(49), DocType::DeleteBasisCatalog);
    EXPECT_FALSE(typeFromInt(50));
    EXPECT_FALSE(typeFromInt(-1));
    EXPECT_FALSE(typeFromInt(qint64(1) << 32));
}

TEST(DocType, theStoredNumbersNeverMove)
{
    EXPECT_EQ(rawValue(DocType::MoneyFromContragent), 2);
    EXPECT_EQ(rawValue(DocType::MoneyAdd), 8);
    EXPECT_EQ(rawValue(DocType::BuyProduct), 11);
    EXPECT_EQ(rawValue(DocType::SellProduct), 12);
    EXPECT_EQ(rawValue(DocType::Return), 17);
    EXPECT_EQ(rawValue(DocType::BuyProperty), 20);
    EXPECT_EQ(rawValue(DocType::DeleteProperty), 23);
    EXPECT_EQ(rawValue(DocType::BalanceSheet), 26);
    EXPECT_EQ(rawValue(DocType::DynamicsReport), 36);
    EXPECT_EQ(rawValue(DocType::ContragentCatalog), 38);
    EXPECT_EQ(rawValue(DocType::FunctionCatalog), 45);
    EXPECT_EQ(rawValue(DocType::DeleteBasisCatalog), 49);
}

TEST(DocType, everyCaseIsFoundByItsIdentifier)
{
    for (const DocType type : allTypes())
        EXPECT_EQ(docTypeFromCase(docTypeCase(type)), type);
    EXPECT_EQ(docTypeCase(DocType::SellProduct), u"SellProduct"_s);
    EXPECT_EQ(docTypeCase(DocType::PeriodSellReport), u"PeriodSellReport"_s);
    EXPECT_EQ(docTypeCase(DocType::DeleteBasisCatalog), u"DeleteBasisCatalog"_s);
    EXPECT_FALSE(docTypeFromCase(u"sellproduct"));
    EXPECT_FALSE(docTypeFromCase(u""));
}

TEST(DocType, everyCaseButNoTypeHasANameAndAnIconOfItsOwn)
{
    QSet<QString> images;
    for (const DocType type : allTypes()) {
        EXPECT_EQ(docTypeName(type).isEmpty(), type == DocType::NilType);
        images.insert(docTypeImage(type));
    }
    EXPECT_EQ(images.size(), docTypeCount);
    EXPECT_EQ(docTypeName(DocType::SellProduct), u"Sale"_s);
    EXPECT_EQ(docTypeName(DocType::BuyProduct), u"Purchase"_s);
}

TEST(DocType, theMenuGroupHoldsEveryCaseBehindItsHeader)
{
    DocType header = DocType::NilType;
    for (const DocType type : allTypes()) {
        if (type == DocType::NilType || docTypeMenuGroup(type) == DocType::NilType)
            header = type;
        else
            EXPECT_EQ(docTypeMenuGroup(type), header) << docTypeCase(type).toStdString();
    }
    EXPECT_EQ(docTypeMenuGroup(DocType::MoneyAdd), DocType::Money);
    EXPECT_EQ(docTypeMenuGroup(DocType::DynamicsReport), DocType::Reports);
    EXPECT_EQ(docTypeMenuGroup(DocType::StockCatalog), DocType::Organization);
    EXPECT_EQ(docTypeMenuGroup(DocType::CurrencyCatalog), DocType::Catalogs);
}

TEST(DocType, aMenuHeaderBearsTheIconOfItsGroup)
{
    EXPECT_EQ(docTypeImage(DocType::Money), u"money"_s);
    EXPECT_EQ(docTypeImage(DocType::Products), u"product"_s);
    EXPECT_EQ(docTypeImage(DocType::PropertyGroup), u"property"_s);
    EXPECT_EQ(docTypeImage(DocType::Reports), u"report"_s);
    EXPECT_EQ(docTypeImage(DocType::Organization), u"company"_s);
    EXPECT_EQ(docTypeImage(DocType::Catalogs), u"catalog"_s);
}

TEST(DocType, theMenuLookupKeepsItsTwoGapsAndKnowsNoCatalogs)
{
    for (const DocType type : allTypes()) {
        const int raw = rawValue(type);
        std::optional<DocType> expected;
        if ((raw >= 2 && raw <= 7) || raw == 9)
            expected = DocType::Money;
        else if (raw >= 11 && raw <= 18)
            expected = DocType::Products;
        else if (raw >= 20 && raw <= 24)
            expected = DocType::PropertyGroup;
        else if (raw >= 26 && raw <= 35)
            expected = DocType::Reports;
        EXPECT_EQ(docTypeMenuLookup(type), expected) << raw;
    }
}
