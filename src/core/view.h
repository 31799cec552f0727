#pragma once

#include "core/colors.h"
#include "core/table_model.h"

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <functional>
#include <memory>
#include <vector>

namespace zelvor {

enum class CellAlignment { Left, Right, Center };
enum class CellKind { Text, Amount, Integer, Percent, Date, CheckBox, Image };
enum class CellFont { Plain, Small, GatheringBold12, GatheringBold14 };

// One column of a list; header, cells, export and print all read this description.
struct ViewColumn {
    QString identifier;
    QString title; // localised
    CellKind kind = CellKind::Text;
    CellAlignment alignment = CellAlignment::Left;
    bool editable = false;
    QString sortKey = {}; // empty: the column does not sort
    bool hidden = false;
};

struct CellStyle {
    CellFont font = CellFont::Plain;
    Color color = blackColor;
    CellAlignment alignment = CellAlignment::Left;
};

// The data side of one tab page. Draws nothing; the desktop shows it and hears changes by `onReload`.
class BaseView {
public:
    BaseView(QString viewName, Color color) : m_name(std::move(viewName)), m_titleColor(color) {}
    virtual ~BaseView() = default;
    BaseView(const BaseView&) = delete;
    BaseView& operator=(const BaseView&) = delete;

    int index() const { return m_index; } // place in the tab strip, -1 when not shown
    void setIndex(int index) { m_index = index; }
    const QString& name() const { return m_name; } // tab title
    void setName(QString name);
    const Color& titleColor() const { return m_titleColor; }
    void setTitleColor(const Color& color);
    const QString& tip() const { return m_tip; }
    void setTip(QString tip) { m_tip = std::move(tip); }

    virtual bool canExportToExcel() const { return false; }
    virtual void didRemoveFromSuperView() {}

    // Shown on the screen now: a visible view re-reads at once when told of a change, any other one when
    // it is asked next.
    bool isVisible() const { return m_visible; }
    void setVisible(bool visible) { m_visible = visible; }

    // Heard as long as the view lives.
    void onReload(std::function<void()> listener);
    // Heard as long as the owner lives: for whoever may go before the view does.
    void onReload(std::weak_ptr<const void> owner, std::function<void()> listener);
    // Those of owners that went are still counted until the next one comes.
    std::size_t listenerCount() const { return m_listeners.size(); }
    // Tells whoever shows the view that its rows, columns or title changed.
    void reloadData() const;

    const Color& groundColor() const { return m_groundColor; }
    void setGroundColor(const Color& color);

private:
    struct Listener {
        std::weak_ptr<const void> owner;
        std::function<void()> tell;
    };

    QString m_name;
    Color m_titleColor;
    QString m_tip;
    int m_index = -1;
    bool m_visible = false;
    Color m_groundColor = whiteColor;
    std::shared_ptr<void> m_self = std::make_shared<char>(); // owns the listeners that nobody else does
    std::vector<Listener> m_listeners;
};

// A flat list. Rows count from 0; a row outside the list and an unknown identifier give the empty text.
class TableView : public BaseView {
public:
    using BaseView::BaseView;
    virtual std::vector<ViewColumn> columns() const = 0;
    virtual int numberOfRows() const = 0;
    virtual QVariant value(int row, const QString& identifier) const = 0;
    // What the user typed or ticked in a cell; false when it was refused and nothing changed.
    virtual bool setValue(int row, const QString& identifier, const QVariant& value);
    virtual CellStyle cellStyle(int row, const QString& identifier) const;
    // The first sort descriptor only; an unknown key leaves the order as it stands.
    virtual void sort(const QString& key, bool ascending);
    // What a double click, Enter or F2 on the row does.
    virtual void doubleAction(int row);
    // Index of the selected row, -1 for none.
    int selectedRow() const { return m_selectedRow; }
    void selectRow(int row) { m_selectedRow = row; }

private:
    int m_selectedRow = -1;
};

// A tree whose nodes are records. A null node stands for the top level.
class OutlineView : public BaseView {
public:
    using BaseView::BaseView;
    using Node = std::shared_ptr<TableModel>;
    virtual std::vector<ViewColumn> columns() const = 0;
    virtual int numberOfChildren(const Node& node) const = 0;
    virtual Node child(const Node& node, int index) const = 0;
    virtual Node parent(const Node& node) const = 0;
    virtual bool isGroupItem(const Node& node) const = 0;
    bool isItemExpandable(const Node& node) const { return numberOfChildren(node) > 0; }
    virtual QVariant value(const Node& node, const QString& identifier) const = 0;
    virtual bool setValue(const Node& node, const QString& identifier, const QVariant& value);
    virtual CellStyle cellStyle(const Node& node, const QString& identifier) const;
    virtual void sort(const QString& key, bool ascending);
    virtual void doubleAction(const Node& node);
    // Drag and drop: the text of a dragged row, whether it may fall on `target` (null: the top level), and
    // the move itself.
    virtual QString pasteboardText(const Node& node) const;
    virtual bool validateDrop(const QString& pasteboard, const Node& target) const;
    virtual bool acceptDrop(const QString& pasteboard, const Node& target);

    // Which rows stand open, told by whoever shows the tree.
    virtual bool isItemExpanded(const Node& node) const = 0;
    virtual void setItemExpanded(const Node& node, bool expanded) = 0;
    Node selectedItem() const { return m_selectedItem; }
    void selectItem(const Node& node) { m_selectedItem = node; }

private:
    Node m_selectedItem;
};

} // namespace zelvor
