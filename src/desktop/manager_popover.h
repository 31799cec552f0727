#pragma once

#include "desktop/catalog_popover.h"

namespace zelvor {

class ManagerViewController;

// The form of one employee.
class ManagerPopover : public CatalogPopover {
    Q_OBJECT

public:
    ManagerPopover(ManagerViewController& controller, QWidget* host);
};

} // namespace zelvor
