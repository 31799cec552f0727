#pragma once

#include "shell/tab_view_body.h"
#include "shell/tab_view_header.h"

#include <functional>
#include <optional>

namespace zelvor {

// The hand-made tab control: a strip of tabs above a stack of pages, kept in step by position.
class CustomTabView {
public:
    // Told when a page has gone.
    class Delegate {
    public:
        virtual ~Delegate() = default;
        virtual void removedPageAtIndex(int index) = 0;
    };

    CustomTabView();
    CustomTabView(const CustomTabView&) = delete;
    CustomTabView& operator=(const CustomTabView&) = delete;

    TabViewHeader header;
    TabViewBody body;
    Delegate* delegate = nullptr;
    // Pages were added, taken out or changed places, or another one is active.
    std::function<void()> onPagesChanged;

    // The new page is active. Title and colour are the view's while the tab stands.
    void addPageWithView(TabPage page, const QString& title, const QString& toolTip);
    void changeActiveTab(int position);
    void closeTabAtPosition(int position);
    void removeAll();
    void updateIndexies();
    void openExistingTab(int position);
    void sendCloseToHeaderTab(int position);
    void updateTitleAtHeaderTabAtIndex(int index, const QString& newTitle, const Color& newColor);
    // The place of an open document form: "Product", "Money", or any other text for a fixed asset.
    std::optional<int> hasViewOfType(const QString& type, qint64 docID) const;
    // None while no page is open.
    const TabPage* activePage() const;
    bool canExportActiveViewToExel() const;

private:
    void followTitle(BaseView& view, bool isPermanent);
    void pagesChanged() const;

    std::vector<const BaseView*> m_heardViews; // permanent ones
};

} // namespace zelvor
