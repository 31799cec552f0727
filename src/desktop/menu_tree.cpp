#include "desktop/menu_tree.h"

#include "core/localized.h"
#include "desktop/icons.h"
#include "desktop/measures.h"
#include "shell/main_menu_controller.h"

#include <QtGui/QContextMenuEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QMenu>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr int typeRole = Qt::UserRole;

void fill(QTreeWidgetItem& node, const MainMenuItem& item)
{
    const QString title = item.title;
    node.setText(0, title);
    node.setToolTip(0, title.toHtmlEscaped());
    node.setIcon(0, lineIcon(item.icon));
    node.setData(0, typeRole, rawValue(item.type));
}

} // namespace

MenuTree::MenuTree(MainMenuController& controller, QWidget* parent)
    : QTreeWidget(parent), m_controller(controller)
{
    setObjectName(u"menuTree"_s);
    setAccessibleName(localized("Menu"));
    setHeaderHidden(true);
    setFrameShape(QFrame::NoFrame);
    setIconSize({measures::menuIcon, measures::menuIcon});
    setIndentation(measures::pageMargin);
    setUniformRowHeights(false);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setExpandsOnDoubleClick(false);
    header()->setSectionResizeMode(QHeaderView::Stretch);
    connect(this, &QTreeWidget::itemClicked, this, &MenuTree::activate);
    connect(this, &QTreeWidget::itemExpanded, this,
            [this](QTreeWidgetItem* node) { keepExpanded(node, true); });
    connect(this, &QTreeWidget::itemCollapsed, this,
            [this](QTreeWidgetItem* node) { keepExpanded(node, false); });
}

void MenuTree::reload()
{
    const QSignalBlocker quiet(this);
    clear();
    for (const auto& group : m_controller.sourceListItems)
        addGroup(*group);
    if (m_controller.selectedItem)
        setCurrentItem(itemOf(m_controller.selectedItem->type));
}

void MenuTree::addGroup(const MainMenuItem& group)
{
    auto* const node = new QTreeWidgetItem(this);
    fill(*node, group);
    QFont bold = font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() + 2);
    node->setFont(0, bold);
    node->setSizeHint(0, {0, QFontMetrics(bold).height() + measures::rowPadding + measures::labelGap});
    for (const auto& item : group.children) {
        auto* const leaf = new QTreeWidgetItem(node);
        fill(*leaf, *item);
        leaf->setSizeHint(0, {0, fontMetrics().height() + measures::rowPadding});
    }
    node->setExpanded(group.expanded);
}

QTreeWidgetItem* MenuTree::itemOf(DocType type) const
{
    for (QTreeWidgetItemIterator node(const_cast<MenuTree*>(this)); *node; ++node) {
        if ((*node)->data(0, typeRole).toInt() == rawValue(type))
            return *node;
    }
    return nullptr;
}

void MenuTree::activate(QTreeWidgetItem* node)
{
    if (!node)
        return;
    if (!node->parent()) {
        node->setExpanded(!node->isExpanded());
        return;
    }
    const int raw = node->data(0, typeRole).toInt();
    for (const auto& group : m_controller.sourceListItems) {
        const auto item = std::ranges::find_if(
            group->children, [raw](const auto& child) { return rawValue(child->type) == raw; });
        if (item == group->children.end())
            continue;
        const std::shared_ptr<MainMenuItem> clicked = *item; // the menu may be read anew meanwhile
        m_controller.menuItemClicked(*clicked);
        return;
    }
}

void MenuTree::keepExpanded(const QTreeWidgetItem* node, bool expanded)
{
    const int raw = node->data(0, typeRole).toInt();
    for (const auto& group : m_controller.sourceListItems) {
        if (rawValue(group->type) == raw)
            group->expanded = expanded;
    }
}

QByteArray MenuTree::closedGroups() const
{
    QByteArray groups;
    for (const auto& group : m_controller.sourceListItems) {
        if (!group->expanded)
            groups.append(static_cast<char>(rawValue(group->type)));
    }
    return groups;
}

void MenuTree::setClosedGroups(const QByteArray& groups)
{
    for (const auto& group : m_controller.sourceListItems)
        group->expanded = !groups.contains(static_cast<char>(rawValue(group->type)));
    reload();
}

void MenuTree::contextMenuEvent(QContextMenuEvent* event)
{
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(localized("Expand All"), this, [this] { m_controller.expandAll(); });
    menu->addAction(localized("Collapse All"), this, [this] { m_controller.collapseAll(); });
    menu->popup(event->globalPos());
}

void MenuTree::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        activate(currentItem());
        return;
    default:
        QTreeWidget::keyPressEvent(event);
    }
}

} // namespace zelvor
