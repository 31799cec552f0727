#pragma once

#include "catalogs/account_view.h"
#include "catalogs/default_and_hidden.h"
#include "catalogs/linked_catalog_controller.h"

namespace zelvor {

class AccountTypeViewController;

// The catalog of accounts. An account needs a currency, and keeps the one that it was stored with.
class AccountViewController
    : public LinkedCatalogController<Account, AccountType, &Account::accountTypeID, &Account::accountType> {
public:
    explicit AccountViewController(AppDelegate& owner);

    AccountView view{*this};
    Popover accountPopover{QStringLiteral("accountPopover")};
    Label accountPopoverTitle{QStringLiteral("accountPopoverTitle")};
    TextField accountName{QStringLiteral("accountName")};
    PopUpButton accountTypeSelect{QStringLiteral("accountTypeSelect")};
    PopUpButton accountCurrencySelect{QStringLiteral("accountCurrencySelect")};
    Label accountWarning{QStringLiteral("accountWarning")};
    Button okButton{QStringLiteral("okButton")};
    AccountTypeViewController* accountTypeController = nullptr; // whose popover addAccountType opens
    bool addNewAccountType = false;                             // a type is being added from the popover

    void addAccount();
    void editAccount();
    void cancelAccountPopover() { closeForm(); }
    void writeAccount();
    bool updateAccount(const std::shared_ptr<Account>& account) { return updateRecord(*account); }
    void addAccountType();
    void bindFields() override;
    void backBindFields() override;
    void clearAccountPopover() { clearForm(); }
    void prepareAccounts() { prepare(); }
    void prepareAccountTypes() { prepareLinked(); }
    std::shared_ptr<AccountType> getAccountTypeWithID(qint64 id) { return linkedWithID(id); }
    QString getNameOfAccountTypeWithID(qint64 id) { return getAccountTypeWithID(id)->name; }
    void updateAccountTypes(const Notification& notification)
    {
        linkedChanged(notification, addNewAccountType);
    }
    void cancelAddAccountType() { addNewAccountType = false; }
    void updateAccounts() { markStale(); }

    QString refusal(const Account& account) const override;
    // The rule of the list's boxes for one record, new or not; see storeDefaultAndHidden.
    bool writeDefaultAndHidden(const std::shared_ptr<Account>& account, DefaultHiddenBox changed)
    {
        return writeDefaultAndHiddenOf(*this, view, account, changed);
    }

protected:
    CatalogListView<Account>& list() override { return view; }
    CatalogForm form() override
    {
        return {accountPopover, accountPopoverTitle, accountName, accountWarning, okButton};
    }
    PopUpButton& chooser() override { return accountTypeSelect; }
    void clearFields() override;
    void announceWritten(const Account& account, bool isNew) override;

private:
    void initCurrencies();
};

} // namespace zelvor
