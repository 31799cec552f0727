#include "desktop/list_columns.h"

#include "desktop/measures.h"
#include "desktop/theme.h"

#include <QtCore/QEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QHeaderView>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr int padding = 2 * measures::rowPadding;
constexpr int widestText = 34;    // in letters: a longer text is cut off at first
constexpr int shortestText = 12;  // in letters: what it keeps where the window is too narrow for all columns
constexpr int narrowestName = 20; // in letters
constexpr int denseName = 16;     // in letters

int textWidth(const QModelIndex& cell, const QFont& plain)
{
    const QVariant own = cell.data(Qt::FontRole);
    const QFontMetrics metrics(own.isValid() ? own.value<QFont>() : plain);
    return metrics.horizontalAdvance(cell.data(Qt::DisplayRole).toString());
}

// The column that takes what is left: the name, else the last one of texts.
int fillerOf(const std::vector<ViewColumn>& columns)
{
    int filler = -1;
    for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
        const ViewColumn& column = columns[static_cast<std::size_t>(i)];
        if (column.hidden || column.kind != CellKind::Text)
            continue;
        if (column.identifier == "name"_L1)
            return i;
        filler = i;
    }
    return filler;
}

} // namespace

ListColumns::ListColumns(QAbstractItemView& list, QHeaderView& header)
    : QObject(&list), m_list(list), m_header(header)
{
    header.setHighlightSections(false);
    header.setSectionsClickable(true);
    header.setSectionsMovable(false);
    header.setSortIndicatorShown(false);
    header.setStretchLastSection(false);
    header.setSectionResizeMode(QHeaderView::Interactive);
    header.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header.setTextElideMode(Qt::ElideRight);
    header.setMinimumSectionSize(3 * measures::rowPadding);
    connect(&header, &QHeaderView::sectionPressed, this, [this] {
        m_pressed = {m_header.sortIndicatorSection(), m_header.sortIndicatorOrder()};
    });
    header.viewport()->installEventFilter(this);
    connect(&header, &QHeaderView::sectionClicked, this, &ListColumns::sortByClick);
    connect(&header, &QHeaderView::sectionResized, this, [this](int section, int, int width) {
        if (m_settingWidths || !m_dragging || width == 0 || section >= static_cast<int>(m_columns.size()))
            return;
        m_given[m_columns[static_cast<std::size_t>(section)].identifier] = width;
        layOut();
    });
}

bool ListColumns::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick)
        m_dragging = true;
    if (event->type() == QEvent::MouseButtonRelease)
        m_dragging = false;
    return QObject::eventFilter(watched, event);
}

void ListColumns::adopt(const std::vector<ViewColumn>& columns, const std::vector<QModelIndex>& sample)
{
    const bool isSetting = std::exchange(m_settingWidths, true);
    m_columns = columns;
    m_filler = fillerOf(columns);
    for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
        const bool hidden = columns[static_cast<std::size_t>(i)].hidden;
        if (m_header.isSectionHidden(i) != hidden)
            m_header.setSectionHidden(i, hidden);
        if (!hidden)
            fit(i, sample);
    }
    m_settingWidths = isSetting;
    layOut();
}

void ListColumns::fit(int section, const std::vector<QModelIndex>& sample)
{
    const ViewColumn& column = m_columns[static_cast<std::size_t>(section)];
    // A column becomes wider for what is read later, never narrower; texts up to a limit.
    const bool isText = column.kind == CellKind::Text;
    const auto known = m_fitted.find(column.identifier);
    int width = minimumWidth(section);
    if (known != m_fitted.end())
        width = std::max(width, known->second);
    if (column.kind != CellKind::CheckBox && column.kind != CellKind::Image) {
        for (const QModelIndex& row : sample)
            width = std::max(width, textWidth(row.siblingAtColumn(section), m_list.font()) + padding);
    }
    if (isText)
        width = std::min(
            width, std::max(minimumWidth(section), m_list.fontMetrics().averageCharWidth() * widestText));
    if (!isText || !sample.empty())
        m_fitted[column.identifier] = width;
}

