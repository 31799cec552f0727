#pragma once

#include "catalogs/catalog_write.h"
#include "catalogs/tree_builder.h"
#include "catalogs/tree_catalog_view.h"
#include "core/localized.h"
#include "core/outlets.h"
#include "core/text_order.h"
#include "store/model_controller.h"

#include <algorithm>
#include <memory>
#include <unordered_set>
#include <utility>
#include <vector>

namespace zelvor {

// What the two popovers of every tree catalog have in common.
struct TreeForm {
    Popover& popover;
    Label& title;
    TextField& name;
    PopUpButton& group; // the chooser of the parent group
    Label& error;
    Button& okButton;
};

// Reads, shows and writes one catalog whose groups and leaves form a tree. The tree starts stale and is built
// when somebody asks for it; after a change it is built at once only while its view is on the screen.
// Building throws all nodes away: a node held across it belongs to the old tree.
template <class Model, class Group, class Leaf>
class TreeCatalogController : public ModelController, public TreeCatalogOwner<Model> {
public:
    using ModelController::ModelController;
    using Node = std::shared_ptr<Model>;
    using Nodes = std::vector<Node>;

    Node focusedObject;             // the record behind the open popover
    bool addingFromPopover = false; // a group is being added from the leaf's popover
    std::vector<qint64> expanded;   // ids of the groups that stood open when the tree was last built

    // Every node, groups before leaves, those too that no list of the tree holds.
    const Nodes& all()
    {
        refresh();
        return m_all;
    }

    // Stores a record of either class, new or not, in one transaction and tells the other parts before the
    // commit. False when nothing was stored; a new record has id 0 then.
    bool writeRecord(const Node& record)
    {
        return record->isGroup() ? writeStored<Group>(record) : writeStored<Leaf>(record);
    }
    // The warning that keeps OK from working; empty when the record may be stored.
    QString refusal(const Model& record) const { return refusalOfName(record.name); }

    // Reads the tree when it is stale.
    void refresh() override
    {
        if (m_stale)
            prepare();
    }
    // Something changed in the file: the tree is read at the next question, or now while it is on the screen.
    virtual void markStale()
    {
        m_stale = true;
        if (tree().isVisible())
            prepare();
    }
    bool isStale() const { return m_stale; }
    // Another project is coming: nothing of the one that was read stays, and nothing is read yet.
    void forget();

    Node getItemWithIdentifier(const QString& identifier) override;
    // Puts the node under the group that its parentID names; without such a group it stays out of the tree.
    void setChildToParentWithID(const Node& node);
    void writeExpanded(const Nodes& nodes);
    void expandItems(const Nodes& nodes);
    // Stores one changed record for a check box or a drop.
    bool update(const Node& record) override;
    void editSelected() override { edit(); }

protected:
    virtual TreeCatalogView<Model>& tree() = 0;
    virtual TreeForm groupForm() = 0;
    virtual TreeForm leafForm() = 0;
    virtual void bindGroup(Group& group) = 0;
    virtual void bindLeaf(Leaf& leaf) = 0;
    virtual void backBindGroup(Group& group) = 0;
    // False when what documents keep in the record could not be read: then nothing is stored.
    virtual bool backBindLeaf(Leaf& leaf) = 0;
    // What an emptied popover shows beside an empty title and error.
    virtual void clearGroup() {}
    virtual void clearLeaf() {}
    // What is locked on a stored leaf until the user opens it.
    virtual void closeLocks() {}
    virtual QString titleOfEdited(bool group) const = 0;
    // Posts what a stored record means to others.
    virtual void postChanged() = 0;
    // The same for a check box or a drop.
    virtual void postUpdated() { postChanged(); }
    // Reads what the records of the family refer to.
    virtual void prepareLinked() {}
    // Refills what is made out of the new tree, the choosers of parent groups first of all.
    virtual void treeBuilt() = 0;
    // A leaf was edited: what hangs on it is renewed; the tree keeps its order.
    virtual void leafEdited(Leaf& /*leaf*/) {}
    // Keeps the record's own place and those below it out of the choosers of its parent.
    virtual void disableMenus(const Node& node)
    {
        if (node->isGroup())
            disableItems(groupForm().group, node->id, node->getChildrenIDs());
    }
    virtual void enableAllMenuItems()
    {
        groupForm().group.enableAllItems();
        leafForm().group.enableAllItems();
    }
    virtual QString emptyChoiceTitle() const { return {}; }

