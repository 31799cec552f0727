#pragma once

#include "core/outlets.h"
#include "shell/main_menu_controller.h"
#include "shell/main_view_controller.h"
#include "shell/project_select_window_controller.h"
#include "shell/user_defaults_controller.h"

#include <functional>

namespace zelvor {

// Which of the three states the application is in: no project (the project window is up), a project that is
// not set up (the preferences are up), a project (the main window is up); and the ways between them.
class ApplicationShell {
public:
    explicit ApplicationShell(AppDelegate& owner);
    ApplicationShell(const ApplicationShell&) = delete;
    ApplicationShell& operator=(const ApplicationShell&) = delete;

    AppDelegate& appDelegate;
    ProjectSelectWindowController startWindowController;
    UserDefaultsController preferences;
    MainViewController mainWindowController;
    MainMenuController mainMenuController;
    Popover window{QStringLiteral("window")}; // the main window: open while it is on the screen
    Label windowTitle{QStringLiteral("windowTitle")};

    // The start of the program: reports of crashes are sent first of all, when the user has agreed for good;
    // then the file that was handed over is opened or, without one, the project that was open last.
    void applicationDidFinishLaunching(const QString& path = {});
    // The project that was open last, or the project window.
    void openLastProject();
    // A file handed over by a file manager. It becomes one of the known projects; when it cannot be opened
    // the user is told and the project window comes up.
    void openFile(const QString& path);
    // The gate of every opened project: to the main window, or first to the preferences.
    void checkDefaultCurrency();
    void showDefaults();
    // The close button: asks about unsaved documents, then leaves the project for the project window.
    void closeWindow();
    // Asks about unsaved documents; `then` ends the program, which opens the same project at the next start.
    void quit(std::function<void()> then);
    void applicationWillTerminate() { appDelegate.connector.close(); }

private:
    void prepareMainWindow();
    bool openDefaultBusiness();
    void leaveProject();
};

} // namespace zelvor
