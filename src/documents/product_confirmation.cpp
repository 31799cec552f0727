// The confirmation of a product document: for each type a list of steps, run until one refuses, and the
// notifications that follow.

#include "catalogs/stock_row.h"
#include "core/formats.h"
#include "core/localized.h"
#include "documents/product_document_restore.h"
#include "documents/product_document_view_controller.h"
#include "store/user_write.h"

#include <algorithm>
#include <span>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

struct ProductDocumentViewController::Confirmation {
    using Step = bool (ProductDocumentViewController::*)();

    DocType type;
    std::span<const Step> steps;
    std::span<const NotificationName> notifications; // behind the two that every type posts

    // Null for a type that this form does not confirm.
    static const Confirmation* of(DocType type);
};

auto ProductDocumentViewController::Confirmation::of(DocType type) -> const Confirmation*
{
    using Form = ProductDocumentViewController;
    using enum NotificationName;

    // The cost is averaged before the goods arrive, so it sees the stock as it was; debts are settled before
    // the balance moves, so they see the credit as it was.
    static constexpr Step receipt[] = {&Form::checkDate,        &Form::setDocumentNumber,
                                       &Form::changeBaseCosts,  &Form::addProductsToStock,
                                       &Form::checkProductDocs, &Form::changeContragentBalance};
    static constexpr Step sale[] = {&Form::checkDate,        &Form::setDocumentNumber,
                                    &Form::checkStockAmount, &Form::deleteProductsFromStock,
                                    &Form::checkProductDocs, &Form::changeContragentBalance};
    static constexpr Step service[] = {&Form::checkDate, &Form::setDocumentNumber, &Form::checkProductDocs,
                                       &Form::changeContragentBalance};
    static constexpr Step move[] = {&Form::checkDate, &Form::setDocumentNumber, &Form::checkStockAmount,
                                    &Form::deleteProductsFromStock, &Form::addProductsToStock};
    static constexpr Step stockIn[] = {&Form::checkDate, &Form::setDocumentNumber, &Form::addProductsToStock};
    static constexpr Step writeOff[] = {&Form::checkDate, &Form::setDocumentNumber, &Form::checkStockAmount,
                                        &Form::deleteProductsFromStock};

    static constexpr NotificationName receiptNews[] = {
        ProductAmountChangedNotification, ContragentBalanceChangedNotification,
        ProductBaseCostChangedNotification, DocWithContragentChangedNotification};
    static constexpr NotificationName saleNews[] = {ProductAmountChangedNotification,
                                                    ContragentBalanceChangedNotification,
                                                    DocWithContragentChangedNotification};
    static constexpr NotificationName serviceNews[] = {ContragentBalanceChangedNotification,
                                                       DocWithContragentChangedNotification};
    static constexpr NotificationName stockNews[] = {ProductAmountChangedNotification};

    static constexpr Confirmation confirmations[] = {
        {DocType::BuyProduct, receipt, receiptNews},   {DocType::Return, receipt, receiptNews},
        {DocType::SellProduct, sale, saleNews},        {DocType::SellIntangibles, service, serviceNews},
        {DocType::MoveProduct, move, stockNews},       {DocType::AddProduct, stockIn, stockNews},
        {DocType::DeleteProduct, writeOff, stockNews},
    };
    const auto found = std::ranges::find(confirmations, type, &Confirmation::type);
    return found == std::end(confirmations) ? nullptr : &*found;
}

bool ProductDocumentViewController::confirmDoc()
{
    if (!isReadyToConfirm() || !hasStorableNumbers())
        return false;
    progress.start();
    const ProductDocumentRestore before(*document);
    UserWrite write(appDelegate.connector);
    takeFields();
    // The sum as the form shows it, read before the recount.
    document->innerDocSum = balanceDue.value().rounded(ProductDocument::decimalHandler);
    calculateTotals();
    if (checkStoredDraft<ProductDocument>() && checkStoredRows() && runSteps()) {
        finalizeDocument();
        document->confirmed = true;
        Connector& connector = appDelegate.connector;
        write.step(document->id == 0 ? connector.insert(*document) : connector.update(*document));
    } else {
        write.fail();
    }
    const bool refused = write.failed();
    const bool confirmed = write.finish([this] {
        changeInterface();
        postConfirmed();
    });
    if (!confirmed) {
        before.putBack(*document);
        announceTakenBack();
        changeInterface();
        // Of a commit that failed the application has told already.
        if (refused)
            showAlert();
    }
    alertMessage.clear();
    return confirmed;
}

bool ProductDocumentViewController::runSteps()
{
    const Confirmation* confirmation = Confirmation::of(document->docType());
    if (!confirmation)
        return false;
    readAnew();
    return std::ranges::all_of(confirmation->steps,
                               [this](Confirmation::Step step) { return (this->*step)(); });
}

