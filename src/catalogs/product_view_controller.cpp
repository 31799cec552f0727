#include "catalogs/product_view_controller.h"

#include "catalogs/catalog_list.h"
#include "catalogs/flat_catalog_controller.h"
#include "catalogs/measurement_view_controller.h"

#include <unordered_map>

namespace zelvor {

ProductViewController::ProductViewController(AppDelegate& owner) : TreeCatalogController(owner)
{
    wireForms();
    addProductButton.setEntries({
        {localized("Add New Product"), [this] { addProduct(); }},
        {localized("Add New Product Group"), [this] { addProductGroup(); }},
    });
    for (NumberField* field :
         {&productPackAmount, &productBaseCost, &productPriceCost, &productVatRate, &productGstRate})
        field->onUserChange = [field] { fillNumber(*field); };
    productBaseCostOpenButton.onUserChange = [this] { openCloseBaseCost(); };

    observe(NotificationName::MeasurementsChangedNotification,
            [this](const Notification& n) { updateMeasurements(n); });
    observe(NotificationName::MeasurementsAddCanceledNotification,
            [this](const Notification&) { cancelUpdateMeasurements(); });
    observe(NotificationName::ProductChangedNotificationForSelf,
            [this](const Notification& n) { updateSelf(n); });
    observe(NotificationName::ProductAmountChangedNotification,
            [this](const Notification&) { updateProductAmount(); });
    observe(NotificationName::ProductBaseCostChangedNotification,
            [this](const Notification&) { updateProductBaseCost(); });
}

TreeForm ProductViewController::groupForm()
{
    return {productGroupPopover,     productGroupPopoverName, productGroupName,
            productGroupGroupSelect, productGroupError,       productGroupOkButton};
}

TreeForm ProductViewController::leafForm()
{
    return {productPopover,     productPopoverName, productName,
            productGroupSelect, productError,       productOkButton};
}

// --- reading

void ProductViewController::setDocument(DocType docType, qint64 stockID, const QString& stockName)
{
    document = ChooserDocument{docType, stockID, stockName};
    markStale();
    stockChanged();
}

void ProductViewController::prepareProducts()
{
    m_stockStale = false;
    prepare();
}

// Products that are read anew stand there whole, until the stock is told to be looked at again.
void ProductViewController::markStale()
{
    m_stockStale = false;
    TreeCatalogController::markStale();
}

void ProductViewController::refresh()
{
    TreeCatalogController::refresh();
    if (m_measurementsStale)
        renewMeasurements();
    if (m_stockStale)
        prepareStockAmount();
}

void ProductViewController::stockChanged()
{
    m_stockStale = true;
    if (view.isVisible())
        refresh();
}

// --- the chooser of a document

void ProductViewController::prepareStockAmount()
{
    m_stockStale = false;
    refresh();
    if (!document)
        return;
    readStockRows(document->stockID);
    keepWhatTheDocumentTakes();
    view.reloadData();
}

// One read for the whole warehouse. A product shows what it has when exactly one row says so.
void ProductViewController::readStockRows(qint64 stockID)
{
    std::unordered_map<qint64, std::shared_ptr<StockRow>> rows;
    const auto read =
        appDelegate.connector.freeSQL<StockRow>("WHERE stock_id=?", {Parameter(stockID)}, Fill::Nothing);
    for (const auto& row : read) {
        const auto [place, first] = rows.try_emplace(row->productID, row);
        if (!first)
            place->second = nullptr;
    }
    for (const Node& node : loadedNodes()) {
        if (node->isGroup())
            continue;
        const auto row = rows.find(node->id);
        static_cast<Product&>(*node).stockRow = Link<StockRow>(row == rows.end() ? nullptr : row->second);
    }
}

void ProductViewController::keepWhatTheDocumentTakes()
{
    switch (document->docType) {
    case DocType::AddProduct:
    case DocType::BuyProduct:
    case DocType::Return:
        removeAllButTangible(false);
        break;
    case DocType::SellIntangibles:
        removeAllButTangible(true);
        stockNameLabelForProducts.setText(localized("All Intangibles"));
        break;
    case DocType::SellProduct:
    case DocType::MoveProduct:
    case DocType::DeleteProduct:
        removeWithoutStock();
        if (document->docType != DocType::SellProduct)
            removeAllButTangible(false);
        addProductButton.setEnabled(false);
        stockNameLabelForProducts.setText(localized("All Products on '") + document->stockName + u'\'');
        break;
    default:
        break;
    }
}

void ProductViewController::removeWithoutStock()
{
    view.removeLeaves([](const ProductModel& node) {
        const auto& product = static_cast<const Product&>(node);
        return !product.isIntangible && product.stockRow->innerAmount.isZero() &&
               product.stockRow->innerAmountReserved.isZero();
    });
}

void ProductViewController::removeAllButTangible(bool intangible)
{
    view.removeLeaves([intangible](const ProductModel& node) {
        return static_cast<const Product&>(node).isIntangible != intangible;
    });
}

// --- units

void ProductViewController::prepareMeasurements()
{
    m_measurementsStale = false;
    view.setMeasurements(recordsByName<Measurement>(appDelegate.connector));
    initMeasurementsSelect();
}

void ProductViewController::renewMeasurements()
{
    prepareMeasurements();
    std::unordered_map<qint64, std::shared_ptr<Measurement>> units;
    for (const auto& unit : view.loadedMeasurements())
        units.emplace(unit->id, unit);
    const auto renew = [&units](Link<Measurement>& link, qint64 id) {
        if (id == 0)
            return;
        const auto unit = units.find(id);
        link = Link<Measurement>(unit == units.end() ? nullptr : unit->second);
    };
    for (const Node& node : loadedNodes()) {
        if (node->isGroup())
            continue;
        auto& product = static_cast<Product&>(*node);
        renew(product.measurement, product.measurementID);
        renew(product.pack, product.packID);
    }
}

std::shared_ptr<Measurement> ProductViewController::getMeasurementWithID(qint64 id)
{
    const auto& units = view.measurements();
    const auto place = std::ranges::find_if(units, [id](const auto& unit) { return unit->id == id; });
    return place == units.end() ? std::make_shared<Measurement>() : *place;
}

void ProductViewController::initMeasurementsSelect()
{
    std::vector<PopUpButton::Item> items{{.title = QString(), .tag = 0}};
    for (const auto& unit : view.loadedMeasurements())
        items.push_back({.title = unit->name, .tag = unit->id, .toolTip = unit->shorthand});
    productMeasurementSelect.setItems(items);
    productPackSelect.setItems(std::move(items));
}

void ProductViewController::addMeasurement(const QString& sender)
{
    if (!measurementController)
        return;
    addNewMeasurement = true;
    senderIdentifier = sender;
    measurementController->addMeasurement();
}

// The text is the name of a new unit: the one that was added from the popover, when one was. The choosers
// keep what is chosen in them.
void ProductViewController::updateMeasurements(const Notification& notification)
{
    const bool added = addNewMeasurement && !notification.text.isNull();
    m_measurementsStale = true;
    if (added || view.isVisible() || productPopover.isOpen())
        refresh();
    if (added) {
        const bool forUnit = senderIdentifier == u"newMeasurement"_s;
        (forUnit ? productMeasurementSelect : productPackSelect).selectTitle(notification.text);
        addNewMeasurement = false;
        senderIdentifier.reset();
    }
    if (view.isVisible())
        view.reloadData();
}

void ProductViewController::cancelUpdateMeasurements()
{
    addNewMeasurement = false;
}

// --- other notifications

void ProductViewController::updateSelf(const Notification& notification)
{
    if (notification.object != this)
        markStale();
    else if (document)
        stockChanged();
}

void ProductViewController::updateProductAmount()
{
    if (!document)
        return;
    markStale();
    stockChanged();
}

void ProductViewController::takenBack()
{
    markStale();
    if (document)
        stockChanged();
}

void ProductViewController::updateProductBaseCost()
{
    markStale();
}

// --- popovers

void ProductViewController::addProduct()
{
    auto product = std::make_shared<Product>();
    if (const auto params = appDelegate.params()) {
        if (params->useGST)
            product->setGstRate(params->gstRate);
        if (params->useVAT)
            product->setVatRate(params->vatRate);
    }
    openNew(product, localized("Add New Product"));
}

void ProductViewController::addProductGroup()
{
    openNew(std::make_shared<ProductGroup>(), localized("Add New Product Group"));
}

void ProductViewController::addProductGroupFromPopover()
{
    addGroupFromPopover(localized("Add New Product Group"));
}

QString ProductViewController::titleOfEdited(bool group) const
{
    return group ? localized("Edit Product Group") : localized("Edit Product");
}

void ProductViewController::bindGroup(ProductGroup& group)
{
    productGroupName.setText(group.name);
    productGroupGroupSelect.selectTag(group.parentID);
    productGroupDescription.setText(group.descriptionString);
}

void ProductViewController::backBindGroup(ProductGroup& group)
{
    group.name = productGroupName.text();
    group.parentID = productGroupGroupSelect.selectedTag();
    group.descriptionString = productGroupDescription.text();
}

void ProductViewController::bindLeaf(Product& product)
{
    productName.setText(product.name);
    productGroupSelect.selectTag(product.parentID);
    productIsIntangibleCheckBox.setOn(product.isIntangible);
    productMeasurementSelect.selectTag(product.measurementID);
    productPackSelect.selectTag(product.packID);
    productPackAmount.setReal(product.packAmount());
    productBaseCost.setReal(product.baseCost());
    productPriceCost.setReal(product.priceCost());
    productVatRate.setReal(product.vatRate());
    productGstRate.setReal(product.gstRate());
    productDescription.setText(product.descriptionString);
}

bool ProductViewController::backBindLeaf(Product& product)
{
    // Behind the lock the cost is the documents' affair: one may have changed it since the popover opened.
    if (productBaseCost.enabled()) {
        product.setBaseCost(productBaseCost.real());
    } else {
        const auto stored = appDelegate.connector.select<Product>(product.id, Fill::Nothing);
        if (!stored)
            return false;
        product.innerBaseCost = stored->innerBaseCost;
    }
    product.name = productName.text();
    product.parentID = productGroupSelect.selectedTag();
    product.isIntangible = productIsIntangibleCheckBox.isOn();
    product.measurementID = productMeasurementSelect.selectedTag();
    product.packID = productPackSelect.selectedTag();
    product.setPackAmount(productPackAmount.real());
    product.setPriceCost(productPriceCost.real());
    product.setVatRate(productVatRate.real());
    product.setGstRate(productGstRate.real());
    product.descriptionString = productDescription.text();
    product.measurement = getMeasurementWithID(product.measurementID);
    product.pack = getMeasurementWithID(product.packID);
    return true;
}

void ProductViewController::clearLeaf()
{
    productBaseCost.setEnabled(true);
    productBaseCostOpenButton.setOn(false);
    productBaseCostOpenButton.setEnabled(false);
}

void ProductViewController::closeLocks()
{
    productBaseCost.setEnabled(false);
    productBaseCostOpenButton.setOn(true);
    productBaseCostOpenButton.setEnabled(true);
}

void ProductViewController::openCloseBaseCost()
{
    productBaseCost.setEnabled(false);
    if (productBaseCostOpenButton.isOn())
        return;
    const Alert question{.messageText = localized("Enable product base cost"),
                         .informativeText = localized(
                             "You are trying to change product base cost manually. Normally it calculated "
                             "by program. It may cause of incorrectness main balance. Are you sure?"),
                         .buttons = {localized("Proceed"), localized("Cancel")},
                         .alertStyle = 1};
    appDelegate.dialogs.ask(question, [this, asked = focusedObject](int answer) {
        if (!asked || asked != focusedObject)
            return; // the popover was closed meanwhile
        productBaseCost.setEnabled(answer == firstButton);
        if (answer != firstButton)
            productBaseCostOpenButton.setOn(true);
    });
}

void ProductViewController::postChanged()
{
    appDelegate.notifications.post(NotificationName::ProductChangedNotificationForSelf, this);
    appDelegate.notifications.post(NotificationName::ProductChangedNotification, this);
}

} // namespace zelvor
