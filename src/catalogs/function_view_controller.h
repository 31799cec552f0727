#pragma once

#include "catalogs/flat_catalog_controller.h"
#include "catalogs/function_view.h"

namespace zelvor {

// The catalog of employees' functions.
class FunctionViewController : public FlatCatalogController<Function> {
public:
    explicit FunctionViewController(AppDelegate& owner);

    FunctionView view{*this};
    Popover functionPopover{QStringLiteral("functionPopover")};
    Label functionPopoverTitle{QStringLiteral("functionPopoverTitle")};
    TextField functionName{QStringLiteral("functionName")};
    NumberField functionSalary{QStringLiteral("functionSalary")};
    Label functionWarning{QStringLiteral("functionWarning")};
    Button okButton{QStringLiteral("okButton")};

    void addFunction();
    void editFunction();
    void cancelFunctionPopover();
    void writeFunction() { writeForm(); }
    bool updateFunction(const std::shared_ptr<Function>& function) { return updateRecord(*function); }
    void bindFields() override;
    void backBindFields() override;
    void clearFunctionPopover() { clearForm(); }
    void prepareFunctions() { prepare(); }
    // The name of a new function, or a null text.
    void postNotification(const QString& name);
    void postCancelNotification();

    QString refusal(const Function& function) const override;

protected:
    CatalogListView<Function>& list() override { return view; }
    CatalogForm form() override
    {
        return {functionPopover, functionPopoverTitle, functionName, functionWarning, okButton};
    }
    void clearFields() override { functionSalary.setValue(0); }
    void announceWritten(const Function& function, bool isNew) override;
    void announceUpdated(const Function&) override { postNotification({}); }
};

} // namespace zelvor
