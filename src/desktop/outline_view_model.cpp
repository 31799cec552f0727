#include "desktop/outline_view_model.h"

#include "desktop/question_guard.h"
#include "desktop/row_filter.h"

#include <QtCore/QMimeData>
#include <QtGui/QGuiApplication>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

OutlineViewModel::OutlineViewModel(OutlineView& view, const Calendar& calendar, QObject* parent)
    : QAbstractItemModel(parent), m_view(view), m_calendar(calendar), m_columns(view.columns())
{
    view.onReload(m_listening, [this] { reload(); });
    reload();
}

OutlineViewModel::~OutlineViewModel() = default;

int OutlineViewModel::columnWithIdentifier(const QString& identifier) const
{
    const auto place = std::ranges::find(m_columns, identifier, &ViewColumn::identifier);
    return place == m_columns.end() ? -1 : static_cast<int>(place - m_columns.begin());
}

void OutlineViewModel::setFilter(const QString& filter)
{
    if (filter.simplified() == m_filter)
        return;
    m_filter = filter.simplified();
    reload();
}

void OutlineViewModel::refresh()
{
    const int rows = m_view.numberOfChildren(nullptr); // a stale view reads, and tells of it by itself
    if (m_reloadWaits || (m_filter.isEmpty() && rows != rowCount({})))
        reload();
}

void OutlineViewModel::reload()
{
    if (m_reloading)
        return;
    if (m_questions > 0) {
        if (!std::exchange(m_reloadWaits, true))
            QMetaObject::invokeMethod(this, &OutlineViewModel::refresh, Qt::QueuedConnection);
        return;
    }
    m_reloading = true;
    takeOver();
    m_reloading = false;
    m_reloadWaits = false;
    Q_EMIT reloaded();
}

void OutlineViewModel::takeOver()
{
    m_view.numberOfChildren(nullptr); // has a stale tree read now, not between two of Qt's questions
    std::vector<ViewColumn> columns = m_view.columns();
    applyFilter(columns);
    if (areSame(columns, m_columns) && standsAsItStood()) {
        tellOfChangedData();
        return;
    }
    beginResetModel();
    m_columns = std::move(columns);
    m_branches.clear();
    branchOf(nullptr, nullptr, 0);
    endResetModel();
}

bool OutlineViewModel::standsAsItStood() const
{
    return !m_branches.empty() && std::ranges::all_of(m_branches, [this](const auto& entry) {
        return shownChildren(entry.second->holder) == entry.second->children;
    });
}

void OutlineViewModel::tellOfChangedData()
{
    std::vector<Branch*> branches; // who hears of it may ask for more of them
    for (const auto& entry : m_branches)
        branches.push_back(entry.second.get());
    for (Branch* const branch : branches) {
        const int last = static_cast<int>(branch->children.size()) - 1;
        if (last >= 0)
            Q_EMIT dataChanged(createIndex(0, 0, branch), createIndex(last, columnCount() - 1, branch));
    }
}

void OutlineViewModel::applyFilter(const std::vector<ViewColumn>& columns)
{
    m_matching.clear();
    if (m_filter.isEmpty())
        return;
    const RowFilter filter(m_filter, columns, m_calendar);
    const int count = m_view.numberOfChildren(nullptr);
    for (int row = 0; row < count; ++row)
        collectMatching(m_view.child(nullptr, row), filter);
}

bool OutlineViewModel::collectMatching(const Node& node, const RowFilter& filter)
{
    if (!node)
        return false;
    bool shown = filter.matches([&](const QString& identifier) { return m_view.value(node, identifier); });
    const int count = m_view.numberOfChildren(node);
    for (int row = 0; row < count; ++row)
        shown = collectMatching(m_view.child(node, row), filter) || shown;
    if (shown)
        m_matching.insert(node.get());
    return shown;
}

std::vector<OutlineViewModel::Node> OutlineViewModel::shownChildren(const Node& holder) const
{
    std::vector<Node> children;
    const int count = m_view.numberOfChildren(holder);
    children.reserve(static_cast<std::size_t>(count));
    for (int row = 0; row < count; ++row) {
        Node child = m_view.child(holder, row);
        if (child && (m_filter.isEmpty() || m_matching.contains(child.get())))
            children.push_back(std::move(child));
    }
    return children;
}

OutlineViewModel::Branch* OutlineViewModel::branchOf(const Node& holder, Branch* above, int row) const
{
    std::unique_ptr<Branch>& branch = m_branches[holder.get()];
    if (branch)
        return branch.get();
    const QuestionGuard asking(m_questions);
    branch = std::make_unique<Branch>(Branch{holder, above, row, shownChildren(holder)});
    return branch.get();
}

OutlineViewModel::Branch* OutlineViewModel::branchBelow(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return branchOf(nullptr, nullptr, 0);
    auto* above = static_cast<Branch*>(parent.internalPointer());
    return branchOf(above->children[static_cast<std::size_t>(parent.row())], above, parent.row());
}

