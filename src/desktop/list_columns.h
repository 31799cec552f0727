#pragma once

#include "core/view.h"

#include <QtCore/QModelIndex>
#include <QtCore/QObject>

#include <map>
#include <vector>

class QAbstractItemModel;
class QAbstractItemView;
class QHeaderView;

namespace zelvor {

// The columns of a table or tree: which ones show, how wide they are, and what a click on their headers does.
//
// Each column is as wide as what it holds; one column of texts, the name where there is one, takes what is
// left of the window, but never less than it needs. In a window too narrow for all columns the texts behind
// the first are cut off, down to some letters, and where that is not enough the list scrolls. A width that
// the user gave stays as long as the list lives. Columns of numbers grow when larger numbers come.
class ListColumns : public QObject {
    Q_OBJECT

public:
    // Belongs to the list.
    ListColumns(QAbstractItemView& list, QHeaderView& header);

    // The columns as the view has them now. `sample` are first cells of rows that widths are taken from.
    void adopt(const std::vector<ViewColumn>& columns, const std::vector<QModelIndex>& sample);
    // Shares the room of the window out anew.
    void layOut();
    // Columns of amounts and the name start narrower, for a list of many columns beside another one.
    void setDense();
    // Another font: what was measured is measured anew.
    void forgetMeasures();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fit(int section, const std::vector<QModelIndex>& sample);
    int minimumWidth(int section) const;
    bool isGiven(int section) const;
    std::map<int, int> wishedWidths() const;
    int shorten(std::map<int, int>& widths, int lacking) const;
    void sortByClick(int section);

    // Where the mark of the sorted column stands.
    struct Mark {
        int section = -1;
        Qt::SortOrder order = Qt::AscendingOrder;
    };

    QAbstractItemView& m_list;
    QHeaderView& m_header;
    std::vector<ViewColumn> m_columns;
    std::map<QString, int> m_fitted; // by identifier
    std::map<QString, int> m_given;  // by the user
    int m_filler = -1;               // the column that takes what is left
    Mark m_pressed;                  // when the mouse went down
    bool m_dense = false;
    bool m_settingWidths = false;
    bool m_dragging = false; // the mouse is down on the header
};

int firstShownColumn(const std::vector<ViewColumn>& columns);
std::vector<QString> shownIdentifiers(const std::vector<ViewColumn>& columns);
// Turns the tick of the current cell, or of the row's only tick that the user may turn. False without one.
bool tickCurrent(QAbstractItemView& list);

} // namespace zelvor
