#pragma once

#include "core/outlets.h"
#include "desktop/catalog_tools.h"
#include "desktop/list_page.h"

#include <functional>

namespace zelvor {

class CatalogPopover;

// The page of a flat catalog with the form of its records.
class ListCatalogPage : public TablePage {
    Q_OBJECT

public:
    // What the page asks of its controller.
    struct Catalog {
        QString addButtonName;
        std::function<void()> add;
        std::function<std::shared_ptr<const void>()> firstRecord;
        std::function<int()> editedRow; // of the record in the open form; -1 for one that is not stored
    };

    ListCatalogPage(TableView& view, Catalog catalog, const Calendar& calendar, const QString& emptyText,
                    QWidget* parent);

protected:
    // The form points at the row being edited, or at the add button. When it closes, its row is shown and
    // the cursor goes back to the list.
    void serve(CatalogPopover* form, Popover& outlet);

private:
    QRect anchorOf(int row);
    void show(int row);

    Catalog m_catalog;
    CatalogTools m_tools;
    SortMark m_sortMark;
};

template <class Controller>
ListCatalogPage::Catalog catalogOf(Controller& controller, const QString& addButtonName,
                                   std::function<void()> add)
{
    return {addButtonName, std::move(add), [&controller] { return controller.view.record(0); },
            [&controller] {
                const auto& record = controller.focusedObject;
                const auto& records = controller.view.records();
                const auto place = std::ranges::find_if(records, [&](const auto& other) {
                    return record && record->id != 0 && other->id == record->id;
                });
                return place == records.end() ? -1 : static_cast<int>(place - records.begin());
            }};
}

} // namespace zelvor
