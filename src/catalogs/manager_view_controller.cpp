#include "catalogs/manager_view_controller.h"

#include "catalogs/function_view_controller.h"

namespace zelvor {

ManagerViewController::ManagerViewController(AppDelegate& owner) : LinkedCatalogController(owner)
{
    managerBalance.onUserChange = [this] { fillNumber(managerBalance); };
    managerBalanceOpenButton.onUserChange = [this] { openCloseManagerBalance(); };
    wireForm([this] { writeManager(); });
    observe(NotificationName::FunctionChangedNotification,
            [this](const Notification& n) { updateFunctions(n); });
    observe(NotificationName::FunctionAddCanceledNotification,
            [this](const Notification&) { cancelAddFunction(); });
    observe(NotificationName::ManagerBalanceChangedNotification,
            [this](const Notification&) { updateManagers(); });
}

void ManagerViewController::addManager()
{
    openNew(localized("Add New Emplyee")); // spelled as users know it
}

void ManagerViewController::editEmployee()
{
    if (!openSelected(localized("Edit Employee")))
        return;
    managerBalance.setEnabled(false);
    managerBalanceOpenButton.setOn(true);
    managerBalanceOpenButton.setEnabled(true);
}

void ManagerViewController::cancelManagerPopover()
{
    closeForm();
    postCancelNotification();
}

// The button has its new state already: off means that the user wants the lock open.
void ManagerViewController::openCloseManagerBalance()
{
    if (managerBalanceOpenButton.isOn()) {
        managerBalance.setEnabled(false);
        return;
    }
    const Alert question{
        .messageText = localized("Enable employee balance."),
        .informativeText = localized("You are trying to change employee balance manually. It may cause of "
                                     "incorrectness main balance. Are you sure?"),
        .buttons = {localized("Proceed"), localized("Cancel")},
        .alertStyle = 1,
    };
    appDelegate.dialogs.ask(question, [this, asked = focusedObject](int answer) {
        if (!asked || asked != focusedObject)
            return; // the popover was closed meanwhile
        const bool proceed = answer == firstButton;
        if (!proceed)
            managerBalanceOpenButton.setOn(true);
        managerBalance.setEnabled(proceed);
    });
}

void ManagerViewController::addFunction()
{
    addNewFunction = true;
    if (functionController)
        functionController->addFunction();
}

void ManagerViewController::bindFields()
{
    managerName.setText(focusedObject->name);
    m_boundBalance = focusedObject->innerBalance;
    managerBalance.setValue(m_boundBalance);
    managerFunctionSelect.selectTag(focusedObject->functionID);
}

void ManagerViewController::backBindFields()
{
    focusedObject->name = managerName.text();
    // What nobody changed here stays as stored: a document may have moved it since the popover opened.
    if (managerBalance.value() != m_boundBalance)
        focusedObject->innerBalance = managerBalance.value().rounded(Manager::decimalHandler);
    focusedObject->functionID = managerFunctionSelect.selectedTag();
    focusedObject->function = Link<Function>(getFunctionWithID(focusedObject->functionID));
}

void ManagerViewController::clearFields()
{
    managerFunctionSelect.selectTag(0);
    managerBalance.setEnabled(true);
    managerBalanceOpenButton.setOn(false);
    managerBalanceOpenButton.setEnabled(false);
}

void ManagerViewController::postNotification(const QString& name)
{
    appDelegate.notifications.post(NotificationName::ManagerChangedNotification, nullptr, name);
}

void ManagerViewController::postCancelNotification()
{
    appDelegate.notifications.post(NotificationName::ManagerAddCancelledNotification);
}

QString ManagerViewController::refusal(const Manager& manager) const
{
    const QString missing = LinkedCatalogController::refusal(manager);
    if (missing.isEmpty() && manager.innerBalance.isNaN())
        return localized("The balance must be a number!");
    return missing;
}

void ManagerViewController::announceWritten(const Manager& manager, bool isNew)
{
    postNotification(isNew ? addedName(manager) : QString());
}

} // namespace zelvor
