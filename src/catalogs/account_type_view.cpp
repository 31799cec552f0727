#include "catalogs/account_type_view.h"

#include "catalogs/account_type_view_controller.h"
#include "catalogs/default_and_hidden.h"
#include "core/localized.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

AccountTypeView::AccountTypeView(AccountTypeViewController& owner)
    : CatalogListView<AccountType>(owner, localized("Account Types Catalog")), m_controller(owner)
{}

std::vector<ViewColumn> AccountTypeView::columns() const
{
    return {
        {.identifier = u"name"_s, .title = localized("Name"), .sortKey = u"name"_s},
        {.identifier = u"description"_s, .title = localized("Description"), .sortKey = u"description"_s},
        {.identifier = u"hidden"_s,
         .title = localized("Hidden"),
         .kind = CellKind::CheckBox,
         .editable = true},
    };
}

QVariant AccountTypeView::cell(const AccountType& type, const QString& identifier) const
{
    return identifier == "hidden"_L1 ? QVariant(type.isHidden) : type.valueForIdentifier(identifier);
}

bool AccountTypeView::setValue(int row, const QString& identifier, const QVariant& value)
{
    const std::shared_ptr<AccountType> type = record(row);
    if (!type || identifier != "hidden"_L1)
        return false;
    const bool stored =
        clickHidden(*type, value.toBool(), [&] { return m_controller.updateAccountType(type); });
    reloadData();
    return stored;
}

void AccountTypeView::sort(const QString& key, bool ascending)
{
    // Descending, this list knows the keys "name" and "salary" (which no type has): the descriptions stay as
    // they stand. Users know the list this way.
    const bool sorts = ascending || key == "name"_L1;
    CatalogListView<AccountType>::sort(sorts ? key : QString(), ascending);
}

void AccountTypeView::doubleAction(int row)
{
    selectRow(row);
    m_controller.editAccountType();
}

AccountTypeView::Less AccountTypeView::orderOf(const QString& key) const
{
    if (key == "name"_L1)
        return [](const AccountType& a, const AccountType& b) { return textLess(a.name, b.name); };
    if (key == "description"_L1)
        return [](const AccountType& a, const AccountType& b) {
            return textLess(a.descriptionString, b.descriptionString);
        };
    return {};
}

} // namespace zelvor
