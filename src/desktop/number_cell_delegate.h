#pragma once

#include "desktop/list_delegate.h"

namespace zelvor {

// Edits the number cells of a list. "12,5" and "12.5" are taken in every locale; what is no number turns red,
// says so, and is not stored: Enter and Tab stay on it. The list is told which key ended the editing, so that
// it can go on to the next cell.
class NumberCellDelegate : public ListDelegate {
    Q_OBJECT

public:
    using ListDelegate::ListDelegate;

    // Whether what is typed may be stored.
    static bool isNumber(const QString& text);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

Q_SIGNALS:
    // The number was stored; `key` is Return, Tab, Backtab, Up or Down.
    void finished(int key) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace zelvor
