#include "documents/product_document_view.h"

#include "catalogs/product_view_controller.h"
#include "core/currency_struct.h"
#include "core/localized.h"
#include "core/text_order.h"
#include "documents/product_document_view_controller.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

ProductDocumentView::ProductDocumentView(ProductDocumentViewController& controller)
    : TableView(QString(), redColor), params(std::make_shared<Params>()), m_controller(controller)
{
    for (Button* button : {&deleteSelectedRowsButton, &deleteDocButton, &saveButton, &confirmButton})
        button->setEnabled(false);
    bindFields();
}

void ProductDocumentView::bindFields()
{
    ProductDocumentViewController& form = m_controller;
    stockFromSelect.onUserChange = [this] { checkControlls(&stockFromSelect); };
    stockToSelect.onUserChange = [this] { checkControlls(&stockToSelect); };
    date.onUserChange = [this] {
        document().date = date.moment();
        checkControlls(&date);
    };
    comment.onUserChange = [this] {
        document().comment = comment.text();
        checkControlls(&comment);
    };
    form.deferment.onUserChange = [this] { checkControlls(&m_controller.deferment); };
    form.vatCheck.onUserChange = [this] { taxesChecked(); };
    form.gstCheck.onUserChange = [this] { taxesChecked(); };
    form.contragentDiscountSlider.onUserChange = [this] { discountChanged(); };
    form.shipment.onUserChange = [this] {
        NumberField& shipment = m_controller.shipment;
        // What is added up is what will be stored. An empty field is 0.
        shipment.setValue(shipment.value().rounded(ProductDocument::decimalHandler));
        shipmentChanged();
    };
    saveButton.onUserChange = [this] { m_controller.writeDoc(); };
    managerSelect.onUserChange = [this] {
        m_controller.setManagerFromID(managerSelect.selectedTag());
        checkControlls(&managerSelect);
    };
    deleteDocButton.onUserChange = [this] { m_controller.askDeleteDoc(); };
    deleteSelectedRowsButton.onUserChange = [this] { m_controller.deleteRow(); };
    confirmButton.onUserChange = [this] { m_controller.confirmDoc(); };
}

ProductDocument& ProductDocumentView::document() const
{
    return *m_controller.document;
}

auto ProductDocumentView::tax() const -> Tax
{
    if (m_controller.vatCheck.isOn())
        return Tax::VAT;
    return m_controller.gstCheck.isOn() ? Tax::GST : Tax::None;
}

std::vector<ViewColumn> ProductDocumentView::columns() const
{
    const bool editable = m_controller.isEditable();
    const bool untaxed = tax() == Tax::None;
    const DocType type = document().docType();
    const bool sharesShipment = type == DocType::BuyProduct || type == DocType::Return;
    const auto amount = [](const QString& identifier, const QString& title, bool canEdit, bool hidden) {
        return ViewColumn{identifier, title, CellKind::Amount, CellAlignment::Right, canEdit, {}, hidden};
    };
    const QString taxName = tax() == Tax::GST ? localized("TAX") : localized("VAT");
    return {
        {u"includeShipment"_s,
         localized("Shipment"),
         CellKind::CheckBox,
         CellAlignment::Center,
         editable,
         {},
         !sharesShipment},
        {u"name"_s, localized("Name")},
        {u"measurement"_s, localized("Unit")},
        amount(u"amount"_s, localized("Amount"), editable, false),
        amount(u"packs"_s, localized("Packs"), false, false),
        amount(u"price"_s, localized("Price"), editable, false),
        {u"vatPercent"_s, taxName + u" %"_s, CellKind::Percent, CellAlignment::Right, false, {}, untaxed},
        {u"vat"_s, taxName, CellKind::Amount, CellAlignment::Right, false, {}, untaxed},
        amount(u"totalNet"_s, localized("Net Total"), false, untaxed),
        amount(u"total"_s, localized("Total"), false, false),
    };
}

int ProductDocumentView::numberOfRows() const
{
    return static_cast<int>(document().documentRows.size());
}

