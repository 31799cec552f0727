#pragma once

#include "desktop/popover_panel.h"

namespace zelvor {

class Calendar;
class ContragentSelectView;
class SearchLine;
class TreeList;

// Chooses one counterparty out of the tree: Enter or a double click takes it, a group opens and closes.
// While one types, the arrow keys move in the list already.
class ContragentChooser : public PopoverPanel {
    Q_OBJECT

public:
    ContragentChooser(ContragentSelectView& view, const Calendar& calendar, QWidget* host);

    TreeList* tree() const { return m_tree; }
    SearchLine* searchLine() const { return m_search; }
    // Opens with that text in the search line.
    void startWith(const QString& text);

Q_SIGNALS:
    // A counterparty was taken and the panel is closed.
    void chosen();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    bool searchKey(int key);
    void selectFirstMatch();
    void choose();

    ContragentSelectView& m_view;
    TreeList* m_tree;
    SearchLine* m_search;
};

} // namespace zelvor