OutlineViewModel::Node OutlineViewModel::node(const QModelIndex& index) const
{
    if (!index.isValid())
        return nullptr;
    return static_cast<Branch*>(index.internalPointer())->children[static_cast<std::size_t>(index.row())];
}

QModelIndex OutlineViewModel::indexOf(const Node& node) const
{
    if (!node)
        return {};
    const QModelIndex above = indexOf(m_view.parent(node));
    Branch* const branch = branchBelow(above);
    const auto place = std::ranges::find(branch->children, node);
    return place == branch->children.end()
               ? QModelIndex()
               : createIndex(static_cast<int>(place - branch->children.begin()), 0, branch);
}

QModelIndex OutlineViewModel::index(int row, int column, const QModelIndex& parent) const
{
    if (row < 0 || column < 0 || column >= columnCount() || parent.column() > 0)
        return {};
    Branch* const branch = branchBelow(parent);
    return row < static_cast<int>(branch->children.size()) ? createIndex(row, column, branch) : QModelIndex();
}

QModelIndex OutlineViewModel::parent(const QModelIndex& index) const
{
    const auto* const branch = index.isValid() ? static_cast<Branch*>(index.internalPointer()) : nullptr;
    return branch && branch->above ? createIndex(branch->rowInAbove, 0, branch->above) : QModelIndex();
}

int OutlineViewModel::rowCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : static_cast<int>(branchBelow(parent)->children.size());
}

bool OutlineViewModel::hasChildren(const QModelIndex& parent) const
{
    if (parent.column() > 0)
        return false;
    const QuestionGuard asking(m_questions);
    return parent.isValid() && m_filter.isEmpty() ? m_view.isItemExpandable(node(parent))
                                                  : rowCount(parent) > 0;
}

int OutlineViewModel::columnCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : static_cast<int>(m_columns.size());
}

QVariant OutlineViewModel::data(const QModelIndex& index, int role) const
{
    const Node shown = node(index);
    if (!shown || role == Qt::SizeHintRole || role == Qt::StatusTipRole || role == Qt::WhatsThisRole)
        return {};
    const QuestionGuard asking(m_questions);
    const ViewColumn& column = m_columns[static_cast<std::size_t>(index.column())];
    return cellData(m_view.value(shown, column.identifier), m_view.cellStyle(shown, column.identifier),
                    column, role, {m_calendar, QGuiApplication::font(), QGuiApplication::palette()});
}

bool OutlineViewModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const Node shown = node(index);
    if (!shown || (role != Qt::EditRole && role != Qt::CheckStateRole))
        return false;
    const ViewColumn& column = m_columns[static_cast<std::size_t>(index.column())];
    const QVariant given = role == Qt::CheckStateRole ? QVariant(value.toInt() == Qt::Checked) : value;
    return m_view.setValue(shown, column.identifier, given);
}

QVariant OutlineViewModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    return headerCellData(m_columns[static_cast<std::size_t>(section)], role);
}

Qt::ItemFlags OutlineViewModel::flags(const QModelIndex& index) const
{
    const Node shown = node(index);
    if (!shown)
        return Qt::ItemIsDropEnabled; // the empty ground below the rows is the top level
    const QuestionGuard asking(m_questions);
    const ViewColumn& column = m_columns[static_cast<std::size_t>(index.column())];
    return cellFlags(column, column.editable ? m_view.value(shown, column.identifier) : QVariant()) |
           Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled;
}

void OutlineViewModel::sort(int column, Qt::SortOrder order)
{
    if (column < 0 || column >= columnCount())
        return;
    const QString key = m_columns[static_cast<std::size_t>(column)].sortKey;
    if (!key.isEmpty())
        m_view.sort(key, order == Qt::AscendingOrder);
}

QStringList OutlineViewModel::mimeTypes() const
{
    return {u"text/plain"_s};
}

QMimeData* OutlineViewModel::mimeData(const QModelIndexList& indexes) const
{
    if (indexes.isEmpty())
        return nullptr;
    const QuestionGuard asking(m_questions);
    const QString text = m_view.pasteboardText(node(indexes.first()));
    if (text.isEmpty())
        return nullptr; // a view whose rows are not dragged
    auto* const data = new QMimeData;
    data->setText(text);
    return data;
}

bool OutlineViewModel::canDropMimeData(const QMimeData* data, Qt::DropAction, int, int,
                                       const QModelIndex& parent) const
{
    const QuestionGuard asking(m_questions);
    return data && data->hasText() && m_view.validateDrop(data->text(), node(parent));
}

bool OutlineViewModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                                    const QModelIndex& parent)
{
    return canDropMimeData(data, action, row, column, parent) &&
           m_view.acceptDrop(data->text(), node(parent));
}

} // namespace zelvor
