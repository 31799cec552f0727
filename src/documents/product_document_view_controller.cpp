#include "documents/product_document_view_controller.h"

#include "catalogs/contragent_select_view.h"
#include "catalogs/measurement_view_controller.h"
#include "catalogs/product_view_controller.h"
#include "core/localized.h"
#include "documents/product_document_restore.h"
#include "documents/visible_record.h"
#include "store/user_write.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

// What each type enables.
struct Inputs {
    DocType type;
    bool stockFrom;
    bool stockTo;
    bool contragent;
    bool shipment;
    bool discount;
};

const Inputs& inputsOf(DocType type)
{
    static constexpr Inputs inputs[] = {
        {DocType::BuyProduct, false, true, true, true, false},
        {DocType::Return, false, true, true, true, false},
        {DocType::SellProduct, true, false, true, true, true},
        {DocType::SellIntangibles, false, false, true, false, true},
        {DocType::MoveProduct, true, true, false, false, false},
        {DocType::AddProduct, false, true, false, false, false},
        {DocType::DeleteProduct, true, false, false, false, false},
    };
    static constexpr Inputs none{DocType::NilType, false, false, false, false, false};
    const auto found = std::ranges::find(inputs, type, &Inputs::type);
    return found == std::end(inputs) ? none : *found;
}

// Up to the end of the year 9999, either way.
constexpr qint64 furthestDate = 253'402'300'799;
constexpr qint64 longestDeferment = 36'500; // days

// Whole days up to the stored due date; a file may hold any two numbers.
Decimal storedDeferment(const ProductDocument& document)
{
    return Decimal::fromParts((Int128(document.payToDate) - document.date) / secondsPerDay, 0);
}

} // namespace

ProductDocumentViewController::ProductDocumentViewController(AppDelegate& owner,
                                                             std::shared_ptr<ProductDocument> documentToShow)
    : DocumentViewController(owner), document(std::move(documentToShow)), mainView(*this)
{
    contragentDiscount.onUserChange = [this] {
        setDiscount(contragentDiscount.value());
        checkDiscount();
        mainView.checkControlls(&contragentDiscount);
    };
}

ProductDocumentViewController::~ProductDocumentViewController() = default;

bool ProductDocumentViewController::stockFromEnabled() const
{
    return inputsOf(document->docType()).stockFrom;
}

bool ProductDocumentViewController::stockToEnabled() const
{
    return inputsOf(document->docType()).stockTo;
}

bool ProductDocumentViewController::contragentEnabled() const
{
    return inputsOf(document->docType()).contragent;
}

bool ProductDocumentViewController::shipmentEnabled() const
{
    return inputsOf(document->docType()).shipment;
}

bool ProductDocumentViewController::discountEnabled() const
{
    return inputsOf(document->docType()).discount;
}

bool ProductDocumentViewController::isSell() const
{
    return document->docType() == DocType::SellProduct || document->docType() == DocType::SellIntangibles;
}

void ProductDocumentViewController::prepareData()
{
    mainView.params = appDelegate.params();
    if (!mainView.params)
        mainView.params = std::make_shared<Params>();
    if (document->id == 0) {
        if (document->date == 0)
            document->date = appDelegate.now();
        document->withVAT = mainView.params->useVAT;
        document->withGST = mainView.params->useGST;
        setDiscount(document->contragent->innerDiscount);
        deferment.setValue(document->contragent->deferment);
    } else {
        setDiscount(document->innerContragentDiscount);
        deferment.setValue(storedDeferment(*document));
    }
    vatCheck.setOn(document->withVAT);
    gstCheck.setOn(document->withGST);
    shipment.setValue(document->innerShipment);
    mainView.prepareStocks();
    if (document->id == 0)
        mainView.setDefaults();
    calculateTotals();
    mainView.showDocument();
    observeCatalogs();
    if (appDelegate.connector.isReadOnly())
        appDelegate.workspace().setStateString(
            localized("The project is open for reading only. Nothing can be changed."));
}

