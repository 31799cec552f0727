#pragma once

#include <QtCore/QObject>

namespace zelvor {

class TableList;

// Remembers which header of a list the user clicked: rows that were read anew come in the engine's own order.
class SortKeeper : public QObject {
    Q_OBJECT

public:
    // Belongs to the list.
    explicit SortKeeper(TableList* list);

    // Sorts the rows as the user last wished.
    void sortAgain();
    // The rows still stand so: shows the mark in the header.
    void showMark();

private:
    TableList* m_list;
    int m_section = -1; // none was clicked
    Qt::SortOrder m_order = Qt::AscendingOrder;
};

} // namespace zelvor
