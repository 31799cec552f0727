#include "desktop/table_list.h"

#include "desktop/list_columns.h"
#include "desktop/list_delegate.h"
#include "desktop/number_entry.h"
#include "desktop/theme.h"

#include <QtCore/QEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>

#include <algorithm>
#include <utility>

namespace zelvor {

namespace {

constexpr int sampledRows = 300; // for the widths of columns: the first ones and some of all others

bool isTick(const QModelIndex& index)
{
    return index.flags() & Qt::ItemIsUserCheckable;
}

} // namespace

TableList::TableList(TableView& view, const Calendar& calendar, QWidget* parent)
    : QTableView(parent), m_model(new TableViewModel(view, calendar, this)),
      m_columns(new ListColumns(*this, *horizontalHeader()))
{
    auto* const delegate = new ListDelegate(this);
    setModel(m_model);
    setItemDelegate(delegate);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::AnyKeyPressed);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setAlternatingRowColors(false);
    setWordWrap(false);
    setFrameShape(QFrame::StyledPanel);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(listRowHeight(fontMetrics()));
    connect(m_model, &QAbstractItemModel::modelAboutToBeReset, this, [this] {
        m_scrolled = {horizontalScrollBar()->value(), verticalScrollBar()->value()};
    });
    connect(m_model, &TableViewModel::reloaded, this, [this] { takeOver(); });
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] { tellSelection(); });
    connect(this, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& index) {
        if (!isTick(index))
            runAction();
    });
    connect(delegate, &ListDelegate::entered, this,
            [this] { Q_EMIT cellEntered(currentRow(), currentIndex().data(identifierRole).toString()); });
    adoptColumns();
    paintGround();
}

int TableList::currentRow() const
{
    const QModelIndex current = currentIndex();
    return current.isValid() ? m_model->viewRow(current.row()) : -1;
}

void TableList::selectViewRow(int row)
{
    const int shown = m_model->shownRow(row);
    if (shown < 0) {
        clearSelection();
        setCurrentIndex({});
        return;
    }
    const int column = std::max(currentIndex().column(), firstShownColumn(m_model->columns()));
    setCurrentIndex(m_model->index(shown, column));
}

QRect TableList::globalRowRect(int viewRow)
{
    const int shown = m_model->shownRow(viewRow);
    if (shown < 0)
        return {viewport()->mapToGlobal(QPoint()), QSize(1, 1)};
    scrollTo(m_model->index(shown, std::max(columnAt(0), 0)));
    const QRect row(0, rowViewportPosition(shown), viewport()->width(), rowHeight(shown));
    return {viewport()->mapToGlobal(row.topLeft()), row.size()};
}

bool TableList::editCell(int viewRow, const QString& identifier)
{
    const QModelIndex cell =
        m_model->index(m_model->shownRow(viewRow), m_model->columnWithIdentifier(identifier));
    if (!(cell.flags() & Qt::ItemIsEditable))
        return false;
    setCurrentIndex(cell);
    edit(cell);
    return true;
}

void TableList::refresh()
{
    m_model->refresh();
}

void TableList::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool plain = !(event->modifiers() & ~Qt::KeypadModifier);
    if (plain && (enter || event->key() == Qt::Key_F2) && state() != EditingState) {
        runAction();
        return;
    }
    if (plain && event->key() == Qt::Key_Space && tickCurrent(*this))
        return;
    QTableView::keyPressEvent(event);
}

void TableList::runAction()
{
    const int row = currentRow();
    if (row < 0 || (rowAction && rowAction(row)))
        return;
    if (currentIndex().flags() & Qt::ItemIsEditable)
        edit(currentIndex());
    else
        m_model->view().doubleAction(row);
}

void TableList::setDense()
{
    m_columns->setDense();
    adoptColumns();
}

void TableList::adoptColumns()
{
    std::vector<QModelIndex> sample;
    const int rows = m_model->rowCount();
    const int step = std::max(1, 2 * rows / sampledRows);
    for (int row = 0; row < rows; row += row < sampledRows / 2 ? 1 : step)
        sample.push_back(m_model->index(row, 0));
    m_columns->adopt(m_model->columns(), sample);
}

void TableList::takeOver()
{
    adoptColumns();
    restoreSelection();
    restoreScroll();
    paintGround();
}

void TableList::restoreSelection()
{
    TableView& view = m_model->view();
    // What a filter hides is not selected: nothing is done to a row that nobody sees.
    if (!m_model->filter().isEmpty() && m_model->shownRow(view.selectedRow()) < 0)
        view.selectRow(-1);
    const bool moves = m_model->viewRow(currentIndex().row()) != view.selectedRow();
    if (moves) {
        m_restoring = true;
        setAutoScroll(false);
        selectViewRow(view.selectedRow());
        setAutoScroll(true);
        m_restoring = false;
    }
    Q_EMIT currentRowChanged(currentRow());
}

// Nothing scrolls by itself; only another filter shows other rows.
void TableList::restoreScroll()
{
    if (std::exchange(m_shownFilter, m_model->filter()) != m_model->filter()) {
        if (currentIndex().isValid())
            scrollTo(currentIndex());
        else
            scrollToTop();
        return;
    }
    if (m_scrolled.isNull())
        return;
    executeDelayedItemsLayout();
    updateGeometries();
    horizontalScrollBar()->setValue(m_scrolled.x());
    verticalScrollBar()->setValue(m_scrolled.y());
    m_scrolled = {};
}

void TableList::tellSelection()
{
    if (m_restoring)
        return;
    m_model->view().selectRow(currentRow());
    Q_EMIT currentRowChanged(currentRow());
}

void TableList::paintGround()
{
    QPalette own;
    const Color& ground = m_model->view().groundColor();
    if (!(ground == whiteColor))
        own.setColor(QPalette::Base, groundColor(ground, QGuiApplication::palette()));
    if (own.color(QPalette::Base) != palette().color(QPalette::Base))
        setPalette(own);
}

void TableList::showEvent(QShowEvent* event)
{
    refresh();
    QTableView::showEvent(event);
}

void TableList::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        verticalHeader()->setDefaultSectionSize(listRowHeight(fontMetrics()));
        m_columns->forgetMeasures();
        adoptColumns();
    }
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange)
        paintGround();
}

void TableList::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    m_columns->layOut();
}

// Rows that are read anew under an open editor do not touch what is being typed.
void TableList::dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                            const QList<int>& roles)
{
    if (state() == EditingState)
        viewport()->update();
    else
        QTableView::dataChanged(topLeft, bottomRight, roles);
}

void TableList::commitData(QWidget* editor)
{
    const NumberEntry* const entry = NumberEntry::of(editor);
    if (!entry || !entry->isWrong())
        QTableView::commitData(editor);
}

// An editor with a wrong number is closed by Escape only.
void TableList::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    NumberEntry* const entry = NumberEntry::of(editor);
    if (entry && entry->isWrong() && hint != QAbstractItemDelegate::RevertModelCache)
        entry->complain();
    else
        QTableView::closeEditor(editor, hint);
}

} // namespace zelvor
