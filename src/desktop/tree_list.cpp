#include "desktop/tree_list.h"

#include "desktop/list_columns.h"
#include "desktop/list_delegate.h"
#include "desktop/theme.h"

#include <QtCore/QEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QHeaderView>

namespace zelvor {

TreeList::TreeList(OutlineView& view, const Calendar& calendar, QWidget* parent)
    : QTreeView(parent), m_model(new OutlineViewModel(view, calendar, this))
{
    setModel(m_model);
    setItemDelegate(new ListDelegate(this));
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setExpandsOnDoubleClick(false);
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDropIndicatorShown(true);
    setDragDropMode(QAbstractItemView::DragDrop);
    setDefaultDropAction(Qt::MoveAction);
    prepareHeader(*header());
    connect(header(), &QHeaderView::sectionClicked, this,
            [this](int column) { sortByClick(*m_model, *header(), m_model->columns(), column); });
    connect(m_model, &QAbstractItemModel::modelReset, this, [this] { restoreRows(); });
    connect(this, &QTreeView::expanded, this, [this](const QModelIndex& index) {
        if (!m_restoring && m_model->filter().isEmpty())
            m_model->view().setItemExpanded(m_model->node(index), true);
    });
    connect(this, &QTreeView::collapsed, this, [this](const QModelIndex& index) {
        if (!m_restoring && m_model->filter().isEmpty())
            m_model->view().setItemExpanded(m_model->node(index), false);
    });
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] {
        if (!m_restoring)
            m_model->view().selectItem(currentNode());
        Q_EMIT currentNodeChanged();
    });
    connect(this, &QAbstractItemView::doubleClicked, this, [this] { runAction(); });
    restoreRows();
}

void TreeList::selectNode(const OutlineView::Node& node)
{
    const QModelIndex index = m_model->indexOf(node);
    for (QModelIndex above = index.parent(); above.isValid(); above = above.parent())
        expand(above);
    const int column = firstShownColumn(m_model->columns());
    setCurrentIndex(index.isValid() ? index.siblingAtColumn(column) : QModelIndex());
    if (!index.isValid())
        clearSelection();
}

QRect TreeList::globalRowRect(const OutlineView::Node& node) const
{
    const QModelIndex index = m_model->indexOf(node);
    const QRect cell = visualRect(index.siblingAtColumn(firstShownColumn(m_model->columns())));
    if (cell.isEmpty())
        return {viewport()->mapToGlobal(QPoint()), QSize(1, 1)};
    return {viewport()->mapToGlobal(QPoint(0, cell.top())), QSize(viewport()->width(), cell.height())};
}

void TreeList::refresh()
{
    m_model->refresh();
}

void TreeList::setFilter(const QString& filter)
{
    m_model->setFilter(filter);
    if (!filter.trimmed().isEmpty())
        expandAll();
}

void TreeList::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool plain = !(event->modifiers() & ~Qt::KeypadModifier);
    if (plain && (enter || event->key() == Qt::Key_F2)) {
        runAction();
        return;
    }
    if (plain && event->key() == Qt::Key_Space && tickCurrent(*this))
        return;
    QTreeView::keyPressEvent(event);
}

void TreeList::runAction()
{
    const OutlineView::Node node = currentNode();
    if (!node || (rowAction && rowAction(node)))
        return;
    m_model->view().doubleAction(node);
}

void TreeList::adoptColumns()
{
    const std::vector<ViewColumn>& columns = m_model->columns();
    for (int i = 0; i < static_cast<int>(columns.size()); ++i)
        setColumnHidden(i, columns[static_cast<std::size_t>(i)].hidden);
    // The arrows of the tree stand in the first column that shows.
    setTreePosition(firstShownColumn(columns));
    std::vector<QString> shown = shownIdentifiers(columns);
    if (shown == m_widthsOf || m_model->rowCount() == 0)
        return;
    m_widthsOf = std::move(shown);
    fitColumns(*header(), *m_model, columns, fontMetrics());
}

void TreeList::restoreRows()
{
    m_restoring = true;
    adoptColumns();
    if (m_model->filter().isEmpty())
        restoreExpanded({});
    else
        expandAll();
    selectNode(m_model->view().selectedItem());
    paintGround();
    m_restoring = false;
}

// Only open branches are entered, so a closed tree of any size costs nothing.
void TreeList::restoreExpanded(const QModelIndex& parent)
{
    const int rows = m_model->rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex index = m_model->index(row, 0, parent);
        if (!m_model->view().isItemExpanded(m_model->node(index)))
            continue;
        expand(index);
        restoreExpanded(index);
    }
}

void TreeList::paintGround()
{
    QPalette ground = palette();
    ground.setColor(QPalette::Base, groundColor(m_model->view().groundColor(), QGuiApplication::palette()));
    if (ground != palette())
        setPalette(ground);
}

void TreeList::showEvent(QShowEvent* event)
{
    refresh();
    QTreeView::showEvent(event);
}

void TreeList::changeEvent(QEvent* event)
{
    QTreeView::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange)
        paintGround();
}

} // namespace zelvor
