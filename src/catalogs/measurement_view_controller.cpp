#include "catalogs/measurement_view_controller.h"

namespace zelvor {

MeasurementViewController::MeasurementViewController(AppDelegate& owner) : FlatCatalogController(owner)
{
    wireForm([this] { writeMeasurement(); });
    observe(NotificationName::MeasurementsChangedNotificationForSelf,
            [this](const Notification& notification) { updateSelf(notification); });
}

void MeasurementViewController::addMeasurement()
{
    openNew(localized("Add New Unit"));
}

void MeasurementViewController::editMeasurement()
{
    openSelected(localized("Edit Unit"));
}

void MeasurementViewController::cancelMeasurementPopover()
{
    closeForm();
    postCancelNotification();
}

void MeasurementViewController::bindFields()
{
    measurementName.setText(focusedObject->name);
    measurementShortName.setText(focusedObject->shorthand);
}

void MeasurementViewController::backBindFields()
{
    focusedObject->name = measurementName.text();
    focusedObject->shorthand = measurementShortName.text();
}

void MeasurementViewController::postNotification(const QString& name)
{
    appDelegate.notifications.post(NotificationName::MeasurementsChangedNotification, nullptr, name);
}

void MeasurementViewController::postCancelNotification()
{
    appDelegate.notifications.post(NotificationName::MeasurementsAddCanceledNotification);
}

void MeasurementViewController::announceWritten(const Measurement& unit, bool isNew)
{
    postNotification(isNew ? addedName(unit) : QString());
    appDelegate.notifications.post(NotificationName::MeasurementsChangedNotificationForSelf, this);
}

void MeasurementViewController::updateSelf(const Notification& notification)
{
    if (notification.object != this)
        markStale();
}

} // namespace zelvor
