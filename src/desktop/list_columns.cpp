#include "desktop/list_columns.h"

#include "desktop/measures.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr int sampledRows = 200; // a longer list is fitted by its beginning

int widestText(const QAbstractItemModel& model, int column, const QFontMetrics& metrics)
{
    int width = 0;
    const int rows = std::min(model.rowCount(), sampledRows);
    for (int row = 0; row < rows; ++row) {
        const QString text = model.index(row, column).data(Qt::DisplayRole).toString();
        width = std::max(width, metrics.horizontalAdvance(text));
    }
    return width;
}

int fittedWidth(const QHeaderView& header, const QAbstractItemModel& model, const ViewColumn& column,
                int section, const QFontMetrics& metrics)
{
    const int title = header.sectionSizeHint(section);
    const int padding = 2 * measures::rowPadding;
    switch (column.kind) {
    case CellKind::Amount:
        return std::max({title, metrics.horizontalAdvance(u"0 000 000.00"_s) + padding,
                         widestText(model, section, metrics) + padding});
    case CellKind::Date:
        return std::max(title, metrics.horizontalAdvance(u"00.00.0000 00:00"_s) + padding);
    case CellKind::CheckBox:
    case CellKind::Image:
        return title;
    default:
        return std::max(
            title, std::min(widestText(model, section, metrics) + padding, metrics.averageCharWidth() * 34));
    }
}

} // namespace

void prepareHeader(QHeaderView& header)
{
    header.setHighlightSections(false);
    header.setSectionsClickable(true);
    header.setSectionsMovable(false);
    header.setSortIndicatorShown(false);
    header.setStretchLastSection(false);
    header.setMinimumSectionSize(24);
    header.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

int firstShownColumn(const std::vector<ViewColumn>& columns)
{
    const auto place = std::ranges::find(columns, false, &ViewColumn::hidden);
    return place == columns.end() ? 0 : static_cast<int>(place - columns.begin());
}

std::vector<QString> shownIdentifiers(const std::vector<ViewColumn>& columns)
{
    std::vector<QString> identifiers;
    for (const ViewColumn& column : columns) {
        if (!column.hidden)
            identifiers.push_back(column.identifier);
    }
    return identifiers;
}

void fitColumns(QHeaderView& header, const QAbstractItemModel& model, const std::vector<ViewColumn>& columns,
                const QFontMetrics& metrics)
{
    const auto name = std::ranges::find(columns, u"name"_s, &ViewColumn::identifier);
    const int stretched = name == columns.end() ? -1 : static_cast<int>(name - columns.begin());
    for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
        const ViewColumn& column = columns[static_cast<std::size_t>(i)];
        header.setSectionResizeMode(i, i == stretched ? QHeaderView::Stretch : QHeaderView::Interactive);
        if (!column.hidden && i != stretched)
            header.resizeSection(i, fittedWidth(header, model, column, i, metrics));
    }
    if (stretched < 0)
        header.setStretchLastSection(true);
}

// The header moves its indicator by itself before it tells of a click, also onto a column that does not sort;
// so the order is kept beside it.
void sortByClick(QAbstractItemModel& model, QHeaderView& header, const std::vector<ViewColumn>& columns,
                 int column)
{
    static constexpr auto sortedColumn = "sortedColumn";
    static constexpr auto sortedOrder = "sortedOrder";
    const QVariant before = header.property(sortedColumn);
    const auto orderBefore = static_cast<Qt::SortOrder>(header.property(sortedOrder).toInt());
    if (column < 0 || column >= static_cast<int>(columns.size()) ||
        columns[static_cast<std::size_t>(column)].sortKey.isEmpty()) {
        header.setSortIndicator(before.isValid() ? before.toInt() : -1, orderBefore);
        return;
    }
    const bool again = before.isValid() && before.toInt() == column;
    const auto order = again && orderBefore == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    header.setProperty(sortedColumn, column);
    header.setProperty(sortedOrder, static_cast<int>(order));
    header.setSortIndicator(column, order);
    header.setSortIndicatorShown(true);
    model.sort(column, order);
}

bool tickCurrent(QAbstractItemView& list)
{
    const auto turn = [&list](const QModelIndex& index) {
        if (!(index.flags() & Qt::ItemIsUserCheckable) || !index.data(Qt::CheckStateRole).isValid())
            return false;
        const bool on = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        list.model()->setData(index, on ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
        return true;
    };
    const QModelIndex current = list.currentIndex();
    if (!current.isValid())
        return false;
    if (turn(current))
        return true;
    QModelIndex only;
    for (int column = 0; column < list.model()->columnCount(current.parent()); ++column) {
        const QModelIndex cell = current.siblingAtColumn(column);
        if (!(cell.flags() & Qt::ItemIsUserCheckable))
            continue;
        if (only.isValid())
            return false;
        only = cell;
    }
    return only.isValid() && turn(only);
}

} // namespace zelvor