// What a row calls the value of a column: VAT is inside the price, GST comes on top of it.
QString ProductDocumentView::rowIdentifier(const QString& column) const
{
    const bool gst = tax() == Tax::GST;
    if (column == "vatPercent"_L1)
        return gst ? u"gstRate"_s : u"vatRate"_s;
    if (column == "vat"_L1)
        return gst ? u"gst"_s : u"vat"_s;
    if (column == "totalNet"_L1)
        return gst ? u"total"_s : u"minusVAT"_s;
    if (column == "total"_L1)
        return gst ? u"plusGST"_s : u"total"_s;
    return column;
}

QVariant ProductDocumentView::value(int row, const QString& identifier) const
{
    if (row < 0 || row >= numberOfRows())
        return QString();
    return document().documentRows[static_cast<std::size_t>(row)]->valueForIdentifier(
        rowIdentifier(identifier));
}

bool ProductDocumentView::setValue(int row, const QString& identifier, const QVariant& value)
{
    if (identifier != "amount"_L1 && identifier != "price"_L1 && identifier != "includeShipment"_L1)
        return false;
    const Decimal number = value.typeId() == QMetaType::QString ? Decimal::fromText(value.toString())
                                                                : Decimal::fromDouble(value.toDouble());
    return m_controller.setRowValue(row, identifier, number);
}

std::shared_ptr<Product> ProductDocumentView::droppedProduct(const QString& pasteboard) const
{
    return std::dynamic_pointer_cast<Product>(
        m_controller.mainProductView().getItemWithIdentifier(pasteboard));
}

bool ProductDocumentView::validateDrop(const QString& pasteboard) const
{
    return m_controller.isEditable() && droppedProduct(pasteboard);
}

bool ProductDocumentView::acceptDrop(const QString& pasteboard)
{
    const int row = m_controller.addProduct(droppedProduct(pasteboard));
    if (row < 0)
        return false;
    selectRow(row);
    selectionChanged();
    return true;
}

void ProductDocumentView::prepareStocks()
{
    stocks = m_controller.appDelegate.connector.freeSQL<Stock>("WHERE is_hidden=?", {false}, Fill::Nothing);
    std::ranges::stable_sort(stocks, NameLess{});
    if (m_controller.stockFromEnabled()) {
        if (const auto stock = stockWithID(document().stockFromID))
            document().insertStockFrom(stock);
        fillStockSelect(stockFromSelect, document().stockFromID, document().stockFromName());
    }
    if (m_controller.stockToEnabled()) {
        if (const auto stock = stockWithID(document().stockToID))
            document().insertStockTo(stock);
        fillStockSelect(stockToSelect, document().stockToID, document().stockToName());
    }
}

void ProductDocumentView::fillStockSelect(PopUpButton& select, qint64 heldID, const QString& heldName) const
{
    std::vector<PopUpButton::Item> items{{}};
    items.reserve(stocks.size() + 2);
    for (const auto& stock : stocks)
        items.push_back({stock->name, stock->id});
    // A confirmed document goes on showing a warehouse that was hidden since.
    if (document().confirmed && heldID != 0 && !stockWithID(heldID))
        items.push_back({heldName, heldID});
    select.setItems(std::move(items));
    select.selectTag(heldID);
}

void ProductDocumentView::prepareManagers()
{
    const qint64 heldID = document().managerID;
    auto managers =
        m_controller.appDelegate.connector.freeSQL<Manager>("WHERE is_hidden=?", {false}, Fill::Nothing);
    std::ranges::stable_sort(managers, NameLess{});
    std::vector<PopUpButton::Item> items{{}};
    items.reserve(managers.size() + 2);
    for (const auto& manager : managers)
        items.push_back({manager->name, manager->id});
    // The document goes on naming who was responsible, also when he left since.
    if (heldID != 0 && std::ranges::find(items, heldID, &PopUpButton::Item::tag) == items.end())
        items.push_back({document().managerName(), heldID});
    managerSelect.setItems(std::move(items));
    managerSelect.selectTag(heldID);
    m_managersPrepared = true;
}

void ProductDocumentView::managersChanged()
{
    if (m_managersPrepared)
        prepareManagers();
}

void ProductDocumentView::showManager()
{
    const qint64 heldID = document().managerID;
    if (!m_managersPrepared)
        managerSelect.setItems({{}, {document().managerName(), heldID}});
    managerSelect.selectTag(heldID);
}

