#pragma once

#include "online/quiet_moment.h"
#include "store/app_delegate.h"

namespace zelvor {

class HttpExchange;

// Asks the server for the newest version of the program and posts HasNewVersionNotification when there is
// one that is newer than this.
class UpdateCheck {
public:
    UpdateCheck(AppDelegate& owner, HttpExchange& exchange)
        : m_appDelegate(owner), m_exchange(exchange), m_quietMoment(owner.connector)
    {}
    void checkUpdate();

    // Versions are compared as the single-precision numbers that they start with: "1.10" is older than "1.2".
    static bool isNewer(const QString& version);

private:
    AppDelegate& m_appDelegate;
    HttpExchange& m_exchange;
    QuietMoment m_quietMoment;
};

} // namespace zelvor
