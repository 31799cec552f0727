#include "catalogs/function_view_controller.h"

namespace zelvor {

FunctionViewController::FunctionViewController(AppDelegate& owner) : FlatCatalogController(owner)
{
    functionSalary.onUserChange = [this] { fillNumber(functionSalary); };
    wireForm([this] { writeFunction(); });
}

void FunctionViewController::addFunction()
{
    openNew(localized("Add Function"));
}

void FunctionViewController::editFunction()
{
    openSelected(localized("Edit Function"));
}

void FunctionViewController::cancelFunctionPopover()
{
    closeForm();
    postCancelNotification();
}

void FunctionViewController::bindFields()
{
    functionName.setText(focusedObject->name);
    functionSalary.setValue(focusedObject->innerSalary);
}

void FunctionViewController::backBindFields()
{
    focusedObject->name = functionName.text();
    focusedObject->innerSalary = functionSalary.value().rounded(Function::decimalHandler);
}

void FunctionViewController::postNotification(const QString& name)
{
    appDelegate.notifications.post(NotificationName::FunctionChangedNotification, nullptr, name);
}

void FunctionViewController::postCancelNotification()
{
    appDelegate.notifications.post(NotificationName::FunctionAddCanceledNotification);
}

QString FunctionViewController::refusal(const Function& function) const
{
    const QString missing = FlatCatalogController::refusal(function);
    if (missing.isEmpty() && function.innerSalary.isNaN())
        return localized("The salary must be a number!");
    return missing;
}

void FunctionViewController::announceWritten(const Function& function, bool isNew)
{
    postNotification(isNew ? addedName(function) : QString());
}

} // namespace zelvor
