#pragma once

#include "store/table_info.h"

#include <memory>
#include <vector>

namespace zelvor {

// A node of a catalog tree: groups and leaves of one family live in two flat tables and become a tree in
// memory. A parent owns its children, a child refers back weakly. `selected` is the tick of a selection
// popover and is never stored.
template <class Family, class Base>
class TreeModel : public Base, public std::enable_shared_from_this<Family> {
public:
    using Node = std::shared_ptr<Family>;

    QString name;
    qint64 parentID = 0; // id of the group that holds the node; 0: top level
    bool selected = true;
    std::weak_ptr<Family> parent;
    std::vector<Node> children; // kept sorted by name; groups only, but for counterparties

    virtual bool isGroup() const = 0;
    virtual bool canHoldChildren() const { return isGroup(); }
    // The id of the leaf that holds this node, where leaves hold leaves; 0: none.
    virtual qint64 leafHolderID() const { return 0; }
    // The name of the run-time class: with the id it identifies a node across groups and leaves.
    virtual QString className() const = 0;

    // Takes the child in and sorts the children by name; a child of an unsorted list moves too.
    void setChild(const Node& child);
    // Takes the child in behind the others and sets its links: for whoever sorts once at the end.
    virtual void appendChild(const Node& child);
    void sortChildrenByName();
    // Takes the child out, if it is there.
    void removeChild(const Node& child);
    virtual void removeChildAtIndex(std::size_t index);
    // Ids of the descendants that can be parents of their own kind, depth first: a group's groups.
    virtual std::vector<qint64> getChildrenIDs() const;
    // True when the candidate is an ancestor of this node.
    bool isChildOfObject(const Family* candidate) const;
    QString getIdentifierForDragging() const;
    // Sets the tick; a group carries its subtree.
    virtual void insertSelected(bool flag);

protected:
    TreeModel() = default;
    TreeModel(const TreeModel&) = default;
};

} // namespace zelvor

#include "catalogs/tree_model_impl.h"
