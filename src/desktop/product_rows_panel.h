#pragma once

#include <QtWidgets/QFrame>

class QLabel;

namespace zelvor {

class Product;
class ProductDocumentViewController;
class ProductEntryLine;
class ProductRowsTable;

// The table of a product document with its last, empty row, as one sheet: takes products that are dropped on
// it or typed, and moves the cursor from amount to price to the next product.
class ProductRowsPanel : public QFrame {
    Q_OBJECT

public:
    explicit ProductRowsPanel(ProductDocumentViewController& form, QWidget* parent = nullptr);

    ProductRowsTable* table() const { return m_table; }
    ProductEntryLine* entry() const { return m_entry; }
    // Adds one of the product, and puts the cursor into the amount.
    void takeProduct(const std::shared_ptr<Product>& product);
    void deleteRow();
    // Nothing can be typed any more.
    void setPaper(bool paper);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void connectRows();
    void rowsChanged();
    void fitHeight();
    void paintGround();
    void setReceiving(bool receiving);

    ProductDocumentViewController& m_form;
    ProductRowsTable* m_table;
    ProductEntryLine* m_entry;
    QLabel* m_empty;
    bool m_paper = false;
};

} // namespace zelvor
