#pragma once

#include "desktop/catalog_popover.h"

namespace zelvor {

class StockViewController;

// The form of one warehouse.
class StockPopover : public CatalogPopover {
    Q_OBJECT

public:
    StockPopover(StockViewController& controller, QWidget* host);
};

} // namespace zelvor