void ProductDocumentViewController::observeCatalogs()
{
    // Changed amounts concern the product tree alone, which listens for itself.
    m_observations.clear();
    const auto observe = [this](NotificationName name, void (ProductDocumentViewController::*update)()) {
        m_observations.push_back(appDelegate.notifications.observe(
            name, [this, update](const Notification&) { (this->*update)(); }));
    };
    observe(NotificationName::ContragentChangedNotification,
            &ProductDocumentViewController::updateContragents);
    observe(NotificationName::StockChangedNotification, &ProductDocumentViewController::updateStocks);
    observe(NotificationName::ManagerChangedNotification, &ProductDocumentViewController::updateManagers);
}

ContragentSelectView& ProductDocumentViewController::contragentSelectView()
{
    if (!m_contragentSelectView) {
        m_contragentSelectView = std::make_unique<ContragentSelectView>(appDelegate);
        m_contragentSelectView->sender = this;
    }
    return *m_contragentSelectView;
}

ProductViewController& ProductDocumentViewController::mainProductView()
{
    if (!m_mainProductView) {
        m_measurementController = std::make_unique<MeasurementViewController>(appDelegate);
        m_mainProductView = std::make_unique<ProductViewController>(appDelegate);
        m_mainProductView->measurementController = m_measurementController.get();
        initialColumnHide();
        stockFromChanged();
    }
    return *m_mainProductView;
}

ProductFinder& ProductDocumentViewController::productFinder()
{
    if (!m_productFinder)
        m_productFinder = std::make_unique<ProductFinder>(mainProductView().view);
    return *m_productFinder;
}

void ProductDocumentViewController::initialColumnHide()
{
    const DocType type = document->docType();
    const bool stockHidden = type == DocType::BuyProduct || type == DocType::AddProduct;
    ProductView& products = m_mainProductView->view;
    for (const QString& column : {u"amount"_s, u"reserve"_s})
        products.setColumnHidden(column, stockHidden);
    for (const QString& column : {u"selected"_s, u"hidden"_s, u"description"_s})
        products.setColumnHidden(column, true);
}

void ProductDocumentViewController::stockFromChanged()
{
    if (m_mainProductView)
        m_mainProductView->setDocument(document->docType(), document->stockFromID, document->stockFromName());
}

void ProductDocumentViewController::selectContragent()
{
    if (isEditable() && contragentEnabled())
        contragentSelectView().selectPopover.open();
}

void ProductDocumentViewController::setNewContragent(const std::shared_ptr<Contragent>& contragent)
{
    if (!isEditable() || !contragentEnabled())
        return;
    document->insertContragent(contragent);
    deferment.setValue(document->contragent->deferment);
    setDiscount(document->contragent->innerDiscount);
    checkDiscount();
    mainView.showContragent();
    mainView.checkControlls();
}

void ProductDocumentViewController::clearContragent()
{
    setNewContragent(nullptr);
}

bool ProductDocumentViewController::setContragentFromID(qint64 contragentID)
{
    setNewContragent(visibleRecord<Contragent>(appDelegate.connector, contragentID));
    return document->contragentID == contragentID;
}

bool ProductDocumentViewController::setManagerFromID(qint64 managerID)
{
    if (!isEditable())
        return false;
    document->insertManager(visibleRecord<Manager>(appDelegate.connector, managerID));
    mainView.showManager();
    return document->managerID == managerID;
}

std::shared_ptr<ProductDocumentRow>
ProductDocumentViewController::hasRowWithProduct(const Product& product) const
{
    const auto& rows = document->documentRows;
    const auto found = std::ranges::find(rows, product.id, [](const auto& row) { return row->product->id; });
    return found == rows.end() ? nullptr : *found;
}

