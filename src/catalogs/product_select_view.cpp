#include "catalogs/product_select_view.h"

namespace zelvor {

ProductSelectView::ProductSelectView(AppDelegate& owner) : TreeSelectView(owner) {}

bool ProductSelectView::handOver(const IDs& groups, const IDs& leaves)
{
    auto* const receiver = dynamic_cast<ProductIDsReceiver*>(sender);
    if (!receiver)
        return false;
    receiver->setProductTypeIDs(groups);
    receiver->setProductIDs(leaves);
    return true;
}

} // namespace zelvor
