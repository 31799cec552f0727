#pragma once

#include "desktop/catalog_popover.h"

namespace zelvor {

class ContragentViewController;

// The form of one counterparty: customer or supplier.
class ContragentPopover : public CatalogPopover {
    Q_OBJECT

public:
    ContragentPopover(ContragentViewController& controller, QWidget* host);

private:
    void addBusiness();
    void addContact();
    void addDeferment();

    ContragentViewController& m_controller;
};

} // namespace zelvor
