#include "shell/custom_tab_view.h"

#include "documents/money_document_view_controller.h"
#include "documents/product_document_view_controller.h"
#include "documents/property_document_view_controller.h"
#include "support/books.h"

#include <gtest/gtest.h>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

class PlainView final : public BaseView {
public:
    explicit PlainView(const QString& name, bool exports = false)
        : BaseView(name, catalogTitleColor), m_exports(exports)
    {}
    bool canExportToExcel() const override { return m_exports; }
    void didRemoveFromSuperView() override { ++removed; }
    int removed = 0;

private:
    bool m_exports;
};

class Tabs : public testing::Test, public CustomTabView::Delegate {
protected:
    Tabs()
    {
        tabs.delegate = this;
        tabs.onPagesChanged = [this] { ++changes; };
    }
    void removedPageAtIndex(int index) override
    {
        removed.push_back(index);
        pagesWhenTold = static_cast<int>(tabs.body.pages().size());
    }
    void open(PlainView& view) { tabs.addPageWithView({&view}, view.name(), view.tip()); }
    void openAll()
    {
        for (PlainView* view : {&a, &b, &c})
            open(*view);
    }
    // Strip and stack say the same, and each page knows its place.
    void expectInStep() const
    {
        const auto& pages = tabs.body.pages();
        ASSERT_EQ(tabs.header.tabs().size(), pages.size());
        EXPECT_EQ(tabs.header.activTab, tabs.body.activTab);
        for (std::size_t i = 0; i < pages.size(); ++i) {
            const int position = static_cast<int>(i);
            EXPECT_EQ(pages[i].view->index(), position);
            EXPECT_EQ(tabs.header.tabs()[i].position, position);
            EXPECT_EQ(tabs.header.tabs()[i].title, pages[i].view->name());
            EXPECT_EQ(pages[i].view->isVisible(), tabs.body.activTab == position);
        }
    }
    const BaseView* active() const
    {
        const TabPage* page = tabs.activePage();
        return page ? page->view : nullptr;
    }

    PlainView a{u"a"_s};
    PlainView b{u"b"_s, true};
    PlainView c{u"c"_s};
    CustomTabView tabs;
    std::vector<int> removed;
    int pagesWhenTold = -1;
    int changes = 0;
};

} // namespace

TEST_F(Tabs, aNewPageIsActiveAndTheOnlyVisibleOne)
{
    EXPECT_EQ(active(), nullptr);
    openAll();
    EXPECT_EQ(active(), &c);
    expectInStep();
    EXPECT_EQ(changes, 3);
}

TEST_F(Tabs, aClickOnTheStripShowsThatPage)
{
    openAll();
    tabs.header.changeActivTab(0);
    EXPECT_EQ(active(), &a);
    expectInStep();
    tabs.openExistingTab(1);
    EXPECT_EQ(active(), &b);
    expectInStep();
    EXPECT_EQ(changes, 5);
}

TEST_F(Tabs, closingTheOnlyTabLeavesAnEmptyStripWithPositionZeroActive)
{
    open(a);
    tabs.sendCloseToHeaderTab(0);
    expectInStep();
    EXPECT_TRUE(tabs.header.tabs().empty());
    EXPECT_EQ(tabs.body.activTab, 0);
    EXPECT_EQ(active(), nullptr);
    EXPECT_FALSE(tabs.canExportActiveViewToExel());
}

TEST_F(Tabs, closingATabToTheLeftKeepsTheSamePageActive)
{
    openAll();
    tabs.openExistingTab(1);
    tabs.sendCloseToHeaderTab(0);
    EXPECT_EQ(active(), &b);
    EXPECT_EQ(tabs.body.activTab, 0);
    expectInStep();
}

TEST_F(Tabs, closingTheActiveTabActivatesTheLastPage)
{
    PlainView d(u"d"_s);
    openAll();
    open(d);
    tabs.openExistingTab(0);
    tabs.sendCloseToHeaderTab(0);
    EXPECT_EQ(active(), &d);
    expectInStep();
    tabs.removeAll(); // d is gone before the strip is
}

TEST_F(Tabs, aPageTakenOutIsToldAndHasNoPlaceAnyMore)
{
    openAll();
    tabs.sendCloseToHeaderTab(1);
    EXPECT_EQ(b.index(), -1);
    EXPECT_FALSE(b.isVisible());
    EXPECT_EQ(b.removed, 1);
    EXPECT_EQ(removed, std::vector<int>{1});
    EXPECT_EQ(pagesWhenTold, 2); // told when the page has gone
    expectInStep();
    open(b);
    EXPECT_EQ(b.index(), 2);
    expectInStep();
}

