#include "shell/application_shell.h"

namespace zelvor {

ApplicationShell::ApplicationShell(AppDelegate& owner)
    : appDelegate(owner), startWindowController(owner), mainWindowController(owner)
{
    startWindowController.onProjectOpened = [this] { checkDefaultCurrency(); };
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
    return found != businesses.end() && appDelegate.connector.open(*found);
}

// A file without a settings row leaves everything as it stands.
void ApplicationShell::checkDefaultCurrency()
{
    const std::shared_ptr<Params> params = appDelegate.params();
    if (!params)
        return;
    if (params->defaultCurrency == 0) {
        window.close();
        preferencesAreInitial = true;
        preferences.open();
        return;
    }
    prepareMainWindow();
    window.open();
    mainWindowController.checkParams();
    mainWindowController.checkPeriod();
}

void ApplicationShell::prepareMainWindow()
{
    QString title = appDelegate.defaults.defaultBusiness().value_or(QString());
    windowTitle.setText(title.replace(u'_', u' '));
    mainWindowController.prepareAllData();
}

void ApplicationShell::closeWindow()
{
    startWindowController.showWindow();
    appDelegate.connector.close();
    appDelegate.defaults.removeDefaultBusiness();
    appDelegate.defaults.synchronize();
    window.close();
}

} // namespace zelvor
