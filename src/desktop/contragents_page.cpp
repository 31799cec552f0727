#include "desktop/contragents_page.h"

#include "catalogs/contragent_view_controller.h"
#include "core/localized.h"
#include "desktop/contragent_group_popover.h"
#include "desktop/contragent_popover.h"

namespace zelvor {

ContragentsPage::ContragentsPage(ContragentViewController& controller, QWidget* parent)
    : TreeCatalogPage(controller.view, controller.addContragentButton, controller.appDelegate.calendar,
                      localized("No counterparties yet. Add the first customer or supplier."), parent)
{
    const auto edited = [&controller] { return editedNode(controller); };
    serve(new ContragentPopover(controller, this), controller.contragentPopover, edited);
    serve(new ContragentGroupPopover(controller, this), controller.contragentGroupPopover, edited,
          [&controller] { return controller.addingFromPopover; });
}

} // namespace zelvor