TEST_F(Tabs, afterEveryCloseEachPageKnowsItsPlace)
{
    for (const int active : {0, 1, 2}) {
        for (const int closed : {0, 1, 2}) {
            openAll();
            tabs.openExistingTab(active);
            tabs.sendCloseToHeaderTab(closed);
            expectInStep();
            tabs.removeAll();
        }
    }
}

TEST_F(Tabs, removingAllEmptiesStripAndStack)
{
    openAll();
    tabs.removeAll();
    expectInStep();
    EXPECT_TRUE(tabs.body.pages().empty());
    EXPECT_FALSE(tabs.header.activTab);
    for (const PlainView* view : {&a, &b, &c}) {
        EXPECT_EQ(view->index(), -1);
        EXPECT_FALSE(view->isVisible());
        EXPECT_EQ(view->removed, 1);
    }
    EXPECT_TRUE(removed.empty());
}

TEST_F(Tabs, aTabFollowsTheNameAndTheColourOfItsView)
{
    openAll();
    b.setName(u"Sale #7"_s);
    b.setTitleColor(redColor);
    EXPECT_EQ(tabs.header.tabs()[1].title, u"Sale #7"_s);
    EXPECT_EQ(tabs.header.tabs()[1].titleColor, redColor);
    EXPECT_EQ(tabs.header.tabs()[0].title, u"a"_s);
}

TEST_F(Tabs, aTabFollowsAViewThatWasClosedAndOpenedAgain)
{
    openAll();
    tabs.sendCloseToHeaderTab(0);
    a.setName(u"elsewhere"_s); // nobody shows it
    EXPECT_EQ(tabs.header.tabs()[0].title, u"b"_s);
    open(a);
    int drawn = 0;
    tabs.header.onDisplay = [&drawn] { ++drawn; };
    a.setName(u"again"_s);
    EXPECT_EQ(tabs.header.tabs()[2].title, u"again"_s);
    EXPECT_EQ(drawn, 1);
    expectInStep();
}

TEST_F(Tabs, theActivePageSaysWhetherItCanBeExported)
{
    openAll();
    EXPECT_FALSE(tabs.canExportActiveViewToExel());
    tabs.openExistingTab(1);
    EXPECT_TRUE(tabs.canExportActiveViewToExel());
}

TEST_F(Tabs, aPermanentViewOutlivesTheStrip)
{
    {
        CustomTabView other;
        other.addPageWithView({&a}, u"a"_s, {});
        EXPECT_EQ(a.index(), 0);
    }
    EXPECT_EQ(a.index(), -1);
    a.setName(u"alone"_s);
}

TEST_F(Tabs, anOpenDocumentIsFoundByItsKindAndItsNumberInTheFile)
{
    Books books;
    const auto openForm = [this](auto controller) {
        BaseView& view = controller->mainView;
        tabs.addPageWithView({&view, controller}, view.name(), {});
    };
    const auto withID = [](auto document, qint64 id) {
        document->id = id;
        return document;
    };
    open(a);
    openForm(std::make_shared<ProductDocumentViewController>(books.appDelegate,
                                                             withID(std::make_shared<ProductDocument>(), 5)));
    openForm(std::make_shared<MoneyDocumentViewController>(books.appDelegate,
                                                           withID(std::make_shared<MoneyDocument>(), 5)));
    openForm(std::make_shared<PropertyDocumentViewController>(
        books.appDelegate, withID(std::make_shared<PropertyDocument>(), 6)));
    EXPECT_EQ(tabs.hasViewOfType(u"Product"_s, 5), 1);
    EXPECT_EQ(tabs.hasViewOfType(u"Money"_s, 5), 2);
    EXPECT_EQ(tabs.hasViewOfType(u"Property"_s, 6), 3);
    EXPECT_EQ(tabs.hasViewOfType(u"anything else"_s, 6), 3);
    EXPECT_FALSE(tabs.hasViewOfType(u"Property"_s, 5));
    EXPECT_FALSE(tabs.hasViewOfType(u"Product"_s, 6));
    tabs.sendCloseToHeaderTab(1);
    EXPECT_FALSE(tabs.hasViewOfType(u"Product"_s, 5));
    EXPECT_EQ(tabs.hasViewOfType(u"Money"_s, 5), 1);
    tabs.removeAll();
}

} // namespace zelvor
