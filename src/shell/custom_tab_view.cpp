#include "shell/custom_tab_view.h"

#include "documents/money_document_view_controller.h"
#include "documents/product_document_view_controller.h"
#include "documents/property_document_view_controller.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

template <class Controller>
bool showsDocument(const TabPage& page, qint64 docID)
{
    const auto* controller = dynamic_cast<const Controller*>(page.controller.get());
    return controller && controller->document->id == docID;
}

} // namespace

CustomTabView::CustomTabView()
{
    header.onActivate = [this](int position) { changeActiveTab(position); };
    header.onClosed = [this](int position) { closeTabAtPosition(position); };
}

void CustomTabView::addPageWithView(TabPage page, const QString& title, const QString& toolTip)
{
    BaseView& view = *page.view;
    followTitle(view, page.controller == nullptr);
    view.setIndex(static_cast<int>(body.pages().size()));
    header.addTab(title, view.titleColor(), toolTip);
    body.addPage(std::move(page));
    pagesChanged();
}

// A permanent view comes again: it is heard once and for all.
void CustomTabView::followTitle(BaseView& view, bool isPermanent)
{
    if (isPermanent) {
        if (std::ranges::find(m_heardViews, &view) != m_heardViews.end())
            return;
        m_heardViews.push_back(&view);
    }
    view.onReload([this, shown = &view] {
        if (shown->index() >= 0)
            updateTitleAtHeaderTabAtIndex(shown->index(), shown->name(), shown->titleColor());
    });
}

void CustomTabView::changeActiveTab(int position)
{
    body.changeActiveTab(position);
    pagesChanged();
}

void CustomTabView::closeTabAtPosition(int position)
{
    // Held until all have been told: with the page goes the controller that may have asked for this.
    const TabPage closed = body.closeTabAtPosition(position);
    if (!closed.view)
        return;
    if (delegate)
        delegate->removedPageAtIndex(position);
    updateIndexies();
    pagesChanged();
}

void CustomTabView::removeAll()
{
    header.removeAll();
    body.removeAll();
    pagesChanged();
}

void CustomTabView::updateIndexies()
{
    int position = 0;
    for (const TabPage& page : body.pages())
        page.view->setIndex(position++);
}

void CustomTabView::openExistingTab(int position)
{
    header.changeActivTab(position);
}

void CustomTabView::sendCloseToHeaderTab(int position)
{
    header.closePage(position);
}

void CustomTabView::updateTitleAtHeaderTabAtIndex(int index, const QString& newTitle, const Color& newColor)
{
    header.setTitle(index, newTitle, newColor);
}

std::optional<int> CustomTabView::hasViewOfType(const QString& type, qint64 docID) const
{
    for (const TabPage& page : body.pages()) {
        const bool found = type == u"Product"_s ? showsDocument<ProductDocumentViewController>(page, docID)
                           : type == u"Money"_s ? showsDocument<MoneyDocumentViewController>(page, docID)
                                                : showsDocument<PropertyDocumentViewController>(page, docID);
        if (found)
            return page.view->index();
    }
    return std::nullopt;
}

const TabPage* CustomTabView::activePage() const
{
    const std::vector<TabPage>& pages = body.pages();
    const bool exists = body.activTab && *body.activTab < static_cast<int>(pages.size());
    return exists ? &pages[static_cast<std::size_t>(*body.activTab)] : nullptr;
}

bool CustomTabView::canExportActiveViewToExel() const
{
    const TabPage* page = activePage();
    return page && page->view->canExportToExcel();
}

void CustomTabView::pagesChanged() const
{
    if (onPagesChanged)
        onPagesChanged();
}

} // namespace zelvor
