#include "reports/report_stock_row.h"

#include <gtest/gtest.h>

namespace zelvor {

namespace {

using namespace Qt::Literals::StringLiterals;

std::shared_ptr<ReportStockRow> stockRow(qint64 id, const QString& name, int amount, int sum)
{
    auto row = std::make_shared<ReportStockRow>();
    row->id = id;
    row->name = name;
    row->stocks = {{u"Shop"_s, Decimal(amount), Decimal(sum), {}}, {u"Depot"_s, Decimal(1), Decimal(2), {}}};
    return row;
}

} // namespace

TEST(ReportStockRow, twoLevelsDeepStandsTwelveBlanksInWhenAttachedFromTheTopDown)
{
    const auto root = stockRow(1, u"Root"_s, 0, 0);
    const auto group = stockRow(2, u"Group"_s, 0, 0);
    const auto leaf = stockRow(3, u"Leaf"_s, 0, 0);
    root->setChild(group);
    group->setChild(leaf);
    EXPECT_EQ(root->indent, 0);
    EXPECT_EQ(group->indent, 6);
    EXPECT_EQ(leaf->indent, 12);
    EXPECT_EQ(leaf->indentedName(), QString(12, u' ') + u"Leaf"_s);
    EXPECT_EQ(leaf->parentID, 2);
    EXPECT_EQ(leaf->parent.lock(), group);
}

TEST(ReportStockRow, attachedFromTheBottomUpAChildKeepsTheIndentItGot)
{
    const auto root = stockRow(1, u"Root"_s, 0, 0);
    const auto group = stockRow(2, u"Group"_s, 0, 0);
    const auto leaf = stockRow(3, u"Leaf"_s, 0, 0);
    group->setChild(leaf);
    root->setChild(group);
    EXPECT_EQ(leaf->indent, 6);
}

TEST(ReportStockRow, figuresRiseToEveryAncestorWarehouseByWarehouse)
{
    const auto root = stockRow(1, u"Root"_s, 10, 20);
    const auto group = stockRow(2, u"Group"_s, 0, 0);
    root->setChild(group);
    const auto leaf = stockRow(3, u"Leaf"_s, 5, 7);
    group->setChild(leaf);
    for (const auto& [row, shop, shopSum, depot] :
         {std::tuple{root, 15, 27, 3}, std::tuple{group, 5, 7, 2}, std::tuple{leaf, 5, 7, 1}}) {
        EXPECT_EQ(row->stocks[0].amount, Decimal(shop));
        EXPECT_EQ(row->stocks[0].sum, Decimal(shopSum));
        EXPECT_EQ(row->stocks[1].amount, Decimal(depot));
        EXPECT_EQ(row->stocks[1].sum, Decimal(2 * depot));
    }
    EXPECT_EQ(root->amountTotal(), Decimal(18));
    EXPECT_EQ(root->sumTotal(), Decimal(33));
}

TEST(ReportStockRow, aRowThatHoldsThisOneIsNotTakenIn)
{
    const auto root = stockRow(1, u"Root"_s, 0, 0);
    const auto leaf = stockRow(2, u"Leaf"_s, 5, 7);
    EXPECT_TRUE(root->setChild(leaf));
    EXPECT_FALSE(leaf->setChild(root));
    EXPECT_FALSE(root->setChild(root));
    EXPECT_TRUE(leaf->children.empty());
    EXPECT_TRUE(root->parent.expired());
    EXPECT_EQ(root->children.size(), 1U);
    EXPECT_EQ(root->stocks[0].amount, Decimal(5));
}

TEST(ReportStockRow, childrenAreKeptByName)
{
    const auto root = stockRow(1, u"Root"_s, 0, 0);
    for (const QString& name : {u"b"_s, u"c"_s, u"a"_s})
        root->setChild(stockRow(5, name, 0, 0));
    QStringList names;
    for (const auto& child : root->children)
        names << child->name;
    EXPECT_EQ(names, (QStringList{u"a"_s, u"b"_s, u"c"_s}));
}

} // namespace zelvor