    // What the tree shows may be what a failed write took back.
    virtual void takenBack() { markStale(); }

    // Reads everything and builds the tree now.
    void prepare();
    const Nodes& loadedNodes() const { return m_all; }
    void observe(NotificationName name, NotificationCenter::Handler handler)
    {
        m_observations.push_back(appDelegate.notifications.observe(name, std::move(handler)));
    }

    // The record behind the popover to its fields, and back, when it is of that class.
    void bindGroupFields()
    {
        if (const auto group = std::dynamic_pointer_cast<Group>(focusedObject))
            bindGroup(*group);
    }
    void bindLeafFields()
    {
        if (const auto leaf = std::dynamic_pointer_cast<Leaf>(focusedObject))
            bindLeaf(*leaf);
    }
    void backBindGroupFields()
    {
        if (const auto group = std::dynamic_pointer_cast<Group>(focusedObject))
            backBindGroup(*group);
    }
    bool backBindLeafFields()
    {
        const auto leaf = std::dynamic_pointer_cast<Leaf>(focusedObject);
        return !leaf || backBindLeaf(*leaf);
    }

    // To be called at the end of a constructor.
    void wireForms();
    void openNew(const Node& record, const QString& title);
    void addGroupFromPopover(const QString& title);
    void edit();
    void write();
    void cancelGroup();
    void cancelLeaf();
    void clearGroupForm();
    void clearLeafForm();
    // The choosers of parent groups: an empty choice, then every group.
    void initGroupSelects();
    static void disableItems(PopUpButton& select, qint64 id, const std::vector<qint64>& below);

private:
    static QString refusalOfName(const QString& name)
    {
        return name.isEmpty() ? localized("Field 'Name' is required!") : QString();
    }
    template <class Record>
    bool writeStored(const Node& record);
    void written(const Node& record, bool isNew);
    void staleUnlessShown(const Node& record);
    Node loadedNode(const QString& identifier) const;
    // The node of the tree that stands for a record of an older one.
    Node sameNode(const Node& old) const { return loadedNode(old->getIdentifierForDragging()); }
    void takeBackLeaf();
    static void checkName(const TreeForm& form);

