#include "core/view.h"

namespace zelvor {

void BaseView::setName(QString name)
{
    if (m_name == name)
        return;
    m_name = std::move(name);
    reloadData();
}

void BaseView::setTitleColor(const Color& color)
{
    if (m_titleColor == color)
        return;
    m_titleColor = color;
    reloadData();
}

void BaseView::setGroundColor(const Color& color)
{
    if (m_groundColor == color)
        return;
    m_groundColor = color;
    reloadData();
}

void BaseView::reloadData() const
{
    // By index and by copy: a listener may add another one.
    for (std::size_t i = 0; i < m_listeners.size(); ++i) {
        const std::function<void()> listener = m_listeners[i];
        listener();
    }
}

bool TableView::setValue(int /*row*/, const QString& /*identifier*/, const QVariant& /*value*/)
{
    return false;
}

CellStyle TableView::cellStyle(int /*row*/, const QString& /*identifier*/) const
{
    return {};
}

void TableView::sort(const QString& /*key*/, bool /*ascending*/) {}

void TableView::doubleAction(int /*row*/) {}

bool OutlineView::setValue(const Node& /*node*/, const QString& /*identifier*/, const QVariant& /*value*/)
{
    return false;
}

CellStyle OutlineView::cellStyle(const Node& /*node*/, const QString& /*identifier*/) const
{
    return {};
}

void OutlineView::sort(const QString& /*key*/, bool /*ascending*/) {}

void OutlineView::doubleAction(const Node& /*node*/) {}

QString OutlineView::pasteboardText(const Node& /*node*/) const
{
    return {};
}

bool OutlineView::validateDrop(const QString& /*pasteboard*/, const Node& /*target*/) const
{
    return false;
}

bool OutlineView::acceptDrop(const QString& /*pasteboard*/, const Node& /*target*/)
{
    return false;
}

} // namespace zelvor
