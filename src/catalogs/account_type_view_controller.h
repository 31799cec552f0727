#pragma once

#include "catalogs/account_type_view.h"
#include "catalogs/flat_catalog_controller.h"

namespace zelvor {

// The catalog of account types.
class AccountTypeViewController : public FlatCatalogController<AccountType> {
public:
    explicit AccountTypeViewController(AppDelegate& owner);

    AccountTypeView view{*this};
    Popover accountTypePopover{QStringLiteral("accountTypePopover")};
    Label accountTypePopoverTitle{QStringLiteral("accountTypePopoverTitle")};
    TextField accountTypeName{QStringLiteral("accountTypeName")};
    TextField accountTypeDescription{QStringLiteral("accountTypeDescription")};
    Label accountTypeWarning{QStringLiteral("accountTypeWarning")};
    Button okButton{QStringLiteral("okButton")};

    void addAccountType();
    void editAccountType();
    void cancelAccountTypePopover();
    void writeAccountType() { writeForm(); }
    bool updateAccountType(const std::shared_ptr<AccountType>& type) { return updateRecord(*type); }
    void bindFields() override;
    void backBindFields() override;
    void clearAccountTypePopover() { clearForm(); }
    void prepareAccountTypes() { prepare(); }
    // The name of a new type, or a null text.
    void postNotification(const QString& name);
    void postCancelNotification();

protected:
    CatalogListView<AccountType>& list() override { return view; }
    CatalogForm form() override
    {
        return {accountTypePopover, accountTypePopoverTitle, accountTypeName, accountTypeWarning, okButton};
    }
    void announceWritten(const AccountType& type, bool isNew) override;
    void announceUpdated(const AccountType&) override { postNotification({}); }
};

} // namespace zelvor
