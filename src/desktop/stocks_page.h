#pragma once

#include "desktop/list_catalog_page.h"

namespace zelvor {

class StockViewController;

// The warehouses catalog with its popover.
class StocksPage : public ListCatalogPage {
    Q_OBJECT

public:
    explicit StocksPage(StockViewController& controller, QWidget* parent = nullptr);
};

} // namespace zelvor
