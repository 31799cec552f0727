#pragma once

#include "desktop/outline_view_model.h"

#include <QtWidgets/QTreeView>

#include <functional>

namespace zelvor {

class ListColumns;

// Shows any OutlineView on the screen: the one tree of all pages. Double click, Enter and F2 run the view's
// double action; Space ticks; rows are dragged as the view allows. Which rows stand open is told to the
// view and taken from it.
class TreeList : public QTreeView {
    Q_OBJECT

public:
    TreeList(OutlineView& view, const Calendar& calendar, QWidget* parent = nullptr);

    OutlineView& shownView() const { return m_model->view(); }
    OutlineViewModel* outlineModel() const { return m_model; }
    OutlineView::Node currentNode() const { return m_model->node(currentIndex()); }
    void selectNode(const OutlineView::Node& node);
    // Brings the row into view and tells where it stands on the screen, for a popover that points at it.
    QRect globalRowRect(const OutlineView::Node& node);
    void refresh();
    void setFilter(const QString& filter);
    // Runs before the view's double action; when it answers true the action is done.
    std::function<bool(const OutlineView::Node&)> rowAction;

Q_SIGNALS:
    void currentNodeChanged();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void runAction();
    void adoptColumns();
    void sampleRows(const QModelIndex& parent, std::vector<QModelIndex>& sample) const;
    void takeOver();
    void showBranch(const QModelIndex& index);
    void restoreExpanded(const QModelIndex& parent);
    void restoreSelection();
    void restoreScroll();
    void tellExpanded(const QModelIndex& index, bool expanded);
    void tellSelection();
    bool isShown(const QModelIndex& index) const;
    void paintGround();

    OutlineViewModel* m_model;
    ListColumns* m_columns;
    QPoint m_scrolled; // before the rows were read anew
    QString m_shownFilter;
    bool m_restoring = false;
};

} // namespace zelvor
