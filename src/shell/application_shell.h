#pragma once

#include "core/outlets.h"
#include "shell/main_view_controller.h"
#include "shell/project_select_window_controller.h"

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
    MainViewController mainWindowController;
    Popover window{QStringLiteral("window")}; // the main window: open while it is on the screen
    Label windowTitle{QStringLiteral("windowTitle")};
    Popover preferences{QStringLiteral("preferences")};
    bool preferencesAreInitial = false; // they were opened to set up a new project

    // At the start: the project that was open last, or the project window.
    void openLastProject();
    // The gate of every opened project: to the main window, or first to the preferences.
    void checkDefaultCurrency();
    // Closing the main window leaves the project for the project window.
    void closeWindow();
    // The program ends; the next start opens the same project again.
    void applicationWillTerminate() { appDelegate.connector.close(); }

private:
    void prepareMainWindow();
    bool openDefaultBusiness();
};

} // namespace zelvor
