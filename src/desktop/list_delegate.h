#pragma once

#include <QtWidgets/QStyledItemDelegate>

namespace zelvor {

// Draws and edits the cells of every list: check boxes centred in their column, amounts in tabular figures,
// a tool tip with the whole text where it was cut off.
class ListDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
};

// The height of one row of a list in that font.
int listRowHeight(const QFontMetrics& metrics);

} // namespace zelvor
