#pragma once

#include "shell/main_view_controller.h"

#include <QtWidgets/QMainWindow>

class QSplitter;

namespace zelvor {

class ApplicationShell;
class Commands;
class DesktopSettings;
class HeaderPanel;
class MenuTree;
class Page;
class PageStack;
class QuickOpen;
class TabStrip;

// The main window: menu bar, header panel, menu tree, tabs with their pages, foot line.
class MainWindow : public QMainWindow, public WorkspaceWindow {
    Q_OBJECT

public:
    MainWindow(ApplicationShell& shell, DesktopSettings& settings);
    ~MainWindow() override;

    // Null while no page is open.
    Page* activePage() const;
    QuickOpen* quickOpen() const;

    void adjustWindowWidthForProductDocument(int width) override;
    void setLeftViewCollapsed(bool collapsed) override;
    void showAbout() override;
    void openUrl(const QString& url) override;

Q_SIGNALS:
    void preferencesRequested();
    void projectsRequested();
    void quitRequested();

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void layOut();
    void listen();
    void showOrHide();
    void holdLeastSize();
    void showTitle();
    void showPages();
    void focusPage();
    void rememberState();
    void restoreState();

    ApplicationShell& m_shell;
    MainViewController& m_workspace;
    DesktopSettings& m_settings;
    HeaderPanel* m_header;
    QSplitter* m_splitter;
    MenuTree* m_menuTree;
    TabStrip* m_tabStrip;
    PageStack* m_pages;
    Commands* m_commands;
};

} // namespace zelvor
