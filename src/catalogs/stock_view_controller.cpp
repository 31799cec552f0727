#include "catalogs/stock_view_controller.h"

#include "catalogs/manager_view_controller.h"

namespace zelvor {

StockViewController::StockViewController(AppDelegate& owner) : LinkedCatalogController(owner)
{
    wireForm([this] { writeStock(); });
    observe(NotificationName::ManagerChangedNotification,
            [this](const Notification& n) { updateManagers(n); });
    observe(NotificationName::ManagerAddCancelledNotification,
            [this](const Notification&) { cancelAddManager(); });
}

void StockViewController::addStock()
{
    openNew(localized("Add New Warehouse"));
}

void StockViewController::editStock()
{
    openSelected(localized("Edit Warehouse"));
}

void StockViewController::addManager()
{
    addNewManager = true;
    if (managerController)
        managerController->addManager();
}

void StockViewController::bindFields()
{
    stockName.setText(focusedObject->name);
    stockAddress.setText(focusedObject->address);
    stockManagerSelect.selectTag(focusedObject->managerID);
}

void StockViewController::backBindFields()
{
    focusedObject->name = stockName.text();
    focusedObject->address = stockAddress.text();
    focusedObject->managerID = stockManagerSelect.selectedTag();
    focusedObject->manager = Link<Manager>(getManagerWithID(focusedObject->managerID));
}

void StockViewController::announceWritten(const Stock&, bool)
{
    appDelegate.notifications.post(NotificationName::StockChangedNotification);
}

} // namespace zelvor
