#pragma once

#include "online/quiet_moment.h"
#include "store/app_delegate.h"

#include <QtCore/QMap>

namespace zelvor {

class HttpExchange;

// The day's rates against the project's default currency. What the server answers is stored when the same
// project is still open with the same currency and can be written; anything else is dropped without a word.
class RateUpdate {
public:
    RateUpdate(AppDelegate& owner, HttpExchange& exchange)
        : m_appDelegate(owner), m_exchange(exchange), m_quietMoment(owner.connector)
    {}
    // A later call takes the place of one that is under way.
    void updateCurrencies(const Params& params);

private:
    struct Request {
        qint64 number;
        qint64 opening;
        qint64 currency;
    };
    bool isStillWanted(const Request& request) const;
    void store(const Request& request, const QMap<qint64, double>& rates);

    AppDelegate& m_appDelegate;
    HttpExchange& m_exchange;
    QuietMoment m_quietMoment;
    qint64 m_lastNumber = 0;
};

} // namespace zelvor
