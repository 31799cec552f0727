#include "desktop/table_view_model.h"

#include "desktop/question_guard.h"
#include "desktop/row_filter.h"

#include <QtGui/QGuiApplication>

#include <algorithm>
#include <utility>

namespace zelvor {

TableViewModel::TableViewModel(TableView& view, const Calendar& calendar, QObject* parent)
    : QAbstractTableModel(parent), m_view(view), m_calendar(calendar), m_columns(view.columns())
{
    view.onReload(m_listening, [this] { reload(); });
    reload();
}

int TableViewModel::columnWithIdentifier(const QString& identifier) const
{
    const auto place = std::ranges::find(m_columns, identifier, &ViewColumn::identifier);
    return place == m_columns.end() ? -1 : static_cast<int>(place - m_columns.begin());
}

int TableViewModel::viewRow(int shownRow) const
{
    if (shownRow < 0 || shownRow >= m_rowCount)
        return -1;
    return m_filter.isEmpty() ? shownRow : m_filteredRows[static_cast<std::size_t>(shownRow)];
}

int TableViewModel::shownRow(int viewRow) const
{
    if (m_filter.isEmpty())
        return viewRow >= 0 && viewRow < m_rowCount ? viewRow : -1;
    const auto place = std::ranges::lower_bound(m_filteredRows, viewRow);
    return place == m_filteredRows.end() || *place != viewRow
               ? -1
               : static_cast<int>(place - m_filteredRows.begin());
}

void TableViewModel::setFilter(const QString& filter)
{
    if (filter.simplified() == m_filter)
        return;
    m_filter = filter.simplified();
    reload();
}

void TableViewModel::refresh()
{
    const int rows = m_view.numberOfRows(); // a stale view reads, and tells of it by itself
    if (m_reloadWaits || (m_filter.isEmpty() && rows != m_rowCount))
        reload();
}

// Asking for the rows may make the view read and tell of a reload: that is this one.
void TableViewModel::reload()
{
    if (m_reloading)
        return;
    if (m_questions > 0) {
        if (!std::exchange(m_reloadWaits, true))
            QMetaObject::invokeMethod(this, &TableViewModel::refresh, Qt::QueuedConnection);
        return;
    }
    m_reloading = true;
    takeOver();
    m_reloading = false;
    m_reloadWaits = false;
    Q_EMIT reloaded();
}

void TableViewModel::takeOver()
{
    const int rows = m_view.numberOfRows();
    std::vector<ViewColumn> columns = m_view.columns();
    std::vector<int> filtered = matchingRows(rows, columns);
    const int shown = m_filter.isEmpty() ? rows : static_cast<int>(filtered.size());
    if (areSame(columns, m_columns) && shown == m_rowCount && filtered == m_filteredRows) {
        if (shown > 0)
            Q_EMIT dataChanged(index(0, 0), index(shown - 1, columnCount() - 1));
        return;
    }
    beginResetModel();
    m_columns = std::move(columns);
    m_filteredRows = std::move(filtered);
    m_rowCount = shown;
    endResetModel();
}

std::vector<int> TableViewModel::matchingRows(int rows, const std::vector<ViewColumn>& columns) const
{
    std::vector<int> matching;
    if (m_filter.isEmpty())
        return matching;
    const RowFilter filter(m_filter, columns, m_calendar);
    for (int row = 0; row < rows; ++row) {
        if (filter.matches([&](const QString& identifier) { return m_view.value(row, identifier); }))
            matching.push_back(row);
    }
    return matching;
}

int TableViewModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rowCount;
}

int TableViewModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant TableViewModel::data(const QModelIndex& index, int role) const
{
    const int row = index.isValid() ? viewRow(index.row()) : -1;
    if (row < 0 || index.column() >= static_cast<int>(m_columns.size()))
        return {};
    const QuestionGuard asking(m_questions);
    const ViewColumn& column = m_columns[static_cast<std::size_t>(index.column())];
    if (role == Qt::SizeHintRole || role == Qt::StatusTipRole || role == Qt::WhatsThisRole)
        return {};
    return cellData(m_view.value(row, column.identifier), m_view.cellStyle(row, column.identifier), column,
                    role, {m_calendar, QGuiApplication::font(), QGuiApplication::palette()});
}

bool TableViewModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const int row = index.isValid() ? viewRow(index.row()) : -1;
    if (row < 0 || (role != Qt::EditRole && role != Qt::CheckStateRole))
        return false;
    const ViewColumn& column = m_columns[static_cast<std::size_t>(index.column())];
    const QVariant given = role == Qt::CheckStateRole ? QVariant(value.toInt() == Qt::Checked) : value;
    return m_view.setValue(row, column.identifier, given);
}

QVariant TableViewModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= static_cast<int>(m_columns.size()))
        return {};
    return headerCellData(m_columns[static_cast<std::size_t>(section)], role);
}

Qt::ItemFlags TableViewModel::flags(const QModelIndex& index) const
{
    const int row = index.isValid() ? viewRow(index.row()) : -1;
    if (row < 0)
        return Qt::NoItemFlags;
    const QuestionGuard asking(m_questions);
    const ViewColumn& column = m_columns[static_cast<std::size_t>(index.column())];
    return cellFlags(column, column.editable ? m_view.value(row, column.identifier) : QVariant());
}

void TableViewModel::sort(int column, Qt::SortOrder order)
{
    if (column < 0 || column >= static_cast<int>(m_columns.size()))
        return;
    const QString key = m_columns[static_cast<std::size_t>(column)].sortKey;
    if (!key.isEmpty())
        m_view.sort(key, order == Qt::AscendingOrder);
}

} // namespace zelvor
