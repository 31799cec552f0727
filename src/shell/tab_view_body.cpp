#include "shell/tab_view_body.h"

#include "shell/tab_view_header.h"

#include <utility>

namespace zelvor {

// A permanent view outlives the stack; to it, it is a view that is not shown.
TabViewBody::~TabViewBody()
{
    for (const TabPage& page : m_pages)
        page.view->setIndex(-1);
}

void TabViewBody::addPage(TabPage page)
{
    m_pages.push_back(std::move(page));
    changeActiveTab(static_cast<int>(m_pages.size()) - 1);
}

void TabViewBody::changeActiveTab(int position)
{
    activTab = position;
    showActivePage();
}

TabPage TabViewBody::closeTabAtPosition(int position)
{
    if (position < 0 || position >= static_cast<int>(m_pages.size()))
        return {};
    TabPage page = m_pages[static_cast<std::size_t>(position)];
    m_pages.erase(m_pages.begin() + position);
    leaveStack(*page.view);
    activTab = activeTabAfterClosing(activTab, position, static_cast<int>(m_pages.size()));
    showActivePage();
    return page;
}

void TabViewBody::removeAll()
{
    const std::vector<TabPage> pages = std::exchange(m_pages, {});
    activTab.reset();
    for (const TabPage& page : pages)
        leaveStack(*page.view);
}

void TabViewBody::leaveStack(BaseView& view)
{
    view.setVisible(false);
    view.setIndex(-1);
    view.didRemoveFromSuperView();
}

void TabViewBody::showActivePage()
{
    for (std::size_t position = 0; position < m_pages.size(); ++position)
        m_pages[position].view->setVisible(activTab == static_cast<int>(position));
}

} // namespace zelvor
