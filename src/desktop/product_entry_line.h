#pragma once

#include "catalogs/product.h"

#include <QtWidgets/QLineEdit>

#include <memory>

class QTableView;

namespace zelvor {

class ProductDocumentViewController;
class ProductMatchesModel;

// The last, empty row of a product document: a product's name is typed here. What it may mean shows below
// with stock and price; Enter takes the first or the chosen one. A name that means nothing turns red.
class ProductEntryLine : public QLineEdit {
    Q_OBJECT

public:
    explicit ProductEntryLine(ProductDocumentViewController& form, QWidget* parent = nullptr);
    ~ProductEntryLine() override;

    // The list of matches; made when it is first shown.
    QTableView* matches() const { return m_list; }
    // Whether nothing is typed here that was not taken. Otherwise the cursor comes here.
    bool isDone();

Q_SIGNALS:
    void productTyped(const std::shared_ptr<Product>& product);
    // The arrow up: back into the rows.
    void leftUpwards();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;

private:
    void showMatches(const QString& typed);
    void makeList();
    void placeList();
    void moveChoice(int step);
    void take(int row);
    void paintUnknown(bool unknown);
    void hideList();
    void followLine();

    ProductDocumentViewController& m_form;
    ProductMatchesModel* m_model;
    QTableView* m_list = nullptr; // lies over the window, which may go before
};

} // namespace zelvor
