#include "catalogs/account_type_view_controller.h"

namespace zelvor {

AccountTypeViewController::AccountTypeViewController(AppDelegate& owner) : FlatCatalogController(owner)
{
    wireForm([this] { writeAccountType(); });
}

void AccountTypeViewController::addAccountType()
{
    openNew(localized("Add Account Type"));
}

void AccountTypeViewController::editAccountType()
{
    openSelected(localized("Edit Account Type"));
}

void AccountTypeViewController::cancelAccountTypePopover()
{
    closeForm();
    postCancelNotification();
}

void AccountTypeViewController::bindFields()
{
    accountTypeName.setText(focusedObject->name);
    accountTypeDescription.setText(focusedObject->descriptionString);
}

void AccountTypeViewController::backBindFields()
{
    focusedObject->name = accountTypeName.text();
    focusedObject->descriptionString = accountTypeDescription.text();
}

void AccountTypeViewController::postNotification(const QString& name)
{
    appDelegate.notifications.post(NotificationName::AccountTypeChangedNotification, nullptr, name);
}

void AccountTypeViewController::postCancelNotification()
{
    appDelegate.notifications.post(NotificationName::AccountTypeAddCanceledNotification);
}

void AccountTypeViewController::announceWritten(const AccountType& type, bool isNew)
{
    postNotification(isNew ? addedName(type) : QString());
}

} // namespace zelvor
