#pragma once

#include "catalogs/contragent.h"
#include "catalogs/tree_select_view.h"

namespace zelvor {

// The popover that filters by counterparties or chooses one.
class ContragentSelectView : public TreeChooserView<ContragentModel, ContragentGroup, Contragent> {
public:
    explicit ContragentSelectView(AppDelegate& owner);

    IDs contragentIDs;     // ticked leaves
    IDs contragentTypeIDs; // ticked groups

    const Nodes& contragents() const { return topLevel(); }

protected:
    IDs& leafIDs() override { return contragentIDs; }
    IDs& groupIDs() override { return contragentTypeIDs; }
    bool handOver(const IDs& groups, const IDs& leaves) override;
    bool choose(const std::shared_ptr<Contragent>& contragent) override;
};

} // namespace zelvor
