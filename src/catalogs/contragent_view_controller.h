#pragma once

#include "catalogs/add_menu_button.h"
#include "catalogs/contragent_view.h"
#include "catalogs/tree_catalog_controller.h"

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

class ManagerViewController;

// The catalog of customers and suppliers. Documents change the balances; here they are shown, and overwritten
// only behind a question.
class ContragentViewController : public TreeCatalogController<ContragentModel, ContragentGroup, Contragent> {
public:
    explicit ContragentViewController(AppDelegate& owner);

    ContragentView view{*this};
    AddMenuButton addContragentButton{u"addContragentButton"_s};
    ManagerViewController* managerController = nullptr; // adds an employee from the popover; set from outside
    bool addNewManager = false;                         // an employee is being added from the popover

    Popover contragentGroupPopover{u"contragentGroupPopover"_s};
    Label contragentGroupPopoverName{u"contragentGroupPopoverName"_s};
    TextField contragentGroupName{u"contragentGroupName"_s};
    PopUpButton contragentGroupGroupSelect{u"contragentGroupGroupSelect"_s};
    Label contragentGroupError{u"contragentGroupError"_s};
    Button contragentGroupOkButton{u"contragentGroupOkButton"_s};

    Popover contragentPopover{u"contragentPopover"_s};
    Label contragentPopoverName{u"contragentPopoverName"_s};
    TextField contragentName{u"contragentName"_s};
    PopUpButton contragentGroupSelect{u"contragentGroupSelect"_s};
    PopUpButton contragentParentContragentSelect{u"contragentParentContragentSelect"_s};
    PopUpButton contragentManagerSelect{u"contragentManagerSelect"_s};
    NumberField contragentDiscount{u"contragentDiscount"_s};
    NumberField contragentBalance{u"contragentBalance"_s};
    Button contragentBalanceOpenButton{u"contragentBalanceOpenButton"_s};
    // Shows where the slider stands; what is typed moves the slider, within its bounds.
    NumberField contragentDeferment{u"contragentDeferment"_s};
    Slider contragentDefermentSlider{u"contragentDefermentSlider"_s};
    TextField contragentAddress{u"contragentAddress"_s};
    TextField contragentCity{u"contragentCity"_s};
    TextField contragentContactPerson{u"contragentContactPerson"_s};
    TextField contragentPhone{u"contragentPhone"_s};
    TextField contragentMail{u"contragentMail"_s};
    TextField contragentVatNumber{u"contragentVatNumber"_s};
    TextField contragentComment{u"contragentComment"_s};
    Label contragentError{u"contragentError"_s};
    Button contragentOkButton{u"contragentOkButton"_s};

    void prepareContragents() { prepare(); }
    void prepareManagers();
    void refresh() override;
    // Puts the node under the counterparty that its parentContragentID names.
    void setChildToParentContragentWithID(const std::shared_ptr<Contragent>& node);
    // A fresh empty employee when there is none of that id.
    std::shared_ptr<Manager> getManagerWithID(qint64 id);
    QString getNameOfManagerWithID(qint64 id) { return getManagerWithID(id)->name; }

    void addContragent();
    void addContragentGroup();
    void addContragentGroupFromPopover();
    void editContragent() { edit(); }
    void writeContragent() { write(); }
    void cancelContragentPopover() { cancelLeaf(); }
    void cancelContragentGroupPopover() { cancelGroup(); }
    void clearContragentPopover() { clearLeafForm(); }
    void clearContragentGroupPopover() { clearGroupForm(); }
    bool updateContragent(const std::shared_ptr<Contragent>& contragent) { return update(contragent); }
    bool updateContragentGroup(const std::shared_ptr<ContragentGroup>& group) { return update(group); }
    void bindContragentFields() { bindLeafFields(); }
    void bindContragentGroupFields() { bindGroupFields(); }
    void backBindContragentFields() { backBindLeafFields(); }
    void backBindContragentGroupFields() { backBindGroupFields(); }
    void initContragentGroupSelect() { initGroupSelects(); }
    void initContragentsSelect();
    void initManagersSelect();
    void disableMenuWithObject(const Node& group);
    void disableContragentMenuWithObject(const Node& contragent);
    void enableAllMenuItems() override;
    // The lock of the balance; the button shows the state that the user just gave it, off for open.
    void openCloseContragentBalance();
    // Adds an employee from the counterparty's popover.
    void addManager();

    // Notifications.
    void updateManagers(const Notification& notification);
    void cancelUpdateManagers();
    void updateContragents() { markStale(); }
    void updateDefaults();

protected:
    ContragentView& tree() override { return view; }
    TreeForm groupForm() override;
    TreeForm leafForm() override;
    void bindGroup(ContragentGroup& group) override;
    void bindLeaf(Contragent& contragent) override;
    void backBindGroup(ContragentGroup& group) override;
    bool backBindLeaf(Contragent& contragent) override;
    void clearGroup() override;
    void clearLeaf() override;
    void closeLocks() override;
    QString titleOfEdited(bool group) const override;
    void postChanged() override;
    void prepareLinked() override { prepareManagers(); }
    void treeBuilt() override;
    void leafEdited(Contragent& contragent) override;
    void disableMenus(const Node& node) override;

private:
    void renewManagers();
    void showDeferment() { contragentDeferment.setValue(contragentDefermentSlider.value()); }

    bool m_managersStale = false;
};

} // namespace zelvor
