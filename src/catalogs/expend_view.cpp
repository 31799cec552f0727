#include "catalogs/expend_view.h"

#include "core/localized.h"

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

std::vector<ViewColumn> expendColumns()
{
    return {
        // the order of the export
        {.identifier = u"name"_s, .title = localized("Name"), .sortKey = u"name"_s},
        {.identifier = u"hidden"_s,
         .title = localized("Hidden"),
         .kind = CellKind::CheckBox,
         .editable = true},
        {.identifier = u"constant"_s,
         .title = localized("Constant"),
         .kind = CellKind::CheckBox,
         .editable = true},
        {.identifier = u"description"_s, .title = localized("Description")},
    };
}

} // namespace

ExpendView::ExpendView(TreeCatalogOwner<ExpendModel>& owner)
    : TreeCatalogView(owner, localized("Spendings Catalog"), expendColumns())
{}

bool* ExpendView::checkBox(ExpendModel& node, const QString& identifier) const
{
    if (node.isGroup())
        return nullptr;
    auto& expend = static_cast<Expend&>(node);
    if (identifier == u"hidden")
        return &expend.isHidden;
    return identifier == u"constant" ? &expend.isConstant : nullptr;
}

} // namespace zelvor
