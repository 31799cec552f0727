#include "shell/main_menu_controller.h"

#include "core/localized.h"
#include "shell/main_view_controller.h"
#include "store/menu.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

std::vector<std::shared_ptr<Menu>> entriesUnder(Connector& connector, qint64 parentID)
{
    return connector.freeSQL<Menu>("WHERE parent_id=?", {parentID});
}

// None for a row whose id is no kind of entry: what it should do is unknown.
std::shared_ptr<MainMenuItem> makeItem(const Menu& entry, const QString& identifier)
{
    const std::optional<DocType> type = typeFromInt(entry.id);
    if (!type)
        return nullptr;
    auto item = std::make_shared<MainMenuItem>();
    // What stands in the table is English: a project is not tied to a language.
    item->title = localized(entry.name.toUtf8().constData());
    item->identifier = identifier;
    item->type = *type;
    item->icon = docTypeImage(*type);
    return item;
}

} // namespace

MainMenuController::MainMenuController(AppDelegate& owner, MainViewController& workspace)
    : ModelController(owner), mainViewController(workspace)
{}

void MainMenuController::prepareMainMenu()
{
    sourceListItems.clear();
    selectedItem.reset();
    for (const auto& entry : entriesUnder(appDelegate.connector, 0)) {
        const auto group = makeItem(*entry, u"header"_s);
        if (!group)
            continue;
        for (const auto& child : entriesUnder(appDelegate.connector, entry->id)) {
            if (auto item = makeItem(*child, u"item"_s))
                group->insertChildren(std::move(item));
        }
        sourceListItems.push_back(group);
    }
    reload();
}

void MainMenuController::menuItemClicked(const MainMenuItem& item)
{
    if (item.identifier == u"item"_s)
        mainViewController.topMenuAction(item.type);
}

void MainMenuController::expandAll()
{
    setAllExpanded(true);
}

void MainMenuController::collapseAll()
{
    setAllExpanded(false);
}

void MainMenuController::setAllExpanded(bool expanded)
{
    for (const auto& group : sourceListItems) {
        if (group->hasChildren())
            group->expanded = expanded;
    }
    reload();
}

void MainMenuController::selectItem(DocType type)
{
    for (const auto& group : sourceListItems) {
        const auto item = std::ranges::find(group->children, type, &MainMenuItem::type);
        if (item == group->children.end())
            continue;
        selectedItem = *item;
        reload();
        return;
    }
}

void MainMenuController::expandRow(DocType type)
{
    const std::optional<DocType> holder = groupOf(type);
    if (!holder)
        return;
    const auto group = std::ranges::find(sourceListItems, *holder, &MainMenuItem::type);
    if (group == sourceListItems.end())
        return;
    (*group)->expanded = true;
    reload();
}

void MainMenuController::reload() const
{
    if (onReload)
        onReload();
}

} // namespace zelvor
