#pragma once

#include "desktop/popover_panel.h"

#include <functional>

class QComboBox;
class QLineEdit;
class QToolButton;

namespace zelvor {

// What the popovers of the catalogs have in common: fields in one or two columns that scroll when the window
// is too small for them, and the place they point at. Opened from a field of another popover it points at
// that field, otherwise at the row being edited. It goes with its host, cancelled when it is still open.
class CatalogPopover : public PopoverPanel {
    Q_OBJECT

public:
    ~CatalogPopover() override;

    // The row being edited, or the button that adds; in global coordinates, null when neither can be seen.
    void setRowAnchor(std::function<QRect()> anchor) { m_rowAnchor = std::move(anchor); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

    // What stands beside the label, and what a screen reader calls the field.
    struct FieldName {
        QString label;
        QString accessibleName;
    };
    // A small button behind a field that adds what the field chooses from.
    struct AddBeside {
        QString objectName;
        QString accessibleName;
        std::function<void()> action;
    };

    CatalogPopover(Popover& outlet, QWidget* host, std::function<void()> cancel);

    // Fields come in reading order: over the whole width until startColumns(), then down the left column,
    // after nextColumn() down the right one, after endColumns() over the whole width again.
    QLineEdit* addText(TextField& outlet, const FieldName& name);
    void addLines(TextField& outlet, const FieldName& name);
    QLineEdit* addNumber(NumberField& outlet, const FieldName& name, int decimals = 2);
    // A number that is locked until the lock's question is answered.
    void addLocked(NumberField& outlet, Button& lock, const FieldName& name, const QString& lockName);
    void addChooser(PopUpButton& outlet, const FieldName& name);
    void addChooser(PopUpButton& outlet, const FieldName& name, const AddBeside& adding);
    // A narrow field with a wide one behind it.
    void addPair(const QString& label, QWidget* narrow, QWidget* wide);
    void addCheckBox(CheckBox& outlet, const QString& text, const QString& tip);
    void addField(const QString& label, QWidget* field, QWidget* beside = nullptr);
    void startColumns();
    void nextColumn();
    void endColumns();
    // The field that the cursor starts in, the error's line and OK; to be called last.
    void finish(QLineEdit* first, Label& error, Button& okButton);

    // What the fields lie on; the parent of every field.
    QWidget* form() const { return m_form; }

private:
    QRect anchor();
    QComboBox* makeChooser(PopUpButton& outlet, const QString& accessibleName);
    QToolButton* makeSmallButton(const QString& accessibleName);
    void keepTabOrder(QLineEdit* first);

    Popover& m_popover;
    std::function<void()> m_cancelForm;
    std::function<QRect()> m_rowAnchor;
    QPointer<QWidget> m_host;
    QPointer<QWidget> m_asker; // had the focus when the popover opened
    QWidget* m_form;
    QGridLayout* m_grid;
    int m_rows[2] = {0, 0}; // how many each column has
    int m_column = 0;
    bool m_inColumns = false;
};

} // namespace zelvor
