#include "desktop/page_stack.h"

#include "desktop/page.h"
#include "desktop/page_factory.h"
#include "desktop/start_page.h"
#include "shell/main_view_controller.h"

#include <unordered_set>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

PageStack::PageStack(MainViewController& workspace, QWidget* parent)
    : QStackedWidget(parent), m_workspace(workspace), m_startPage(new StartPage(workspace, this))
{
    setObjectName(u"pages"_s);
    addWidget(m_startPage);
}

Page* PageStack::activePage() const
{
    return qobject_cast<Page*>(currentWidget());
}

Page* PageStack::pageOf(const TabPage& page)
{
    Page*& made = (page.controller ? m_passing : m_permanent)[page.view];
    if (made)
        return made;
    made = makePage(page, m_workspace, this);
    if (!made)
        return nullptr;
    addWidget(made);
    // The page's widgets speak to the controller to their end, and that comes after the tab's.
    connect(made, &QObject::destroyed, [keep = page.controller] {});
    return made;
}

// A page may be closed by one of its own buttons, so it goes when that has returned.
void PageStack::dropClosedPages()
{
    std::unordered_set<const BaseView*> open;
    for (const TabPage& page : m_workspace.tabView.body.pages())
        open.insert(page.view);
    for (auto entry = m_passing.begin(); entry != m_passing.end();) {
        if (open.contains(entry->first)) {
            ++entry;
            continue;
        }
        if (Page* const page = entry->second) {
            page->hide();
            removeWidget(page);
            page->deleteLater();
        }
        entry = m_passing.erase(entry);
    }
}

void PageStack::followTabs()
{
    const TabPage* const active = m_workspace.tabView.activePage();
    Page* const page = active ? pageOf(*active) : nullptr;
    const bool another = page != currentWidget();
    setCurrentWidget(page ? static_cast<QWidget*>(page) : m_startPage);
    if (page && another)
        page->refresh();
    dropClosedPages();
}

void PageStack::takeFocus()
{
    if (Page* const page = activePage())
        page->takeFocus();
    else
        m_startPage->takeFocus();
}

} // namespace zelvor
