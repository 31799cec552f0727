#include "catalogs/expend_select_view.h"

namespace zelvor {

ExpendSelectView::ExpendSelectView(AppDelegate& owner) : TreeChooserView(owner) {}

bool ExpendSelectView::handOver(const IDs& groups, const IDs& leaves)
{
    auto* const receiver = dynamic_cast<ExpendIDsReceiver*>(sender);
    if (!receiver)
        return false;
    receiver->setExpendTypeIDs(groups);
    receiver->setExpendIDs(leaves);
    receiver->setSelectedExpends(label(leaves, localized("Selected Spendings"), localized("All Spendings")));
    return true;
}

bool ExpendSelectView::choose(const std::shared_ptr<Expend>& expend)
{
    auto* const chooser = dynamic_cast<ExpendSelectProtocol*>(sender);
    if (!chooser)
        return false;
    chooser->setNewExpend(expend);
    return true;
}

// A group of spendings cannot be hidden.
ExpendSelectView::Nodes ExpendSelectView::readGroups(Connector& connector) const
{
    const auto groups = connector.freeSQL<ExpendType>();
    return Nodes(groups.begin(), groups.end());
}

} // namespace zelvor
