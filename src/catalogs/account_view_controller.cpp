#include "catalogs/account_view_controller.h"

#include "catalogs/account_type_view_controller.h"
#include "core/currency_struct.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

AccountViewController::AccountViewController(AppDelegate& owner) : LinkedCatalogController(owner)
{
    initCurrencies();
    wireForm([this] { writeAccount(); });
    observe(NotificationName::AccountBalanceChangedNotification,
            [this](const Notification&) { updateAccounts(); });
    observe(NotificationName::AccountTypeChangedNotification,
            [this](const Notification& n) { updateAccountTypes(n); });
    observe(NotificationName::AccountTypeAddCanceledNotification,
            [this](const Notification&) { cancelAddAccountType(); });
}

void AccountViewController::initCurrencies()
{
    std::vector<PopUpButton::Item> items{{.title = u"-----"_s, .tag = 0}};
    for (const CurrencyStruct currency : allCurrencies)
        items.push_back(
            {.title = currencyShort(currency), .tag = rawValue(currency), .image = currencyImage(currency)});
    accountCurrencySelect.setItems(std::move(items));
}

void AccountViewController::addAccount()
{
    openNew(localized("Add New Account"));
}

void AccountViewController::editAccount()
{
    if (openSelected(localized("Edit Account")))
        accountCurrencySelect.setEnabled(false);
}

void AccountViewController::writeAccount()
{
    if (accountCurrencySelect.selectedTag() == 0) {
        accountWarning.setText(localized("Please select currency for account!"));
        return;
    }
    writeForm();
}

void AccountViewController::addAccountType()
{
    addNewAccountType = true;
    if (accountTypeController)
        accountTypeController->addAccountType();
}

void AccountViewController::bindFields()
{
    accountName.setText(focusedObject->name);
    accountTypeSelect.selectTag(focusedObject->accountTypeID);
    accountCurrencySelect.selectTag(focusedObject->currencyID);
}

void AccountViewController::backBindFields()
{
    focusedObject->name = accountName.text();
    focusedObject->accountTypeID = accountTypeSelect.selectedTag();
    focusedObject->currencyID = accountCurrencySelect.selectedTag();
    focusedObject->accountType = Link<AccountType>(getAccountTypeWithID(focusedObject->accountTypeID));
}

void AccountViewController::clearFields()
{
    accountTypeSelect.selectTag(0);
    accountCurrencySelect.selectTag(0);
    accountCurrencySelect.setEnabled(true);
}

QString AccountViewController::refusal(const Account& account) const
{
    if (const QString missing = LinkedCatalogController::refusal(account); !missing.isEmpty())
        return missing;
    if (!currencyFromInt(account.currencyID))
        return localized("Please select currency for account!");
    if (account.id == 0)
        return {};
    const auto stored = appDelegate.connector.select<Account>(account.id, Fill::Nothing);
    if (stored && stored->currencyID != 0 && stored->currencyID != account.currencyID)
        return localized("The currency of a stored account cannot be changed!");
    return {};
}

void AccountViewController::announceWritten(const Account&, bool)
{
    appDelegate.notifications.post(NotificationName::AccountChangedNotification);
}

} // namespace zelvor
