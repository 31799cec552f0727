#pragma once

#include "core/calendar.h"
#include "core/dialogs.h"
#include "core/notification_center.h"
#include "store/connector.h"
#include "store/defaults_store.h"
#include "store/params.h"
#include "store/settings_resource.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>

namespace zelvor {

// What the layers below ask of the main window. Without a window the calls do nothing.
class Workspace {
public:
    virtual ~Workspace() = default;
    // Opens a stored document as a tab; type is "Product", "Money" or any other text for a fixed asset.
    virtual void openDocWithID(qint64, const QString&) {}
    virtual void addContragentReport(qint64, qint64, qint64) {}
    virtual void setStateString(const QString&) {}
    virtual void updateCurrencies(const Params&) {}
};

// What the program asks of the maker's server. Every exchange runs by itself on the event loop, and a failed
// one is silent; without services the calls do nothing. What comes of an exchange arrives as a notification.
class OnlineServices {
public:
    virtual ~OnlineServices() = default;
    // Fetches the rates against the settings' default currency: CurrencyUpdatedNotification.
    virtual void updateCurrencies(const Params&) {}
    // Asks for the newest version: HasNewVersionNotification when there is a newer one.
    virtual void checkUpdate() {}
    // The reports of crashes that wait on this machine.
    virtual QStringList crashReports() { return {}; }
    // Sends them, and removes each that the server has taken. The user's consent is the caller's to have.
    virtual void sendReports(const QStringList&) {}
};

// The application object: made in main (or in a test), passed by reference to everything that needs the
// project, the notifications, the moment, the zone or the user's answers. Owns the one connector.
class AppDelegate {
public:
    struct Surroundings {
        Clock& clock;
        Calendar calendar;
        Dialogs& dialogs;
        DefaultsStore& defaults;
    };

    explicit AppDelegate(Surroundings surroundings, std::unique_ptr<Connector> connectorToOwn = nullptr);
    ~AppDelegate();
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;

    Connector& connector;
    NotificationCenter notifications;
    Clock& clock;
    Calendar calendar;
    Dialogs& dialogs;
    DefaultsStore& defaults;
    const SettingsResource settings;

    // Null stands for no window.
    void setWorkspace(Workspace* workspace) { m_workspace = workspace; }
    Workspace& workspace() { return m_workspace ? *m_workspace : m_noWorkspace; }
    // Null stands for no network.
    void setOnline(OnlineServices* online) { m_online = online; }
    OnlineServices& online() { return m_online ? *m_online : m_noOnline; }

    // The settings row, or none in a file without one. Never kept by a caller.
    std::shared_ptr<Params> params() { return connector.select<Params>(1); }
    qint64 now() const { return clock.now(); }

private:
    std::unique_ptr<Connector> m_connector;
    Workspace* m_workspace = nullptr;
    Workspace m_noWorkspace;
    OnlineServices* m_online = nullptr;
    OnlineServices m_noOnline;
};

} // namespace zelvor
