#pragma once

#include "online/crash_reporter.h"
#include "online/http_exchange.h"
#include "online/rate_update.h"
#include "online/update_check.h"

namespace zelvor {

// The program's exchanges with the maker's server. While it lives it is the application's online services;
// needs an event loop.
class NetworkServices final : public OnlineServices {
public:
    // Reports of crashes lie in `crashFolder` and begin with the program's name. `timeout` in milliseconds.
    NetworkServices(AppDelegate& owner, const QString& crashFolder, const QString& programName,
                    int timeout = HttpExchange::patience)
        : exchange(timeout), m_appDelegate(owner), m_rates(owner, exchange), m_versions(owner, exchange),
          m_crashes(owner, exchange, crashFolder, programName)
    {
        owner.setOnline(this);
    }
    ~NetworkServices() override { m_appDelegate.setOnline(nullptr); }

    void updateCurrencies(const Params& params) override { m_rates.updateCurrencies(params); }
    void checkUpdate() override { m_versions.checkUpdate(); }
    QStringList crashReports() override { return m_crashes.crashReports(); }
    void sendReports(const QStringList& paths) override { m_crashes.sendReports(paths); }

    HttpExchange exchange;

private:
    AppDelegate& m_appDelegate;
    RateUpdate m_rates;
    UpdateCheck m_versions;
    CrashReporter m_crashes;
};

} // namespace zelvor
