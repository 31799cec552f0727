#pragma once

#include "catalogs/product.h"

#include <QtWidgets/QWidget>

#include <memory>

namespace zelvor {

class ElidedLabel;
class ProductChooserTree;
class ProductDocumentViewController;
class SearchLine;
class ToolButton;

// The product tree beside a document: what the document can take, to be dragged, or taken by a double click
// or Enter.
class ProductChooserPanel : public QWidget {
    Q_OBJECT

public:
    explicit ProductChooserPanel(ProductDocumentViewController& form, QWidget* parent = nullptr);

    SearchLine* searchLine() const { return m_search; }

Q_SIGNALS:
    void productChosen(const std::shared_ptr<Product>& product);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QWidget* makeTitle();
    void makePopovers();
    bool chooseNode(const std::shared_ptr<ProductModel>& node);

    ProductDocumentViewController& m_form;
    ProductChooserTree* m_tree;
    SearchLine* m_search;
    ElidedLabel* m_title;
    ToolButton* m_add = nullptr;
};

} // namespace zelvor
