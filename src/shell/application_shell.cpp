#include "shell/application_shell.h"

#include "core/localized.h"

#include <QtCore/QFileInfo>

namespace zelvor {

ApplicationShell::ApplicationShell(AppDelegate& owner)
    : appDelegate(owner), startWindowController(owner), preferences(owner), mainWindowController(owner),
      mainMenuController(owner, mainWindowController)
{
    startWindowController.onProjectOpened = [this] {
        mainWindowController.clearWindow();
        checkDefaultCurrency();
    };
    startWindowController.onLeaveProject = [this](std::function<void()> then) {
        mainWindowController.leave([this, goOn = std::move(then)] {
            if (appDelegate.connector.isOpen())
                leaveProject();
            goOn();
        });
    };
    preferences.onShowMainWindow = [this] { window.open(); };
    preferences.onCheckDefaultCurrency = [this] { checkDefaultCurrency(); };
    preferences.onLeaveProject = [this] { closeWindow(); };
}

void ApplicationShell::applicationDidFinishLaunching(const QString& path)
{
    OnlineServices& online = appDelegate.online();
    if (appDelegate.defaults.crashReportConsent() == CrashReportConsent::Always)
        online.sendReports(online.crashReports());
    path.isEmpty() ? openLastProject() : openFile(path);
}

void ApplicationShell::openLastProject()
{
    if (openDefaultBusiness()) {
        checkDefaultCurrency();
        return;
    }
    window.close();
    startWindowController.showWindow();
}

bool ApplicationShell::openDefaultBusiness()
{
    const std::optional<QString> key = appDelegate.defaults.defaultBusiness();
    const QMap<QString, QString> businesses = appDelegate.defaults.businesses();
    const auto found = key ? businesses.find(*key) : businesses.end();
    return found != businesses.end() && startWindowController.openProjectFile(*found);
}

void ApplicationShell::openFile(const QString& path)
{
    const QFileInfo file(path);
    const QString chosen = file.absoluteFilePath();
    if (appDelegate.connector.isOpen()) {
        if (QFileInfo(appDelegate.connector.path()) == file)
            return;
        if (!file.isFile()) { // not worth leaving the open project for
            appDelegate.dialogs.showAlert(
                {localized("Can't open project file!"), chosen, {localized("Close")}, 0});
            return;
        }
    }
    mainWindowController.leave([this, chosen] {
        if (appDelegate.connector.isOpen())
            leaveProject();
        startWindowController.openFile(chosen);
    });
}

// A file without a settings row leaves everything as it stands.
void ApplicationShell::checkDefaultCurrency()
{
    const std::shared_ptr<Params> params = appDelegate.params();
    if (!params)
        return;
    if (params->defaultCurrency == 0) {
        window.close();
        preferences.initial = true;
        preferences.showWindow();
        return;
    }
    prepareMainWindow();
    window.open();
    mainWindowController.checkParams();
    mainWindowController.checkPeriod();
    mainWindowController.checkUpdate();
}

void ApplicationShell::prepareMainWindow()
{
    QString title = appDelegate.defaults.defaultBusiness().value_or(QString()).replace(u'_', u' ');
    if (appDelegate.connector.isReadOnly())
        title += localized(" (read-only)");
    windowTitle.setText(title);
    mainMenuController.prepareMainMenu();
    mainWindowController.prepareAllData();
}

void ApplicationShell::showDefaults()
{
    // Once up, it keeps what is being typed.
    if (appDelegate.connector.isOpen() && !preferences.window.isOpen())
        preferences.showWindow();
}

void ApplicationShell::closeWindow()
{
    mainWindowController.leave([this] { leaveProject(); });
}

void ApplicationShell::leaveProject()
{
    startWindowController.showWindow();
    appDelegate.connector.close();
    mainWindowController.clearWindow();
    appDelegate.defaults.removeDefaultBusiness();
    appDelegate.defaults.synchronize();
    // What stands there belongs to this project and must not be applied to the next one.
    preferences.projectWasLeft();
    window.close();
}

void ApplicationShell::quit(std::function<void()> then)
{
    mainWindowController.leave(std::move(then));
}

} // namespace zelvor
