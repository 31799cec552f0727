#include "desktop/tab_strip.h"

#include "desktop/theme.h"

#include <gtest/gtest.h>

#include <QtGui/QAccessible>
#include <QtGui/QHelpEvent>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QToolTip>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

class Strip : public testing::Test {
protected:
    Strip()
    {
        header.onClosed = {};
        header.addTab(u"Products Catalog"_s, catalogTitleColor, u"All <products>"_s);
        header.addTab(u"Sale #37 (write)"_s, redColor, {});
        header.addTab(u"Balance"_s, reportTitleColor, {});
        strip.resize(600, 32);
        strip.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&strip));
        strip.clearFocus();
    }
    void click(const QPointF& point, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(&strip, button, {}, point.toPoint());
    }
    QAccessibleInterface* accessible() { return QAccessible::queryAccessibleInterface(&strip); }

    TabViewHeader header;
    TabStrip strip{header};
    QSignalSpy closeRequests{&strip, &TabStrip::closeRequested};
};

TEST_F(Strip, standsToItsMeasures)
{
    EXPECT_EQ(strip.height(), 32);
    EXPECT_EQ(strip.tabRect(0), QRectF(0, 7, 200, 24));
    EXPECT_EQ(strip.tabRect(2), QRectF(400, 7, 200, 24));
    EXPECT_EQ(strip.titleRect(1), QRectF(206, 13, 172, 14)); // 6 from the left, 22 from the right, 4 above
    EXPECT_EQ(strip.closeButtonRect(1).center(), QPointF(387, 19)); // 13 from the right
}

TEST_F(Strip, isAlwaysFilledByItsTabs)
{
    strip.resize(900, 32);
    EXPECT_EQ(strip.tabRect(1), QRectF(300, 7, 300, 24));
    header.addTab(u"Units"_s, catalogTitleColor, {});
    EXPECT_EQ(strip.tabRect(3), QRectF(675, 7, 225, 24));
}

TEST_F(Strip, showsTheTabThatIsClicked)
{
    click(strip.tabRect(0).center());
    EXPECT_EQ(strip.activeTab(), 0);
    click({500, 20});
    EXPECT_EQ(strip.activeTab(), 2);
    EXPECT_EQ(closeRequests.count(), 0);
}

TEST_F(Strip, asksToCloseTheTabWhoseCrossIsClicked)
{
    click(strip.closeButtonRect(1).center());
    ASSERT_EQ(closeRequests.count(), 1);
    EXPECT_EQ(closeRequests.front().front().toInt(), 1);
    EXPECT_EQ(strip.activeTab(), 2); // the close button does not select
}

TEST_F(Strip, asksToCloseTheTabUnderAMiddleClick)
{
    click({50, 20}, Qt::MiddleButton);
    ASSERT_EQ(closeRequests.count(), 1);
    EXPECT_EQ(closeRequests.front().front().toInt(), 0);
}

TEST_F(Strip, takesAPressBackThatIsLetGoElsewhere)
{
    QTest::mousePress(&strip, Qt::LeftButton, {}, strip.closeButtonRect(1).center().toPoint());
    QTest::mouseRelease(&strip, Qt::LeftButton, {}, strip.closeButtonRect(0).center().toPoint());
    EXPECT_EQ(closeRequests.count(), 0);
    EXPECT_EQ(strip.activeTab(), 2);
}

TEST_F(Strip, isWalkedAlongByKeys)
{
    strip.setFocus();
    QTest::keyClick(&strip, Qt::Key_Left);
    EXPECT_EQ(strip.activeTab(), 1);
    QTest::keyClick(&strip, Qt::Key_Home);
    EXPECT_EQ(strip.activeTab(), 0);
    QTest::keyClick(&strip, Qt::Key_Left);
    EXPECT_EQ(strip.activeTab(), 0);
    QTest::keyClick(&strip, Qt::Key_Right);
    EXPECT_EQ(strip.activeTab(), 1);
    QTest::keyClick(&strip, Qt::Key_End);
    EXPECT_EQ(strip.activeTab(), 2);
    QTest::keyClick(&strip, Qt::Key_Delete);
    ASSERT_EQ(closeRequests.count(), 1);
    EXPECT_EQ(closeRequests.front().front().toInt(), 2);
}

TEST_F(Strip, showsWhereTheFocusIs)
{
    const QImage before = strip.grab().toImage();
    strip.activateWindow();
    strip.setFocus();
    ASSERT_TRUE(QTest::qWaitFor([this] { return strip.hasFocus(); }));
    EXPECT_NE(strip.grab().toImage(), before);
}

