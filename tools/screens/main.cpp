// zelvor-screens PROJECT FOLDER [--appearance light|dark] [--language en|ru]: opens a copy of the project in
// the real desktop, with a clock that stands still, and saves a picture of each page in the folder. On the
// offscreen platform unless QT_QPA_PLATFORM says otherwise; QT_SCALE_FACTOR=2 gives the pictures of a fine
// screen.
#include "desktop/icons.h"
#include "desktop/theme.h"
#include "desktop/translations.h"
#include "screens/photographer.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QLocale>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimeZone>
#include <QtWidgets/QApplication>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto zoneName = "Europe/Vienna";

// Nobody sits there to answer: every question is cancelled, what the program says is printed.
class SilentDialogs final : public zelvor::Dialogs {
public:
    void showAlert(const zelvor::Alert& alert) override
    {
        std::fprintf(stderr, "zelvor-screens: %s %s\n", qUtf8Printable(alert.messageText),
                     qUtf8Printable(alert.informativeText));
    }
    void ask(const zelvor::Alert& alert, std::function<void(int)> answer) override
    {
        answer(zelvor::firstButton + static_cast<int>(alert.buttons.size()) - 1);
    }
    std::optional<QString> savePath(const zelvor::SavePanel&) override { return std::nullopt; }
    std::optional<QString> openPath(const zelvor::OpenPanel&) override { return std::nullopt; }
};

// The offscreen platform says of every window that it has no size hints.
void printUnlessHint(QtMsgType, const QMessageLogContext&, const QString& message)
{
    if (!message.contains("propagateSizeHints"_L1))
        std::fprintf(stderr, "%s\n", qUtf8Printable(message));
}

struct Wish {
    QString project;
    QString folder;
    zelvor::Appearance appearance = zelvor::Appearance::Light;
    QString language = u"en"_s;
};

std::optional<Wish> readArguments(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.addOptions(
        {{u"appearance"_s, {}, u"light|dark"_s, u"light"_s}, {u"language"_s, {}, u"en|ru"_s, u"en"_s}});
    if (!parser.parse(arguments) || parser.positionalArguments().size() != 2)
        return std::nullopt;
    const QString appearance = parser.value(u"appearance"_s);
    Wish wish{parser.positionalArguments().at(0), parser.positionalArguments().at(1),
              appearance == u"dark" ? zelvor::Appearance::Dark : zelvor::Appearance::Light,
              parser.value(u"language"_s)};
    const bool known =
        (appearance == u"dark" || appearance == u"light") && zelvor::knownLanguages().contains(wish.language);
    return known ? std::optional(wish) : std::nullopt;
}

bool photograph(const Wish& wish)
{
    const QTemporaryDir home;
    const QString copy = home.filePath(u"larkmoor_cycles.pdb"_s);
    if (!home.isValid() || !QDir().mkpath(wish.folder) || !QFile::copy(wish.project, copy)) {
        std::fprintf(stderr, "zelvor-screens: cannot copy %s\n", qUtf8Printable(wish.project));
        return false;
    }
    // The last day of the sample business, in the zone that it lives in.
    const QTimeZone zone(zoneName);
    zelvor::FixedClock clock(QDateTime(QDate(2026, 10, 31), QTime(18, 30), zone).toSecsSinceEpoch());
    SilentDialogs dialogs;
    zelvor::DefaultsStore defaults(home.filePath(u"Zelvor.conf"_s));
    defaults.setBusinesses(
        {{u"Larkmoor_Cycles"_s, copy}, {u"Allotment"_s, home.filePath(u"allotment.pdb"_s)}});
    zelvor::DesktopSettings settings(home.filePath(u"Desktop.conf"_s));
    zelvor::AppDelegate appDelegate({clock, zelvor::Calendar(zone), dialogs, defaults});
    zelvor::DesktopApplication desktop(appDelegate, settings);
    const bool complete = zelvor::Photographer(desktop, wish.folder).photograph(copy);
    desktop.shell.applicationWillTerminate();
    return complete;
}

} // namespace

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(printUnlessHint);
    qputenv("TZ", zoneName); // the widgets' zone, and the calendar's below
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"Zelvor"_s);
    QApplication::setQuitOnLastWindowClosed(false);
    const auto wish = readArguments(application.arguments());
    if (!wish) {
        std::fputs("Usage: zelvor-screens PROJECT FOLDER [--appearance light|dark] [--language en|ru]\n",
                   stderr);
        return 2;
    }
    // The same pictures on every machine.
    QLocale::setDefault(wish->language == u"ru" ? QLocale(QLocale::Russian, QLocale::Russia)
                                                : QLocale(QLocale::English, QLocale::UnitedKingdom));
    zelvor::loadDesktopResources();
    zelvor::applyAppearance(application, wish->appearance);
    zelvor::installTranslations(application, wish->language);
    return photograph(*wish) ? 0 : 1;
}
