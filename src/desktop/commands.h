#pragma once

#include "core/doc_type.h"
#include "desktop/page.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtGui/QKeySequence>

#include <functional>
#include <span>
#include <vector>

class QAction;
class QMenu;

namespace zelvor {

class ApplicationShell;
class DesktopSettings;
class MainWindow;

// The menu bar of the main window: every command of the program with its key. What a command does is the
// shell's, the workspace's or the page's; here is only which of them can be done now.
class Commands : public QObject {
    Q_OBJECT

public:
    Commands(MainWindow& window, ApplicationShell& shell, DesktopSettings& settings);

    // What the page in front can do, and how many tabs there are, may have changed.
    void update();
    // The entries get the titles that the project's own menu has.
    void showMenuTitles();

private:
    struct PageAction {
        QAction* action;
        PageCommand command;
    };
    struct TypeAction {
        QAction* action;
        DocType type;
    };
    struct EditAction {
        QAction* action;
        const char* method; // of the focus widget
    };

    QMenu* addMenu(const QString& title);
    QAction* add(QMenu* menu, const char* name, const QString& text, const QKeySequence& key,
                 std::function<void()> run, const QString& icon = {});
    void addForPage(QMenu* menu, const char* name, const QString& text, const QKeySequence& key,
                    PageCommand command, const QString& icon);
    void addEdit(QMenu* menu, const char* name, const QString& text, const QKeySequence& key,
                 const char* method);
    void addTypes(QMenu* menu, std::span<const DocType> types);
    void addFileMenu();
    void addEditMenu();
    void addViewMenu();
    void addAppearanceMenu(QMenu* view);
    void addLanguageMenu(QMenu* view);
    void addTabMenu(QMenu* view);
    void addTypeMenus();
    void addHelpMenu();

    void chooseLanguage(const QString& language);
    void selectTab(int position);
    void selectNeighbour(int step);
    int activeTab() const;
    void updateTabs();
    void updateEditing();
    void updateLeftPane();
    void followFocus(QWidget* now);
    void edit(const char* method);

    MainWindow& m_window;
    ApplicationShell& m_shell;
    DesktopSettings& m_settings;
    std::vector<PageAction> m_pageActions;
    std::vector<TypeAction> m_typeActions;
    std::vector<EditAction> m_editActions;
    std::vector<QMenu*> m_typeMenus;
    std::vector<QAction*> m_tabActions;
    QMenu* m_viewMenu = nullptr;
    QMenu* m_tabMenu = nullptr;
    QAction* m_closeTab = nullptr;
    QAction* m_nextTab = nullptr;
    QAction* m_previousTab = nullptr;
    QAction* m_toggleLeft = nullptr;
    bool m_saysShow = false; // m_toggleLeft's text
    QAction* m_fullScreen = nullptr;
    QPointer<QWidget> m_editor; // what the entries of Edit work on
};

} // namespace zelvor
