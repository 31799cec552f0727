#include "desktop/table_list.h"

#include "desktop/list_columns.h"
#include "desktop/list_delegate.h"
#include "desktop/theme.h"

#include <QtCore/QEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>

namespace zelvor {

TableList::TableList(TableView& view, const Calendar& calendar, QWidget* parent)
    : QTableView(parent), m_model(new TableViewModel(view, calendar, this))
{
    setModel(m_model);
    setItemDelegate(new ListDelegate(this));
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::EditKeyPressed);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setAlternatingRowColors(false);
    setWordWrap(false);
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(listRowHeight(fontMetrics()));
    prepareHeader(*horizontalHeader());
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this](int column) { sortByClick(*m_model, *horizontalHeader(), m_model->columns(), column); });
    connect(m_model, &QAbstractItemModel::modelReset, this, [this] {
        adoptColumns();
        restoreSelection();
        paintGround();
    });
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] { tellSelection(); });
    connect(this, &QAbstractItemView::doubleClicked, this, [this] { runAction(); });
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

QRect TableList::globalRowRect(int viewRow) const
{
    const int shown = m_model->shownRow(viewRow);
    if (shown < 0)
        return {viewport()->mapToGlobal(QPoint()), QSize(1, 1)};
    const QRect row(0, rowViewportPosition(shown), viewport()->width(), rowHeight(shown));
    return {viewport()->mapToGlobal(row.topLeft()), row.size()};
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
    m_model->view().doubleAction(row);
}

void TableList::adoptColumns()
{
    const std::vector<ViewColumn>& columns = m_model->columns();
    for (int i = 0; i < static_cast<int>(columns.size()); ++i)
        setColumnHidden(i, columns[static_cast<std::size_t>(i)].hidden);
    std::vector<QString> shown = shownIdentifiers(columns);
    if (shown == m_widthsOf || m_model->rowCount() == 0)
        return;
    m_widthsOf = std::move(shown);
    fitColumns(*horizontalHeader(), *m_model, columns, fontMetrics());
}

void TableList::restoreSelection()
{
    m_restoring = true;
    const int row = m_model->view().selectedRow();
    selectViewRow(row);
    m_restoring = false;
    Q_EMIT currentRowChanged(currentRow());
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
    QPalette ground = palette();
    ground.setColor(QPalette::Base, groundColor(m_model->view().groundColor(), QGuiApplication::palette()));
    if (ground != palette())
        setPalette(ground);
}

void TableList::showEvent(QShowEvent* event)
{
    refresh();
    QTableView::showEvent(event);
}

void TableList::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        verticalHeader()->setDefaultSectionSize(listRowHeight(fontMetrics()));
    if (event->type() == QEvent::ApplicationPaletteChange)
        paintGround();
}

} // namespace zelvor