int ListColumns::minimumWidth(int section) const
{
    const QFontMetrics metrics = m_list.fontMetrics();
    const ViewColumn& column = m_columns[static_cast<std::size_t>(section)];
    const int title = m_header.sectionSizeHint(section) + measures::rowPadding;
    if (section == m_filler)
        return std::max(title, metrics.averageCharWidth() * (m_dense ? denseName : narrowestName));
    switch (column.kind) {
    case CellKind::Amount:
        return std::max(title,
                        metrics.horizontalAdvance(m_dense ? u"0 000.00"_s : u"000 000.00"_s) + padding);
    case CellKind::Date:
        return std::max(title, metrics.horizontalAdvance(u"00.00.0000 00:00"_s) + padding);
    default:
        return title;
    }
}

void ListColumns::layOut()
{
    if (std::exchange(m_settingWidths, true))
        return;
    std::map<int, int> widths = wishedWidths();
    int left = m_list.viewport()->width();
    for (const auto& [section, width] : widths)
        left -= width;
    if (left < 0)
        left += shorten(widths, -left);
    if (left > 0 && m_filler >= 0 && !isGiven(m_filler))
        widths[m_filler] += left;
    for (const auto& [section, width] : widths)
        m_header.resizeSection(section, width);
    m_settingWidths = false;
}

bool ListColumns::isGiven(int section) const
{
    return m_given.contains(m_columns[static_cast<std::size_t>(section)].identifier);
}

// Of each column that shows: what the user gave it, else what it holds; the one that takes the rest, its
// least.
std::map<int, int> ListColumns::wishedWidths() const
{
    std::map<int, int> widths;
    for (int i = 0; i < static_cast<int>(m_columns.size()); ++i) {
        const ViewColumn& column = m_columns[static_cast<std::size_t>(i)];
        if (column.hidden)
            continue;
        const auto fitted = m_fitted.find(column.identifier);
        if (isGiven(i))
            widths[i] = m_given.at(column.identifier);
        else
            widths[i] = i == m_filler || fitted == m_fitted.end() ? minimumWidth(i) : fitted->second;
    }
    return widths;
}

// Takes the width that is lacking from the texts, but not from the first one, which says what the row is;
// from each in proportion to what it can spare. Returns what could be taken.
int ListColumns::shorten(std::map<int, int>& widths, int lacking) const
{
    std::map<int, int> spares;
    int spare = 0;
    bool isFirst = true;
    for (const auto& [section, width] : widths) {
        const ViewColumn& column = m_columns[static_cast<std::size_t>(section)];
        if (column.kind != CellKind::Text)
            continue;
        if (std::exchange(isFirst, false) || section == m_filler || isGiven(section))
            continue;
        const int least =
            std::max(minimumWidth(section), m_list.fontMetrics().averageCharWidth() * shortestText);
        spares[section] = std::max(width - least, 0);
        spare += spares[section];
    }
    int open = std::min(lacking, spare);
    const int taken = open;
    for (const auto& [section, own] : spares) {
        // Of what is left of both, so that the roundings add up.
        const int cut = spare > 0 ? (own * open + spare - 1) / spare : 0;
        widths[section] -= cut;
        open -= cut;
        spare -= own;
    }
    return taken;
}

void ListColumns::setDense()
{
    m_dense = true;
    forgetMeasures();
}

void ListColumns::forgetMeasures()
{
    m_fitted.clear();
}

// The second click on a header sorts the other way round. The header has moved its mark by then, also onto a
// column that does not sort; how it stood is known from the moment of the press.
void ListColumns::sortByClick(int section)
{
    m_header.setSortIndicator(m_pressed.section, m_pressed.order);
    if (section < 0 || section >= static_cast<int>(m_columns.size()) ||
        m_columns[static_cast<std::size_t>(section)].sortKey.isEmpty())
        return;
    const bool again = m_header.isSortIndicatorShown() && m_pressed.section == section;
    const auto order =
        again && m_pressed.order == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    m_list.model()->sort(section, order);
    m_header.setSortIndicator(section, order);
    m_header.setSortIndicatorShown(true);
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
