#include "catalogs/contragent_view_controller.h"

#include "catalogs/catalog_list.h"
#include "catalogs/flat_catalog_controller.h"
#include "catalogs/manager_view_controller.h"

#include <unordered_map>

namespace zelvor {

ContragentViewController::ContragentViewController(AppDelegate& owner) : TreeCatalogController(owner)
{
    wireForms();
    addContragentButton.setEntries({
        {localized("Add New Counterparty"), [this] { addContragent(); }},
        {localized("Add New Counterparties Group"), [this] { addContragentGroup(); }},
    });
    contragentBalance.onUserChange = [this] { fillNumber(contragentBalance); };
    contragentBalanceOpenButton.onUserChange = [this] { openCloseContragentBalance(); };
    contragentDefermentSlider.onUserChange = [this] { showDeferment(); };
    contragentDeferment.onUserChange = [this] {
        contragentDefermentSlider.setValue(contragentDeferment.integer());
        showDeferment();
    };

    observe(NotificationName::ManagerChangedNotification,
            [this](const Notification& n) { updateManagers(n); });
    observe(NotificationName::ManagerAddCancelledNotification,
            [this](const Notification&) { cancelUpdateManagers(); });
    observe(NotificationName::ContragentBalanceChangedNotification,
            [this](const Notification&) { updateContragents(); });
    observe(NotificationName::DefaultsChangedNotification, [this](const Notification&) { updateDefaults(); });
}

TreeForm ContragentViewController::groupForm()
{
    return {contragentGroupPopover,     contragentGroupPopoverName, contragentGroupName,
            contragentGroupGroupSelect, contragentGroupError,       contragentGroupOkButton};
}

TreeForm ContragentViewController::leafForm()
{
    return {contragentPopover,     contragentPopoverName, contragentName,
            contragentGroupSelect, contragentError,       contragentOkButton};
}

void ContragentViewController::refresh()
{
    TreeCatalogController::refresh();
    if (m_managersStale)
        renewManagers();
}

void ContragentViewController::treeBuilt()
{
    Nodes contragents;
    for (const Node& node : loadedNodes()) {
        if (!node->isGroup())
            contragents.push_back(node);
    }
    std::ranges::stable_sort(contragents, NameLess{});
    view.setContragentsForSelect(std::move(contragents));
    initContragentGroupSelect();
    initContragentsSelect();
    updateDefaults();
}

void ContragentViewController::setChildToParentContragentWithID(const std::shared_ptr<Contragent>& node)
{
    const Nodes& nodes = all();
    const auto holder = std::ranges::find_if(
        nodes, [&](const Node& other) { return !other->isGroup() && other->id == node->parentContragentID; });
    if (holder != nodes.end())
        (*holder)->setChild(node);
}

// --- employees

void ContragentViewController::prepareManagers()
{
    m_managersStale = false;
    view.setManagers(recordsByName<Manager>(appDelegate.connector));
    initManagersSelect();
}

void ContragentViewController::renewManagers()
{
    prepareManagers();
    std::unordered_map<qint64, std::shared_ptr<Manager>> managers;
    for (const auto& manager : view.loadedManagers())
        managers.emplace(manager->id, manager);
    for (const Node& node : loadedNodes()) {
        const auto contragent = std::dynamic_pointer_cast<Contragent>(node);
        if (!contragent || contragent->managerID == 0)
            continue;
        const auto manager = managers.find(contragent->managerID);
        contragent->manager = Link<Manager>(manager == managers.end() ? nullptr : manager->second);
    }
}

std::shared_ptr<Manager> ContragentViewController::getManagerWithID(qint64 id)
{
    const auto& managers = view.managers();
    const auto place =
        std::ranges::find_if(managers, [id](const auto& manager) { return manager->id == id; });
    return place == managers.end() ? std::make_shared<Manager>() : *place;
}

void ContragentViewController::addManager()
{
    if (!managerController)
        return;
    addNewManager = true;
    managerController->addManager();
}

// The text is the name of a new employee: the one that was added from the popover, when one was.
void ContragentViewController::updateManagers(const Notification& notification)
{
    const bool added = addNewManager && !notification.text.isNull();
    m_managersStale = true;
    if (added || view.isVisible() || contragentPopover.isOpen())
        refresh();
    if (added) {
        contragentManagerSelect.selectTitle(notification.text);
        addNewManager = false;
    }
    if (view.isVisible())
        view.reloadData();
}

void ContragentViewController::cancelUpdateManagers()
{
    addNewManager = false;
}

void ContragentViewController::leafEdited(Contragent& contragent)
{
    if (contragent.managerID != 0 && !isStale())
        contragent.manager = getManagerWithID(contragent.managerID);
}

// --- choosers

void ContragentViewController::initManagersSelect()
{
    std::vector<PopUpButton::Item> items{{.title = QString(), .tag = 0}};
    for (const auto& manager : view.loadedManagers())
        items.push_back({.title = manager->name, .tag = manager->id});
    contragentManagerSelect.setItems(std::move(items));
}

void ContragentViewController::initContragentsSelect()
{
    std::vector<PopUpButton::Item> items{{.title = QString(), .tag = 0}};
    for (const Node& contragent : view.loadedContragentsForSelect())
        items.push_back({.title = contragent->name, .tag = contragent->id});
    contragentParentContragentSelect.setItems(std::move(items));
}

void ContragentViewController::disableMenuWithObject(const Node& group)
{
    disableItems(contragentGroupGroupSelect, group->id, group->getChildrenIDs());
}

void ContragentViewController::disableContragentMenuWithObject(const Node& contragent)
{
    disableItems(contragentParentContragentSelect, contragent->id, contragent->getChildrenIDs());
}

void ContragentViewController::disableMenus(const Node& node)
{
    if (node->isGroup())
        disableMenuWithObject(node);
    else
        disableContragentMenuWithObject(node);
}

void ContragentViewController::enableAllMenuItems()
{
    contragentGroupGroupSelect.enableAllItems();
    contragentParentContragentSelect.enableAllItems();
}

void ContragentViewController::updateDefaults()
{
    if (const auto params = appDelegate.params())
        contragentDefermentSlider.setMaximum(params->maxDeferment);
}

// --- popovers

void ContragentViewController::addContragent()
{
    openNew(std::make_shared<Contragent>(), localized("Add New Counterparty"));
    contragentOkButton.setEnabled(false);
}

void ContragentViewController::addContragentGroup()
{
    openNew(std::make_shared<ContragentGroup>(), localized("Add New Counterparties Group"));
    contragentGroupOkButton.setEnabled(false);
}

void ContragentViewController::addContragentGroupFromPopover()
{
    addGroupFromPopover(localized("Add New Counterparties Group"));
    contragentGroupOkButton.setEnabled(false);
}

QString ContragentViewController::titleOfEdited(bool group) const
{
    return group ? localized("Edit Contragent Group") : localized("Edit Contragent");
}

void ContragentViewController::bindGroup(ContragentGroup& group)
{
    contragentGroupName.setText(group.name);
    contragentGroupGroupSelect.selectTag(group.parentID);
}

void ContragentViewController::backBindGroup(ContragentGroup& group)
{
    group.name = contragentGroupName.text();
    group.parentID = contragentGroupGroupSelect.selectedTag();
}

void ContragentViewController::bindLeaf(Contragent& contragent)
{
    contragentName.setText(contragent.name);
    contragentGroupSelect.selectTag(contragent.parentID);
    contragentParentContragentSelect.selectTag(contragent.parentContragentID);
    contragentManagerSelect.selectTag(contragent.manager->id);
    contragentDiscount.setReal(contragent.discount());
    contragentBalance.setReal(contragent.balance());
    contragentDeferment.setValue(contragent.deferment);
    contragentDefermentSlider.setValue(contragent.deferment);
    contragentAddress.setText(contragent.address);
    contragentCity.setText(contragent.city);
    contragentContactPerson.setText(contragent.contactPerson);
    contragentPhone.setText(contragent.phone);
    contragentMail.setText(contragent.mail);
    contragentVatNumber.setText(contragent.vatNumber);
    contragentComment.setText(contragent.comment);
}

bool ContragentViewController::backBindLeaf(Contragent& contragent)
{
    // Behind the lock the balance is the documents' affair: one may have changed it since the popover opened.
    if (contragentBalance.enabled()) {
        contragent.setBalance(contragentBalance.real());
    } else {
        const auto stored = appDelegate.connector.select<Contragent>(contragent.id, Fill::Nothing);
        if (!stored)
            return false;
        contragent.innerBalance = stored->innerBalance;
    }
    contragent.name = contragentName.text();
    contragent.parentID = contragentGroupSelect.selectedTag();
    contragent.parentContragentID = contragentParentContragentSelect.selectedTag();
    contragent.managerID = contragentManagerSelect.selectedTag();
    contragent.setDiscount(contragentDiscount.real());
    contragent.deferment = contragentDefermentSlider.value();
    contragent.address = contragentAddress.text();
    contragent.city = contragentCity.text();
    contragent.contactPerson = contragentContactPerson.text();
    contragent.phone = contragentPhone.text();
    contragent.mail = contragentMail.text();
    contragent.vatNumber = contragentVatNumber.text();
    contragent.comment = contragentComment.text();
    contragent.manager = getManagerWithID(contragent.managerID);
    return true;
}

// What a cancelled addition left behind does not keep the next edit from OK.
void ContragentViewController::clearGroup()
{
    contragentGroupOkButton.setEnabled(true);
}

void ContragentViewController::clearLeaf()
{
    contragentOkButton.setEnabled(true);
    contragentBalance.setEnabled(true);
    contragentBalanceOpenButton.setOn(false);
    contragentBalanceOpenButton.setEnabled(false);
}

void ContragentViewController::closeLocks()
{
    contragentBalance.setEnabled(false);
    contragentBalanceOpenButton.setOn(true);
    contragentBalanceOpenButton.setEnabled(true);
}

void ContragentViewController::openCloseContragentBalance()
{
    contragentBalance.setEnabled(false);
    if (contragentBalanceOpenButton.isOn())
        return;
    const Alert question{
        .messageText = localized("Enable contragent balance"),
        .informativeText = localized("You are trying to change contragent balance manually. It may cause of "
                                     "incorrectness main balance. Are you sure?"),
        .buttons = {localized("Proceed"), localized("Cancel")},
        .alertStyle = 1};
    appDelegate.dialogs.ask(question, [this, asked = focusedObject](int answer) {
        if (!asked || asked != focusedObject)
            return; // the popover was closed meanwhile
        contragentBalance.setEnabled(answer == firstButton);
        if (answer != firstButton)
            contragentBalanceOpenButton.setOn(true);
    });
}

void ContragentViewController::postChanged()
{
    appDelegate.notifications.post(NotificationName::ContragentChangedNotification);
}

} // namespace zelvor
