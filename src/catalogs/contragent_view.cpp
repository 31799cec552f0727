#include "catalogs/contragent_view.h"

#include "core/localized.h"

#include <cmath>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

std::vector<ViewColumn> contragentColumns()
{
    return {
        {.identifier = u"name"_s, .title = localized("Name"), .sortKey = u"name"_s},
        {.identifier = u"managerName"_s, .title = localized("Manager")},
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

// A balance that is no number stands before all others.
bool balanceLess(const std::shared_ptr<ContragentModel>& a, const std::shared_ptr<ContragentModel>& b)
{
    const double left = a->balance();
    const double right = b->balance();
    if (std::isnan(left) || std::isnan(right))
        return std::isnan(left) && !std::isnan(right);
    return left < right;
}

} // namespace

ContragentView::ContragentView(TreeCatalogOwner<ContragentModel>& owner)
    : TreeCatalogView(owner, localized("Counterparties Catalog"), contragentColumns())
{}

const ContragentView::Nodes& ContragentView::contragentsForSelect() const
{
    topLevel();
    return m_contragentsForSelect;
}

const ContragentView::Managers& ContragentView::managers() const
{
    topLevel();
    return m_managers;
}

bool* ContragentView::checkBox(ContragentModel& node, const QString& identifier) const
{
    return identifier == u"hidden" ? &node.isHidden : nullptr;
}

// The list's own colours: a balance of exactly 0 is black here.
CellStyle ContragentView::cellStyle(const Node& node, const QString& identifier) const
{
    if (identifier != u"balance")
        return {};
    CellStyle style{.alignment = CellAlignment::Right};
    const RecordNode shown = record(node);
    if (!shown || shown->isGroup())
        return style;
    if (shown->balance() < 0)
        style.color = redColor;
    else if (shown->balance() > 0)
        style.color = inOrderColor;
    return style;
}

void ContragentView::sort(const QString& key, bool ascending)
{
    if (key != u"balance") {
        TreeCatalogView::sort(key, ascending);
        return;
    }
    Nodes& nodes = sortableTopLevel();
    sortNodes(nodes, balanceLess, ascending);
    sortChildrenByBalance(nodes, ascending);
    reloadData();
}

void ContragentView::sortChildrenByBalance(const Nodes& nodes, bool ascending)
{
    for (const RecordNode& node : nodes) {
        sortNodes(node->children, balanceLess, ascending);
        sortChildren(node->children, ascending);
    }
}

} // namespace zelvor
