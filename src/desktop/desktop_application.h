#pragma once

#include "desktop/desktop_settings.h"
#include "desktop/main_window.h"
#include "desktop/preferences_window.h"
#include "desktop/project_window.h"
#include "desktop/widget_dialogs.h"
#include "shell/application_shell.h"

#include <QtCore/QString>

namespace zelvor {

// The whole desktop program over one application object: the shell without a screen and the three windows
// that show it. main makes one; so does a test, with its own clock, folders and dialogs.
class DesktopApplication {
public:
    DesktopApplication(AppDelegate& appDelegate, DesktopSettings& settings);
    DesktopApplication(const DesktopApplication&) = delete;
    DesktopApplication& operator=(const DesktopApplication&) = delete;

    AppDelegate& appDelegate;
    DesktopSettings& settings;
    ApplicationShell shell;
    ProjectWindow projectWindow;
    PreferencesWindow preferencesWindow;
    MainWindow mainWindow;

    // `path` is a project given by a file manager, or empty.
    void start(const QString& path);
    // Asks about unsaved documents, then ends the event loop.
    void quit();
    // The user's session ends. False when documents with changes hold it up: the user is asked about them,
    // and the program ends when all are saved or dropped.
    bool sessionEnds(bool mayAsk);

private:
    void connectWindows();
};

} // namespace zelvor
