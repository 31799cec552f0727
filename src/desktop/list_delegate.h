#pragma once

#include <QtWidgets/QStyledItemDelegate>

namespace zelvor {

// Draws and edits the cells of every list: check boxes centred in their column, amounts in tabular figures,
// a tool tip with the whole text where it was cut off, numbers typed as in any number field.
class ListDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

Q_SIGNALS:
    // The cell's text was taken over and its editor closed with Return.
    void entered();

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    bool editorKey(QWidget* editor, int key);

    mutable QFont m_font;    // the last list font that figures were asked for
    mutable QFont m_figures; // the font of numbers in it
};

// The height of one row of a list in that font.
int listRowHeight(const QFontMetrics& metrics);

} // namespace zelvor
