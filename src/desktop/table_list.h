#pragma once

#include "desktop/table_view_model.h"

#include <QtWidgets/QTableView>

#include <functional>

namespace zelvor {

class ListColumns;

// Shows any TableView on the screen: the one table of all pages. Double click, Enter and F2 edit the cell
// where it can be edited, elsewhere they run the view's double action; Space ticks. When the rows are read
// anew, the selection stays on the view's selected row and nothing scrolls.
class TableList : public QTableView {
    Q_OBJECT

public:
    TableList(TableView& view, const Calendar& calendar, QWidget* parent = nullptr);

    TableView& shownView() const { return m_model->view(); }
    TableViewModel* tableModel() const { return m_model; }
    // The view's row under the cursor; -1 for none.
    int currentRow() const;
    void selectViewRow(int row);
    // Brings the row into view and tells where it stands on the screen, for a popover that points at it.
    QRect globalRowRect(int viewRow);
    // Opens the cell's editor; false for a cell that is not edited.
    bool editCell(int viewRow, const QString& identifier);
    // Shows what changed while the list was not visible.
    void refresh();
    // Runs before the view's double action; when it answers true the action is done.
    std::function<bool(int)> rowAction;

Q_SIGNALS:
    void currentRowChanged(int viewRow);
    // Return ended the editing of a cell: what was typed is in the view, and the cursor may go on.
    void cellEntered(int viewRow, const QString& identifier);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                     const QList<int>& roles) override;
    void commitData(QWidget* editor) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

    // Columns start narrower, for a list of many columns beside another one.
    void setDense();

private:
    void runAction();
    void adoptColumns();
    void takeOver();
    void restoreSelection();
    void restoreScroll();
    void tellSelection();
    void paintGround();

    TableViewModel* m_model;
    ListColumns* m_columns;
    QPoint m_scrolled; // before the rows were read anew
    QString m_shownFilter;
    bool m_restoring = false;
};

} // namespace zelvor
