#pragma once

#include "desktop/list_page.h"

namespace zelvor {

class ProductViewController;

// The products catalog with its popovers.
class ProductsPage : public TreePage {
    Q_OBJECT

public:
    explicit ProductsPage(ProductViewController& controller, QWidget* parent = nullptr);

private:
    ProductViewController& m_controller;
};

} // namespace zelvor
