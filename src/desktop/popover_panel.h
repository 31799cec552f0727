#pragma once

#include "core/outlets.h"

#include <QtCore/QPointer>
#include <QtWidgets/QFrame>

#include <functional>

class QBoxLayout;
class QGridLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace zelvor {

// A form that opens beside what it edits and points at it, inside the window, so that it always stays on the
// screen; its fields scroll where the window is too small for them. While it is open the page behind it
// waits: clicks go nowhere, Tab stays inside. Return presses OK, Escape cancels. Opens and closes with its
// outlet, and goes with its host.
class PopoverPanel : public QFrame {
    Q_OBJECT

public:
    // Lies over `host`'s window.
    PopoverPanel(Popover& outlet, QWidget* host);
    ~PopoverPanel() override;

    // What the panel points at, in global coordinates; asked whenever it opens.
    void setAnchor(std::function<QRect()> anchor) { m_anchor = std::move(anchor); }
    void setOnCancel(std::function<void()> cancel) { m_cancel = std::move(cancel); }

    // Title above, fields in the middle, error line and buttons below.
    void setTitle(Label& title);
    QGridLayout* fields() const { return m_fields; }
    // A label and its field in the next row; the label is the field's buddy.
    QLabel* addRow(const QString& label, QWidget* field, QWidget* beside = nullptr);
    // A row over the whole width.
    void addWide(QWidget* widget);
    // The error's line keeps its place when it is empty.
    void setError(Label& error);
    QPushButton* addOk(Button& okButton, const QString& text);
    // Gets the focus when the panel opens; its text is selected.
    void setFirstField(QWidget* field) { m_first = field; }

    void openPanel();
    void closePanel();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void place();
    QSize fittingSize() const;
    void cancel();
    void pressReturn();
    bool isInFront() const;
    // The page behind gets no focus while the form is open.
    void keepFocus(QWidget* now);
    QWidget* firstField() const;

    Popover& m_outlet;
    QWidget* m_host;
    QPointer<QWidget> m_shield; // takes the clicks of the page behind
    QPointer<QWidget> m_focusBefore;
    QPointer<QWidget> m_first;
    std::function<QRect()> m_anchor;
    std::function<void()> m_cancel;
    QVBoxLayout* m_rows;
    QGridLayout* m_fields;
    QBoxLayout* m_buttons;
    QPushButton* m_ok = nullptr;
    QPoint m_tip; // of the arrow, in own coordinates
    bool m_open = false;
};

} // namespace zelvor
