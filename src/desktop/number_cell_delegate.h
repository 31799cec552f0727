#pragma once

#include "desktop/list_delegate.h"

namespace zelvor {

// Edits the number cells of a document's rows. What is no number turns red and says so, as everywhere; every
// key that leads out of a cell stores it first and is told, so that the table can send the cursor on.
class NumberCellDelegate : public ListDelegate {
    Q_OBJECT

public:
    using ListDelegate::ListDelegate;

    // Whether what is typed can be stored; otherwise the editor has the focus and says so.
    static bool canStore(const QWidget* editor);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;

Q_SIGNALS:
    // The number is stored and the editor closed; `key` is Return, Tab, Backtab, Up or Down.
    void finished(int key);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace zelvor
