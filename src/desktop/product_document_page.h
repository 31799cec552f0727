#pragma once

#include "desktop/page.h"

#include <functional>

class QPushButton;
class QSplitter;

namespace zelvor {

class Button;
class ContragentChooser;
class Outlet;
class PaperField;
class ProductChooserPanel;
class ProductDocumentFields;
class ProductDocumentTotals;
class ProductDocumentViewController;
class ProductRowsPanel;

// The form of a product document: its head, its rows beside the products to take, its sums. Once confirmed
// it is paper: nothing has a frame and nothing can be changed.
class ProductDocumentPage : public Page {
    Q_OBJECT

public:
    explicit ProductDocumentPage(ProductDocumentViewController& controller, QWidget* parent = nullptr);
    ~ProductDocumentPage() override;

    // Takes the tab away, asking first; set by whoever has the tabs.
    std::function<void()> onClose;

    void takeFocus() override;
    void refresh() override;
    bool can(PageCommand command) const override;
    void perform(PageCommand command) override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void makeTools();
    QPushButton* makeButton(Button& outlet, const QString& text, const QString& icon, PageCommand command);
    void makeBody();
    QWidget* makeFoot();
    void followForm();
    void showState();
    void paintPaper();
    void askContragent(const QString& typed);
    void goToNextInput();
    bool finishEditing();

    ProductDocumentViewController& m_controller;
    ProductDocumentFields* m_fields;
    ProductRowsPanel* m_sheet;
    ProductChooserPanel* m_products = nullptr;
    ProductDocumentTotals* m_totals;
    PaperField* m_comment = nullptr;
    QWidget* m_deleteRow = nullptr;
    QPushButton* m_confirm = nullptr;
    QSplitter* m_splitter;
    ContragentChooser* m_chooser = nullptr; // made when it is first asked for
    bool m_paper = false;
    bool m_begun = false; // was in front before
};

} // namespace zelvor
