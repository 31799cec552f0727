#pragma once

#include "desktop/list_delegate.h"

class QLineEdit;

namespace zelvor {

// Edits the number cells of a list. "12,5" and "12.5" are taken in every locale; what is no number turns red,
// says so, and is not stored: Enter and Tab stay on it. The list itself ends the editing: storing a number
// may read all rows anew, and the editor must be gone by then.
class NumberCellDelegate : public ListDelegate {
    Q_OBJECT

public:
    using ListDelegate::ListDelegate;

    // Whether what is typed may be stored.
    static bool isNumber(const QString& text);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;

Q_SIGNALS:
    // The number may be stored; `key` is Return, Tab, Backtab, Up or Down.
    void finished(QLineEdit* editor, int key);
    // The cursor went elsewhere while something stood in the cell, right or wrong.
    void left(QLineEdit* editor);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace zelvor
