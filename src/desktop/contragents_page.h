#pragma once

#include "desktop/tree_catalog_page.h"

namespace zelvor {

class ContragentViewController;

// The counterparties catalog with its popovers.
class ContragentsPage : public TreeCatalogPage {
    Q_OBJECT

public:
    explicit ContragentsPage(ContragentViewController& controller, QWidget* parent = nullptr);
};

} // namespace zelvor
