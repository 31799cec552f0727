#pragma once

#include "desktop/catalog_popover.h"

namespace zelvor {

class ProductViewController;

// The form of one product. Its lock, its groups and its units are the controller's; any controller of
// products will do, the catalog's own or that of a document.
class ProductPopover : public CatalogPopover {
    Q_OBJECT

public:
    ProductPopover(ProductViewController& controller, QWidget* host);

private:
    void addGoods();
    void addMoney();

    ProductViewController& m_controller;
};

} // namespace zelvor
