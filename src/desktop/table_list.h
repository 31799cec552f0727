#pragma once

#include "desktop/table_view_model.h"

#include <QtWidgets/QTableView>

#include <functional>

namespace zelvor {

// Shows any TableView on the screen: the one table of all pages. Double click, Enter and F2 run the view's
// double action; Space ticks; the selection stays on its row when the rows are read anew.
class TableList : public QTableView {
    Q_OBJECT

public:
    TableList(TableView& view, const Calendar& calendar, QWidget* parent = nullptr);

    TableView& shownView() const { return m_model->view(); }
    TableViewModel* tableModel() const { return m_model; }
    // The view's row under the cursor; -1 for none.
    int currentRow() const;
    void selectViewRow(int row);
    // Where the row stands on the screen, for a popover that points at it.
    QRect globalRowRect(int viewRow) const;
    // Shows what changed while the list was not visible.
    void refresh();
    // Runs before the view's double action; when it answers true the action is done.
    std::function<bool(int)> rowAction;

Q_SIGNALS:
    void currentRowChanged(int viewRow);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void runAction();
    void adoptColumns();
    void restoreSelection();
    void tellSelection();
    void paintGround();

    TableViewModel* m_model;
    std::vector<QString> m_widthsOf; // the columns that the widths were fitted to
    bool m_restoring = false;
};

} // namespace zelvor
