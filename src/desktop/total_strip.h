#pragma once

#include <QtWidgets/QWidget>

class QVBoxLayout;

namespace zelvor {

class TableList;

// Keeps the closing rows of a list in sight: while the list is longer than its place, its last rows stand in
// a strip below it instead of at its end. While they are searched, or all rows have room, they are ordinary
// rows.
class TotalStrip : public QWidget {
    Q_OBJECT

public:
    // `rows` closing rows of the list.
    TotalStrip(TableList* list, int rows);

    // Puts the list of a page together with its strip.
    static TotalStrip* addBelow(TableList* list, int rows, QVBoxLayout* page);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isNeeded() const;
    void arrange();

    TableList* m_list;
    int m_rows;
};

} // namespace zelvor