int ProductDocumentViewController::addProduct(const std::shared_ptr<Product>& product)
{
    if (!isEditable() || !product)
        return -1;
    auto row = hasRowWithProduct(*product);
    if (row) {
        row->setInnerAmount(row->innerAmount.plus(Decimal(1), ProductDocumentRow::decimalHandler));
    } else {
        row = newRow(product);
        document->documentRows.push_back(row);
    }
    rowsChanged();
    const auto& rows = document->documentRows;
    return static_cast<int>(std::ranges::find(rows, row) - rows.begin());
}

int ProductDocumentViewController::addProductFromID(qint64 productID)
{
    const auto product = appDelegate.connector.select<Product>(productID);
    return product && !product->isHidden ? addProduct(product) : -1;
}

Decimal ProductDocumentViewController::rowPrice(const Product& product) const
{
    if (isSell())
        return discounted(product.innerPriceCost);
    return document->docType() == DocType::Return ? product.innerPriceCost : product.innerBaseCost;
}

std::shared_ptr<ProductDocumentRow>
ProductDocumentViewController::newRow(const std::shared_ptr<Product>& product)
{
    auto row = std::make_shared<ProductDocumentRow>();
    row->insertProduct(product);
    row->setInnerAmount(Decimal(1));
    row->setInnerPriceCost(rowPrice(*product));
    if (isSell()) {
        row->innerVATRate = product->innerVATRate.rounded(ProductDocumentRow::decimalHandler);
        row->innerGSTRate = product->innerGSTRate.rounded(ProductDocumentRow::decimalHandler);
    }
    row->docID = document->id;
    return row;
}

bool ProductDocumentViewController::setRowValue(int row, const QString& identifier, const Decimal& value)
{
    if (!isEditable() || row < 0 || row >= mainView.numberOfRows() || !isStorable(value))
        return false;
    ProductDocumentRow& target = *document->documentRows[static_cast<std::size_t>(row)];
    if (identifier == "amount"_L1) {
        target.setInnerAmount(value);
    } else if (identifier == "price"_L1) {
        target.setInnerPriceCost(value);
        if (document->docType() == DocType::BuyProduct || document->docType() == DocType::AddProduct)
            target.setInnerBaseCost(value);
    } else if (identifier == "vatRate"_L1) {
        target.innerVATRate = value.rounded(ProductDocumentRow::decimalHandler);
    } else if (identifier == "gstRate"_L1) {
        target.innerGSTRate = value.rounded(ProductDocumentRow::decimalHandler);
    } else if (identifier == "includeShipment"_L1) {
        target.includeShipment = !value.isZero();
    } else {
        return false;
    }
    rowsChanged();
    return true;
}

bool ProductDocumentViewController::deleteRow()
{
    const int selected = mainView.selectedRow();
    if (!isEditable() || selected < 0 || selected >= mainView.numberOfRows())
        return false;
    const auto place = document->documentRows.begin() + selected;
    Connector& connector = appDelegate.connector;
    const auto leavesFile = [&] {
        return connector.any<ProductDocument>("WHERE id=? AND is_confirmed=0", {document->id}) &&
               connector.remove(**place) == 1;
    };
    if ((*place)->id != 0 && !leavesFile())
        return false;
    document->documentRows.erase(place);
    mainView.selectRow(-1);
    rowsChanged();
    return true;
}

void ProductDocumentViewController::rowsChanged()
{
    mainView.reloadData();
    calculateTotals();
    mainView.checkControlls();
}

