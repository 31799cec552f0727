#include "desktop/desktop_application.h"

#include <QtWidgets/QApplication>

namespace zelvor {

DesktopApplication::DesktopApplication(AppDelegate& owner, DesktopSettings& desktopSettings)
    : appDelegate(owner), settings(desktopSettings), shell(owner), projectWindow(shell),
      preferencesWindow(shell), mainWindow(shell)
{}

void DesktopApplication::start(const QString& path)
{
    path.isEmpty() ? shell.openLastProject() : shell.openFile(path);
}

void DesktopApplication::quit()
{
    shell.quit([] { QApplication::quit(); });
}

} // namespace zelvor
