#include "desktop/list_delegate.h"

#include "desktop/cell_painter.h"
#include "desktop/measures.h"
#include "desktop/number_entry.h"
#include "desktop/theme.h"
#include "desktop/tool_tip.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolTip>

namespace zelvor {

namespace {

QRect checkBoxRect(const QStyleOptionViewItem& option)
{
    QStyleOptionButton box;
    const QSize size = QApplication::style()->subElementRect(QStyle::SE_CheckBoxIndicator, &box).size();
    return QStyle::alignedRect(option.direction, Qt::AlignCenter, size, option.rect);
}

bool isCheckBox(const QModelIndex& index)
{
    return index.data(Qt::CheckStateRole).isValid();
}

bool isClick(const QEvent* event, const QRect& box)
{
    if (event->type() != QEvent::MouseButtonRelease)
        return false;
    const auto* const mouse = static_cast<const QMouseEvent*>(event);
    return mouse->button() == Qt::LeftButton &&
           box.adjusted(-4, -4, 4, 4).contains(mouse->position().toPoint());
}

} // namespace

int listRowHeight(const QFontMetrics& metrics)
{
    return metrics.height() + measures::rowPadding;
}

void ListDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (!index.data(numberRole).toBool())
        return;
    if (m_font.family() != option->font.family()) {
        m_font = option->font;
        m_figures = figureFont(m_font);
    }
    if (m_figures.family() != option->font.family()) {
        option->font.setFamilies(m_figures.families());
        option->fontMetrics = QFontMetrics(option->font);
    }
}

void ListDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const
{
    const QWidget* const widget = option.widget;
    QStyle* const style = widget ? widget->style() : QApplication::style();
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    if (!isCheckBox(index)) {
        style->drawControl(QStyle::CE_ItemViewItem, &item, painter, widget);
    } else {
        item.text.clear();
        item.features &= ~QStyleOptionViewItem::HasCheckIndicator;
        style->drawControl(QStyle::CE_ItemViewItem, &item, painter, widget);
        QStyleOptionButton box;
        box.rect = checkBoxRect(option);
        box.palette = option.palette;
        // The style draws a box's edge darker than the window: on dark ground nobody would see an empty one.
        if (isDark(box.palette))
            box.palette.setColor(QPalette::Window, box.palette.color(QPalette::PlaceholderText));
        box.state =
            index.data(Qt::CheckStateRole).toInt() == Qt::Checked ? QStyle::State_On : QStyle::State_Off;
        if (index.flags() & Qt::ItemIsUserCheckable)
            box.state |= QStyle::State_Enabled;
        style->drawPrimitive(QStyle::PE_IndicatorCheckBox, &box, painter, widget);
    }
    // In a row that is typed into, the cell of the cursor shows.
    if ((option.state & QStyle::State_HasFocus) &&
        (index.flags() & (Qt::ItemIsEditable | Qt::ItemIsUserCheckable))) {
        painter->setPen(item.palette.color(option.state & QStyle::State_Selected ? QPalette::HighlightedText
                                                                                 : QPalette::Highlight));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(option.rect.adjusted(1, 1, -2, -2));
    }
}

QSize ListDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    return {size.width() + measures::rowPadding, listRowHeight(option.fontMetrics)};
}

QWidget* ListDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const
{
    if (!index.data(numberRole).toBool())
        return QStyledItemDelegate::createEditor(parent, option, index);
    auto* const edit = new QLineEdit(parent);
    edit->setFrame(false);
    edit->setAccessibleName(index.model()->headerData(index.column(), Qt::Horizontal).toString());
    new NumberEntry(edit, 2);
    return edit;
}

// A list that is read anew while somebody types into it does not take the text away.
void ListDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    NumberEntry* const entry = NumberEntry::of(editor);
    const auto* const line = qobject_cast<QLineEdit*>(editor);
    if (!entry && line && line->isModified())
        return;
    if (!entry) {
        QStyledItemDelegate::setEditorData(editor, index);
        return;
    }
    if (line->isModified())
        return;
    const QVariant value = index.data(rawValueRole);
    const bool blank = value.typeId() == QMetaType::QString;
    entry->show(blank ? NumberEntry::Number() : Decimal::fromDouble(value.toDouble()));
}

// An emptied number is 0.
void ListDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    const NumberEntry* const entry = NumberEntry::of(editor);
    if (!entry) {
        QStyledItemDelegate::setModelData(editor, model, index);
        return;
    }
    const auto* const line = static_cast<QLineEdit*>(editor);
    if (line->isModified() && !entry->isWrong())
        model->setData(index, entry->number().value_or(Decimal()).toText(), Qt::EditRole);
}

void ListDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                        const QModelIndex&) const
{
    editor->setGeometry(option.rect);
}

// Whether the key ended the editing, or was refused.
bool ListDelegate::editorKey(QWidget* editor, int key)
{
    NumberEntry* const entry = NumberEntry::of(editor);
    const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (entry && entry->isWrong() && (isReturn || key == Qt::Key_Tab || key == Qt::Key_Backtab)) {
        entry->complain();
        return true;
    }
    if (!isReturn || !qobject_cast<QLineEdit*>(editor))
        return false;
    Q_EMIT commitData(editor);
    Q_EMIT closeEditor(editor, NoHint);
    Q_EMIT entered();
    return true;
}

bool ListDelegate::eventFilter(QObject* watched, QEvent* event)
{
    auto* const editor = qobject_cast<QWidget*>(watched);
    if (editor && event->type() == QEvent::KeyPress &&
        editorKey(editor, static_cast<QKeyEvent*>(event)->key()))
        return true;
    // A wrong number stays open, for the user to come back to.
    const NumberEntry* const entry = NumberEntry::of(editor);
    if (entry && entry->isWrong() && event->type() == QEvent::FocusOut)
        return false;
    return QStyledItemDelegate::eventFilter(watched, event);
}

bool ListDelegate::editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                               const QModelIndex& index)
{
    if (!isCheckBox(index))
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    if (!(index.flags() & Qt::ItemIsUserCheckable) || !isClick(event, checkBoxRect(option)))
        return false;
    const bool on = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    return model->setData(index, on ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

bool ListDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                             const QModelIndex& index)
{
    if (event->type() != QEvent::ToolTip)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const QString text = index.data(Qt::DisplayRole).toString();
    const bool cut = view->visualRect(index).width() < sizeHint(option, index).width() - measures::rowPadding;
    QToolTip::showText(event->globalPos(), cut ? plainToolTip(text) : QString(), view);
    return true;
}

} // namespace zelvor
