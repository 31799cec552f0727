#pragma once

#include "core/view.h"
#include "desktop/cell_painter.h"

#include <QtCore/QAbstractItemModel>

#include <memory>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace zelvor {

class RowFilter;

// Any OutlineView as a Qt item model: one model for all trees. It makes one small object for each parent
// whose rows were asked for, none for a row. A filter leaves the nodes that match, with those above them.
//
// The view tells of new rows whenever it likes, also while it answers Qt; the model takes them over only
// between Qt's questions.
class OutlineViewModel : public QAbstractItemModel {
    Q_OBJECT

public:
    using Node = OutlineView::Node;

    OutlineViewModel(OutlineView& view, const Calendar& calendar, QObject* parent = nullptr);
    ~OutlineViewModel() override;

    OutlineView& view() const { return m_view; }
    const std::vector<ViewColumn>& columns() const { return m_columns; }
    int columnWithIdentifier(const QString& identifier) const; // -1 for none

    Node node(const QModelIndex& index) const; // null for the top level
    // The first column's index of a node; invalid when the tree does not show it.
    QModelIndex indexOf(const Node& node) const;

    const QString& filter() const { return m_filter; }
    void setFilter(const QString& filter);
    void refresh();

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    void sort(int column, Qt::SortOrder order) override;

    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction | Qt::CopyAction; }

Q_SIGNALS:
    // The view's nodes were taken over: as a reset, or, where they stand as they stood, as changed data.
    void reloaded();

private:
    // The rows below one node.
    struct Branch {
        Node holder; // null for the top level
        Branch* above = nullptr;
        int rowInAbove = 0;
        std::vector<Node> children;
    };

    void reload();
    void takeOver();
    bool standsAsItStood() const;
    std::vector<Node> shownChildren(const Node& holder) const;
    Branch* branchBelow(const QModelIndex& parent) const;
    Branch* branchOf(const Node& holder, Branch* above, int row) const;
    // Collects the node and those below it that match or have a match below them.
    bool collectMatching(const Node& node, const RowFilter& filter);
    void applyFilter(const std::vector<ViewColumn>& columns);
    void tellOfChangedData();

    OutlineView& m_view;
    const Calendar& m_calendar;
    std::vector<ViewColumn> m_columns;
    QString m_filter;
    std::unordered_set<const TableModel*> m_matching; // unused without a filter
    // By the holder; made when asked for.
    mutable std::unordered_map<const TableModel*, std::unique_ptr<Branch>> m_branches;
    std::shared_ptr<void> m_listening = std::make_shared<char>(); // to the view, as long as the model lives
    bool m_reloading = false;
    bool m_reloadWaits = false;
    mutable int m_questions = 0; // of Qt's, being answered
};

} // namespace zelvor
