// The desktop program. One argument at most: the path of a project, as a file manager hands it over.
#include "desktop/desktop_application.h"
#include "desktop/icons.h"
#include "desktop/termination_signals.h"
#include "desktop/theme.h"
#include "desktop/translations.h"
#include "online/network_services.h"
#include "store/crash_handler.h"

#include <QtCore/QStandardPaths>
#include <QtCore/QTimeZone>
#include <QtCore/QTimer>
#include <QtGui/QSessionManager>
#include <QtWidgets/QApplication>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int badUsage = 2;

// Says what is wrong with the arguments; the empty text when nothing is.
QString complaintAbout(const QStringList& arguments)
{
    if (arguments.size() > 2)
        return u"zelvor: one project file at most can be given."_s;
    if (arguments.value(1).startsWith(u'-'))
        return u"zelvor: there is no option '%1'. Usage: zelvor [PROJECT.pdb]"_s.arg(arguments[1]);
    return {};
}

QString settingsPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           u"/Zelvor/Desktop.conf"_s;
}

void nameProgram()
{
    QApplication::setApplicationName(u"Zelvor"_s);
    QApplication::setApplicationVersion(QStringLiteral(ZELVOR_VERSION));
    QApplication::setDesktopFileName(u"example.zelvor.Zelvor"_s);
    QApplication::setQuitOnLastWindowClosed(false);
}

int run(QApplication& application, zelvor::DesktopSettings& settings)
{
    zelvor::SystemClock clock;
    zelvor::WidgetDialogs dialogs;
    zelvor::DefaultsStore defaults;
    zelvor::AppDelegate appDelegate(
        {clock, zelvor::Calendar(QTimeZone::systemTimeZone()), dialogs, defaults});
    const zelvor::NetworkServices services(appDelegate, zelvor::crashReportFolder(),
                                           zelvor::crashReportPrefix.toString());
    zelvor::DesktopApplication desktop(appDelegate, settings);
    dialogs.parentWindow = &desktop.mainWindow;

    const zelvor::TerminationSignals signals;
    // Whoever ends a program this way does not wait for answers; what is stored is whole in any case.
    QObject::connect(&signals, &zelvor::TerminationSignals::received, &application,
                     [] { QApplication::exit(0); });
    QObject::connect(
        &application, &QGuiApplication::commitDataRequest, &application,
        [&desktop](QSessionManager& session) {
            if (!desktop.sessionEnds(session.allowsInteraction()))
                session.cancel();
        },
        Qt::DirectConnection);
    // Inside the loop: a question at the start can then be ended by a signal like any other.
    QTimer::singleShot(0, &application,
                       [&desktop, path = application.arguments().value(1)] { desktop.start(path); });
    const int code = QApplication::exec();
    desktop.shell.applicationWillTerminate();
    return code;
}

} // namespace

int main(int argc, char* argv[])
{
    zelvor::installCrashHandler(u"Zelvor"_s, QStringLiteral(ZELVOR_VERSION), zelvor::crashReportFolder());
    QApplication application(argc, argv);
    if (const QString complaint = complaintAbout(application.arguments()); !complaint.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(complaint));
        return badUsage;
    }
    nameProgram();
    zelvor::loadDesktopResources();
    zelvor::DesktopSettings settings(settingsPath());
    zelvor::installTranslations(application, settings.language());
    zelvor::applyAppearance(application, settings.appearance());
    return run(application, settings);
}
