#pragma once

#include "desktop/catalog_popover.h"

namespace zelvor {

class ProductViewController;

// The form of one group of products.
class ProductGroupPopover : public CatalogPopover {
    Q_OBJECT

public:
    ProductGroupPopover(ProductViewController& controller, QWidget* host);
};

} // namespace zelvor
