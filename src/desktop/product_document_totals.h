#pragma once

#include <QtWidgets/QWidget>

class QGridLayout;
class QLabel;

namespace zelvor {

class NumberField;
class PaperField;
class ProductDocumentViewController;

// The sums of a product document, figures below figures, what is due last and large.
class ProductDocumentTotals : public QWidget {
    Q_OBJECT

public:
    explicit ProductDocumentTotals(ProductDocumentViewController& form, QWidget* parent = nullptr);

    void setPaper(bool paper);

private:
    void addFigure(int row, int column, QLabel* label, QWidget* figure);
    QLabel* figure(NumberField& outlet);
    QLabel* due();
    void addShipment(int row);

    ProductDocumentViewController& m_form;
    QGridLayout* m_grid;
    PaperField* m_shipment = nullptr;
};

} // namespace zelvor
