#include "desktop/list_delegate.h"

#include "desktop/measures.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
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

void ListDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    if (!isCheckBox(index)) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    item.text.clear();
    item.features &= ~QStyleOptionViewItem::HasCheckIndicator;
    const QWidget* const widget = option.widget;
    QStyle* const style = widget ? widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, widget);

    QStyleOptionButton box;
    box.rect = checkBoxRect(option);
    box.palette = option.palette;
    box.state = index.data(Qt::CheckStateRole).toInt() == Qt::Checked ? QStyle::State_On : QStyle::State_Off;
    if (index.flags() & Qt::ItemIsUserCheckable)
        box.state |= QStyle::State_Enabled;
    style->drawPrimitive(QStyle::PE_IndicatorCheckBox, &box, painter, widget);
}

QSize ListDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    return {size.width() + measures::rowPadding, listRowHeight(option.fontMetrics)};
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
    // Escaped, so that a name is never taken for markup.
    QToolTip::showText(event->globalPos(), cut ? text.toHtmlEscaped() : QString(), view);
    return true;
}

} // namespace zelvor
