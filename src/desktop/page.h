#pragma once

#include "core/view.h"

#include <QtWidgets/QWidget>

class QHBoxLayout;
class QLabel;
class QVBoxLayout;

namespace zelvor {

class MainViewController;

// Commands of the menu bar that go to the page in front.
enum class PageCommand { Find, Refresh, Edit, Save, Confirm, Delete, Print, Export };

// One page under a tab: title row with tools above, content below.
class Page : public QWidget {
    Q_OBJECT

public:
    explicit Page(BaseView& view, QWidget* parent = nullptr);

    BaseView& view() const { return m_view; }
    // The page came to the front: the cursor goes to where work starts.
    virtual void takeFocus() {}
    // Reads what changed while the page was not visible.
    virtual void refresh() {}
    virtual bool can(PageCommand command) const;
    virtual void perform(PageCommand command);

protected:
    // The row of the title; tools stand at its right end, in reading order.
    QHBoxLayout* tools() const { return m_tools; }
    QVBoxLayout* rows() const { return m_rows; }
    // What the page is about, above its content; the view's name unless set.
    void setHeading(const QString& text);
    QLabel* heading() const { return m_heading; }

private:
    BaseView& m_view;
    QVBoxLayout* m_rows;
    QHBoxLayout* m_tools;
    QLabel* m_heading;
};

} // namespace zelvor