std::shared_ptr<Stock> ProductDocumentView::stockWithID(qint64 stockID) const
{
    const auto found = std::ranges::find(stocks, stockID, &Stock::id);
    return found == stocks.end() ? nullptr : *found;
}

void ProductDocumentView::setDefaults()
{
    const auto found = std::ranges::find(stocks, true, &Stock::isDefault);
    if (found == stocks.end())
        return;
    if (m_controller.stockFromEnabled() && document().stockFromID == 0)
        takeStockFrom((*found)->id);
    if (m_controller.stockToEnabled() && document().stockToID == 0)
        takeStockTo((*found)->id);
}

bool ProductDocumentView::takeStockFrom(qint64 stockID)
{
    document().insertStockFrom(stockWithID(stockID));
    stockFromSelect.selectTag(document().stockFromID);
    m_controller.stockFromChanged();
    return document().stockFromID == stockID;
}

bool ProductDocumentView::takeStockTo(qint64 stockID)
{
    document().insertStockTo(stockWithID(stockID));
    stockToSelect.selectTag(document().stockToID);
    return document().stockToID == stockID;
}

bool ProductDocumentView::setStockFromID(qint64 stockID)
{
    if (!m_controller.isEditable() || !m_controller.stockFromEnabled())
        return false;
    const bool taken = takeStockFrom(stockID);
    checkControlls();
    return taken;
}

bool ProductDocumentView::setStockToID(qint64 stockID)
{
    if (!m_controller.isEditable() || !m_controller.stockToEnabled())
        return false;
    const bool taken = takeStockTo(stockID);
    checkControlls();
    return taken;
}

void ProductDocumentView::showDocument()
{
    date.setMoment(document().date);
    comment.setText(document().comment);
    m_controller.contragentDiscount.setHidden(!m_controller.discountEnabled());
    m_controller.contragentDiscountSlider.setHidden(!m_controller.discountEnabled());
    writeLabels();
    showContragent();
    showManager();
    showTitle();
    showHideColumns();
    enableFields();
    paintRequired();
    reloadData();
}

void ProductDocumentView::showContragent()
{
    const Contragent& contragent = *document().contragent;
    contragentField.setText(contragent.name);
    m_controller.contragentBalance.setValue(contragent.innerBalance);
    m_controller.contragentBalance.setColor(contragent.balanceFontColor());
}

void ProductDocumentView::showTitle()
{
    const QString title = document().name();
    const Color color = document().titleFontColor();
    m_controller.documentTitle.setText(title);
    m_controller.documentTitle.setColor(color);
    setName(title);
    setTitleColor(color);
}

namespace {

// "Total, €"
QString withCurrency(const QString& text, const Params& params)
{
    const auto currency = currencyFromInt(params.defaultCurrency);
    return currency ? text + u", "_s + currencySign(*currency) : text;
}

} // namespace

void ProductDocumentView::writeLabels()
{
    stockFromLabel.setText(localized("From Warehouse"));
    stockToLabel.setText(localized("To Warehouse"));
    contragentLabel.setText(localized("Counterparty"));
    managerLabel.setText(localized("Responsible"));
    saldoLabel.setText(withCurrency(localized("Balance"), *params));
    shipmentLabel.setText(withCurrency(localized("Shipment"), *params));
    totalLabel.setText(withCurrency(localized("Total"), *params));
    balanceDueLabel.setText(withCurrency(localized("Balance Due"), *params));
}

void ProductDocumentView::enableFields()
{
    ProductDocumentViewController& form = m_controller;
    const bool editable = form.isEditable();
    date.setEnabled(editable);
    managerSelect.setEnabled(editable);
    comment.setEnabled(editable);
    stockFromSelect.setEnabled(editable && form.stockFromEnabled());
    stockToSelect.setEnabled(editable && form.stockToEnabled());
    contragentField.setEnabled(editable && form.contragentEnabled());
    form.deferment.setEnabled(editable && form.contragentEnabled());
    form.shipment.setEnabled(editable && form.shipmentEnabled());
    form.contragentDiscount.setEnabled(editable && form.discountEnabled());
    form.contragentDiscountSlider.setEnabled(editable && form.discountEnabled());
    // A tax that a stored draft has can be taken off it, whatever the settings say now.
    form.vatCheck.setEnabled(editable && (params->useVAT || document().withVAT));
    form.gstCheck.setEnabled(editable && (params->useGST || document().withGST));
    deleteDocButton.setEnabled(editable && document().id != 0);
    if (!editable)
        saveButton.setEnabled(false);
    selectionChanged();
}

