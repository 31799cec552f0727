#pragma once

#include "desktop/tree_catalog_page.h"

namespace zelvor {

class ProductViewController;

// The products catalog with its popovers.
class ProductsPage : public TreeCatalogPage {
    Q_OBJECT

public:
    explicit ProductsPage(ProductViewController& controller, QWidget* parent = nullptr);
};

} // namespace zelvor
