#pragma once

#include <QtWidgets/QWidget>

class QStackedWidget;
class QTableWidget;

namespace zelvor {

class ApplicationShell;
class DesktopSettings;
class ProjectSelectWindowController;
struct Business;

// "Project Management": the known projects with open, create, forget.
class ProjectWindow : public QWidget {
    Q_OBJECT

public:
    ProjectWindow(ApplicationShell& shell, DesktopSettings& settings);
    ~ProjectWindow() override;

Q_SIGNALS:
    // The user closed the window.
    void left();
    void quitRequested();

protected:
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void layOut();
    void prepareTable();
    QWidget* makeButtons();
    QWidget* makeEmptyNote();
    void addKeys(ApplicationShell& shell);
    void showOrHide();
    void showList();
    void addRow(const Business& business);
    void followSelection();
    void takeSelection();

    ProjectSelectWindowController& m_controller;
    DesktopSettings& m_settings;
    QStackedWidget* m_stack; // the list, or what to do while there is none
    QTableWidget* m_table;
};

} // namespace zelvor
