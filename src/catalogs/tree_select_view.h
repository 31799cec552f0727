#pragma once

#include "catalogs/selection_owner.h"
#include "catalogs/tree_builder.h"
#include "catalogs/tree_outline.h"
#include "core/localized.h"
#include "core/outlets.h"
#include "store/app_delegate.h"

#include <algorithm>

namespace zelvor {

// A tree of records with a tick in each row, in a popover: a filter that hands its owner the ids of what is
// ticked, or a chooser of one leaf. It shows the records that are not hidden; they are read when somebody
// asks for them. The ticks are not stored, and a record that was never ticked off counts as ticked.
template <class Model, class Group, class Leaf>
class TreeSelectView : public TreeOutline<Model> {
public:
    using typename TreeOutline<Model>::Node;
    using typename TreeOutline<Model>::Nodes;
    using IDs = std::vector<qint64>;

    Popover selectPopover{QStringLiteral("selectPopover")};
    Button okButton{QStringLiteral("okButton")};
    SelectionOwner* sender = nullptr; // the owner; stays when the popover closes

    // Every node, groups before leaves, those of hidden groups too.
    const Nodes& all() const
    {
        refresh();
        return m_all;
    }
    // Reads the records now; what was ticked before is ticked again.
    void load();
    // Something changed in the file: read at the next question, or now while the popover is open.
    void markStale()
    {
        m_stale = true;
        if (selectPopover.isOpen())
            load();
    }

    // The lists of ids by the ticks, and back.
    void updateSelections();
    void backUpdateSelections();
    // Ticks every node; the lists stay.
    void selectAll();
    // The user ticks everything or nothing at once; either way the filter is empty.
    void tickAll(bool on);
    // OK: hands the lists to an owner that takes them, and closes.
    void sendIDs();
    void cancelPopover() { selectPopover.close(); }

    QVariant value(const Node& node, const QString& identifier) const override;
    // A tick; a group carries its subtree.
    bool setValue(const Node& node, const QString& identifier, const QVariant& value) override;

protected:
    explicit TreeSelectView(AppDelegate& owner);

    using TreeOutline<Model>::record;
    void refresh() const override
    {
        if (m_stale)
            const_cast<TreeSelectView*>(this)->load();
    }
    virtual IDs& groupIDs() = 0;
    virtual IDs& leafIDs() = 0;
    // False when the sender is no owner that takes these lists.
    virtual bool handOver(const IDs& groups, const IDs& leaves) = 0;
    virtual Nodes readGroups(Connector& connector) const { return readShown<Group>(connector); }
    // The ticked lists say in a word whether there is a choice at all; groups alone make none.
    static QString label(const IDs& leaves, const QString& selected, const QString& all)
    {
        return leaves.empty() ? all : selected;
    }
    template <class Record>
    static Nodes readShown(Connector& connector)
    {
        const auto records = connector.template freeSQL<Record>("WHERE is_hidden=?", {Parameter(false)});
        return Nodes(records.begin(), records.end());
    }

private:
    static std::vector<ViewColumn> selectColumns();

    AppDelegate& m_appDelegate;
    Nodes m_all;
    bool m_stale = true;
};

// A chooser of one leaf by a double click; its ticks are hidden at the start.
template <class Model, class Group, class Leaf>
class TreeChooserView : public TreeSelectView<Model, Group, Leaf> {
public:
    using typename TreeSelectView<Model, Group, Leaf>::Node;

