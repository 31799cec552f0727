#include "catalogs/expend_view_controller.h"

namespace zelvor {

ExpendViewController::ExpendViewController(AppDelegate& owner) : TreeCatalogController(owner)
{
    wireForms();
    addExpendButton.setEntries({
        {localized("Add Spending"), [this] { addExpend(); }},
        {localized("Add Spending Type"), [this] { addExpendType(); }},
    });
}

TreeForm ExpendViewController::groupForm()
{
    return {expendTypePopover,     expendTypePopoverName, expendTypeName,
            expendTypeGroupSelect, expendTypeError,       expendTypeOkButton};
}

TreeForm ExpendViewController::leafForm()
{
    return {expendPopover, expendPopoverName, expendName, expendGroupSelect, expendError, expendOkButton};
}

void ExpendViewController::addExpend()
{
    openNew(std::make_shared<Expend>(), localized("Add New Spending"));
}

void ExpendViewController::addExpendType()
{
    openNew(std::make_shared<ExpendType>(), localized("Add New Spending Type"));
}

void ExpendViewController::addExpendTypeFromPopover()
{
    addGroupFromPopover(localized("Add New Spending Type"));
}

QString ExpendViewController::titleOfEdited(bool group) const
{
    return group ? localized("Edit Expend Type") : localized("Edit Expend");
}

void ExpendViewController::bindGroup(ExpendType& type)
{
    expendTypeName.setText(type.name);
    expendTypeGroupSelect.selectTag(type.parentID);
}

void ExpendViewController::backBindGroup(ExpendType& type)
{
    type.name = expendTypeName.text();
    type.parentID = expendTypeGroupSelect.selectedTag();
}

void ExpendViewController::bindLeaf(Expend& expend)
{
    expendName.setText(expend.name);
    expendGroupSelect.selectTag(expend.parentID);
    expendDescription.setText(expend.descriptionString);
    expendConstantCheckBox.setOn(expend.isConstant);
    expendHiddenCheckBox.setOn(expend.isHidden);
}

bool ExpendViewController::backBindLeaf(Expend& expend)
{
    expend.name = expendName.text();
    expend.parentID = expendGroupSelect.selectedTag();
    expend.descriptionString = expendDescription.text();
    expend.isConstant = expendConstantCheckBox.isOn();
    expend.isHidden = expendHiddenCheckBox.isOn();
    return true;
}

void ExpendViewController::postChanged()
{
    appDelegate.notifications.post(NotificationName::ExpendChangedNotification);
}

} // namespace zelvor
