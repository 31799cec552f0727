#include "core/view.h"

#include <gtest/gtest.h>

using namespace zelvor;
using namespace Qt::Literals::StringLiterals;

namespace {

class PlainTable : public TableView {
public:
    PlainTable() : TableView(u"Units"_s, catalogTitleColor) {}
    std::vector<ViewColumn> columns() const override { return {}; }
    int numberOfRows() const override { return 0; }
    QVariant value(int, const QString&) const override { return QString(); }
};

class PlainTree : public OutlineView {
public:
    PlainTree() : OutlineView(u"Products"_s, catalogTitleColor) {}
    std::vector<ViewColumn> columns() const override { return {}; }
    int numberOfChildren(const Node& node) const override { return node ? 0 : 2; }
    Node child(const Node&, int) const override { return {}; }
    Node parent(const Node&) const override { return {}; }
    bool isGroupItem(const Node&) const override { return false; }
    QVariant value(const Node&, const QString&) const override { return QString(); }
    bool isItemExpanded(const Node&) const override { return false; }
    void setItemExpanded(const Node&, bool) override {}
};

} // namespace

TEST(BaseView, aNewTitleOrColourIsToldOnceToWhoeverShowsTheView)
{
    PlainTable view;
    int reloads = 0;
    view.onReload([&] { ++reloads; });
    view.setName(u"Units of measure"_s);
    view.setTitleColor(redColor);
    view.setGroundColor(reportGroundColor);
    EXPECT_EQ(reloads, 3);
    view.setName(u"Units of measure"_s);
    view.setTitleColor(redColor);
    view.setGroundColor(reportGroundColor);
    EXPECT_EQ(reloads, 3);
    EXPECT_EQ(view.name(), u"Units of measure"_s);
    EXPECT_EQ(view.titleColor(), redColor);
}

TEST(BaseView, aNewViewIsNotInTheTabStripAndNotVisible)
{
    const PlainTable view;
    EXPECT_EQ(view.index(), -1);
    EXPECT_FALSE(view.isVisible());
    EXPECT_FALSE(view.canExportToExcel());
}

TEST(TableView, aPlainListRefusesEdits)
{
    PlainTable view;
    EXPECT_FALSE(view.setValue(0, u"name"_s, u"kg"_s));
    EXPECT_EQ(view.cellStyle(0, u"name"_s).font, CellFont::Plain);
    EXPECT_EQ(view.selectedRow(), -1);
}

TEST(OutlineView, aPlainTreeRefusesEditsAndDrops)
{
    PlainTree view;
    EXPECT_FALSE(view.setValue({}, u"name"_s, u"x"_s));
    EXPECT_TRUE(view.pasteboardText({}).isEmpty());
    EXPECT_FALSE(view.validateDrop(u"1"_s, {}));
    EXPECT_FALSE(view.acceptDrop(u"1"_s, {}));
}

TEST(OutlineView, anItemIsExpandableWhenItHasChildren)
{
    const PlainTree view;
    EXPECT_TRUE(view.isItemExpandable({}));
    EXPECT_FALSE(view.isItemExpandable(std::make_shared<TableModel>()));
}
