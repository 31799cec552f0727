#include "desktop/desktop_application.h"

#include <QtWidgets/QApplication>

#include <memory>

namespace zelvor {

namespace {

void bringToFront(QWidget& window)
{
    window.raise();
    window.activateWindow();
}

// QApplication::quit() would first close each window, and closing the main window means leaving the project.
void endEventLoop()
{
    QApplication::exit(0);
}

} // namespace

DesktopApplication::DesktopApplication(AppDelegate& owner, DesktopSettings& desktopSettings)
    : appDelegate(owner), settings(desktopSettings), shell(owner), projectWindow(shell, desktopSettings),
      preferencesWindow(shell, desktopSettings), mainWindow(shell, desktopSettings)
{
    connectWindows();
}

void DesktopApplication::connectWindows()
{
    QObject::connect(&mainWindow, &MainWindow::preferencesRequested, &preferencesWindow, [this] {
        shell.showDefaults();
        bringToFront(preferencesWindow);
    });
    QObject::connect(&mainWindow, &MainWindow::projectsRequested, &projectWindow, [this] {
        shell.startWindowController.showWindow();
        bringToFront(projectWindow);
    });
    QObject::connect(&mainWindow, &MainWindow::quitRequested, &mainWindow, [this] { quit(); });
    QObject::connect(&preferencesWindow, &PreferencesWindow::left, &mainWindow, [this] {
        if (mainWindow.isVisible())
            bringToFront(mainWindow);
    });
    // Without a project this window is the program.
    QObject::connect(&projectWindow, &ProjectWindow::left, &projectWindow, [this] {
        if (!appDelegate.connector.isOpen())
            quit();
    });
    QObject::connect(&projectWindow, &ProjectWindow::quitRequested, &projectWindow, [this] { quit(); });
}

void DesktopApplication::start(const QString& path)
{
    shell.applicationDidFinishLaunching(path);
}

void DesktopApplication::quit()
{
    shell.quit(endEventLoop);
}

bool DesktopApplication::sessionEnds(bool mayAsk)
{
    if (!mayAsk)
        return true;
    struct Leaving {
        bool done = false;
        bool asked = false; // the answer comes after this call
    };
    const auto leaving = std::make_shared<Leaving>();
    shell.quit([leaving] {
        leaving->done = true;
        if (leaving->asked)
            endEventLoop();
    });
    leaving->asked = !leaving->done;
    return leaving->done;
}

} // namespace zelvor
