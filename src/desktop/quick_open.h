#pragma once

#include <QtWidgets/QLineEdit>

#include <functional>
#include <vector>

class QTreeWidget;

namespace zelvor {

class ApplicationShell;

// "Find anything": a field that lists the open pages and the entries of the menu whose names hold the typed
// words. Up and Down choose, Enter opens, Escape gives up.
class QuickOpen : public QLineEdit {
    Q_OBJECT

public:
    explicit QuickOpen(ApplicationShell& shell, QWidget* parent = nullptr);
    ~QuickOpen() override;

    QSize sizeHint() const override;

Q_SIGNALS:
    // The field is done with, with or without a choice: the page gets the cursor back.
    void left();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    struct Target {
        QString title;
        QString group;
        QString icon;
        std::function<void()> open;
    };

    std::vector<Target> targets() const;
    void list();
    void placeList();
    void move(int rows);
    void openCurrent();
    void leave();

    ApplicationShell& m_shell;
    QTreeWidget* m_list; // hangs over the window, under the field
    std::vector<Target> m_found;
};

} // namespace zelvor
