#pragma once

#include "catalogs/tree_model.h"
#include "core/text_order.h"

#include <algorithm>

namespace zelvor {

template <class Family, class Base>
void TreeModel<Family, Base>::setChild(const Node& child)
{
    appendChild(child);
    sortChildrenByName();
}

template <class Family, class Base>
void TreeModel<Family, Base>::appendChild(const Node& child)
{
    children.push_back(child);
    child->parent = this->weak_from_this();
    child->parentID = this->id;
}

template <class Family, class Base>
void TreeModel<Family, Base>::sortChildrenByName()
{
    if (children.size() > 1)
        std::ranges::stable_sort(children, NameLess{});
}

template <class Family, class Base>
void TreeModel<Family, Base>::removeChild(const Node& child)
{
    const auto place = std::find(children.begin(), children.end(), child);
    if (place != children.end())
        removeChildAtIndex(static_cast<std::size_t>(place - children.begin()));
}

template <class Family, class Base>
void TreeModel<Family, Base>::removeChildAtIndex(std::size_t index)
{
    const Node child = children[index];
    children.erase(children.begin() + static_cast<std::ptrdiff_t>(index));
    child->parent.reset();
    child->parentID = 0;
}

template <class Family, class Base>
std::vector<qint64> TreeModel<Family, Base>::getChildrenIDs() const
{
    std::vector<qint64> ids;
    for (const Node& child : children) {
        if (!child->isGroup())
            continue;
        ids.push_back(child->id);
        const std::vector<qint64> below = child->getChildrenIDs();
        ids.insert(ids.end(), below.begin(), below.end());
    }
    return ids;
}

template <class Family, class Base>
bool TreeModel<Family, Base>::isChildOfObject(const Family* candidate) const
{
    for (auto above = parent.lock(); above; above = above->parent.lock()) {
        if (above.get() == candidate)
            return true;
    }
    return false;
}

template <class Family, class Base>
QString TreeModel<Family, Base>::getIdentifierForDragging() const
{
    return className() + QLatin1Char('_') + QString::number(this->id);
}

template <class Family, class Base>
void TreeModel<Family, Base>::insertSelected(bool flag)
{
    selected = flag;
    if (!isGroup())
        return;
    for (const Node& child : children)
        child->insertSelected(flag);
}

} // namespace zelvor