    // Hides or shows the ticks.
    void hideColumn(bool hidden) { this->setColumnHidden(QStringLiteral("selected"), hidden); }
    // Hands the selected leaf to an owner that takes one, and closes; a group leaves the popover open.
    void sendSelection()
    {
        const auto leaf = std::dynamic_pointer_cast<Leaf>(this->selectedItem());
        if (leaf && choose(leaf))
            this->selectPopover.close();
    }
    void doubleAction(const Node& node) override
    {
        this->selectItem(node);
        sendSelection();
    }

protected:
    explicit TreeChooserView(AppDelegate& owner) : TreeSelectView<Model, Group, Leaf>(owner)
    {
        hideColumn(true);
    }
    // False when the sender is no owner that takes one.
    virtual bool choose(const std::shared_ptr<Leaf>& leaf) = 0;
};

template <class Model, class Group, class Leaf>
TreeSelectView<Model, Group, Leaf>::TreeSelectView(AppDelegate& owner)
    : TreeOutline<Model>(QString(), selectColumns()), m_appDelegate(owner)
{
    okButton.onUserChange = [this] { sendIDs(); };
}

template <class Model, class Group, class Leaf>
std::vector<ViewColumn> TreeSelectView<Model, Group, Leaf>::selectColumns()
{
    return {
        {.identifier = QStringLiteral("name"), .title = localized("Name")},
        {.identifier = QStringLiteral("selected"),
         .title = localized("Selected"),
         .kind = CellKind::CheckBox,
         .editable = true},
    };
}

template <class Model, class Group, class Leaf>
void TreeSelectView<Model, Group, Leaf>::load()
{
    m_stale = false;
    m_all = readGroups(m_appDelegate.connector);
    const Nodes leaves = readShown<Leaf>(m_appDelegate.connector);
    m_all.insert(m_all.end(), leaves.begin(), leaves.end());
    this->setTopLevel(buildTree(m_all));
    this->selectItem(nullptr);
    if (!groupIDs().empty() || !leafIDs().empty())
        backUpdateSelections();
    this->reloadData();
}

template <class Model, class Group, class Leaf>
void TreeSelectView<Model, Group, Leaf>::updateSelections()
{
    const Nodes& nodes = all();
    groupIDs().clear();
    leafIDs().clear();
    for (const auto& node : nodes) {
        if (node->selected)
            (node->isGroup() ? groupIDs() : leafIDs()).push_back(node->id);
    }
}

template <class Model, class Group, class Leaf>
void TreeSelectView<Model, Group, Leaf>::backUpdateSelections()
{
    const Nodes& nodes = all();
    const std::unordered_set<qint64> groups(groupIDs().begin(), groupIDs().end());
    const std::unordered_set<qint64> leaves(leafIDs().begin(), leafIDs().end());
    for (const auto& node : nodes)
        node->selected = (node->isGroup() ? groups : leaves).contains(node->id);
}

template <class Model, class Group, class Leaf>
void TreeSelectView<Model, Group, Leaf>::selectAll()
{
    for (const auto& node : all())
        node->selected = true;
}

template <class Model, class Group, class Leaf>
void TreeSelectView<Model, Group, Leaf>::tickAll(bool on)
{
    for (const auto& node : all())
        node->selected = on;
    groupIDs().clear();
    leafIDs().clear();
    this->reloadData();
}

template <class Model, class Group, class Leaf>
void TreeSelectView<Model, Group, Leaf>::sendIDs()
{
    if (!sender || !handOver(groupIDs(), leafIDs()))
        return;
    sender->setStringPredicates();
    selectPopover.close();
}

template <class Model, class Group, class Leaf>
QVariant TreeSelectView<Model, Group, Leaf>::value(const Node& node, const QString& identifier) const
{
    const auto shown = record(node);
    if (!shown || (identifier != u"name" && identifier != u"selected"))
        return QString();
    return shown->valueForIdentifier(identifier);
}

template <class Model, class Group, class Leaf>
bool TreeSelectView<Model, Group, Leaf>::setValue(const Node& node, const QString& identifier,
                                                  const QVariant& value)
{
    const auto ticked = record(node);
    if (!ticked || identifier != u"selected")
        return false;
    ticked->insertSelected(value.toBool());
    updateSelections();
    this->reloadData();
    return true;
}

} // namespace zelvor
