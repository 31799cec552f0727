#pragma once

#include "catalogs/tree_outline.h"
#include "core/text_order.h"

#include <QtCore/QtGlobal>

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace zelvor {

// What the view of a tree asks of its controller.
template <class Model>
class TreeCatalogOwner {
public:
    virtual ~TreeCatalogOwner() = default;
    // Reads the tree when it is stale.
    virtual void refresh() = 0;
    // The node with that dragging identifier, none when there is none.
    virtual std::shared_ptr<Model> getItemWithIdentifier(const QString& identifier) = 0;
    // Stores one changed node, without a popover.
    virtual bool update(const std::shared_ptr<Model>& node) = 0;
    virtual void editSelected() = 0;
};

// The list of one tree catalog: groups and leaves as one outline, sorted, dragged and ticked in place. Every
// question about the nodes reads the tree anew first when it is stale.
template <class Model>
class TreeCatalogView : public TreeOutline<Model> {
public:
    using typename TreeOutline<Model>::Node;
    using typename TreeOutline<Model>::Nodes;
    using typename TreeOutline<Model>::RecordNode;

    TreeCatalogView(TreeCatalogOwner<Model>& owner, const QString& viewName, std::vector<ViewColumn> columns)
        : TreeOutline<Model>(viewName, std::move(columns)), m_owner(owner)
    {}

    // All groups, by name: what the choosers of parent groups offer.
    const Nodes& groups() const
    {
        refresh();
        return m_groups;
    }
    // As they were last read, stale or not.
    const Nodes& loadedGroups() const { return m_groups; }
    // For the controller: a new tree. No row of it stands open.
    void setTree(Nodes topLevelNodes, Nodes groupNodes)
    {
        this->setTopLevel(std::move(topLevelNodes));
        m_groups = std::move(groupNodes);
    }
    // For the controller: leaves that do not belong into the list at the moment go out of it.
    void removeLeaves(const std::function<bool(const Model&)>& unwanted)
    {
        removeLeaves(m_topLevel, unwanted);
    }

    // A group leaves the cells blank that only a leaf has.
    QVariant value(const Node& node, const QString& identifier) const override;
    // A check box of the row, stored at once; put back when that failed.
    bool setValue(const Node& node, const QString& identifier, const QVariant& value) override;
    void sort(const QString& key, bool ascending) override;
    // Sorts the children of each node of the list by name, and so on down.
    void sortChildren(const Nodes& nodes, bool ascending) { sortBelow(nodes, NameLess{}, ascending); }
    void doubleAction(const Node& node) override;
    QString pasteboardText(const Node& node) const override;
    bool validateDrop(const QString& pasteboard, const Node& target) const override;
    bool acceptDrop(const QString& pasteboard, const Node& target) override;

protected:
    // The field behind a check box of that row and column; null where the row has none.
    virtual bool* checkBox(Model& node, const QString& identifier) const = 0;
    virtual bool groupShows(const QString& identifier) const = 0;

    using TreeOutline<Model>::record;
    using TreeOutline<Model>::m_topLevel;
    void refresh() const override { m_owner.refresh(); }
    template <class Less>
    static void sortNodes(Nodes& nodes, const Less& less, bool ascending)
    {
        std::ranges::stable_sort(nodes, [&](const RecordNode& a, const RecordNode& b) {
            return ascending ? less(a, b) : less(b, a);
        });
    }
    template <class Less>
    static void sortBelow(const Nodes& nodes, const Less& less, bool ascending)
    {
        for (const RecordNode& node : nodes) {
            sortNodes(node->children, less, ascending);
            sortBelow(node->children, less, ascending);
        }
    }
    Nodes& sortableTopLevel()
    {
        refresh();
        return m_topLevel;
    }

private:
    static void removeLeaves(Nodes& nodes, const std::function<bool(const Model&)>& unwanted);
    void takeOut(const RecordNode& node);
    // The row's record in the tree as it is now: who holds a row may hold one of an older tree, with values
    // that a document has changed since.
    RecordNode current(const Node& node) const
    {
        const RecordNode shown = record(node);
        return shown ? m_owner.getItemWithIdentifier(shown->getIdentifierForDragging()) : nullptr;
    }

    TreeCatalogOwner<Model>& m_owner;
    Nodes m_groups;
};

// The link to the group stays on what goes out: it is still that of the file, should the record be stored.
template <class Model>
void TreeCatalogView<Model>::removeLeaves(Nodes& nodes, const std::function<bool(const Model&)>& unwanted)
{
    std::erase_if(nodes, [&unwanted](const RecordNode& node) {
        if (node->isGroup()) {
            removeLeaves(node->children, unwanted);
            return false;
        }
        if (!unwanted(*node))
            return false;
        node->parent.reset();
        return true;
    });
}

template <class Model>
QVariant TreeCatalogView<Model>::value(const Node& node, const QString& identifier) const
{
    const RecordNode shown = record(node);
    if (!shown || (shown->isGroup() && !groupShows(identifier)))
        return QString();
    return shown->valueForIdentifier(identifier);
}

template <class Model>
bool TreeCatalogView<Model>::setValue(const Node& node, const QString& identifier, const QVariant& value)
{
    const RecordNode shown = current(node);
    bool* const flag = shown ? checkBox(*shown, identifier) : nullptr;
    if (!flag)
        return false;
    const bool ticked = value.toBool();
    *flag = ticked;
    const bool stored = m_owner.update(shown);
    if (!stored)
        *flag = !ticked;
    this->reloadData();
    return stored;
}

template <class Model>
void TreeCatalogView<Model>::sort(const QString& key, bool ascending)
{
    Nodes& nodes = sortableTopLevel();
    if (key == u"name") {
        sortNodes(nodes, NameLess{}, ascending);
        sortChildren(nodes, ascending);
    }
    this->reloadData();
}

template <class Model>
void TreeCatalogView<Model>::doubleAction(const Node& node)
{
    this->selectItem(node);
    m_owner.editSelected();
}

template <class Model>
QString TreeCatalogView<Model>::pasteboardText(const Node& node) const
{
    const RecordNode dragged = record(node);
    return dragged ? dragged->getIdentifierForDragging() : QString();
}

template <class Model>
bool TreeCatalogView<Model>::validateDrop(const QString& pasteboard, const Node& target) const
{
    if (!record(target))
        return true;
    const RecordNode dragged = m_owner.getItemWithIdentifier(pasteboard);
    const RecordNode proposed = current(target);
    if (!dragged || !proposed || dragged == proposed || proposed->isChildOfObject(dragged.get()))
        return false;
    return !dragged->isGroup() || proposed->isGroup();
}

template <class Model>
void TreeCatalogView<Model>::takeOut(const RecordNode& node)
{
    if (const RecordNode holder = node->parent.lock())
        holder->removeChild(node);
    else
        std::erase(m_topLevel, node);
}

// The place among the new siblings is by name; at the top level it is the end, until the tree is read again.
template <class Model>
bool TreeCatalogView<Model>::acceptDrop(const QString& pasteboard, const Node& target)
{
    const RecordNode dragged = m_owner.getItemWithIdentifier(pasteboard);
    if (!dragged || !validateDrop(pasteboard, target))
        return false;
    takeOut(dragged);
    const RecordNode holder = current(target);
    if (holder && holder->canHoldChildren())
        holder->setChild(dragged);
    else if (std::ranges::find(m_topLevel, dragged) == m_topLevel.end())
        m_topLevel.push_back(dragged);
    if (!m_owner.update(dragged))
        qWarning("Can't update data");
    this->reloadData();
    return true;
}

} // namespace zelvor
