#include "catalogs/tree_catalog_fixture.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

QStringList columnNames(const TableInfo& table)
{
    QStringList names;
    for (const ColumnInfo& column : table.columns)
        names.append(QString::fromLatin1(column.name));
    return names;
}

TEST(TreeRecord, isStoredUnderTheDocumentedColumns)
{
    EXPECT_EQ(columnNames(ContragentGroup::table()),
              (QStringList{u"name"_s, u"parent_id"_s, u"is_hidden"_s}));
    EXPECT_EQ(
        columnNames(Contragent::table()),
        (QStringList{u"name"_s, u"parent_id"_s, u"is_hidden"_s, u"parent_contragent_id"_s, u"manager_id"_s,
                     u"discount"_s, u"balance"_s, u"deferment"_s, u"address"_s, u"city"_s,
                     u"contact_person"_s, u"phone"_s, u"mail"_s, u"vat_number"_s, u"comment"_s}));
    EXPECT_EQ(
        columnNames(ProductGroup::table()),
        (QStringList{u"name"_s, u"parent_id"_s, u"description_string"_s, u"image_name"_s, u"is_hidden"_s}));
    EXPECT_EQ(columnNames(Product::table()),
              (QStringList{u"name"_s, u"group_id"_s, u"description_string"_s, u"image_name"_s, u"is_hidden"_s,
                           u"measurement_id"_s, u"pack_id"_s, u"is_intangible"_s, u"pack_amount"_s,
                           u"base_cost"_s, u"price_cost"_s, u"vat_rate"_s, u"gst_rate"_s}));
    EXPECT_EQ(columnNames(Measurement::table()), (QStringList{u"name"_s, u"shorthand"_s, u"is_hidden"_s}));
    EXPECT_EQ(columnNames(ExpendType::table()), (QStringList{u"name"_s, u"parent_id"_s}));
    EXPECT_EQ(columnNames(Expend::table()), (QStringList{u"name"_s, u"parent_id"_s, u"description_string"_s,
                                                         u"is_constant"_s, u"is_hidden"_s}));
}

TEST(TreeRecord, aChildTakesTheLinksOfItsGroupAndLosesThemWhenItGoes)
{
    const auto group = std::make_shared<ProductGroup>();
    group->id = 7;
    const auto b = std::make_shared<Product>();
    b->name = u"b"_s;
    const auto a = std::make_shared<Product>();
    a->name = u"a"_s;
    group->setChild(b);
    group->setChild(a);
    EXPECT_EQ(group->children, (std::vector<std::shared_ptr<ProductModel>>{a, b}));
    EXPECT_EQ(a->parentID, 7);
    EXPECT_EQ(a->parent.lock(), group);
    group->removeChild(std::make_shared<Product>());
    EXPECT_EQ(group->children.size(), 2U);
    group->removeChild(a);
    EXPECT_EQ(a->parentID, 0);
    EXPECT_EQ(a->parent.lock(), nullptr);
    EXPECT_EQ(group->children.front(), b);
}

TEST(TreeRecord, aGroupCollectsTheGroupsBelowItDepthFirst)
{
    const auto group = [](qint64 id, const QString& name) {
        auto made = std::make_shared<ContragentGroup>();
        made->id = id;
        made->name = name;
        return made;
    };
    const auto top = group(1, u"top"_s);
    const auto first = group(2, u"a"_s);
    const auto second = group(3, u"b"_s);
    const auto deep = group(4, u"c"_s);
    const auto leaf = std::make_shared<Contragent>();
    leaf->id = 9;
    top->setChild(second);
    top->setChild(first);
    first->setChild(deep);
    first->setChild(leaf);
    EXPECT_EQ(top->getChildrenIDs(), (std::vector<qint64>{2, 4, 3}));
    EXPECT_TRUE(leaf->isChildOfObject(top.get()));
    EXPECT_FALSE(top->isChildOfObject(leaf.get()));
}

TEST(TreeRecord, aCounterpartyKeepsItsGroupLinkWhenAnotherCounterpartyTakesItIn)
{
    const auto holder = std::make_shared<Contragent>();
    holder->id = 5;
    const auto child = std::make_shared<Contragent>();
    child->parentID = 3;
    holder->setChild(child);
    EXPECT_EQ(child->parentContragentID, 5);
    EXPECT_EQ(child->parentID, 3);
    holder->removeChild(child);
    EXPECT_EQ(child->parentContragentID, 0);
    EXPECT_EQ(child->parentID, 3);
}

TEST(TreeRecord, balancesAddAndSubtractToTheCent)
{
    Contragent record;
    record.addToBalance(Decimal::fromText(u"0.1"));
    record.addToBalance(Decimal::fromText(u"0.2"));
    EXPECT_EQ(record.innerBalance.toText(), u"0.3"_s);
    record.subtractFromBalance(Decimal::fromText(u"1.305"));
    EXPECT_EQ(record.innerBalance.toText(), u"-1"_s) << "-1.005 to the even cent";
}

} // namespace
} // namespace zelvor
