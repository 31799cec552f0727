#pragma once

#include "core/calendar.h"
#include "core/view.h"
#include "desktop/popover_panel.h"
#include "desktop/table_list.h"
#include "desktop/tree_list.h"

#include <type_traits>

namespace zelvor {

class SearchLine;

// The popover of a filter: records with a tick in each row, a search line above them, everything or nothing
// at one press. OK hands the ticks over; Cancel leaves the filter as it was.
class SelectionPopover : public PopoverPanel {
    Q_OBJECT

public:
    // For any of the engine's selection views, trees and flat lists. Lies over the window of `host`; whoever
    // makes it deletes it.
    template <class SelectView>
    SelectionPopover(SelectView& view, const QString& title, const Calendar& calendar, QWidget* host)
        : SelectionPopover(view.selectPopover, host)
    {
        if constexpr (std::is_base_of_v<OutlineView, SelectView>)
            setTree(new TreeList(view, calendar, this));
        else
            setTable(new TableList(view, calendar, this));
        setTickAll([&view](bool on) { view.tickAll(on); });
        finish(title, view.okButton);
        setOnCancel([&view] { view.cancelPopover(); });
    }

    QAbstractItemView* list() const { return m_list; }
    void startSearch();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    SelectionPopover(Popover& outlet, QWidget* host);
    void setTree(TreeList* tree);
    void setTable(TableList* table);
    void setTickAll(std::function<void(bool)> tickAll) { m_tickAll = std::move(tickAll); }
    void finish(const QString& title, Button& okButton);
    QPushButton* tickButton(const QString& objectName, const QString& text, bool on);
    void startAfresh();

    Popover& m_popover;
    QWidget* m_page;
    Label m_title{QStringLiteral("selectionTitle")};
    QAbstractItemView* m_list = nullptr;
    SearchLine* m_search = nullptr;
    QPushButton* m_okButton = nullptr;
    std::function<void(bool)> m_tickAll;
    std::function<void(const QString&)> m_filter;
};

} // namespace zelvor
