#pragma once

#include "shell/main_view_controller.h"

#include <QtWidgets/QMainWindow>

#include <unordered_map>

class QLabel;
class QSplitter;
class QStackedWidget;
class QTreeWidget;

namespace zelvor {

class ApplicationShell;
class Page;
class TabStrip;

// The main window: menu bar, header panel, menu tree, tabs with their pages, foot line.
class MainWindow : public QMainWindow, public WorkspaceWindow {
    Q_OBJECT

public:
    explicit MainWindow(ApplicationShell& shell);
    ~MainWindow() override;

    Page* activePage() const;

    void adjustWindowWidthForProductDocument(int width) override;
    void setLeftViewCollapsed(bool collapsed) override;
    void showAbout() override;
    void openUrl(const QString& url) override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void showPages();
    Page* pageOf(const TabPage& page);

    ApplicationShell& m_shell;
    MainViewController& m_workspace;
    QSplitter* m_splitter;
    QTreeWidget* m_menuTree;
    TabStrip* m_tabStrip;
    QStackedWidget* m_pages;
    // Pages of permanent views stay when their tab goes; those of documents and reports go with it.
    std::unordered_map<const BaseView*, Page*> m_pageOf;
};

} // namespace zelvor
