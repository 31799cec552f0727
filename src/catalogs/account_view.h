#pragma once

#include "catalogs/account.h"
#include "catalogs/catalog_list.h"

namespace zelvor {

class AccountViewController;

// The list of accounts.
class AccountView : public CatalogListView<Account> {
public:
    explicit AccountView(AccountViewController& owner);

    const Records& accounts() const { return records(); }
    const std::vector<std::shared_ptr<AccountType>>& accountTypes() const;
    std::vector<ViewColumn> columns() const override;
    bool setValue(int row, const QString& identifier, const QVariant& value) override;
    void doubleAction(int row) override;

protected:
    Less orderOf(const QString& key) const override;
    QVariant cell(const Account& account, const QString& identifier) const override;

private:
    AccountViewController& m_controller;
};

} // namespace zelvor
