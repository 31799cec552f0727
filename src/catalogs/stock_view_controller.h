#pragma once

#include "catalogs/default_and_hidden.h"
#include "catalogs/linked_catalog_controller.h"
#include "catalogs/stock_view.h"

namespace zelvor {

class ManagerViewController;

// The catalog of warehouses. A change by a check box of the list tells nobody; OK in the popover does.
class StockViewController
    : public LinkedCatalogController<Stock, Manager, &Stock::managerID, &Stock::manager> {
public:
    explicit StockViewController(AppDelegate& owner);

    StockView view{*this};
    Popover stockPopover{QStringLiteral("stockPopover")};
    Label stockPopoverTitle{QStringLiteral("stockPopoverTitle")};
    TextField stockName{QStringLiteral("stockName")};
    PopUpButton stockManagerSelect{QStringLiteral("stockManagerSelect")};
    TextField stockAddress{QStringLiteral("stockAddress")};
    Label stockWarning{QStringLiteral("stockWarning")};
    Button okButton{QStringLiteral("okButton")};
    ManagerViewController* managerController = nullptr; // whose popover addManager opens
    bool addNewManager = false;                         // an employee is being added from the popover

    void addStock();
    void editStock();
    void cancelStockPopover() { closeForm(); }
    void writeStock() { writeForm(); }
    bool updateStock(const std::shared_ptr<Stock>& stock) { return updateRecord(*stock); }
    void addManager();
    void bindFields() override;
    void backBindFields() override;
    void clearStockPopover() { clearForm(); }
    void prepareStocks() { prepare(); }
    void prepareManagers() { prepareLinked(); }
    std::shared_ptr<Manager> getManagerWithID(qint64 id) { return linkedWithID(id); }
    QString getNameOfManagerWithID(qint64 id) { return getManagerWithID(id)->name; }
    void updateManagers(const Notification& notification) { linkedChanged(notification, addNewManager); }
    void cancelAddManager() { addNewManager = false; }

    // The rule of the list's boxes for one record, new or not; see storeDefaultAndHidden.
    bool writeDefaultAndHidden(const std::shared_ptr<Stock>& stock, DefaultHiddenBox changed)
    {
        return writeDefaultAndHiddenOf(*this, view, stock, changed);
    }

protected:
    CatalogListView<Stock>& list() override { return view; }
    CatalogForm form() override
    {
        return {stockPopover, stockPopoverTitle, stockName, stockWarning, okButton};
    }
    PopUpButton& chooser() override { return stockManagerSelect; }
    void clearFields() override { stockManagerSelect.selectTag(0); }
    void announceWritten(const Stock& stock, bool isNew) override;
};

} // namespace zelvor
