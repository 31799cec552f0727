#pragma once

#include <QtCore/QPointer>

#include <functional>
#include <memory>

class QHeaderView;
class QHBoxLayout;
class QWidget;

namespace zelvor {

class Page;
class ToolButton;

// The tools that the page of every catalog has behind its search line: add and edit, by mouse and by keys.
class CatalogTools {
public:
    // `edit` opens the form of the row under the cursor.
    CatalogTools(Page* page, QHBoxLayout* row, std::function<void()> edit);

    ToolButton* addButton() const { return m_add; }
    // Ctrl+N and Insert, anywhere on the page.
    void setAddAction(const std::function<void()>& add);
    void setCanEdit(bool can);
    // Tab goes by reading order: search line, tools, list.
    void keepTabOrder(QWidget* search, QWidget* list);
    // Where a form for a new record points.
    QRect addAnchor() const;

private:
    Page* m_page;
    ToolButton* m_add;
    ToolButton* m_edit;
};

// A list that was read anew stands in the order of its names again, and its header says so. The order that
// the user chose stays while the rows are the same ones.
class SortMark {
public:
    using Row = std::weak_ptr<const void>;

    // `firstRow` is any record of the list.
    SortMark(QHeaderView* header, int nameColumn, std::function<std::shared_ptr<const void>()> firstRow);
    void listReset();

private:
    QHeaderView* m_header;
    int m_nameColumn;
    std::function<std::shared_ptr<const void>()> m_firstRow;
    Row m_seen;
};

} // namespace zelvor
