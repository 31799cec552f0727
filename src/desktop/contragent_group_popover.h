#pragma once

#include "desktop/catalog_popover.h"

namespace zelvor {

class ContragentViewController;

// The form of one group of counterparties.
class ContragentGroupPopover : public CatalogPopover {
    Q_OBJECT

public:
    ContragentGroupPopover(ContragentViewController& controller, QWidget* host);
};

} // namespace zelvor
