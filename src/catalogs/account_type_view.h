#pragma once

#include "catalogs/account_type.h"
#include "catalogs/catalog_list.h"

namespace zelvor {

class AccountTypeViewController;

// The list of account types.
class AccountTypeView : public CatalogListView<AccountType> {
public:
    explicit AccountTypeView(AccountTypeViewController& owner);

    const Records& accountTypes() const { return records(); }
    std::vector<ViewColumn> columns() const override;
    bool setValue(int row, const QString& identifier, const QVariant& value) override;
    void sort(const QString& key, bool ascending) override;
    void doubleAction(int row) override;

protected:
    Less orderOf(const QString& key) const override;
    QVariant cell(const AccountType& type, const QString& identifier) const override;

private:
    AccountTypeViewController& m_controller;
};

} // namespace zelvor
