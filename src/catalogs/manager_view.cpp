#include "catalogs/manager_view.h"

#include "catalogs/default_and_hidden.h"
#include "catalogs/manager_view_controller.h"
#include "core/localized.h"
#include "core/localized_as.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

// The title is spelled as users know it.
ManagerView::ManagerView(ManagerViewController& owner)
    : CatalogListView<Manager>(owner, localized("Employeies List")), m_controller(owner)
{}

const std::vector<std::shared_ptr<Function>>& ManagerView::functions() const
{
    return m_controller.linkedRecords();
}

std::vector<ViewColumn> ManagerView::columns() const
{
    return {
        {.identifier = u"name"_s, .title = localizedAs("Name", "person"), .sortKey = u"name"_s},
        {.identifier = u"function"_s, .title = localized("Function"), .sortKey = u"function"_s},
        {.identifier = u"balance"_s,
         .title = localized("Balance"),
         .kind = CellKind::Amount,
         .alignment = CellAlignment::Right,
         .sortKey = u"balance"_s},
        {.identifier = u"hidden"_s,
         .title = localized("Hidden"),
         .kind = CellKind::CheckBox,
         .editable = true},
    };
}

bool ManagerView::setValue(int row, const QString& identifier, const QVariant& value)
{
    const std::shared_ptr<Manager> manager = record(row);
    if (!manager || identifier != "hidden"_L1)
        return false;
    const bool stored =
        clickHidden(*manager, value.toBool(), [&] { return m_controller.updateManager(manager); });
    reloadData();
    return stored;
}

CellStyle ManagerView::cellStyle(int row, const QString& identifier) const
{
    if (identifier != "balance"_L1)
        return {};
    CellStyle style{.alignment = CellAlignment::Right};
    const std::shared_ptr<Manager> manager = record(row);
    // The list draws a settled balance black, where the record's own colour is blue.
    if (manager && !manager->innerBalance.isZero())
        style.color = manager->balanceFontColor();
    return style;
}

void ManagerView::doubleAction(int row)
{
    selectRow(row);
    m_controller.editEmployee();
}

ManagerView::Less ManagerView::orderOf(const QString& key) const
{
    if (key == "name"_L1)
        return [](const Manager& a, const Manager& b) { return textLess(a.name, b.name); };
    if (key == "function"_L1)
        return
            [](const Manager& a, const Manager& b) { return textLess(a.functionName(), b.functionName()); };
    if (key == "balance"_L1)
        return [](const Manager& a, const Manager& b) { return amountLess(a.innerBalance, b.innerBalance); };
    return {};
}

} // namespace zelvor
