#pragma once

#include "shell/main_menu_item.h"
#include "store/model_controller.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace zelvor {

class MainViewController;

// The tree of commands beside the pages, out of the project's menu table.
class MainMenuController : public ModelController {
public:
    MainMenuController(AppDelegate& owner, MainViewController& mainViewController);

    MainViewController& mainViewController;
    std::vector<std::shared_ptr<MainMenuItem>> sourceListItems; // the groups
    std::shared_ptr<MainMenuItem> selectedItem;                 // none at first

    // The items, which of them stand open, or the selection changed.
    std::function<void()> onReload;

    void prepareMainMenu();
    // A header does nothing.
    void menuItemClicked(const MainMenuItem& item);
    void expandAll();
    void collapseAll();
    std::optional<DocType> groupOf(DocType type) const { return docTypeMenuLookup(type); }
    void selectItem(DocType type);
    // Opens the group that holds the entry.
    void expandRow(DocType type);

private:
    void reload() const;
    void setAllExpanded(bool expanded);
};

} // namespace zelvor
