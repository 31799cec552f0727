#include "desktop/contragents_page.h"

#include "catalogs/contragent_view_controller.h"
#include "core/localized.h"

namespace zelvor {

ContragentsPage::ContragentsPage(ContragentViewController& controller, QWidget* parent)
    : TreePage(controller.view, controller.appDelegate.calendar,
               localized("No counterparties yet. Add the first customer or supplier."), parent),
      m_controller(controller)
{}

} // namespace zelvor
