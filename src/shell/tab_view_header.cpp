#include "shell/tab_view_header.h"

#include "core/localized.h"

#include <algorithm>

namespace zelvor {

void TabViewHeader::setWidth(double width)
{
    if (m_width == width)
        return;
    m_width = width;
    display();
}

double TabViewHeader::tabWidth() const
{
    return m_width / static_cast<double>(std::max<std::size_t>(m_tabs.size(), 1));
}

int TabViewHeader::positionAt(double x) const
{
    const auto tab = std::ranges::find_if(m_tabs, [&](const TabViewHeaderTab& candidate) {
        return x >= leftEdge(candidate.position) && x < leftEdge(candidate.position + 1);
    });
    return tab == m_tabs.end() ? -1 : tab->position;
}

void TabViewHeader::addTab(const QString& title, const Color& color, const QString& toolTip)
{
    const int position = static_cast<int>(m_tabs.size());
    const QString shown = title.isEmpty() ? localized("Tab #") + QString::number(position) : title;
    m_tabs.push_back({shown, color, toolTip, position});
    activTab = position;
    display();
}

void TabViewHeader::changeActivTab(int position)
{
    if (position < 0 || position >= static_cast<int>(m_tabs.size()))
        return;
    activTab = position;
    if (onActivate)
        onActivate(position);
    display();
}

void TabViewHeader::closePage(int position)
{
    if (position < 0 || position >= static_cast<int>(m_tabs.size()))
        return;
    m_tabs.erase(m_tabs.begin() + position);
    closedSubviewWithAtPosition(position);
}

void TabViewHeader::closedSubviewWithAtPosition(int position)
{
    for (TabViewHeaderTab& tab : m_tabs) {
        if (tab.position > position)
            --tab.position;
    }
    activTab = activeTabAfterClosing(activTab, position, static_cast<int>(m_tabs.size()));
    if (onClosed)
        onClosed(position);
    display();
}

void TabViewHeader::setTitle(int position, const QString& title, const Color& color)
{
    if (position < 0 || position >= static_cast<int>(m_tabs.size()))
        return;
    TabViewHeaderTab& tab = m_tabs[static_cast<std::size_t>(position)];
    if (tab.title == title && tab.titleColor == color)
        return;
    tab.title = title;
    tab.titleColor = color;
    display();
}

void TabViewHeader::removeAll()
{
    m_tabs.clear();
    activTab.reset();
    display();
}

void TabViewHeader::display() const
{
    if (onDisplay)
        onDisplay();
}

std::optional<int> activeTabAfterClosing(std::optional<int> active, int closed, int left)
{
    if (active == closed)
        return std::max(left - 1, 0);
    return active && *active > closed ? *active - 1 : active;
}

} // namespace zelvor