    Nodes m_all;
    bool m_stale = true;
    Node m_leafAside; // the leaf whose popover waits below that of a group
    std::vector<NotificationCenter::Observation> m_observations;
};

template <class Model, class Group, class Leaf>
void TreeCatalogController<Model, Group, Leaf>::prepare()
{
    m_stale = false;
    expanded.clear();
    writeExpanded(tree().loadedTopLevel());
    const auto selected = std::dynamic_pointer_cast<Model>(tree().selectedItem());
    tree().setTree({}, {});
    m_all.clear();
    for (auto& group : appDelegate.connector.template freeSQL<Group>())
        m_all.push_back(std::move(group));
    Nodes groups = m_all;
    for (auto& leaf : appDelegate.connector.template freeSQL<Leaf>())
        m_all.push_back(std::move(leaf));
    prepareLinked();

    Nodes topLevel = buildTree(m_all);
    std::ranges::stable_sort(groups, NameLess{});
    tree().setTree(std::move(topLevel), std::move(groups));
    tree().selectItem(selected ? sameNode(selected) : nullptr);
    expandItems(tree().loadedTopLevel());
    treeBuilt();
    if (const Node shown = focusedObject && focusedObject->id != 0 ? sameNode(focusedObject) : nullptr)
        disableMenus(shown);
    tree().reloadData();
}

template <class Model, class Group, class Leaf>
void TreeCatalogController<Model, Group, Leaf>::forget()
{
    groupForm().popover.close();
    leafForm().popover.close();
    focusedObject.reset();
    m_leafAside.reset();
    addingFromPopover = false;
    clearGroupForm();
    clearLeafForm();
    expanded.clear();
    tree().selectItem(nullptr);
    tree().setTree({}, {});
    m_all.clear();
    m_stale = true;
}

template <class Model, class Group, class Leaf>
std::shared_ptr<Model>
TreeCatalogController<Model, Group, Leaf>::getItemWithIdentifier(const QString& identifier)
{
    refresh();
    return loadedNode(identifier);
}

template <class Model, class Group, class Leaf>
std::shared_ptr<Model> TreeCatalogController<Model, Group, Leaf>::loadedNode(const QString& identifier) const
{
    const qint64 id = QStringView(identifier).mid(identifier.lastIndexOf(u'_') + 1).toLongLong();
    const auto place = std::ranges::find_if(m_all, [&](const Node& node) {
        return node->id == id && node->getIdentifierForDragging() == identifier;
    });
    return place == m_all.end() ? nullptr : *place;
}

template <class Model, class Group, class Leaf>
void TreeCatalogController<Model, Group, Leaf>::setChildToParentWithID(const Node& node)
{
    const Nodes& nodes = all();
    const auto holder = std::ranges::find_if(
        nodes, [&](const Node& other) { return other->isGroup() && other->id == node->parentID; });
    if (holder != nodes.end())
        (*holder)->setChild(node);
}

template <class Model, class Group, class Leaf>
void TreeCatalogController<Model, Group, Leaf>::writeExpanded(const Nodes& nodes)
{
    for (const Node& node : nodes) {
        if (!node->isGroup() || !tree().isItemExpanded(node))
            continue;
        expanded.push_back(node->id);
        writeExpanded(node->children);
    }
}

template <class Model, class Group, class Leaf>
void TreeCatalogController<Model, Group, Leaf>::expandItems(const Nodes& nodes)
{
    if (expanded.empty())
        return;
    for (const Node& node : nodes) {
        if (!node->isGroup() || std::ranges::find(expanded, node->id) == expanded.end())
            continue;
        tree().setItemExpanded(node, true);
        expandItems(node->children);
    }
}

template <class Model, class Group, class Leaf>
template <class Record>
bool TreeCatalogController<Model, Group, Leaf>::writeStored(const Node& record)
{
    const bool wasNew = record->id == 0;
    bool announced = false;
    const bool stored = writeCatalogRecord(appDelegate, static_cast<Record&>(*record), [&](bool isNew) {
        announced = true;
        written(record, isNew);
        postChanged();
    });
    if (!stored && (announced || !wasNew))
        takenBack();
    return stored;
}

template <class Model, class Group, class Leaf>
void TreeCatalogController<Model, Group, Leaf>::written(const Node& record, bool isNew)
{
    if (!isNew && !record->isGroup()) {
        leafEdited(static_cast<Leaf&>(*record));
        staleUnlessShown(record);
        return;
    }
    if (!isNew)
        enableAllMenuItems();
    markStale();
}

// A record that somebody else read from the file is not the one in our tree.
template <class Model, class Group, class Leaf>
void TreeCatalogController<Model, Group, Leaf>::staleUnlessShown(const Node& record)
{
    if (!m_stale && std::ranges::find(m_all, record) == m_all.end())
        markStale();
}

template <class Model, class Group, class Leaf>
bool TreeCatalogController<Model, Group, Leaf>::update(const Node& record)
{
    Connector& connector = appDelegate.connector;
    UserWrite write(connector);
    write.step(record->isGroup() ? connector.update(static_cast<Group&>(*record))
                                 : connector.update(static_cast<Leaf&>(*record)));
    bool announced = false;
    const bool stored = write.finish([&] {
        announced = true;
        staleUnlessShown(record);
        postUpdated();
    });
    if (!stored && announced)
        takenBack();
    return stored;
}

template <class Model, class Group, class Leaf>
void TreeCatalogController<Model, Group, Leaf>::wireForms()
{
    groupForm().name.onUserChange = [this] { checkName(groupForm()); };
    leafForm().name.onUserChange = [this] { checkName(leafForm()); };
    groupForm().okButton.onUserChange = [this] { write(); };
    leafForm().okButton.onUserChange = [this] { write(); };
    clearGroupForm();
    clearLeafForm();
}

// The only place where the name is asked for: OK stays as the last popover left it otherwise.
template <class Model, class Group, class Leaf>
void TreeCatalogController<Model, Group, Leaf>::checkName(const TreeForm& form)
{
    const QString warning = refusalOfName(form.name.text());
    form.okButton.setEnabled(warning.isEmpty());
    form.error.setText(warning);
}

template <class Model, class Group, class Leaf>
void TreeCatalogController<Model, Group, Leaf>::openNew(const Node& record, const QString& title)
{
    refresh();
    focusedObject = record;
    record->isGroup() ? clearGroupForm() : clearLeafForm();
    record->isGroup() ? bindGroupFields() : bindLeafFields();
    const TreeForm form = record->isGroup() ? groupForm() : leafForm();
    form.title.setText(title);
    form.popover.open();
}

template <class Model, class Group, class Leaf>
void TreeCatalogController<Model, Group, Leaf>::addGroupFromPopover(const QString& title)
{
    if (focusedObject && !focusedObject->isGroup())
        m_leafAside = focusedObject;
    openNew(std::make_shared<Group>(), title);
    addingFromPopover = true;
}

template <class Model, class Group, class Leaf>
void TreeCatalogController<Model, Group, Leaf>::edit()
{
    refresh();
    const auto node = std::dynamic_pointer_cast<Model>(tree().selectedItem());
    if (!node)
        return;
    focusedObject = node;
    const TreeForm form = node->isGroup() ? groupForm() : leafForm();
    node->isGroup() ? clearGroupForm() : clearLeafForm();
    form.title.setText(titleOfEdited(node->isGroup()));
    disableMenus(node);
    node->isGroup() ? bindGroupFields() : bindLeafFields();
    if (!node->isGroup())
        closeLocks();
    form.popover.open();
}

template <class Model, class Group, class Leaf>
void TreeCatalogController<Model, Group, Leaf>::write()
{
    const Node record = focusedObject;
    if (!record)
        return;
    const bool group = record->isGroup();
    const bool isNew = record->id == 0;
    bool bound = true;
    if (group)
        backBindGroupFields();
    else
        bound = backBindLeafFields();
    const bool stored = bound && writeRecord(record);
    if (!bound)
        takenBack();
    group ? clearGroupForm() : clearLeafForm();
    (group ? groupForm() : leafForm()).popover.close();
    focusedObject.reset();
    if (!addingFromPopover)
        return;
    if (group && isNew && stored) {
        refresh();
        leafForm().group.selectTag(record->id);
    }
    takeBackLeaf();
}

// The popover of the leaf, still open, goes on with its record.
template <class Model, class Group, class Leaf>
void TreeCatalogController<Model, Group, Leaf>::takeBackLeaf()
{
    addingFromPopover = false;
    focusedObject = m_leafAside ? std::exchange(m_leafAside, nullptr) : std::make_shared<Leaf>();
    if (focusedObject->id == 0)
        return;
    if (const Node shown = sameNode(focusedObject))
        focusedObject = shown;
    disableMenus(focusedObject);
}

template <class Model, class Group, class Leaf>
void TreeCatalogController<Model, Group, Leaf>::cancelGroup()
{
    clearGroupForm();
    groupForm().popover.close();
    focusedObject.reset();
    if (addingFromPopover)
        takeBackLeaf();
}

template <class Model, class Group, class Leaf>
void TreeCatalogController<Model, Group, Leaf>::cancelLeaf()
{
    clearLeafForm();
    leafForm().popover.close();
    if (addingFromPopover) // the group's popover goes on alone
        m_leafAside.reset();
    else
        focusedObject.reset();
    addingFromPopover = false;
}

template <class Model, class Group, class Leaf>
void TreeCatalogController<Model, Group, Leaf>::clearGroupForm()
{
    groupForm().title.setText({});
    groupForm().error.setText({});
    clearGroup();
    enableAllMenuItems();
}

template <class Model, class Group, class Leaf>
void TreeCatalogController<Model, Group, Leaf>::clearLeafForm()
{
    leafForm().title.setText({});
    leafForm().error.setText({});
    clearLeaf();
    enableAllMenuItems();
}

template <class Model, class Group, class Leaf>
void TreeCatalogController<Model, Group, Leaf>::initGroupSelects()
{
    std::vector<PopUpButton::Item> items{{.title = emptyChoiceTitle(), .tag = 0}};
    for (const Node& group : tree().loadedGroups())
        items.push_back({.title = group->name, .tag = group->id});
    groupForm().group.setItems(items);
    leafForm().group.setItems(std::move(items));
}

template <class Model, class Group, class Leaf>
void TreeCatalogController<Model, Group, Leaf>::disableItems(PopUpButton& select, qint64 id,
                                                             const std::vector<qint64>& below)
{
    const std::unordered_set<qint64> ids(below.begin(), below.end());
    std::vector<PopUpButton::Item> items = select.items();
    for (PopUpButton::Item& item : items) {
        if (item.tag == id || ids.contains(item.tag))
            item.enabled = false;
    }
    select.setItems(std::move(items));
}

} // namespace zelvor
