#include "catalogs/property_journal_view_controller.h"

#include "core/localized.h"

namespace zelvor {

PropertyJournalViewController::PropertyJournalViewController(AppDelegate& owner)
    : CatalogListController(owner)
{
    applyButton.setEnabled(false);
    applyButton.onUserChange = [this] { applyChanges(); };
    observe(NotificationName::PropertiesChangedNotification,
            [this](const Notification& n) { updateProperties(n); });
}

PropertyJournalViewController::Records PropertyJournalViewController::readRecords()
{
    return appDelegate.connector.freeSQL<Property>("WHERE sold_date=?", {0});
}

void PropertyJournalViewController::recordsRead()
{
    applyButton.setEnabled(false); // nothing typed is left
    calculateCurrentCost();
}

void PropertyJournalViewController::calculateCurrentCost()
{
    double sum = 0;
    for (const auto& property : view.loadedRecords())
        sum += property->currentCost();
    currentCost.setReal(sum);
}

void PropertyJournalViewController::applyChanges()
{
    refresh(); // news of a document or of a closed month drops what was typed before it came
    UserWrite write(appDelegate.connector);
    for (const auto& property : view.loadedRecords()) {
        if (!write.step(appDelegate.connector.update(*property)))
            break;
    }
    const bool stored = write.finish(
        [this] { appDelegate.notifications.post(NotificationName::PropertiesChangedNotification, this); });
    if (!stored)
        prepareProperties();
    applyButton.setEnabled(false);
}

// Documents and the month's closing post with themselves as the object. Our own news changes nothing here.
void PropertyJournalViewController::updateProperties(const Notification& notification)
{
    if (notification.object && notification.object != this)
        markStale();
}

bool PropertyJournalViewController::writeRecord(const std::shared_ptr<Property>& property)
{
    return property->id != 0 && CatalogListController::writeRecord(property);
}

QString PropertyJournalViewController::refusal(const Property& property) const
{
    const auto stored =
        property.id == 0 ? nullptr : appDelegate.connector.select<Property>(property.id, Fill::Nothing);
    if (!stored)
        return localized("A fixed asset is added by a document!");
    if (stored->soldDate != 0)
        return localized("The fixed asset is not held any more!");
    if (property.amortizationPeriod < 0 || property.innerCurrentCost.isNaN())
        return localized("The period and the current cost must be numbers, the period not below 0!");
    return {};
}

void PropertyJournalViewController::announceWritten(const Property&, bool)
{
    appDelegate.notifications.post(NotificationName::PropertiesChangedNotification, this);
}

} // namespace zelvor
