#include "desktop/stock_popover.h"

#include "catalogs/stock_view_controller.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

StockPopover::StockPopover(StockViewController& controller, QWidget* host)
    : CatalogPopover(controller.stockPopover, host, [&controller] { controller.cancelStockPopover(); })
{
    setTitle(controller.stockPopoverTitle);
    QLineEdit* const name = addText(controller.stockName, {localized("Name"), localized("Warehouse Name")});
    addText(controller.stockAddress, {localized("Address"), localized("Warehouse Address")});
    addChooser(
        controller.stockManagerSelect, {localized("Manager"), localized("Warehouse Manager")},
        {u"addManagerFromStock"_s, localized("Add an Employee"), [&controller] { controller.addManager(); }});
    finish(name, controller.stockWarning, controller.okButton);
}

} // namespace zelvor
