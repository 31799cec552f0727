#pragma once

#include "core/colors.h"
#include "core/view.h"

#include <memory>
#include <unordered_set>
#include <utility>
#include <vector>

namespace zelvor {

// An outline over the tree of one family of records. Every question about the nodes refreshes them first.
template <class Model>
class TreeOutline : public OutlineView {
public:
    using RecordNode = std::shared_ptr<Model>;
    using Nodes = std::vector<RecordNode>;

    TreeOutline(const QString& viewName, std::vector<ViewColumn> columns)
        : OutlineView(viewName, catalogTitleColor), m_columns(std::move(columns))
    {}

    // The nodes of the top level.
    const Nodes& topLevel() const
    {
        refresh();
        return m_topLevel;
    }
    // As they were last read, stale or not.
    const Nodes& loadedTopLevel() const { return m_topLevel; }

    std::vector<ViewColumn> columns() const override { return m_columns; }
    void setColumnHidden(const QString& identifier, bool hidden)
    {
        for (ViewColumn& column : m_columns) {
            if (column.identifier == identifier)
                column.hidden = hidden;
        }
        reloadData();
    }
    int numberOfChildren(const Node& node) const override
    {
        if (!node)
            return static_cast<int>(topLevel().size());
        const RecordNode holder = record(node);
        return holder ? static_cast<int>(holder->children.size()) : 0;
    }
    Node child(const Node& node, int index) const override
    {
        const RecordNode holder = record(node);
        if (node && !holder)
            return nullptr;
        const Nodes& nodes = holder ? holder->children : topLevel();
        if (index < 0 || static_cast<std::size_t>(index) >= nodes.size())
            return nullptr;
        return nodes[static_cast<std::size_t>(index)];
    }
    Node parent(const Node& node) const override
    {
        const RecordNode shown = record(node);
        return shown ? shown->parent.lock() : nullptr;
    }
    bool isGroupItem(const Node& node) const override
    {
        const RecordNode shown = record(node);
        return shown && (shown->isGroup() || !shown->children.empty());
    }
    bool isItemExpanded(const Node& node) const override { return m_expanded.contains(node.get()); }
    void setItemExpanded(const Node& node, bool expanded) override
    {
        if (expanded)
            m_expanded.insert(node.get());
        else
            m_expanded.erase(node.get());
    }

protected:
    // Reads the nodes when they are stale.
    virtual void refresh() const = 0;
    // A new tree: no row of it stands open.
    void setTopLevel(Nodes nodes)
    {
        m_expanded.clear();
        m_topLevel = std::move(nodes);
    }
    static RecordNode record(const Node& node) { return std::dynamic_pointer_cast<Model>(node); }

    Nodes m_topLevel;

private:
    std::vector<ViewColumn> m_columns;
    std::unordered_set<const TableModel*> m_expanded;
};

} // namespace zelvor
