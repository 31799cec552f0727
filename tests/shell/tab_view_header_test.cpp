#include "shell/tab_view_header.h"

#include <gtest/gtest.h>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

class TabStrip : public testing::Test {
protected:
    TabStrip()
    {
        header.setWidth(900);
        header.onClosed = [this](int position) { closed.push_back(position); };
        header.onActivate = [this](int position) { activated.push_back(position); };
    }
    void add(const QString& title) { header.addTab(title, blackColor, {}); }
    void addThree()
    {
        for (const QString& title : {u"a"_s, u"b"_s, u"c"_s})
            add(title);
    }
    QString titles() const
    {
        QString all;
        for (const TabViewHeaderTab& tab : header.tabs())
            all += tab.title;
        return all;
    }
    void expectPositionsInOrder() const
    {
        int position = 0;
        for (const TabViewHeaderTab& tab : header.tabs())
            EXPECT_EQ(tab.position, position++);
    }

    TabViewHeader header;
    std::vector<int> closed;
    std::vector<int> activated;
};

} // namespace

TEST_F(TabStrip, hasItsMeasures)
{
    EXPECT_EQ(TabViewHeader::height, 32);
    EXPECT_EQ(TabViewHeader::tabHeight, 24);
    EXPECT_EQ(TabViewHeader::tabBottom, 1);
    EXPECT_EQ(TabViewHeader::titleFontSize, 11);
    EXPECT_EQ(TabViewHeader::titleLeft, 6);
    EXPECT_EQ(TabViewHeader::titleRight, 22);
    EXPECT_EQ(TabViewHeader::closeButtonRight, 13);
    EXPECT_EQ(TabViewHeaderTab::curveSize, 7.0);
    EXPECT_EQ(TabViewHeaderTab::curveDelta, 9.0);
}

TEST_F(TabStrip, isFilledByItsTabsTogether)
{
    EXPECT_EQ(header.tabWidth(), 900);
    add(u"a"_s);
    EXPECT_EQ(header.tabWidth(), 900);
    add(u"b"_s);
    EXPECT_EQ(header.tabWidth(), 450);
    add(u"c"_s);
    EXPECT_EQ(header.tabWidth(), 300);
    EXPECT_EQ(header.leftEdge(2), 600);
    header.setWidth(600);
    EXPECT_EQ(header.tabWidth(), 200);
    EXPECT_EQ(header.leftEdge(1), 200);
    header.closePage(0);
    EXPECT_EQ(header.tabWidth(), 300);
    EXPECT_EQ(header.leftEdge(header.tabs().back().position), 300);
}

TEST_F(TabStrip, findsTheTabUnderAPlace)
{
    EXPECT_EQ(header.positionAt(10), -1);
    addThree();
    EXPECT_EQ(header.positionAt(-0.5), -1);
    EXPECT_EQ(header.positionAt(0), 0);
    EXPECT_EQ(header.positionAt(299.5), 0);
    EXPECT_EQ(header.positionAt(300), 1);
    EXPECT_EQ(header.positionAt(899), 2);
    EXPECT_EQ(header.positionAt(900), -1);
}

TEST_F(TabStrip, aNewTabIsActiveAndKeepsWhatItWasGiven)
{
    EXPECT_FALSE(header.activTab);
    header.addTab(u"Sale"_s, redColor, u"A sale"_s);
    EXPECT_EQ(header.activTab, 0);
    const TabViewHeaderTab& tab = header.tabs().front();
    EXPECT_EQ(tab.title, u"Sale"_s);
    EXPECT_EQ(tab.titleColor, redColor);
    EXPECT_EQ(tab.toolTip, u"A sale"_s);
    add(u"b"_s);
    EXPECT_EQ(header.activTab, 1);
}

TEST_F(TabStrip, aTabWithoutATitleIsNamedByItsPosition)
{
    add(u"a"_s);
    add({});
    EXPECT_EQ(header.tabs().back().title, u"Tab #1"_s);
    EXPECT_EQ(header.tabs().back().titleColor, blackColor);
}

TEST_F(TabStrip, aClickActivatesATabAndTellsWhoHoldsTheStrip)
{
    addThree();
    header.changeActivTab(1);
    EXPECT_EQ(header.activTab, 1);
    EXPECT_EQ(activated, std::vector<int>{1});
    header.changeActivTab(3);
    header.changeActivTab(-1);
    EXPECT_EQ(header.activTab, 1);
    EXPECT_EQ(activated.size(), 1U);
}

TEST_F(TabStrip, closingTheOnlyTabLeavesPositionZeroActiveWithoutATab)
{
    add(u"a"_s);
    header.closePage(0);
    EXPECT_TRUE(header.tabs().empty());
    EXPECT_EQ(header.activTab, 0);
    EXPECT_EQ(closed, std::vector<int>{0});
}

TEST_F(TabStrip, closingATabToTheLeftKeepsTheSameTabActiveOnePlaceLower)
{
    addThree();
    header.changeActivTab(1);
    header.closePage(0);
    EXPECT_EQ(header.activTab, 0);
    EXPECT_EQ(titles(), u"bc"_s);
    expectPositionsInOrder();
}

TEST_F(TabStrip, closingATabToTheRightLeavesTheActiveOneWhereItIs)
{
    addThree();
    header.changeActivTab(0);
    header.closePage(1);
    EXPECT_EQ(header.activTab, 0);
    EXPECT_EQ(titles(), u"ac"_s);
    expectPositionsInOrder();
}

TEST_F(TabStrip, closingTheActiveTabActivatesTheLastAndNotANeighbour)
{
    addThree();
    add(u"d"_s);
    header.changeActivTab(0);
    header.closePage(0);
    EXPECT_EQ(header.activTab, 2);
    EXPECT_EQ(titles(), u"bcd"_s);
    header.closePage(2);
    EXPECT_EQ(header.activTab, 1);
}

TEST_F(TabStrip, aPlaceWithoutATabClosesNothing)
{
    addThree();
    header.closePage(3);
    header.closePage(-1);
    EXPECT_EQ(titles(), u"abc"_s);
    EXPECT_TRUE(closed.empty());
}

TEST_F(TabStrip, isDrawnAnewForEveryChangeAndOnlyThen)
{
    int drawn = 0;
    header.onDisplay = [&drawn] { ++drawn; };
    addThree();
    EXPECT_EQ(drawn, 3);
    header.setTitle(1, u"b"_s, blackColor);
    header.setWidth(900);
    EXPECT_EQ(drawn, 3);
    header.setTitle(1, u"B"_s, redColor);
    EXPECT_EQ(titles(), u"aBc"_s);
    EXPECT_EQ(header.tabs()[1].titleColor, redColor);
    header.setTitle(3, u"none"_s, redColor);
    header.setTitle(-1, u"none"_s, redColor);
    EXPECT_EQ(drawn, 4);
    header.changeActivTab(0);
    header.closePage(0);
    header.setWidth(500);
    header.removeAll();
    EXPECT_EQ(drawn, 8);
    EXPECT_TRUE(header.tabs().empty());
    EXPECT_FALSE(header.activTab);
}

} // namespace zelvor
