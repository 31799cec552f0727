#pragma once

#include "desktop/list_page.h"

class QMenu;

namespace zelvor {

class DocumentJournalViewController;
class PeriodBar;
class SortKeeper;

// A document journal with its period and type. Double click or Enter opens a document; an unconfirmed one
// can be deleted, by the context menu or the Delete key.
class JournalPage : public TablePage {
    Q_OBJECT

public:
    explicit JournalPage(DocumentJournalViewController& controller, QWidget* parent = nullptr);

    bool can(PageCommand command) const override;
    void perform(PageCommand command) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLayout* makeControls();
    void makeMenu();
    // Over a row of the view, -1 for none.
    void showMenu(int row, const QPoint& place);
    // Asks, as nothing brings a deleted document back.
    void askToDelete(int row);
    void deleteRow(int row);

    DocumentJournalViewController& m_controller;
    PeriodBar* m_period = nullptr;
    SortKeeper* m_order;
    QMenu* m_menu = nullptr;
    QAction* m_delete = nullptr;
    QAction* m_open = nullptr;
};

} // namespace zelvor
