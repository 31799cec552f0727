#include "core/view.h"

#include <utility>

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

void BaseView::onReload(std::function<void()> listener)
{
    onReload(m_self, std::move(listener));
}

void BaseView::onReload(std::weak_ptr<const void> owner, std::function<void()> listener)
{
    std::erase_if(m_listeners, [](const Listener& known) { return known.owner.expired(); });
    m_listeners.push_back({std::move(owner), std::move(listener)});
}

void BaseView::reloadData() const
{
    // Of a copy: a listener may bring another one, or have one go.
    const std::vector<Listener> listeners = m_listeners;
    for (const Listener& listener : listeners) {
        if (!listener.owner.expired())
            listener.tell();
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
