#pragma once

#include "desktop/list_page.h"

namespace zelvor {

class ProductDocumentViewController;

// The form of a product document.
class ProductDocumentPage : public TablePage {
    Q_OBJECT

public:
    explicit ProductDocumentPage(ProductDocumentViewController& controller, QWidget* parent = nullptr);

private:
    ProductDocumentViewController& m_controller;
};

} // namespace zelvor
