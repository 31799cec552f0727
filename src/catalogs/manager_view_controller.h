#pragma once

#include "catalogs/linked_catalog_controller.h"
#include "catalogs/manager_view.h"

namespace zelvor {

class FunctionViewController;

// The catalog of employees. The balance of a stored one is locked; changing it by hand asks first.
class ManagerViewController
    : public LinkedCatalogController<Manager, Function, &Manager::functionID, &Manager::function> {
public:
    explicit ManagerViewController(AppDelegate& owner);

    ManagerView view{*this};
    Popover managerPopover{QStringLiteral("managerPopover")};
    Label managerPopoverTitle{QStringLiteral("managerPopoverTitle")};
    TextField managerName{QStringLiteral("managerName")};
    PopUpButton managerFunctionSelect{QStringLiteral("managerFunctionSelect")};
    NumberField managerBalance{QStringLiteral("managerBalance")};
    Button managerBalanceOpenButton{QStringLiteral("managerBalanceOpenButton")}; // on: the balance is locked
    Label managerWarning{QStringLiteral("managerWarning")};
    Button okButton{QStringLiteral("okButton")};
    FunctionViewController* functionController = nullptr; // whose popover addFunction opens
    bool addNewFunction = false;                          // a function is being added from the popover

    void addManager();
    void editEmployee();
    void cancelManagerPopover();
    void openCloseManagerBalance();
    void writeManager() { writeForm(); }
    bool updateManager(const std::shared_ptr<Manager>& manager) { return updateRecord(*manager); }
    void addFunction();
    void bindFields() override;
    void backBindFields() override;
    void clearManagerPopover() { clearForm(); }
    void prepareManagers() { prepare(); }
    void prepareFunctions() { prepareLinked(); }
    std::shared_ptr<Function> getFunctionWithID(qint64 id) { return linkedWithID(id); }
    QString getNameOfFunctionWithID(qint64 id) { return getFunctionWithID(id)->name; }
    void updateFunctions(const Notification& notification) { linkedChanged(notification, addNewFunction); }
    void cancelAddFunction() { addNewFunction = false; }
    void updateManagers() { markStale(); }
    // The name of a new employee, or a null text.
    void postNotification(const QString& name);
    void postCancelNotification();

    QString refusal(const Manager& manager) const override;

protected:
    CatalogListView<Manager>& list() override { return view; }
    CatalogForm form() override
    {
        return {managerPopover, managerPopoverTitle, managerName, managerWarning, okButton};
    }
    PopUpButton& chooser() override { return managerFunctionSelect; }
    void clearFields() override;
    void announceWritten(const Manager& manager, bool isNew) override;

private:
    Decimal m_boundBalance; // as the popover first showed it
};

} // namespace zelvor
