#pragma once

#include "shell/tab_page.h"

#include <QtWidgets/QStackedWidget>

#include <unordered_map>

namespace zelvor {

class MainViewController;
class Page;
class StartPage;

// The pages under the tabs, one widget for each; with no tab the start page. Pages of permanent views stay
// when their tab goes, those of documents and reports go with it.
class PageStack : public QStackedWidget {
    Q_OBJECT

public:
    explicit PageStack(MainViewController& workspace, QWidget* parent = nullptr);

    // Null while no page is open.
    Page* activePage() const;
    // Follows the tabs: makes what is new, drops what is gone, shows the active one.
    void followTabs();
    // The cursor goes to where work starts.
    void takeFocus();

private:
    Page* pageOf(const TabPage& page);
    void dropClosedPages();

    MainViewController& m_workspace;
    StartPage* m_startPage;
    std::unordered_map<const BaseView*, Page*> m_permanent;
    std::unordered_map<const BaseView*, Page*> m_passing;
};

} // namespace zelvor
