#include "catalogs/currency_view_controller.h"

#include "core/localized.h"

namespace zelvor {

CurrencyViewController::CurrencyViewController(AppDelegate& owner) : CatalogListController(owner)
{
    applyButton.setEnabled(false);
    applyButton.onUserChange = [this] { applyChanges(); };
    observe(NotificationName::CurrencyUpdatedNotification, [this](const Notification&) { changeRates(); });
}

void CurrencyViewController::applyChanges()
{
    refresh(); // newer rates in the file drop what was typed before they came
    UserWrite write(appDelegate.connector);
    for (const auto& currency : view.loadedRecords()) {
        if (!write.step(appDelegate.connector.update(*currency)))
            break;
    }
    if (!write.finish())
        prepareCurrencies();
    applyButton.setEnabled(false);
}

void CurrencyViewController::updateRates()
{
    if (const auto params = appDelegate.params())
        appDelegate.workspace().updateCurrencies(*params);
}

void CurrencyViewController::updateCurrencies()
{
    appDelegate.notifications.post(NotificationName::CurrencyChangedNotification);
}

qint64 CurrencyViewController::getLastUpdate() const
{
    const auto params = appDelegate.params();
    return params ? params->lastCurrencyUpdate : 0;
}

QString CurrencyViewController::refusal(const Currency& currency) const
{
    return currency.innerRate.isPositive() ? QString() : localized("The rate of a currency must be above 0!");
}

void CurrencyViewController::recordsRead()
{
    lastUpdateDate.setMoment(getLastUpdate());
    applyButton.setEnabled(false); // nothing typed is left
}

} // namespace zelvor