void ProductDocumentViewController::calculateTotals()
{
    constexpr RoundingHandler handler = moneyHandler;
    Decimal amount;
    Decimal packs;
    Decimal sum;
    Decimal due;
    Decimal tax;
    for (const auto& row : document->documentRows) {
        const Decimal& priceSum = row->innerPriceCostSum;
        amount = amount.plus(row->innerAmount, handler);
        packs = packs.plus(row->packs(), handler);
        if (gstCheck.isOn()) {
            sum = sum.plus(priceSum, handler);
            due = due.plus(row->plusGST(), handler);
            tax = tax.plus(row->gstValue(), handler);
        } else if (vatCheck.isOn()) {
            sum = sum.plus(row->beforeVatValue(), handler);
            due = due.plus(priceSum, handler);
            tax = tax.plus(row->vatValue(), handler);
        } else {
            sum = sum.plus(priceSum, handler);
            due = due.plus(priceSum, handler);
        }
    }
    totalAmount.setValue(amount);
    totalPacks.setValue(packs);
    totalSum.setValue(sum);
    vatAmount.setValue(tax);
    balanceDue.setValue(due.plus(shipment.value(), handler));
}

void ProductDocumentViewController::setDiscount(const Decimal& percent)
{
    const Decimal shown = discountEnabled() ? percent : Decimal();
    contragentDiscount.setValue(shown);
    contragentDiscountSlider.setValue(contragentDiscount.integer());
}

Decimal ProductDocumentViewController::discounted(const Decimal& price) const
{
    constexpr RoundingHandler handler = Contragent::decimalHandler;
    const Decimal share = contragentDiscount.value().dividedBy(Decimal(100), handler);
    return price.times(Decimal(1).minus(share, handler), handler);
}

bool ProductDocumentViewController::checkDiscount()
{
    if (!isEditable() || !discountEnabled() || !isStorable(contragentDiscount.value()))
        return false;
    bool changed = false;
    for (const auto& row : document->documentRows) {
        const Decimal& price = row->product->innerPriceCost;
        if (price.isZero())
            continue;
        const Decimal before = row->innerPriceCost;
        row->setInnerPriceCost(discounted(price));
        changed = changed || !(row->innerPriceCost == before);
    }
    mainView.reloadData();
    calculateTotals();
    return changed;
}

// What is in the fields goes into the document; the sums stay out until it is confirmed.
void ProductDocumentViewController::takeFields()
{
    constexpr RoundingHandler handler = ProductDocument::decimalHandler;
    document->comment = mainView.comment.text();
    document->withVAT = vatCheck.isOn();
    document->withGST = gstCheck.isOn();
    document->innerShipment = shipment.value().rounded(handler);
    document->innerContragentDiscount = contragentDiscount.value().rounded(handler);
    document->payToDate = document->date + deferment.integer() * secondsPerDay;
}

// Numbers that cannot be kept would be lost in the file without a word.
bool ProductDocumentViewController::hasStorableNumbers()
{
    for (const auto& row : document->documentRows) {
        const Decimal numbers[] = {row->innerAmount, row->innerPriceCost, row->innerPriceCostSum,
                                   row->innerVATRate, row->innerGSTRate};
        if (!std::ranges::all_of(numbers, isStorable))
            alertMessage += localized("A number is missing or too large: ") + row->product->name + u'\n';
    }
    const Decimal sums[] = {shipment.value(), contragentDiscount.value(), balanceDue.value(),
                            totalAmount.value(), totalSum.value()};
    if (!std::ranges::all_of(sums, isStorable))
        fail(localized("A sum of the document is missing or too large.\n"));
    const Decimal& days = deferment.value();
    if (!(days >= Decimal(0) && days <= Decimal(longestDeferment)))
        fail(localized("The deferment must lie between 0 and 36500 days.\n"));
    if (document->date < -furthestDate || document->date > furthestDate)
        fail(localized("The date is out of range.\n"));
    if (alertMessage.isEmpty())
        return true;
    showAlert();
    return false;
}

// Whether the file holds the very rows that the form holds: another form of the same draft may have added
// or deleted one.
bool ProductDocumentViewController::checkStoredRows()
{
    if (document->id == 0)
        return true;
    const auto stored =
        appDelegate.connector.freeSQL<ProductDocumentRow>("WHERE doc_id=?", {document->id}, Fill::Nothing);
    const auto& rows = document->documentRows;
    const auto isHeld = [&rows](const auto& row) {
        return std::ranges::any_of(rows, [&row](const auto& held) { return held->id == row->id; });
    };
    const auto known = std::ranges::count_if(rows, [](const auto& row) { return row->id != 0; });
    if (std::ssize(stored) == known && std::ranges::all_of(stored, isHeld))
        return true;
    fail(localized("The document's rows were changed in the meantime. Please open it again.\n"));
    return false;
}

