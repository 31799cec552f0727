#pragma once

#include "desktop/outline_view_model.h"

#include <QtWidgets/QTreeView>

#include <functional>

namespace zelvor {

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
    QRect globalRowRect(const OutlineView::Node& node) const;
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

private:
    void runAction();
    void adoptColumns();
    void restoreRows();
    void restoreExpanded(const QModelIndex& parent);
    void paintGround();

    OutlineViewModel* m_model;
    std::vector<QString> m_widthsOf;
    bool m_restoring = false;
};

} // namespace zelvor
