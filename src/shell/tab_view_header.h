#pragma once

#include "core/colors.h"

#include <QtCore/QString>

#include <functional>
#include <optional>
#include <vector>

namespace zelvor {

// One drawn tab. Lengths are points.
struct TabViewHeaderTab {
    static constexpr double curveSize = 7.0; // of the shoulders
    static constexpr double curveDelta = 9.0;
    QString title;
    Color titleColor = blackColor;
    QString toolTip = {};
    int position = 0; // from 0
};

// The strip of tabs. All tabs together always fill its width. Draws nothing: whoever draws it hears
// onDisplay.
class TabViewHeader {
public:
    static constexpr double height = 32;
    static constexpr double tabHeight = 24;
    static constexpr double tabBottom = 1; // above the strip's lower edge
    static constexpr double titleFontSize = 11;
    static constexpr double titleLeft = 6; // insets of the title
    static constexpr double titleRight = 22;
    static constexpr double closeButtonRight = 13;

    std::optional<int> activTab;

    const std::vector<TabViewHeaderTab>& tabs() const { return m_tabs; } // in position order
    void setWidth(double width);
    double tabWidth() const;
    double leftEdge(int position) const { return position * tabWidth(); }
    // The tab under a distance from the left edge; -1 for none.
    int positionAt(double x) const;

    // The new tab is the active one. An empty title becomes "Tab #" and its position.
    void addTab(const QString& title, const Color& color, const QString& toolTip);
    void changeActivTab(int position);
    // The close button of the tab.
    void closePage(int position);
    void setTitle(int position, const QString& title, const Color& color);
    void removeAll();

    // Told by the strip to its tab control.
    std::function<void(int)> onActivate;
    std::function<void(int)> onClosed;
    std::function<void()> onDisplay;

private:
    void closedSubviewWithAtPosition(int position);
    void display() const;

    std::vector<TabViewHeaderTab> m_tabs;
    double m_width = 0;
};

// Which tab is active when one was closed and `left` are left: the last one when it was the active tab (0
// when none is left), otherwise the same as before at the place it has now.
std::optional<int> activeTabAfterClosing(std::optional<int> active, int closed, int left);

} // namespace zelvor
