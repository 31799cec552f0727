#include "catalogs/account_view.h"

#include "catalogs/account_view_controller.h"
#include "core/currency_struct.h"
#include "core/localized.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

AccountView::AccountView(AccountViewController& owner)
    : CatalogListView<Account>(owner, localized("Accounts List")), m_controller(owner)
{}

const std::vector<std::shared_ptr<AccountType>>& AccountView::accountTypes() const
{
    return m_controller.linkedRecords();
}

std::vector<ViewColumn> AccountView::columns() const
{
    return {
        {.identifier = u"name"_s, .title = localized("Name"), .sortKey = u"name"_s},
        {.identifier = u"typeName"_s, .title = localized("Type"), .sortKey = u"type"_s},
        {.identifier = u"currency"_s,
         .title = localized("Currency"),
         .kind = CellKind::Image,
         .alignment = CellAlignment::Center},
        {.identifier = u"balance"_s,
         .title = localized("Balance"),
         .kind = CellKind::Amount,
         .alignment = CellAlignment::Right,
         .sortKey = u"balance"_s},
        {.identifier = u"default"_s,
         .title = localized("Default"),
         .kind = CellKind::CheckBox,
         .editable = true},
        {.identifier = u"hidden"_s,
         .title = localized("Hidden"),
         .kind = CellKind::CheckBox,
         .editable = true},
    };
}

QVariant AccountView::cell(const Account& account, const QString& identifier) const
{
    if (identifier == "currency"_L1) {
        const auto currency = currencyFromInt(account.currencyID);
        return currency ? currencyImage(*currency) : QString();
    }
    return account.valueForIdentifier(identifier);
}

bool AccountView::setValue(int row, const QString& identifier, const QVariant& value)
{
    const std::shared_ptr<Account> account = record(row);
    if (!account)
        return false;
    const bool stored = clickDefaultOrHidden(m_controller, account, identifier, value.toBool());
    reloadData();
    return stored;
}

void AccountView::doubleAction(int row)
{
    selectRow(row);
    m_controller.editAccount();
}

AccountView::Less AccountView::orderOf(const QString& key) const
{
    if (key == "name"_L1)
        return [](const Account& a, const Account& b) { return textLess(a.name, b.name); };
    if (key == "type"_L1)
        return [](const Account& a, const Account& b) {
            return textLess(a.accountTypeName(), b.accountTypeName());
        };
    if (key == "balance"_L1)
        return [](const Account& a, const Account& b) { return amountLess(a.innerBalance, b.innerBalance); };
    return {};
}

} // namespace zelvor
