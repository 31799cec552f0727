#pragma once

#include "core/outlets.h"
#include "desktop/catalog_tools.h"
#include "desktop/list_page.h"

#include <functional>

namespace zelvor {

class AddMenuButton;
class CatalogPopover;

// The page of a catalog whose groups and leaves form a tree, with the forms of both.
class TreeCatalogPage : public TreePage {
    Q_OBJECT

public:
    TreeCatalogPage(OutlineView& view, AddMenuButton& adding, const Calendar& calendar,
                    const QString& emptyText, QWidget* parent);

protected:
    // The form points at the row being edited, or at the add button. When it closes, its row is shown and
    // the cursor goes back to the list. `edited` is the tree's node of the record in the form, null for a
    // new one that is not stored; `goesOn` tells that another form waits below this one.
    void serve(
        CatalogPopover* form, Popover& outlet, std::function<OutlineView::Node()> edited,
        std::function<bool()> goesOn = [] { return false; });

private:
    QRect anchorOf(const OutlineView::Node& node);
    void show(const OutlineView::Node& node);

    CatalogTools m_tools;
    SortMark m_sortMark;
};

// The node in the tree as it stands now of the record in a controller's open form.
template <class Controller>
OutlineView::Node editedNode(Controller& controller)
{
    const auto& record = controller.focusedObject;
    if (!record || record->id == 0)
        return nullptr;
    return controller.getItemWithIdentifier(record->getIdentifierForDragging());
}

} // namespace zelvor
