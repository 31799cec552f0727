#include "desktop/product_rows_table.h"

#include "core/formats.h"
#include "core/localized.h"
#include "desktop/list_columns.h"
#include "desktop/measures.h"
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
    setFrameShape(QFrame::NoFrame); // the sheet around it has one
    setEditTriggers(QAbstractItemView::NoEditTriggers); // editing starts in editCell() alone
    auto* const delegate = new NumberCellDelegate(this);
    setItemDelegate(delegate);
    connect(delegate, &NumberCellDelegate::finished, this, [this](QLineEdit* editor, int key) {
        takeNumber(editor);
        goOn(key);
    });
    connect(delegate, &NumberCellDelegate::left, this, &ProductRowsTable::takeNumber);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    rowAction = [this](int) {
        editCurrent();
        return true;
    };
    connect(tableModel(), &TableViewModel::reloaded, this, [this] {
        fitNumbers();
        updateGeometry();
    });
    fitNumbers();
}

bool ProductRowsTable::isEditable(int column) const
{
    const auto& columns = tableModel()->columns();
    return column >= 0 && column < static_cast<int>(columns.size()) &&
           columns[static_cast<std::size_t>(column)].editable;
}

void ProductRowsTable::editCell(int viewRow, const QString& identifier)
{
    const int shown = tableModel()->shownRow(viewRow);
    const int column = tableModel()->columnWithIdentifier(identifier);
    if (shown < 0 || !isEditable(column))
        return;
    setFocus(Qt::OtherFocusReason);
    const QModelIndex cell = tableModel()->index(shown, column);
    m_editedRow = viewRow;
    m_editedColumn = identifier;
    setCurrentIndex(cell);
    scrollTo(cell);
    edit(cell);
}

// The cell under the cursor where it takes a number, else the amount of its row.
void ProductRowsTable::editCurrent()
{
    const auto& columns = tableModel()->columns();
    const int column = currentIndex().column();
    if (!isEditable(column)) {
        editCell(currentRow(), u"amount"_s);
        return;
    }
    const ViewColumn& current = columns[static_cast<std::size_t>(column)];
    if (current.kind == CellKind::Amount)
        editCell(currentRow(), current.identifier);
}

// Ends the editing; a wrong number is dropped.
void ProductRowsTable::takeNumber(QLineEdit* editor)
{
    const QModelIndex cell = tableModel()->index(tableModel()->shownRow(m_editedRow),
                                                 tableModel()->columnWithIdentifier(m_editedColumn));
    const QString text = editor->text();
    closeEditor(editor, QAbstractItemDelegate::NoHint);
    if (NumberCellDelegate::isNumber(text))
        model()->setData(cell, amountFromUserText(text, QLocale()).toText(), Qt::EditRole);
}

// Behind a number that was stored.
void ProductRowsTable::goOn(int key)
{
    const int row = m_editedRow;
    const QString here = m_editedColumn;
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
    if (!NumberCellDelegate::isNumber(editor->text())) {
        editor->setFocus(Qt::OtherFocusReason);
        return false;
    }
    takeNumber(editor);
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

void ProductRowsTable::resizeEvent(QResizeEvent* event)
{
    TableList::resizeEvent(event);
    fitNumbers();
}

// The numbers take what they need and never shrink while one writes; the name has the rest.
void ProductRowsTable::fitNumbers()
{
    QHeaderView& header = *horizontalHeader();
    const auto& columns = tableModel()->columns();
    const QFontMetrics metrics = fontMetrics();
    const std::vector<QString> shown = shownIdentifiers(columns);
    const bool firstRows = !m_fittedWithRows && tableModel()->rowCount() > 0;
    const bool anew = shown != m_fittedColumns || firstRows;
    m_fittedColumns = shown;
    m_fittedWithRows = tableModel()->rowCount() > 0;
    for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
        const ViewColumn& column = columns[static_cast<std::size_t>(i)];
        const bool name = column.identifier == "name"_L1;
        header.setSectionResizeMode(i, QHeaderView::Interactive);
        if (column.hidden || name)
            continue;
        int width = header.sectionSizeHint(i);
        if (column.kind == CellKind::Amount)
            width = std::max(width, metrics.horizontalAdvance(u"0 000.00"_s) + 2 * measures::rowPadding);
        const int rows = std::min(tableModel()->rowCount(), 200);
        for (int row = 0; row < rows; ++row) {
            const QString text = tableModel()->index(row, i).data(Qt::DisplayRole).toString();
            width = std::max(width, metrics.horizontalAdvance(text) + 2 * measures::rowPadding);
        }
        if (anew || width > header.sectionSize(i))
            header.resizeSection(i, width);
    }
    const int nameColumn = tableModel()->columnWithIdentifier(u"name"_s);
    const int taken = header.length() - header.sectionSize(nameColumn);
    const int narrowest = metrics.averageCharWidth() * 16;
    header.resizeSection(nameColumn, std::max(narrowest, viewport()->width() - taken));
}

} // namespace zelvor