bool ProductDocumentViewController::writeDoc()
{
    if (!isEditable() || !hasStorableNumbers())
        return false;
    const ProductDocumentRestore before(*document);
    Connector& connector = appDelegate.connector;
    UserWrite write(connector);
    takeFields();
    if (checkStoredDraft<ProductDocument>() && checkStoredRows())
        write.step(document->id == 0 ? connector.insert(*document) : connector.update(*document));
    else
        write.fail();
    if (!write.finish()) {
        before.putBack(*document);
        if (!alertMessage.isEmpty())
            showAlert();
        return false;
    }
    mainView.saveButton.setEnabled(false);
    mainView.deleteDocButton.setEnabled(true);
    appDelegate.notifications.post(NotificationName::ProductDocChangedNotification, this);
    return true;
}

bool ProductDocumentViewController::deleteDoc()
{
    if (!isEditable() || document->id == 0)
        return false;
    Connector& connector = appDelegate.connector;
    UserWrite write(connector);
    if (checkStoredDraft<ProductDocument>()) {
        // The rows that the file holds, whatever this form has done to its own.
        const auto rows =
            connector.freeSQL<ProductDocumentRow>("WHERE doc_id=?", {document->id}, Fill::Nothing);
        if (std::ranges::all_of(rows, [&](const auto& row) { return write.step(connector.remove(*row)); }))
            write.step(connector.remove(*document));
    } else {
        write.fail();
    }
    if (!write.finish()) {
        if (!alertMessage.isEmpty())
            showAlert();
        return false;
    }
    document->id = 0;
    // Closing may take this form away, so it is told before.
    appDelegate.notifications.post(NotificationName::ProductDocChangedNotification, this);
    closeDoc();
    return true;
}

void ProductDocumentViewController::askDeleteDoc()
{
    if (!isEditable() || document->id == 0)
        return;
    const Alert question{localized("Delete this document?"),
                         localized("The document and its rows are taken out of the project for good."),
                         {localized("Delete"), localized("Cancel")},
                         1};
    const std::weak_ptr<const bool> alive = m_alive;
    appDelegate.dialogs.ask(question, [this, alive](int answer) {
        if (!alive.expired() && answer == firstButton)
            deleteDoc();
    });
}

void ProductDocumentViewController::closeDoc()
{
    // A copy: closing may take this form, and the callback with it, away.
    const std::function<void()> close = onClose;
    if (close)
        close();
}

void ProductDocumentViewController::changeInterface()
{
    mainView.showTitle();
    mainView.showContragent();
    mainView.enableFields();
    mainView.paintRequired();
    mainView.reloadData();
    progress.stop();
}

void ProductDocumentViewController::updateContragents()
{
    if (m_contragentSelectView)
        m_contragentSelectView->markStale();
    if (!isEditable() || document->contragentID == 0)
        return;
    const auto contragent = appDelegate.connector.select<Contragent>(document->contragentID, Fill::Nothing);
    if (!contragent)
        return;
    const bool discountDiffers = !(contragent->innerDiscount == document->contragent->innerDiscount);
    document->insertContragent(contragent);
    if (discountDiffers)
        setDiscount(contragent->innerDiscount);
    const bool pricesDiffer = checkDiscount();
    mainView.showContragent();
    if (discountDiffers || pricesDiffer)
        mainView.checkControlls(); // the file still has the old ones
}

void ProductDocumentViewController::updateStocks()
{
    if (!isEditable())
        return;
    mainView.prepareStocks();
    mainView.paintRequired();
}

} // namespace zelvor
