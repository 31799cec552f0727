#include "desktop/tree_list.h"

#include "desktop/list_columns.h"
#include "desktop/list_delegate.h"
#include "desktop/theme.h"

#include <QtCore/QEvent>
#include <QtGui/QDragMoveEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>

#include <utility>

namespace zelvor {

namespace {

constexpr std::size_t sampledRows = 300; // for the widths of columns
constexpr int openUnderDrag = 700;       // milliseconds over a closed group

} // namespace

TreeList::TreeList(OutlineView& view, const Calendar& calendar, QWidget* parent)
    : QTreeView(parent), m_model(new OutlineViewModel(view, calendar, this)),
      m_columns(new ListColumns(*this, *header()))
{
    setModel(m_model);
    setItemDelegate(new ListDelegate(this));
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setExpandsOnDoubleClick(false);
    setFrameShape(QFrame::StyledPanel);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDropIndicatorShown(true);
    setDragDropMode(QAbstractItemView::DragDrop);
    setDefaultDropAction(Qt::MoveAction);
    setAutoExpandDelay(openUnderDrag);
    connect(m_model, &QAbstractItemModel::modelAboutToBeReset, this, [this] {
        m_scrolled = {horizontalScrollBar()->value(), verticalScrollBar()->value()};
    });
    connect(m_model, &OutlineViewModel::reloaded, this, [this] { takeOver(); });
    connect(this, &QTreeView::expanded, this,
            [this](const QModelIndex& index) { tellExpanded(index, true); });
    connect(this, &QTreeView::collapsed, this,
            [this](const QModelIndex& index) { tellExpanded(index, false); });
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] { tellSelection(); });
    connect(this, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& index) {
        if (!(index.flags() & Qt::ItemIsUserCheckable))
            runAction();
    });
    takeOver();
}

void TreeList::selectNode(const OutlineView::Node& node)
{
    const QModelIndex index = m_model->indexOf(node);
    if (!index.isValid()) {
        clearSelection();
        setCurrentIndex({});
        return;
    }
    for (QModelIndex above = index.parent(); above.isValid(); above = above.parent())
        expand(above);
    setCurrentIndex(index.siblingAtColumn(firstShownColumn(m_model->columns())));
}

QRect TreeList::globalRowRect(const OutlineView::Node& node)
{
    const QModelIndex index = m_model->indexOf(node);
    if (index.isValid())
        scrollTo(index.siblingAtColumn(firstShownColumn(m_model->columns())));
    const QRect cell = visualRect(index.siblingAtColumn(firstShownColumn(m_model->columns())));
    if (!index.isValid() || cell.isEmpty())
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

// What the user opens and closes under a filter is the filter's affair; the view keeps its own.
void TreeList::tellExpanded(const QModelIndex& index, bool expanded)
{
    if (m_restoring || !m_model->filter().isEmpty())
        return;
    m_model->view().setItemExpanded(m_model->node(index), expanded);
    if (expanded)
        showBranch(index);
    // A selected row goes out of sight with the group that holds it: the group has the selection then.
    for (QModelIndex above = currentIndex().parent(); !expanded && above.isValid(); above = above.parent()) {
        if (above == index)
            setCurrentIndex(index.siblingAtColumn(firstShownColumn(m_model->columns())));
    }
}

void TreeList::tellSelection()
{
    if (!m_restoring)
        m_model->view().selectItem(currentNode());
    Q_EMIT currentNodeChanged();
}

void TreeList::sampleRows(const QModelIndex& parent, std::vector<QModelIndex>& sample) const
{
    const int rows = m_model->rowCount(parent);
    for (int row = 0; row < rows && sample.size() < sampledRows; ++row) {
        const QModelIndex index = m_model->index(row, 0, parent); // the sample moves as it grows
        sample.push_back(index);
        if (isExpanded(index))
            sampleRows(index, sample);
    }
}

void TreeList::adoptColumns()
{
    // The arrows of the tree stand in the first column that shows.
    setTreePosition(firstShownColumn(m_model->columns()));
    std::vector<QModelIndex> sample;
    sampleRows({}, sample);
    m_columns->adopt(m_model->columns(), sample);
}

void TreeList::takeOver()
{
    m_restoring = true;
    if (m_model->filter().isEmpty())
        restoreExpanded({});
    else
        expandAll();
    adoptColumns();
    restoreSelection();
    m_restoring = false;
    restoreScroll();
    paintGround();
}

// What stood open in a group when the rows were read anew stands open when the group opens, and the columns
// are wide enough for what comes into sight.
void TreeList::showBranch(const QModelIndex& index)
{
    m_restoring = true;
    restoreExpanded(index);
    m_restoring = false;
    std::vector<QModelIndex> sample;
    sampleRows(index, sample);
    m_columns->adopt(m_model->columns(), sample);
}

// Only open branches are entered, so a closed tree of any size costs nothing.
void TreeList::restoreExpanded(const QModelIndex& parent)
{
    const int rows = m_model->rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex index = m_model->index(row, 0, parent);
        if (!m_model->view().isItemExpanded(m_model->node(index)))
            continue;
        if (!isExpanded(index))
            expand(index);
        restoreExpanded(index);
    }
}

bool TreeList::isShown(const QModelIndex& index) const
{
    for (QModelIndex above = index.parent(); above.isValid(); above = above.parent()) {
        if (!isExpanded(above))
            return false;
    }
    return index.isValid();
}

void TreeList::restoreSelection()
{
    OutlineView& view = m_model->view();
    const QModelIndex selected = m_model->indexOf(view.selectedItem());
    // What a filter hides is not selected: nothing is done to a row that nobody sees.
    if (!selected.isValid() && !m_model->filter().isEmpty())
        view.selectItem(nullptr);
    if (selected.isValid() && currentNode() == view.selectedItem())
        return;
    setAutoScroll(false);
    selectNode(isShown(selected) ? view.selectedItem() : nullptr);
    setAutoScroll(true);
}

// Nothing scrolls by itself; only another filter shows other rows.
void TreeList::restoreScroll()
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

void TreeList::paintGround()
{
    QPalette own;
    const Color& ground = m_model->view().groundColor();
    if (!(ground == whiteColor))
        own.setColor(QPalette::Base, groundColor(ground, QGuiApplication::palette()));
    if (own.color(QPalette::Base) != palette().color(QPalette::Base))
        setPalette(own);
}

void TreeList::showEvent(QShowEvent* event)
{
    refresh();
    QTreeView::showEvent(event);
}

void TreeList::changeEvent(QEvent* event)
{
    QTreeView::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        m_columns->forgetMeasures();
        adoptColumns();
    }
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange)
        paintGround();
}

void TreeList::resizeEvent(QResizeEvent* event)
{
    QTreeView::resizeEvent(event);
    m_columns->layOut();
}

// A place that refuses the row shows no mark, not even that of the place before.
void TreeList::dragMoveEvent(QDragMoveEvent* event)
{
    setDropIndicatorShown(true);
    QTreeView::dragMoveEvent(event);
    setDropIndicatorShown(event->isAccepted());
}

// The moved row stays in sight.
void TreeList::dropEvent(QDropEvent* event)
{
    QTreeView::dropEvent(event);
    if (event->isAccepted())
        selectNode(m_model->view().selectedItem());
}

} // namespace zelvor
