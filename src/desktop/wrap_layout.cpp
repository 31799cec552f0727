#include "desktop/wrap_layout.h"

#include <QtWidgets/QWidget>

#include <algorithm>

namespace zelvor {

WrapLayout::WrapLayout(int gap, int lineGap) : m_gap(gap), m_lineGap(lineGap) {}

WrapLayout::~WrapLayout()
{
    for (QLayoutItem* const item : m_items)
        delete item;
}

void WrapLayout::addItem(QLayoutItem* item)
{
    m_items.push_back(item);
}

QLayoutItem* WrapLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)] : nullptr;
}

QLayoutItem* WrapLayout::takeAt(int index)
{
    QLayoutItem* const item = itemAt(index);
    if (item)
        m_items.erase(m_items.begin() + index);
    return item;
}

int WrapLayout::heightForWidth(int width) const
{
    return arrange({0, 0, width, 0}, false);
}

QSize WrapLayout::sizeHint() const
{
    QSize size;
    for (const QLayoutItem* const item : m_items) {
        if (item->isEmpty())
            continue;
        const QSize wanted = item->sizeHint();
        size = {size.width() + wanted.width() + (size.width() > 0 ? m_gap : 0),
                std::max(size.height(), wanted.height())};
    }
    return size;
}

QSize WrapLayout::minimumSize() const
{
    QSize size;
    for (const QLayoutItem* const item : m_items)
        size = size.expandedTo(item->isEmpty() ? QSize() : item->minimumSize());
    return size;
}

void WrapLayout::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    arrange(rect, true);
}

int WrapLayout::arrange(const QRect& rect, bool place) const
{
    std::vector<QLayoutItem*> line;
    int used = 0;
    int height = 0;
    int y = 0;
    const auto endLine = [&] {
        if (place)
            placeLine(line, rect.topLeft() + QPoint(0, y), height, rect.x() + rect.width());
        y += height;
        line.clear();
        used = height = 0;
    };
    for (QLayoutItem* const item : m_items) {
        if (item->isEmpty())
            continue;
        const QSize size = item->sizeHint();
        if (!line.empty() && used + m_gap + size.width() > rect.width()) {
            endLine();
            y += m_lineGap;
        }
        used += size.width() + (line.empty() ? 0 : m_gap);
        height = std::max(height, size.height());
        line.push_back(item);
    }
    endLine();
    return y;
}

// Every item of a line stands at its middle.
void WrapLayout::placeLine(const std::vector<QLayoutItem*>& line, const QPoint& corner, int height,
                           int right) const
{
    int x = corner.x();
    for (QLayoutItem* const item : line) {
        const QSize size = item->sizeHint();
        const int width = std::min(size.width(), std::max(item->minimumSize().width(), right - x));
        item->setGeometry({x, corner.y() + (height - size.height()) / 2, width, size.height()});
        x += size.width() + m_gap;
    }
}

} // namespace zelvor
