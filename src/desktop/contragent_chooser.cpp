#include "desktop/contragent_chooser.h"

#include "catalogs/contragent_select_view.h"
#include "core/localized.h"
#include "desktop/search_line.h"
#include "desktop/tree_list.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QHeaderView>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr int listWidth = 380;
constexpr int listHeight = 300;
constexpr std::size_t shownOpen = 300; // a larger tree starts with its groups closed

bool isLeaf(const OutlineView::Node& node)
{
    const auto record = std::dynamic_pointer_cast<ContragentModel>(node);
    return record && !record->isGroup();
}

// The first counterparty in the order of the screen.
QModelIndex firstLeaf(const OutlineViewModel& model, const QModelIndex& parent)
{
    const int rows = model.rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (isLeaf(model.node(index)))
            return index;
        if (const QModelIndex below = firstLeaf(model, index); below.isValid())
            return below;
    }
    return {};
}

} // namespace

ContragentChooser::ContragentChooser(ContragentSelectView& view, const Calendar& calendar, QWidget* host)
    : PopoverPanel(view.selectPopover, host), m_view(view), m_tree(new TreeList(view, calendar)),
      m_search(new SearchLine(m_tree))
{
    setAccessibleName(localized("Choose a counterparty"));
    m_search->setObjectName(u"contragentSearch"_s);
    m_search->setAccessibleName(localized("Search the counterparties"));
    m_search->setPlaceholderText(localized("Search"));
    m_search->installEventFilter(this);
    m_tree->setObjectName(u"contragentChooserTree"_s);
    m_tree->setAccessibleName(localized("Counterparties"));
    m_tree->setDragDropMode(QAbstractItemView::NoDragDrop);
    m_tree->setFrameShape(QFrame::StyledPanel);
    m_tree->setHeaderHidden(true);
    m_tree->setMinimumSize(listWidth, listHeight);
    m_tree->rowAction = [this](const OutlineView::Node&) {
        choose();
        return true;
    };
    addWide(m_search);
    addWide(m_tree);
    setFirstField(m_search);
    connect(m_search, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_tree->setFilter(text);
        selectFirstMatch();
    });
}

void ContragentChooser::startWith(const QString& text)
{
    m_search->setText(text);
    m_search->deselect();
    m_search->end(false);
}

void ContragentChooser::showEvent(QShowEvent* event)
{
    PopoverPanel::showEvent(event);
    m_search->clear();
    if (m_view.all().size() <= shownOpen)
        m_tree->expandAll();
}

void ContragentChooser::selectFirstMatch()
{
    if (m_search->text().trimmed().isEmpty())
        return;
    const OutlineViewModel& model = *m_tree->outlineModel();
    if (const QModelIndex leaf = firstLeaf(model, {}); leaf.isValid())
        m_tree->selectNode(model.node(leaf));
}

void ContragentChooser::choose()
{
    const OutlineView::Node node = m_tree->currentNode();
    if (isLeaf(node)) {
        m_view.doubleAction(node);
        if (!m_view.selectPopover.isOpen())
            Q_EMIT chosen();
        return;
    }
    const QModelIndex group = m_tree->currentIndex().siblingAtColumn(0);
    if (node)
        m_tree->setExpanded(group, !m_tree->isExpanded(group));
}

bool ContragentChooser::searchKey(int key)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        choose();
        return true;
    case Qt::Key_Escape:
        m_view.cancelPopover();
        return true;
    case Qt::Key_Down:
    case Qt::Key_Up: {
        const QModelIndex current = m_tree->currentIndex();
        const QModelIndex next = !current.isValid()    ? m_tree->outlineModel()->index(0, 0)
                                 : key == Qt::Key_Down ? m_tree->indexBelow(current)
                                                       : m_tree->indexAbove(current);
        if (next.isValid())
            m_tree->selectNode(m_tree->outlineModel()->node(next));
        return true;
    }
    default:
        return false;
    }
}

bool ContragentChooser::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_search && event->type() == QEvent::KeyPress &&
        searchKey(static_cast<QKeyEvent*>(event)->key()))
        return true;
    return PopoverPanel::eventFilter(watched, event);
}

} // namespace zelvor
