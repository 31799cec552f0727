#include "catalogs/function_view.h"

#include "catalogs/default_and_hidden.h"
#include "catalogs/function_view_controller.h"
#include "core/localized.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

FunctionView::FunctionView(FunctionViewController& owner)
    : CatalogListView<Function>(owner, localized("Functions Catalog")), m_controller(owner)
{}

std::vector<ViewColumn> FunctionView::columns() const
{
    return {
        {.identifier = u"name"_s, .title = localized("Name"), .sortKey = u"name"_s},
        {.identifier = u"salary"_s,
         .title = localized("Salary"),
         .kind = CellKind::Amount,
         .alignment = CellAlignment::Right,
         .sortKey = u"salary"_s},
        {.identifier = u"hidden"_s,
         .title = localized("Hidden"),
         .kind = CellKind::CheckBox,
         .editable = true},
    };
}

bool FunctionView::setValue(int row, const QString& identifier, const QVariant& value)
{
    const std::shared_ptr<Function> function = record(row);
    if (!function || identifier != "hidden"_L1)
        return false;
    const bool stored =
        clickHidden(*function, value.toBool(), [&] { return m_controller.updateFunction(function); });
    reloadData();
    return stored;
}

void FunctionView::doubleAction(int row)
{
    selectRow(row);
    m_controller.editFunction();
}

FunctionView::Less FunctionView::orderOf(const QString& key) const
{
    if (key == "name"_L1)
        return [](const Function& a, const Function& b) { return textLess(a.name, b.name); };
    if (key == "salary"_L1)
        return [](const Function& a, const Function& b) { return amountLess(a.innerSalary, b.innerSalary); };
    return {};
}

} // namespace zelvor