TEST_F(Strip, drawsTheActiveTabLighter)
{
    const QImage image = strip.grab().toImage();
    const double scale = image.devicePixelRatio();
    const auto level = [&](double x, double y) {
        return image.pixelColor(static_cast<int>(x * scale), static_cast<int>(y * scale)).lightnessF();
    };
    for (const double y : {10.0, 27.0})
        EXPECT_GT(level(560, y), level(160, y) + 0.05);
    EXPECT_NEAR(level(560, 28), 0.92, 0.02);
    EXPECT_NEAR(level(160, 28), 0.81, 0.02);
}

TEST_F(Strip, drawsTitlesThatCanBeReadInLightAndDark)
{
    for (const Appearance appearance : {Appearance::Light, Appearance::Dark}) {
        applyAppearance(*qApp, appearance);
        const QImage image = strip.grab().toImage();
        for (int tab = 0; tab < 3; ++tab) {
            const QRect title = strip.titleRect(tab).toRect();
            double best = 0; // of the strokes' middles; their edges are blended
            const QColor ground = image.pixelColor(title.right(), title.center().y());
            for (int x = title.left(); x < title.right(); ++x) {
                for (int y = title.top(); y < title.bottom(); ++y)
                    best = std::max(best, contrast(image.pixelColor(x, y), ground));
            }
            EXPECT_GE(best, 4.2) << tab; // small strokes seldom cover a pixel whole
        }
    }
    applyAppearance(*qApp, Appearance::Light);
}

TEST_F(Strip, tellsTheTipOfATabAsPlainText)
{
    const QPoint point = strip.tabRect(0).center().toPoint();
    QHelpEvent help(QEvent::ToolTip, point, strip.mapToGlobal(point));
    QApplication::sendEvent(&strip, &help);
    EXPECT_EQ(QToolTip::text(), u"All &lt;products&gt;"_s);
    const QPoint second = strip.tabRect(1).center().toPoint();
    QHelpEvent another(QEvent::ToolTip, second, strip.mapToGlobal(second));
    QApplication::sendEvent(&strip, &another);
    EXPECT_EQ(QToolTip::text(), u"Sale #37 (write)"_s);
    QToolTip::hideText();
}

// --- screen readers

TEST_F(Strip, isAListOfTabsToAScreenReader)
{
    QAccessibleInterface* const list = accessible();
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->role(), QAccessible::PageTabList);
    EXPECT_EQ(list->text(QAccessible::Name), u"Open pages"_s);
    ASSERT_EQ(list->childCount(), 3);
    QAccessibleInterface* const tab = list->child(1);
    EXPECT_EQ(tab->role(), QAccessible::PageTab);
    EXPECT_EQ(tab->text(QAccessible::Name), u"Sale #37 (write)"_s);
    EXPECT_EQ(tab->parent(), list);
    EXPECT_EQ(list->indexOfChild(tab), 1);
    EXPECT_FALSE(tab->state().selected);
    EXPECT_TRUE(list->child(2)->state().selected);
    EXPECT_EQ(list->child(0)->text(QAccessible::Description), u"All <products>"_s);
}

TEST_F(Strip, tellsAScreenReaderWhereATabStands)
{
    const QPoint corner = strip.mapToGlobal(QPoint(200, 7));
    EXPECT_EQ(accessible()->child(1)->rect(), QRect(corner, QSize(200, 24)));
    EXPECT_EQ(accessible()->childAt(corner.x() + 5, corner.y() + 5), accessible()->child(1));
}

TEST_F(Strip, letsAScreenReaderSelectAndCloseATab)
{
    QAccessibleActionInterface* const actions = accessible()->child(0)->actionInterface();
    ASSERT_NE(actions, nullptr);
    EXPECT_EQ(actions->actionNames().size(), 2);
    actions->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(strip.activeTab(), 0);
    actions->doAction(u"Close"_s);
    ASSERT_EQ(closeRequests.count(), 1);
    EXPECT_EQ(closeRequests.front().front().toInt(), 0);
}

TEST_F(Strip, tellsAScreenReaderThatATabIsGone)
{
    QAccessibleInterface* const last = accessible()->child(2);
    EXPECT_TRUE(last->isValid());
    header.closePage(2);
    EXPECT_FALSE(last->isValid());
    EXPECT_TRUE(last->text(QAccessible::Name).isEmpty());
    EXPECT_EQ(accessible()->childCount(), 2);
    EXPECT_EQ(accessible()->child(2), nullptr);
}

} // namespace zelvor
