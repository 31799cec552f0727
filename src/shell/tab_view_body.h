#pragma once

#include "shell/tab_page.h"

#include <optional>
#include <vector>

namespace zelvor {

// The stack of pages under the strip, in position order. Only the active page's view is visible.
class TabViewBody {
public:
    TabViewBody() = default;
    ~TabViewBody();
    TabViewBody(const TabViewBody&) = delete;
    TabViewBody& operator=(const TabViewBody&) = delete;

    std::optional<int> activTab;

    const std::vector<TabPage>& pages() const { return m_pages; }
    void addPage(TabPage page); // the new page is the active one
    void changeActiveTab(int position);
    // Answers the page taken out; its view was told didRemoveFromSuperView and has no place any more.
    TabPage closeTabAtPosition(int position);
    void removeAll();

private:
    void showActivePage();
    static void leaveStack(BaseView& view);

    std::vector<TabPage> m_pages;
};

} // namespace zelvor
