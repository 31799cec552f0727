#include "desktop/product_rows_table.h"

#include "core/localized.h"
#include "desktop/cell_painter.h"
#include "desktop/number_cell_delegate.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollBar>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

ProductRowsTable::ProductRowsTable(TableView& view, const Calendar& calendar, QWidget* parent)
    : TableList(view, calendar, parent)
{
    setObjectName(u"documentRows"_s);
    setAccessibleName(localized("Rows of the document"));
    setFrameShape(QFrame::NoFrame);                     // the sheet around it has one
    setEditTriggers(QAbstractItemView::NoEditTriggers); // editing starts in editCell() alone
    auto* const delegate = new NumberCellDelegate(this);
    setItemDelegate(delegate);
    connect(delegate, &NumberCellDelegate::finished, this, &ProductRowsTable::goOn);
    setDense();
    rowAction = [this](int) {
        editCurrent();
        return true;
    };
    connect(tableModel(), &TableViewModel::reloaded, this, [this] { updateGeometry(); });
}

// The number under the cursor, else the amount of its row.
void ProductRowsTable::editCurrent()
{
    const QModelIndex current = currentIndex();
    editCell(currentRow(),
             current.flags() & Qt::ItemIsEditable ? current.data(identifierRole).toString() : u"amount"_s);
}

// Behind a number that was stored.
void ProductRowsTable::goOn(int key)
{
    const int row = currentRow();
    const QString here = currentIndex().data(identifierRole).toString();
    switch (key) {
    case Qt::Key_Up:
        editCell(std::max(row - 1, 0), here);
        break;
    case Qt::Key_Down:
        if (row + 1 < shownView().numberOfRows())
            editCell(row + 1, here);
        else
            Q_EMIT leftDownwards();
        break;
    case Qt::Key_Backtab:
        editCell(row, u"amount"_s);
        break;
    default:
        if (here == "amount"_L1)
            editCell(row, u"price"_s);
        else
            Q_EMIT leftDownwards();
    }
}

// Those that were closed just now hang on until the event loop comes round.
QLineEdit* ProductRowsTable::openEditor() const
{
    const auto editors = viewport()->findChildren<QLineEdit*>(u"cellEditor"_s);
    const auto open = std::ranges::find(editors, false, &QWidget::isHidden);
    return open == editors.end() ? nullptr : *open;
}

bool ProductRowsTable::finishEditing()
{
    QLineEdit* const editor = openEditor();
    if (!editor)
        return true;
    if (!NumberCellDelegate::canStore(editor))
        return false;
    commitData(editor);
    closeEditor(editor, QAbstractItemDelegate::NoHint);
    return true;
}

int ProductRowsTable::contentHeight() const
{
    // Worked out, not asked: a bar may be there only because the height is not right yet.
    const bool rolls = horizontalHeader()->length() > width();
    const int barHeight = rolls ? horizontalScrollBar()->sizeHint().height() : 0;
    return horizontalHeader()->sizeHint().height() + verticalHeader()->length() + barHeight;
}

void ProductRowsTable::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Delete)) {
        Q_EMIT deleteRequested();
        return;
    }
    const bool plain = !(event->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier));
    const bool last = currentRow() == shownView().numberOfRows() - 1;
    if (plain && event->key() == Qt::Key_Down && last) {
        Q_EMIT leftDownwards();
        return;
    }
    const QString text = plain ? event->text() : QString();
    if (!text.isEmpty() && text.front().isLetter()) {
        Q_EMIT nameTyped(text);
        return;
    }
    if (!text.isEmpty() && text.front().isDigit() && currentRow() >= 0) {
        editCurrent();
        if (QLineEdit* const editor = openEditor())
            QCoreApplication::sendEvent(editor, event);
        return;
    }
    TableList::keyPressEvent(event);
}

} // namespace zelvor
