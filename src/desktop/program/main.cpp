// The desktop program. One argument at most: the path of a project, as a file manager hands it over.
#include "desktop/desktop_application.h"
#include "desktop/icons.h"
#include "desktop/theme.h"

#include <QtCore/QDir>
#include <QtCore/QStandardPaths>
#include <QtCore/QTimeZone>
#include <QtWidgets/QApplication>

using namespace Qt::Literals::StringLiterals;

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"Zelvor"_s);
    QApplication::setApplicationVersion(QStringLiteral(ZELVOR_VERSION));
    QApplication::setDesktopFileName(u"example.zelvor.Zelvor"_s);
    QApplication::setQuitOnLastWindowClosed(false);
    zelvor::loadDesktopResources();

    const QString folder =
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/Zelvor"_s;
    zelvor::DesktopSettings settings(folder + u"/Desktop.conf"_s);
    zelvor::applyAppearance(application, settings.appearance());

    zelvor::SystemClock clock;
    zelvor::WidgetDialogs dialogs;
    zelvor::DefaultsStore defaults;
    zelvor::AppDelegate appDelegate(
        {clock, zelvor::Calendar(QTimeZone::systemTimeZone()), dialogs, defaults});
    zelvor::DesktopApplication desktop(appDelegate, settings);
    desktop.start(application.arguments().value(1));
    const int code = QApplication::exec();
    desktop.shell.applicationWillTerminate();
    return code;
}
