#pragma once

#include "catalogs/expend.h"
#include "catalogs/tree_select_view.h"

namespace zelvor {

// The popover that filters by spendings or chooses one.
class ExpendSelectView : public TreeChooserView<ExpendModel, ExpendType, Expend> {
public:
    explicit ExpendSelectView(AppDelegate& owner);

    IDs expendIDs;     // ticked leaves
    IDs expendTypeIDs; // ticked groups

    const Nodes& expends() const { return topLevel(); }

protected:
    IDs& leafIDs() override { return expendIDs; }
    IDs& groupIDs() override { return expendTypeIDs; }
    bool handOver(const IDs& groups, const IDs& leaves) override;
    bool choose(const std::shared_ptr<Expend>& expend) override;
    Nodes readGroups(Connector& connector) const override;
};

} // namespace zelvor
