#pragma once

#include "catalogs/tree_model.h"

#include <unordered_map>
#include <unordered_set>

namespace zelvor {

// Puts the nodes of one family, groups before leaves and without children yet, under their parents, whether
// or not a parent has a place itself, and answers the top level. All lists are sorted by name; equal names
// keep the order of the tables. A node whose parent is missing is in no list of the tree.
template <class Model>
class TreeBuilder {
public:
    using Node = std::shared_ptr<Model>;
    using Nodes = std::vector<Node>;

    explicit TreeBuilder(const Nodes& nodes) : m_nodes(nodes) {}

    Nodes build()
    {
        indexNodes();
        for (const Node& node : m_nodes)
            place(node);
        cutCircles();
        for (const Node& node : m_nodes)
            node->sortChildrenByName();
        std::ranges::stable_sort(m_topLevel, NameLess{});
        return std::move(m_topLevel);
    }

private:
    void indexNodes()
    {
        for (const Node& node : m_nodes)
            (node->isGroup() ? m_groups : m_leaves).emplace(node->id, node.get());
    }

    // The group wins over the leaf as a parent.
    void place(const Node& node)
    {
        const bool underGroup = node->parentID != 0;
        const qint64 holderID = underGroup ? node->parentID : node->leafHolderID();
        if (holderID == 0) {
            m_topLevel.push_back(node);
            return;
        }
        const auto& holders = underGroup ? m_groups : m_leaves;
        const auto holder = holders.find(holderID);
        if (holder == holders.end())
            m_orphans.push_back(node);
        else
            holder->second->appendChild(node);
    }

    // A file can hold nodes that are each other's parents. They are in no list of the tree; taken apart here
    // so that they do not own each other for ever.
    void cutCircles()
    {
        std::unordered_set<const Model*> seen;
        std::vector<const Model*> walk;
        for (const Nodes* roots : {&m_topLevel, &m_orphans}) {
            for (const Node& node : *roots)
                walk.push_back(node.get());
        }
        while (!walk.empty()) {
            const Model* const node = walk.back();
            walk.pop_back();
            seen.insert(node);
            for (const Node& child : node->children)
                walk.push_back(child.get());
        }
        if (seen.size() == m_nodes.size())
            return;
        for (const Node& node : m_nodes) {
            if (seen.contains(node.get()))
                continue;
            node->children.clear();
            node->parent.reset();
        }
    }

    const Nodes& m_nodes;
    std::unordered_map<qint64, Model*> m_groups;
    std::unordered_map<qint64, Model*> m_leaves;
    Nodes m_topLevel;
    Nodes m_orphans;
};

template <class Model>
std::vector<std::shared_ptr<Model>> buildTree(const std::vector<std::shared_ptr<Model>>& nodes)
{
    return TreeBuilder<Model>(nodes).build();
}

} // namespace zelvor
