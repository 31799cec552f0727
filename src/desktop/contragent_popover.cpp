#include "desktop/contragent_popover.h"

#include "catalogs/contragent_view_controller.h"
#include "desktop/binding.h"
#include "desktop/measures.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSlider>

namespace zelvor {

ContragentPopover::ContragentPopover(ContragentViewController& controller, QWidget* host)
    : CatalogPopover(controller.contragentPopover, host,
                     [&controller] { controller.cancelContragentPopover(); }),
      m_controller(controller)
{
    setTitle(controller.contragentPopoverName);
    QLineEdit* const name =
        addText(controller.contragentName, {localized("Name"), localized("Counterparty Name")});
    startColumns();
    addBusiness();
    nextColumn();
    addContact();
    endColumns();
    addLines(controller.contragentComment, {localized("Comment"), localized("Counterparty Comment")});
    finish(name, controller.contragentError, controller.contragentOkButton);
}

void ContragentPopover::addBusiness()
{
    ContragentViewController& c = m_controller;
    addChooser(c.contragentGroupSelect, {localized("Group"), localized("Counterparty Group")},
               {u"addContragentGroupFromPopover"_s, localized("Add a Group"),
                [&c] { c.addContragentGroupFromPopover(); }});
    addChooser(c.contragentParentContragentSelect,
               {localized("Belongs to"), localized("Parent Counterparty")});
    addChooser(c.contragentManagerSelect, {localized("Manager"), localized("Counterparty Manager")},
               {u"addManagerFromContragent"_s, localized("Add an Employee"), [&c] { c.addManager(); }});
    addNumber(c.contragentDiscount, {localized("Discount, %"), localized("Counterparty Discount")});
    addLocked(c.contragentBalance, c.contragentBalanceOpenButton,
              {localized("Balance"), localized("Counterparty Balance")}, localized("Lock of the Balance"));
    addDeferment();
}

void ContragentPopover::addContact()
{
    ContragentViewController& c = m_controller;
    addText(c.contragentAddress, {localized("Address"), localized("Counterparty Address")});
    addText(c.contragentCity, {localized("City"), localized("Counterparty City")});
    addText(c.contragentContactPerson, {localized("Contact"), localized("Contact Person")});
    addText(c.contragentPhone, {localized("Phone"), localized("Counterparty Phone")});
    addText(c.contragentMail, {localized("E-mail"), localized("Counterparty E-mail")});
    addText(c.contragentVatNumber, {localized("VAT Number"), localized("Counterparty VAT Number")});
}

// Days of deferred payment: the number shows where the slider stands, and moves it.
void ContragentPopover::addDeferment()
{
    auto* const days = new QLineEdit(form());
    days->setFixedWidth(fontMetrics().averageCharWidth() * 7);
    bind(m_controller.contragentDeferment, days, localized("Days of Deferred Payment"), 0);
    auto* const slider = new QSlider(Qt::Horizontal, form());
    bind(m_controller.contragentDefermentSlider, slider, localized("Slider of Days of Deferred Payment"));
    addPair(localized("Pay Within, Days"), days, slider);
}

} // namespace zelvor
