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

TEST(BaseView, aListenerIsToldAsLongAsItsOwnerLives)
{
    PlainTable view;
    int reloads = 0;
    auto owner = std::make_shared<int>();
    view.onReload(owner, [&] { ++reloads; });
    view.reloadData();
    EXPECT_EQ(reloads, 1);
    owner.reset();
    view.reloadData();
    EXPECT_EQ(reloads, 1);
}

TEST(BaseView, listenersWhoseOwnersWentDoNotPileUp)
{
    PlainTable view;
    QString told;
    view.onReload([&] { told += u'a'; });
    const auto stays = std::make_shared<int>();
    view.onReload(stays, [&] { told += u'b'; });
    for (int i = 0; i < 100; ++i)
        view.onReload(std::make_shared<int>(), [&] { told += u'x'; });
    view.onReload([&] { told += u'c'; });
    EXPECT_EQ(view.listenerCount(), 3U);
    view.reloadData();
    EXPECT_EQ(told, u"abc"_s);
}

TEST(BaseView, aListenerMayBringAnotherOneAndEndOneThatWaits)
{
    PlainTable view;
    QString told;
    auto waits = std::make_shared<int>();
    view.onReload([&] {
        told += u'a';
        waits.reset();
        view.onReload([&] { told += u'n'; });
    });
    view.onReload(waits, [&] { told += u'w'; });
    view.reloadData();
    EXPECT_EQ(told, u"a"_s);
    view.reloadData();
    EXPECT_EQ(told, u"aan"_s);
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
