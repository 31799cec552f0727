#include "desktop/product_popover.h"

#include "catalogs/product_view_controller.h"

namespace zelvor {

ProductPopover::ProductPopover(ProductViewController& controller, QWidget* host)
    : CatalogPopover(controller.productPopover, host, [&controller] { controller.cancelProductPopover(); }),
      m_controller(controller)
{
    setTitle(controller.productPopoverName);
    QLineEdit* const name = addText(controller.productName, {localized("Name"), localized("Product Name")});
    startColumns();
    addGoods();
    nextColumn();
    addMoney();
    endColumns();
    addCheckBox(controller.productIsIntangibleCheckBox, localized("Intangible"),
                localized("A service: it is sold, but never lies in a warehouse."));
    addLines(controller.productDescription, {localized("Description"), localized("Product Description")});
    finish(name, controller.productError, controller.productOkButton);
}

void ProductPopover::addGoods()
{
    ProductViewController& c = m_controller;
    addChooser(c.productGroupSelect, {localized("Group"), localized("Product Group")},
               {u"addProductGroupFromPopover"_s, localized("Add a Group"),
                [&c] { c.addProductGroupFromPopover(); }});
    addChooser(
        c.productMeasurementSelect, {localized("Unit"), localized("Product Unit")},
        {u"newMeasurement"_s, localized("Add a Unit"), [&c] { c.addMeasurement(u"newMeasurement"_s); }});
    addChooser(c.productPackSelect, {localized("Pack"), localized("Product Pack")},
               {u"newPack"_s, localized("Add a Pack"), [&c] { c.addMeasurement(u"newPack"_s); }});
    addNumber(c.productPackAmount, {localized("Pack Amount"), localized("Units in a Pack")});
}

void ProductPopover::addMoney()
{
    ProductViewController& c = m_controller;
    addLocked(c.productBaseCost, c.productBaseCostOpenButton,
              {localized("Base Cost"), localized("Product Base Cost")}, localized("Lock of the Base Cost"));
    addNumber(c.productPriceCost, {localized("Price"), localized("Product Price")});
    addNumber(c.productVatRate, {localized("VAT, %"), localized("Product VAT Rate")});
    addNumber(c.productGstRate, {localized("GST, %"), localized("Product GST Rate")});
}

} // namespace zelvor
