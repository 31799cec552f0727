#include "catalogs/currency_rates.h"

#include "catalogs/currency.h"
#include "store/user_write.h"

namespace zelvor {

namespace {

// As everywhere a number comes in.
constexpr Decimal largestRate{10'000'000'000'000};

void storeRates(Connector& connector, UserWrite& write, const QMap<qint64, double>& rates, qint64 ownCurrency)
{
    if (rates.isEmpty())
        return;
    for (const auto& currency : connector.freeSQL<Currency>("WHERE id!=?", {ownCurrency})) {
        const auto entry = rates.find(currency->code);
        if (entry == rates.end())
            continue;
        const Decimal rate = Decimal::fromDouble(*entry, Currency::decimalHandler);
        if (!rate.isPositive() || rate > largestRate)
            continue;
        currency->innerRate = rate;
        if (!write.step(connector.update(*currency)))
            return;
    }
}

} // namespace

bool applyRates(AppDelegate& appDelegate, const QMap<qint64, double>& rates)
{
    Connector& connector = appDelegate.connector;
    UserWrite write(connector);
    if (const auto params = appDelegate.params()) {
        storeRates(connector, write, rates, params->defaultCurrency);
        params->lastCurrencyUpdate = appDelegate.now();
        if (!write.failed())
            write.step(connector.update(*params));
    } else {
        write.fail();
    }
    if (!write.finish())
        return false;
    appDelegate.notifications.post(NotificationName::CurrencyUpdatedNotification);
    return true;
}

} // namespace zelvor