void ProductDocumentViewController::postConfirmed()
{
    const auto post = [this](NotificationName name) { appDelegate.notifications.post(name, this); };
    post(NotificationName::BalanceChangedNotification);
    post(NotificationName::ProductDocChangedNotification);
    std::ranges::for_each(Confirmation::of(document->docType())->notifications, post);
}

namespace {

// The record as the file holds it now; of one that is gone a copy, so that a refusal leaves what is shown.
template <class Record>
std::shared_ptr<Record> readAgain(Connector& connector, const Link<Record>& shown)
{
    const auto read = connector.select<Record>(shown->id, Fill::Nothing);
    return read ? read : std::make_shared<Record>(*shown);
}

} // namespace

// What the steps read and change is what the file holds now, whatever the form has shown: another form or
// another program may have confirmed in the meantime.
void ProductDocumentViewController::readAnew()
{
    Connector& connector = appDelegate.connector;
    if (!document->contragent.isEmpty()) {
        const auto contragent = readAgain(connector, document->contragent);
        contragent->manager = document->contragent->manager;
        document->insertContragent(contragent);
    }
    const auto& rows = document->documentRows;
    for (auto row = rows.begin(); row != rows.end(); ++row) {
        const auto sameProduct = [&row](const auto& other) { return other->productID == (*row)->productID; };
        if (const auto earlier = std::find_if(rows.begin(), row, sameProduct); earlier != row) {
            (*row)->product = (*earlier)->product;
            continue;
        }
        const auto product = readAgain(connector, (*row)->product);
        product->measurement = (*row)->product->measurement;
        product->pack = (*row)->product->pack;
        (*row)->product = Link<Product>(product);
    }
}

bool ProductDocumentViewController::checkDate()
{
    return checkDateStep(
        localized("Last report period must be closed before we can proceed document with "
                  "date from later period. But we can't close it now for unknown reason!\n"));
}

namespace {

std::shared_ptr<StockRow> stockRowOf(Connector& connector, qint64 stockID, qint64 productID)
{
    const auto found =
        connector.freeSQL<StockRow>("WHERE stock_id=? AND product_id=?", {stockID, productID}, Fill::Nothing);
    return found.empty() ? nullptr : found.front();
}

// Runs the step for each row that moves goods, up to the first failure.
template <class Step>
bool forGoods(const ProductDocument& document, Step step)
{
    return std::ranges::all_of(document.documentRows,
                               [&step](const auto& row) { return row->product->isIntangible || step(*row); });
}

QString missingText(const QString& product, const QString& stock)
{
    return localized("We have not '") + product + localized("' on WH: '") + stock + localized("'\n");
}

QString shortageText(const ProductDocumentRow& row, const QString& stock, const StockRow& stockRow)
{
    return localized("We have not enough '") + row.product->name + localized("' on WH: '") + stock +
           localized("'. Need: ") + realText(row.amount()) + localized(" Have: ") +
           realText(stockRow.amount()) + localized(" Reserv: ") + realText(stockRow.amountReserved()) + u'\n';
}

} // namespace

// Gathers all shortages before it reports. Reserves only inform, and a service counts like goods here.
bool ProductDocumentViewController::checkStockAmount()
{
    const QString stock = document->stockFromName();
    bool enough = true;
    for (const auto& row : document->documentRows) {
        const auto stockRow = stockRowOf(appDelegate.connector, document->stockFromID, row->productID);
        if (!stockRow)
            alertMessage += missingText(row->product->name, stock);
        else if (stockRow->innerAmount < row->innerAmount)
            alertMessage += shortageText(*row, stock, *stockRow);
        else
            continue;
        enough = false;
    }
    return enough;
}

bool ProductDocumentViewController::deleteProductsFromStock()
{
    Connector& connector = appDelegate.connector;
    const bool deleted = forGoods(*document, [&](const ProductDocumentRow& row) {
        const auto stockRow = stockRowOf(connector, document->stockFromID, row.productID);
        if (!stockRow || stockRow->innerAmount < row.innerAmount)
            return false;
        stockRow->innerAmount = stockRow->innerAmount.minus(row.innerAmount, StockRow::decimalHandler);
        return (stockRow->innerAmount.isZero() ? connector.remove(*stockRow) : connector.update(*stockRow)) ==
               1;
    });
    if (!deleted) {
        fail(localized("Failed to delete products from WH.\n"));
        fail(localized("Can't confirm document.\n"));
    }
    return deleted;
}

