#pragma once

#include "core/view.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace zelvor {

// Views of the smallest kind, with as many rows as a test asks for, that write down what they are told.

// Columns: a hidden number, the name, an amount that can be edited, a tick.
class SampleTable : public TableView {
public:
    struct Row {
        QString name;
        double amount = 0;
        bool ticked = false;
    };

    SampleTable() : TableView(QStringLiteral("Sample"), blackColor) {}

    std::vector<Row> rows;
    std::vector<int> actions; // the rows of double actions
    bool refuses = false;

    void addNumbered(int count)
    {
        for (int i = 0; i < count; ++i)
            rows.push_back({QStringLiteral("Row %1").arg(i), double(i), false});
    }
    std::vector<ViewColumn> columns() const override
    {
        return {
            {QStringLiteral("id"), QStringLiteral("No."), CellKind::Integer, CellAlignment::Right, false,
             QStringLiteral("id"), true},
            {QStringLiteral("name"), QStringLiteral("Name"), CellKind::Text, CellAlignment::Left, false,
             QStringLiteral("name")},
            {QStringLiteral("amount"), QStringLiteral("Amount"), CellKind::Amount, CellAlignment::Right,
             true},
            {QStringLiteral("ticked"), QStringLiteral("Ticked"), CellKind::CheckBox, CellAlignment::Center,
             true},
        };
    }
    int numberOfRows() const override { return static_cast<int>(rows.size()); }
    QVariant value(int row, const QString& identifier) const override
    {
        if (row < 0 || row >= numberOfRows())
            return QString();
        const Row& shown = rows[static_cast<std::size_t>(row)];
        if (identifier == u"id")
            return row;
        if (identifier == u"name")
            return shown.name;
        if (identifier == u"amount")
            return shown.amount;
        return identifier == u"ticked" ? QVariant(shown.ticked) : QVariant(QString());
    }
    bool setValue(int row, const QString& identifier, const QVariant& value) override
    {
        if (refuses)
            return false;
        Row& changed = rows.at(static_cast<std::size_t>(row));
        if (identifier == u"amount")
            changed.amount = value.toDouble();
        if (identifier == u"ticked")
            changed.ticked = value.toBool();
        reloadData();
        return true;
    }
    // The selection stays on its row.
    void sort(const QString& key, bool ascending) override
    {
        if (key != u"name")
            return;
        const QString selected = value(selectedRow(), QStringLiteral("name")).toString();
        std::ranges::stable_sort(
            rows, [&](const Row& a, const Row& b) { return ascending ? a.name < b.name : b.name < a.name; });
        const auto place = std::ranges::find(rows, selected, &Row::name);
        selectRow(place == rows.end() ? -1 : static_cast<int>(place - rows.begin()));
        reloadData();
    }
    void doubleAction(int row) override { actions.push_back(row); }
};

struct SampleNode : TableModel {
    QString name;
    bool isGroup = false;
    bool ticked = false;
    std::weak_ptr<SampleNode> holder;
    std::vector<std::shared_ptr<SampleNode>> children;
};

// A tree of groups and leaves; a leaf holds nothing, and nothing is put into itself.
class SampleTree : public OutlineView {
public:
    SampleTree() : OutlineView(QStringLiteral("Sample"), blackColor) {}

    using Sample = std::shared_ptr<SampleNode>;
    Sample root = std::make_shared<SampleNode>();
    std::vector<QString> actions; // the names of double actions
    std::vector<QString> expanded;
    bool refuses = false;

    Sample add(const QString& name, const Sample& holder = nullptr, bool isGroup = false)
    {
        const auto node = std::make_shared<SampleNode>();
        node->name = name;
        node->isGroup = isGroup;
        put(node, holder);
        return node;
    }
    Sample addGroup(const QString& name, const Sample& holder = nullptr) { return add(name, holder, true); }
    static Sample sample(const Node& node) { return std::dynamic_pointer_cast<SampleNode>(node); }

    std::vector<ViewColumn> columns() const override
    {
        return {
            {QStringLiteral("name"), QStringLiteral("Name"), CellKind::Text, CellAlignment::Left, false,
             QStringLiteral("name")},
            {QStringLiteral("ticked"), QStringLiteral("Ticked"), CellKind::CheckBox, CellAlignment::Center,
             true},
        };
    }
    int numberOfChildren(const Node& node) const override
    {
        return static_cast<int>(holderOf(node)->children.size());
    }
    Node child(const Node& node, int index) const override
    {
        return index < numberOfChildren(node) ? holderOf(node)->children[static_cast<std::size_t>(index)]
                                              : nullptr;
    }
    Node parent(const Node& node) const override
    {
        const Sample above = sample(node)->holder.lock();
        return above == root ? nullptr : above;
    }
    bool isGroupItem(const Node& node) const override { return sample(node)->isGroup; }
    QVariant value(const Node& node, const QString& identifier) const override
    {
        return identifier == u"name" ? QVariant(sample(node)->name) : QVariant(sample(node)->ticked);
    }
    bool setValue(const Node& node, const QString&, const QVariant& value) override
    {
        if (refuses)
            return false;
        sample(node)->ticked = value.toBool();
        reloadData();
        return true;
    }
    void sort(const QString&, bool ascending) override
    {
        sortBelow(*root, ascending);
        reloadData();
    }
    void doubleAction(const Node& node) override { actions.push_back(sample(node)->name); }

    QString pasteboardText(const Node& node) const override { return sample(node)->name; }
    bool validateDrop(const QString& pasteboard, const Node& target) const override
    {
        const Sample dragged = find(pasteboard, root);
        if (!dragged || (target && !sample(target)->isGroup))
            return false;
        for (Sample above = holderOf(target); above; above = above->holder.lock()) {
            if (above == dragged)
                return false;
        }
        return true;
    }
    bool acceptDrop(const QString& pasteboard, const Node& target) override
    {
        const Sample dragged = find(pasteboard, root);
        std::erase(dragged->holder.lock()->children, dragged);
        put(dragged, sample(target));
        selectItem(dragged);
        reloadData();
        return true;
    }
    bool isItemExpanded(const Node& node) const override
    {
        return std::ranges::count(expanded, sample(node)->name) > 0;
    }
    void setItemExpanded(const Node& node, bool open) override
    {
        std::erase(expanded, sample(node)->name);
        if (open)
            expanded.push_back(sample(node)->name);
    }

private:
    Sample holderOf(const Node& node) const { return node ? sample(node) : root; }
    void put(const Sample& node, const Sample& holder)
    {
        const Sample above = holder ? holder : root;
        node->holder = above;
        above->children.push_back(node);
    }
    static Sample find(const QString& name, const Sample& below)
    {
        for (const Sample& node : below->children) {
            if (node->name == name)
                return node;
            if (const Sample found = find(name, node))
                return found;
        }
        return nullptr;
    }
    static void sortBelow(SampleNode& node, bool ascending)
    {
        std::ranges::stable_sort(node.children, [&](const Sample& a, const Sample& b) {
            return ascending ? a->name < b->name : b->name < a->name;
        });
        for (const Sample& child : node.children)
            sortBelow(*child, ascending);
    }
};

} // namespace zelvor
