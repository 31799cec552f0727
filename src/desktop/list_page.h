#pragma once

#include "desktop/page.h"
#include "desktop/search_line.h"
#include "desktop/table_list.h"
#include "desktop/tree_list.h"

#include <QtWidgets/QStackedWidget>

namespace zelvor {

// A page that is one table: the search line, the tools of the page, the table, and while there are no rows a
// sentence that says what to do next.
class TablePage : public Page {
    Q_OBJECT

public:
    TablePage(TableView& view, const Calendar& calendar, const QString& emptyText, QWidget* parent = nullptr);

    TableList* list() const { return m_list; }
    SearchLine* searchLine() const { return m_search; }
    void takeFocus() override;
    void refresh() override { m_list->refresh(); }
    bool can(PageCommand command) const override;
    void perform(PageCommand command) override;

protected:
    // Names the page and its list after what they show now.
    void showTitle(const QString& title);
    void setEmptyText(const QString& text);

private:
    void showEmptyText();

    TableList* m_list;
    SearchLine* m_search;
    QLabel* m_empty;
    QLabel* m_notFound;
};

// The same for a tree.
class TreePage : public Page {
    Q_OBJECT

public:
    TreePage(OutlineView& view, const Calendar& calendar, const QString& emptyText,
             QWidget* parent = nullptr);

    TreeList* list() const { return m_list; }
    SearchLine* searchLine() const { return m_search; }
    void takeFocus() override;
    void refresh() override { m_list->refresh(); }
    bool can(PageCommand command) const override;
    void perform(PageCommand command) override;

private:
    void showEmptyText();

    TreeList* m_list;
    SearchLine* m_search;
    QLabel* m_empty;
    QLabel* m_notFound;
};

} // namespace zelvor
