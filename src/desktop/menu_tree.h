#pragma once

#include "core/doc_type.h"

#include <QtCore/QByteArray>
#include <QtWidgets/QTreeWidget>

namespace zelvor {

class MainMenuController;
class MainMenuItem;

// The tree of commands at the left: groups with their entries. One click or Enter opens an entry; a click on
// a group opens and closes it.
class MenuTree : public QTreeWidget {
    Q_OBJECT

public:
    explicit MenuTree(MainMenuController& controller, QWidget* parent = nullptr);

    // Shows the menu of the project anew.
    void reload();
    QTreeWidgetItem* itemOf(DocType type) const;
    // Which groups stand closed, for the next start.
    QByteArray closedGroups() const;
    void setClosedGroups(const QByteArray& groups);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void addGroup(const MainMenuItem& group);
    void activate(QTreeWidgetItem* node);
    void keepExpanded(const QTreeWidgetItem* node, bool expanded);

    MainMenuController& m_controller;
};

} // namespace zelvor