bool ProductDocumentViewController::addProductsToStock()
{
    Connector& connector = appDelegate.connector;
    const bool added = forGoods(*document, [&](const ProductDocumentRow& row) {
        if (const auto stockRow = stockRowOf(connector, document->stockToID, row.productID)) {
            stockRow->innerAmount = stockRow->innerAmount.plus(row.innerAmount, StockRow::decimalHandler);
            return connector.update(*stockRow) == 1;
        }
        StockRow stockRow;
        stockRow.stockID = document->stockToID;
        stockRow.productID = row.productID;
        stockRow.innerAmount = row.innerAmount;
        return connector.insert(stockRow) == 1;
    });
    if (!added) {
        fail(localized("Failed to add products to WH.\n"));
        fail(localized("Can't confirm document.\n"));
    }
    return added;
}

namespace {

// Shipment cost per unit of purchase value, over the rows that take a share; 0 when none does.
Decimal shipmentRate(const ProductDocument& document)
{
    if (!document.innerShipment.isPositive())
        return {};
    Decimal base;
    for (const auto& row : document.documentRows) {
        if (row->includeShipment && !row->product->isIntangible)
            base = base.plus(row->innerPriceCostSum, ProductDocumentRow::decimalHandler);
    }
    return base.isPositive() ? document.innerShipment.dividedBy(base, averageCostHandler) : Decimal();
}

// The weighted average of what arrives and what all warehouses hold, reserves included. Not a number when
// there is nothing of either.
Decimal averageCost(const ProductDocumentRow& row, const Decimal& rate,
                    const std::vector<std::shared_ptr<StockRow>>& held)
{
    constexpr RoundingHandler handler = Product::decimalHandler;
    Decimal rowValue = row.innerPriceCostSum;
    if (rate.isPositive() && row.includeShipment)
        rowValue = rowValue.plus(rowValue.times(rate, averageCostHandler), handler);
    Decimal stockValue;
    Decimal stockQuantity;
    for (const auto& stockRow : held) {
        const Decimal quantity = stockRow->innerAmount.plus(stockRow->innerAmountReserved);
        stockValue = stockValue.plus(quantity.times(row.product->innerBaseCost, handler), handler);
        stockQuantity = stockQuantity.plus(quantity, handler);
    }
    return rowValue.plus(stockValue, handler)
        .dividedBy(row.innerAmount.plus(stockQuantity, handler), handler);
}

} // namespace

bool ProductDocumentViewController::changeBaseCosts()
{
    Connector& connector = appDelegate.connector;
    const Decimal rate = shipmentRate(*document);
    const bool changed = forGoods(*document, [&](ProductDocumentRow& row) {
        const auto held = connector.freeSQL<StockRow>("WHERE product_id=?", {row.productID}, Fill::Nothing);
        Product& product = row.product.edit();
        product.innerBaseCost = averageCost(row, rate, held);
        return connector.update(product) == 1;
    });
    if (!changed) {
        fail(localized("Failed to change product's base cost\n"));
        fail(localized("Can't confirm document.\n"));
    }
    return changed;
}

// A purchase pays our counterparty's debts to us, a sale pays ours to it, as far as the credit reaches.
bool ProductDocumentViewController::checkProductDocs()
{
    const Decimal balance = document->contragent->innerBalance;
    if (isSell() ? !balance.isPositive() : !balance.isNegative())
        return true;
    const Decimal credit = balance.absolute();
    const Decimal rest = document->innerDocSum <= credit ? document->innerDocSum : credit;
    return settle(isSell()
                      ? openDocuments(DocType::BuyProduct, DocType::Return, DocType::BuyProperty)
                      : openDocuments(DocType::SellProduct, DocType::SellIntangibles, DocType::SellProperty),
                  rest);
}

bool ProductDocumentViewController::changeContragentBalance()
{
    constexpr RoundingHandler handler = ProductDocument::decimalHandler;
    const Decimal before = document->contragent->innerBalance;
    const Decimal due = balanceDue.value();
    Contragent& contragent = document->contragent.edit();
    document->innerContragentBalance = before;
    // What stays open is what the credit from before does not cover.
    if (isSell()) {
        contragent.subtractFromBalance(due);
        if (!(before < document->innerDocSum))
            document->innerLeftToPay = Decimal();
        else
            document->innerLeftToPay =
                before.isPositive() ? document->innerDocSum.minus(before, handler) : document->innerDocSum;
    } else {
        contragent.addToBalance(due);
        if (!before.isNegative())
            document->innerLeftToPay = due.rounded(handler);
        else
            document->innerLeftToPay = due.negated() < before ? due.plus(before, handler) : Decimal();
    }
    if (appDelegate.connector.update(contragent) == 1)
        return true;
    fail(localized("Failed to change contragent's balance.\n"));
    fail(localized("Can't confirm document.\n"));
    return false;
}

void ProductDocumentViewController::finalizeDocument()
{
    // The one field serves both taxes.
    const Decimal tax = vatAmount.value().rounded(ProductDocument::decimalHandler);
    if (vatCheck.isOn())
        document->innerVATSum = tax;
    if (gstCheck.isOn())
        document->innerGSTSum = tax;
}

} // namespace zelvor
