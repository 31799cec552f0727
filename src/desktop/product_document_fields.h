#pragma once

#include <QtWidgets/QWidget>

#include <vector>

class QGridLayout;
class QLabel;
class QLineEdit;

namespace zelvor {

class PaperField;
class ProductDocumentViewController;

// The head of a product document: date, warehouses, counterparty, terms, taxes; only what the type uses. The
// labels of required inputs are red and marked until they are filled.
class ProductDocumentFields : public QWidget {
    Q_OBJECT

public:
    explicit ProductDocumentFields(ProductDocumentViewController& form, QWidget* parent = nullptr);

    // Where a required input is still missing; null when all are there.
    QWidget* firstMissing() const;
    QLineEdit* contragentField() const { return m_contragent; }
    void setPaper(bool paper);

Q_SIGNALS:
    // The counterparty's chooser is asked for, with the letters that were typed on the field.
    void contragentAsked(const QString& typed);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addFields();
    void add(QLabel* label, QWidget* field);
    void addDate();
    void addWarehouses();
    void addContragent();
    void addManager();
    void addDeferment();
    void addBalance();
    void addDiscount();
    void addTaxes();
    QWidget* contragentWithButtons();
    PaperField* onPaper(PaperField* field);

    ProductDocumentViewController& m_form;
    QGridLayout* m_grid;
    QLineEdit* m_contragent = nullptr;
    std::vector<PaperField*> m_paperFields;
    int m_count = 0;
};

} // namespace zelvor
