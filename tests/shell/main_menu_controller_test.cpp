#include "shell/main_menu_controller.h"

#include "shell/main_view_controller.h"
#include "shell/project_creation.h"
#include "store/menu.h"
#include "support/test_project.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

class MainMenu : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(createProject(program.appDelegate.connector, program.file(u"shop.pdb"_s), 1));
        menu.prepareMainMenu();
        menu.onReload = [this] { ++reloads; };
    }
    const MainMenuItem& group(DocType type) const
    {
        const auto found = std::ranges::find(menu.sourceListItems, type, &MainMenuItem::type);
        EXPECT_NE(found, menu.sourceListItems.end());
        return **found;
    }
    const MainMenuItem& item(DocType type) const
    {
        const MainMenuItem& holder = group(docTypeMenuGroup(type));
        const auto found = std::ranges::find(holder.children, type, &MainMenuItem::type);
        EXPECT_NE(found, holder.children.end());
        return **found;
    }

    TestProgram program;
    MainViewController main{program.appDelegate};
    MainMenuController menu{program.appDelegate, main};
    int reloads = 0;
};

} // namespace

TEST_F(MainMenu, isTheTableOfTheProject)
{
    ASSERT_EQ(menu.sourceListItems.size(), 6U);
    const auto row = program.appDelegate.connector.select<Menu>(rawValue(DocType::SellProduct));
    EXPECT_EQ(item(DocType::SellProduct).title, row->name);
    std::size_t entries = 0;
    for (const auto& header : menu.sourceListItems) {
        EXPECT_TRUE(header->isHeader());
        EXPECT_TRUE(header->hasChildren());
        entries += 1 + header->children.size();
        for (const auto& child : header->children) {
            EXPECT_EQ(child->identifier, u"item"_s);
            EXPECT_FALSE(child->hasChildren());
            EXPECT_EQ(docTypeMenuGroup(child->type), header->type);
            EXPECT_EQ(child->icon, docTypeImage(child->type));
            EXPECT_TRUE(child->hasIcon());
        }
    }
    EXPECT_EQ(entries, 49U);
    EXPECT_FALSE(menu.selectedItem);
}

TEST_F(MainMenu, groupsHaveTheirOwnIcons)
{
    EXPECT_EQ(group(DocType::Money).icon, u"money"_s);
    EXPECT_EQ(group(DocType::Products).icon, u"product"_s);
    EXPECT_EQ(group(DocType::PropertyGroup).icon, u"property"_s);
    EXPECT_EQ(group(DocType::Reports).icon, u"report"_s);
    EXPECT_EQ(group(DocType::Organization).icon, u"company"_s);
    EXPECT_EQ(group(DocType::Catalogs).icon, u"catalog"_s);
}

TEST_F(MainMenu, aRowBeyondTheKnownEntriesIsLeftOut)
{
    Menu unknown;
    unknown.name = u"Something new"_s;
    unknown.parentID = rawValue(DocType::Money);
    ASSERT_EQ(program.appDelegate.connector.insert(unknown), 1);
    ASSERT_EQ(unknown.id, 50);
    const std::size_t before = group(DocType::Money).children.size();
    menu.prepareMainMenu();
    EXPECT_EQ(group(DocType::Money).children.size(), before);
    EXPECT_EQ(menu.sourceListItems.size(), 6U);
}

TEST_F(MainMenu, aClickOnAnEntryOpensIt)
{
    menu.menuItemClicked(item(DocType::ProductCatalog));
    EXPECT_EQ(main.openedView.size(), 1U);
}

TEST_F(MainMenu, aClickOnAHeaderDoesNothing)
{
    main.setStateString(u"as it was"_s);
    for (const auto& header : menu.sourceListItems)
        menu.menuItemClicked(*header);
    EXPECT_TRUE(main.openedView.empty());
    EXPECT_EQ(main.stateField.text(), u"as it was"_s);
}

TEST_F(MainMenu, allGroupsOpenAndCloseTogether)
{
    const auto count = [this] {
        return std::ranges::count_if(menu.sourceListItems, [](const auto& item) { return item->expanded; });
    };
    EXPECT_EQ(count(), 6);
    menu.collapseAll();
    EXPECT_EQ(count(), 0);
    menu.expandAll();
    EXPECT_EQ(count(), 6);
    EXPECT_EQ(reloads, 2);
}

TEST_F(MainMenu, knowsTheGroupOfAnEntryButForTwoAndTheCatalogs)
{
    for (int raw = 0; raw < docTypeCount; ++raw) {
        const DocType type = *typeFromInt(raw);
        std::optional<DocType> expected;
        if ((raw >= 2 && raw <= 7) || raw == 9)
            expected = DocType::Money;
        else if (raw >= 11 && raw <= 18)
            expected = DocType::Products;
        else if (raw >= 20 && raw <= 24)
            expected = DocType::PropertyGroup;
        else if (raw >= 26 && raw <= 35)
            expected = DocType::Reports;
        EXPECT_EQ(menu.groupOf(type), expected) << raw;
    }
}

TEST_F(MainMenu, opensTheGroupThatHoldsAnEntry)
{
    menu.collapseAll();
    menu.expandRow(DocType::SellProduct);
    EXPECT_TRUE(group(DocType::Products).expanded);
    EXPECT_FALSE(group(DocType::Money).expanded);
    menu.expandRow(DocType::MoneyAdd); // stands in a group, yet none is found for it
    EXPECT_FALSE(group(DocType::Money).expanded);
    EXPECT_EQ(reloads, 2);
}

TEST_F(MainMenu, selectsAnEntryByItsKind)
{
    menu.selectItem(DocType::StockCatalog);
    ASSERT_TRUE(menu.selectedItem);
    EXPECT_EQ(menu.selectedItem->type, DocType::StockCatalog);
    menu.selectItem(DocType::NilType);
    EXPECT_EQ(menu.selectedItem->type, DocType::StockCatalog);
    EXPECT_EQ(reloads, 1);
}

TEST_F(MainMenu, anotherProjectHasItsOwnMenu)
{
    menu.selectItem(DocType::SellProduct);
    ASSERT_TRUE(createProject(program.appDelegate.connector, program.file(u"other.pdb"_s), 1));
    const auto row = program.appDelegate.connector.select<Menu>(rawValue(DocType::SellProduct));
    row->name = u"Sell!"_s;
    ASSERT_EQ(program.appDelegate.connector.update(*row), 1);
    menu.prepareMainMenu();
    EXPECT_EQ(menu.sourceListItems.size(), 6U);
    EXPECT_EQ(item(DocType::SellProduct).title, u"Sell!"_s);
    EXPECT_FALSE(menu.selectedItem);
}

} // namespace zelvor
