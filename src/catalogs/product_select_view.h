#pragma once

#include "catalogs/product.h"
#include "catalogs/tree_select_view.h"

namespace zelvor {

// The popover that filters by products.
class ProductSelectView : public TreeSelectView<ProductModel, ProductGroup, Product> {
public:
    explicit ProductSelectView(AppDelegate& owner);

    IDs productIDs;     // ticked leaves
    IDs productTypeIDs; // ticked groups

    const Nodes& products() const { return topLevel(); }

protected:
    IDs& leafIDs() override { return productIDs; }
    IDs& groupIDs() override { return productTypeIDs; }
    bool handOver(const IDs& groups, const IDs& leaves) override;
};

} // namespace zelvor
