#pragma once

#include "catalogs/expend.h"
#include "catalogs/tree_catalog_view.h"

namespace zelvor {

// The list of the spendings catalog.
class ExpendView : public TreeCatalogView<ExpendModel> {
public:
    explicit ExpendView(TreeCatalogOwner<ExpendModel>& owner);

    const Nodes& expends() const { return topLevel(); }
    const Nodes& expendTypes() const { return groups(); }
    bool canExportToExcel() const override { return true; }

protected:
    bool* checkBox(ExpendModel& node, const QString& identifier) const override;
    bool groupShows(const QString& identifier) const override { return identifier == u"name"; }
};

} // namespace zelvor