void ProductDocumentView::showHideColumns()
{
    vatAmountLabel.setHidden(tax() == Tax::None);
    m_controller.vatAmount.setHidden(tax() == Tax::None);
    if (tax() != Tax::None)
        vatAmountLabel.setText(
            withCurrency(tax() == Tax::VAT ? localized("VAT Amount") : localized("TAX Amount"), *params));
    reloadData();
}

void ProductDocumentView::checkControlls(const Outlet* sender)
{
    if (sender == &stockFromSelect) {
        takeStockFrom(stockFromSelect.selectedTag());
        reloadData();
    } else if (sender == &stockToSelect) {
        takeStockTo(stockToSelect.selectedTag());
    }
    if (!m_controller.isEditable())
        return;
    saveButton.setEnabled(true);
    deleteDocButton.setEnabled(document().id != 0);
    selectionChanged();
    paintRequired();
}

auto ProductDocumentView::required() const -> std::vector<Required>
{
    const ProductDocumentViewController& form = m_controller;
    std::vector<Required> inputs;
    inputs.reserve(3);
    if (form.stockFromEnabled())
        inputs.push_back({&stockFromLabel, stockFromSelect.selectedTag() != 0});
    if (form.stockToEnabled())
        inputs.push_back({&stockToLabel, stockToSelect.selectedTag() != 0});
    if (form.contragentEnabled())
        inputs.push_back({&contragentLabel, !contragentField.text().isEmpty()});
    return inputs;
}

QStringList ProductDocumentView::missingInputs() const
{
    QStringList missing;
    for (const Required& input : required()) {
        if (!input.filled)
            missing.append(input.label->text());
    }
    if (m_controller.totalAmount.value().isZero())
        missing.append(localized("Products"));
    return missing;
}

void ProductDocumentView::paintRequired()
{
    if (!m_controller.isEditable()) {
        setGroundColor(whiteColor);
        confirmButton.setEnabled(false);
        return;
    }
    const bool rowsMissing = m_controller.totalAmount.value().isZero();
    setGroundColor(rowsMissing ? rowsMissingColor : whiteColor);
    bool filled = !rowsMissing;
    if (m_controller.stockFromEnabled())
        filled = DocumentViewController::checkPopUp(stockFromSelect, stockFromLabel) && filled;
    if (m_controller.stockToEnabled())
        filled = DocumentViewController::checkPopUp(stockToSelect, stockToLabel) && filled;
    if (m_controller.contragentEnabled())
        filled = DocumentViewController::checkTextField(contragentField, contragentLabel) && filled;
    confirmButton.setEnabled(filled);
}

void ProductDocumentView::taxesChecked()
{
    document().withVAT = m_controller.vatCheck.isOn();
    document().withGST = m_controller.gstCheck.isOn();
    showHideColumns();
    m_controller.calculateTotals();
    saveButton.setEnabled(m_controller.isEditable());
}

void ProductDocumentView::selectionChanged()
{
    deleteSelectedRowsButton.setEnabled(m_controller.isEditable() && selectedRow() >= 0 &&
                                        selectedRow() < numberOfRows());
}

void ProductDocumentView::discountChanged()
{
    m_controller.contragentDiscount.setValue(Decimal(m_controller.contragentDiscountSlider.value()));
    m_controller.checkDiscount();
    checkControlls(&m_controller.contragentDiscountSlider);
}

void ProductDocumentView::shipmentChanged()
{
    document().innerShipment = m_controller.shipment.value().rounded(ProductDocument::decimalHandler);
    m_controller.calculateTotals();
    saveButton.setEnabled(m_controller.isEditable());
}

} // namespace zelvor
