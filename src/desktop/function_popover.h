#pragma once

#include "desktop/catalog_popover.h"

namespace zelvor {

class FunctionViewController;

// The form of one function of employees.
class FunctionPopover : public CatalogPopover {
    Q_OBJECT

public:
    FunctionPopover(FunctionViewController& controller, QWidget* host);
};

} // namespace zelvor
