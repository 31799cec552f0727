#include "catalogs/contragent_select_view.h"

namespace zelvor {

ContragentSelectView::ContragentSelectView(AppDelegate& owner) : TreeChooserView(owner) {}

bool ContragentSelectView::handOver(const IDs& groups, const IDs& leaves)
{
    auto* const receiver = dynamic_cast<ContragentIDsReceiver*>(sender);
    if (!receiver)
        return false;
    receiver->setContragentTypeIDs(groups);
    receiver->setContragentIDs(leaves);
    receiver->setSelectedContragents(
        label(leaves, localized("Selected Counterparties"), localized("All Counterparties")));
    return true;
}

bool ContragentSelectView::choose(const std::shared_ptr<Contragent>& contragent)
{
    auto* const chooser = dynamic_cast<ContragentSelectProtocol*>(sender);
    if (!chooser)
        return false;
    chooser->setNewContragent(contragent);
    return true;
}

} // namespace zelvor
