#include "product_form.h"

#include "catalogs/contragent_select_view.h"
#include "catalogs/product_view_controller.h"

#include <cmath>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

QStringList shownColumns(const ProductDocumentView& view)
{
    QStringList shown;
    for (const ViewColumn& column : view.columns()) {
        if (!column.hidden)
            shown.append(column.identifier);
    }
    return shown;
}

QString titleOf(const ProductDocumentView& view, const QString& identifier)
{
    for (const ViewColumn& column : view.columns()) {
        if (column.identifier == identifier)
            return column.title;
    }
    return {};
}

// What a type enables

TEST(ProductForm, eachTypeEnablesItsOwnInputs)
{
    struct Enabled {
        DocType type;
        bool stockFrom, stockTo, contragent, shipment, discount;
    };
    const Enabled table[] = {
        {DocType::BuyProduct, false, true, true, true, false},
        {DocType::Return, false, true, true, true, false},
        {DocType::SellProduct, true, false, true, true, true},
        {DocType::SellIntangibles, false, false, true, false, true},
        {DocType::MoveProduct, true, true, false, false, false},
        {DocType::AddProduct, false, true, false, false, false},
        {DocType::DeleteProduct, true, false, false, false, false},
    };
    TeaShop shop;
    for (const Enabled& row : table) {
        const auto form = shop.form(row.type);
        EXPECT_EQ(form->mainView.stockFromSelect.enabled(), row.stockFrom);
        EXPECT_EQ(form->mainView.stockToSelect.enabled(), row.stockTo);
        EXPECT_EQ(form->mainView.contragentField.enabled(), row.contragent);
        EXPECT_EQ(form->deferment.enabled(), row.contragent);
        EXPECT_EQ(form->shipment.enabled(), row.shipment);
        EXPECT_EQ(form->contragentDiscount.enabled(), row.discount);
        EXPECT_EQ(form->contragentDiscountSlider.hidden(), !row.discount);
        EXPECT_EQ(form->document->contragentID, row.contragent ? shop.acme->id : 0);
        EXPECT_EQ(form->document->stockFromID, row.stockFrom ? shop.main->id : 0);
        EXPECT_EQ(form->mainView.setStockFromID(shop.shop->id), row.stockFrom);
        EXPECT_EQ(form->mainView.setStockToID(shop.shop->id), row.stockTo);
    }
}

TEST(ProductForm, aNewFormStartsWithTheDefaultWarehouseNowAndNothingToSave)
{
    TeaShop shop;
    auto document = std::make_shared<ProductDocument>();
    document->insertDocType(DocType::SellProduct);
    ProductDocumentViewController form(shop.appDelegate, document);
    form.prepareData();
    EXPECT_EQ(document->date, shop.clock.now());
    EXPECT_EQ(form.mainView.date.moment(), shop.clock.now());
    EXPECT_EQ(form.mainView.stockFromSelect.selectedTitle(), u"Main"_s);
    EXPECT_EQ(form.mainView.stockFromLabel.color(), inOrderColor);
    EXPECT_EQ(form.mainView.contragentLabel.color(), redColor);
    EXPECT_FALSE(form.mainView.saveButton.enabled());
    EXPECT_FALSE(form.mainView.deleteDocButton.enabled());
    EXPECT_FALSE(form.mainView.confirmButton.enabled());
    EXPECT_EQ(form.mainView.groundColor(), rowsMissingColor);
    EXPECT_EQ(form.mainView.name(), document->name());
    EXPECT_TRUE(form.setContragentFromID(shop.acme->id));
    EXPECT_TRUE(form.mainView.saveButton.enabled()) << "after the first input";
    EXPECT_EQ(form.mainView.contragentLabel.color(), inOrderColor);
}

TEST(ProductForm, aHiddenOrUnknownRecordIsNotTaken)
{
    TeaShop shop;
    const auto form = shop.formWithTea(DocType::SellProduct, 1, 1);
    EXPECT_TRUE(form->mainView.confirmButton.enabled());
    shop.shop->isHidden = true;
    shop.store(*shop.shop);
    form->mainView.prepareStocks();
    EXPECT_FALSE(form->mainView.setStockFromID(shop.shop->id));
    EXPECT_EQ(form->document->stockFromID, 0);
    EXPECT_FALSE(form->mainView.confirmButton.enabled());
    EXPECT_FALSE(form->mainView.setStockFromID(999));
    EXPECT_TRUE(form->mainView.setStockFromID(shop.main->id));
    shop.acme->isHidden = true;
    shop.store(*shop.acme);
    EXPECT_FALSE(form->setContragentFromID(shop.acme->id));
    EXPECT_EQ(form->mainView.missingInputs(), QStringList{u"Counterparty"_s});
    EXPECT_FALSE(form->setContragentFromID(999));
    shop.cup->isHidden = true;
    shop.store(*shop.cup);
    EXPECT_EQ(form->addProductFromID(shop.cup->id), -1);
    EXPECT_EQ(form->addProductFromID(999), -1);
    EXPECT_FALSE(form->setManagerFromID(999));
    const auto manager = shop.employee(u"Ann"_s);
    EXPECT_TRUE(form->setManagerFromID(manager->id));
    EXPECT_EQ(form->document->managerName(), u"Ann"_s);
    manager->isHidden = true;
    shop.store(*manager);
    EXPECT_FALSE(form->setManagerFromID(manager->id));
    EXPECT_EQ(form->document->managerID, 0);
}

TEST(ProductForm, choosingACounterpartyFillsDefermentAndDiscount)
{
    TeaShop shop;
    const auto regular = shop.contragent(u"Regular"_s, -12, 10, 14);
    const auto form = shop.form(DocType::SellProduct);
    EXPECT_TRUE(form->setContragentFromID(regular->id));
    EXPECT_EQ(form->deferment.value(), Decimal(14));
    EXPECT_EQ(form->contragentDiscount.value(), Decimal(10));
    EXPECT_EQ(form->contragentDiscountSlider.value(), 10);
    EXPECT_EQ(form->contragentBalance.value(), Decimal(-12));
    EXPECT_EQ(form->contragentBalance.color(), redColor);
    form->clearContragent();
    EXPECT_EQ(form->deferment.value(), Decimal(0));
    EXPECT_EQ(form->mainView.contragentField.text(), QString());
    const auto purchase = shop.form(DocType::BuyProduct);
    EXPECT_TRUE(purchase->setContragentFromID(regular->id));
    EXPECT_EQ(purchase->contragentDiscount.value(), Decimal(0));
}

// Rows

TEST(ProductForm, theSameProductDroppedTwiceIsOneRowAtTheFirstPrice)
{
    TeaShop shop;
    const auto form = shop.form(DocType::SellProduct);
    EXPECT_EQ(form->addProductFromID(shop.tea->id), 0);
    EXPECT_TRUE(form->setRowValue(0, u"price"_s, Decimal(6)));
    EXPECT_EQ(form->addProductFromID(shop.tea->id), 0);
    ASSERT_EQ(form->mainView.numberOfRows(), 1);
    EXPECT_EQ(form->mainView.value(0, u"amount"_s).toDouble(), 2);
    EXPECT_EQ(form->mainView.value(0, u"price"_s).toDouble(), 6);
    EXPECT_EQ(form->hasRowWithProduct(*shop.tea), form->document->documentRows[0]);
    EXPECT_FALSE(form->hasRowWithProduct(*shop.cup));
}

TEST(ProductForm, aDropTakesThePriceOfItsType)
{
    TeaShop shop;
    shop.tea->setVatRate(20.125);
    shop.tea->setGstRate(7.5);
    shop.store(*shop.tea);
    const auto regular = shop.contragent(u"Regular"_s, 0, 10);
    for (const DocType type : productTypes) {
        const auto form = shop.form(type);
        if (form->contragentEnabled()) {
            EXPECT_TRUE(form->setContragentFromID(regular->id));
        }
        ASSERT_EQ(form->addProductFromID(shop.tea->id), 0);
        const ProductDocumentRow& row = *form->document->documentRows[0];
        const bool sells = type == DocType::SellProduct || type == DocType::SellIntangibles;
        EXPECT_EQ(row.priceCost(), sells ? 6.3 : type == DocType::Return ? 7 : 4);
        EXPECT_EQ(row.currentPriceCost(), 7);
        EXPECT_EQ(row.baseCost(), 4);
        EXPECT_EQ(row.amount(), 1);
        EXPECT_EQ(row.priceCostSum(), row.priceCost());
        EXPECT_EQ(row.vatRate(), sells ? 20.12 : 0);
        EXPECT_EQ(row.gstRate(), sells ? 7.5 : 0);
    }
}

TEST(ProductForm, aTypedPriceIsTheCostOfAPurchaseAndAStockInOnly)
{
    TeaShop shop;
    for (const DocType type : productTypes) {
        const auto form = shop.form(type);
        ASSERT_EQ(form->addProductFromID(shop.tea->id), 0);
        EXPECT_TRUE(form->mainView.setValue(0, u"price"_s, 5.5));
        const bool takesCost = type == DocType::BuyProduct || type == DocType::AddProduct;
        EXPECT_EQ(form->document->documentRows[0]->priceCost(), 5.5);
        EXPECT_EQ(form->document->documentRows[0]->baseCost(), takesCost ? 5.5 : 4);
    }
}

TEST(ProductForm, cellsTakeNumbersTextsAndTicks)
{
    TeaShop shop;
    const auto form = shop.formWithTea(DocType::BuyProduct, 1, 4);
    EXPECT_TRUE(form->mainView.setValue(0, u"amount"_s, u"2.5"_s));
    EXPECT_EQ(form->totalAmount.value(), Decimal::fromText(u"2.5"));
    EXPECT_TRUE(form->mainView.setValue(0, u"includeShipment"_s, true));
    EXPECT_TRUE(form->document->documentRows[0]->includeShipment);
    EXPECT_TRUE(form->mainView.setValue(0, u"includeShipment"_s, 2));
    EXPECT_TRUE(form->document->documentRows[0]->includeShipment) << "a mixed tick counts as on";
    EXPECT_TRUE(form->mainView.setValue(0, u"includeShipment"_s, false));
    EXPECT_FALSE(form->document->documentRows[0]->includeShipment);
    EXPECT_FALSE(form->mainView.setValue(0, u"name"_s, u"Coffee"_s));
    EXPECT_FALSE(form->mainView.setValue(7, u"amount"_s, 1));
    EXPECT_EQ(form->mainView.value(7, u"amount"_s), QString());
}

TEST(ProductForm, aNumberThatCannotBeKeptIsRefused)
{
    TeaShop shop;
    const auto form = shop.formWithTea(DocType::BuyProduct, 1, 4);
    for (const QVariant& bad :
         {QVariant(u"1,5"_s), QVariant(u""_s), QVariant(u"NaN"_s), QVariant(u"10000000000000.01"_s),
          QVariant(u"1e400"_s), QVariant(std::nan("")), QVariant(std::numeric_limits<double>::infinity())}) {
        EXPECT_FALSE(form->mainView.setValue(0, u"amount"_s, bad)) << qPrintable(bad.toString());
        EXPECT_FALSE(form->mainView.setValue(0, u"price"_s, bad)) << qPrintable(bad.toString());
    }
    EXPECT_EQ(form->document->documentRows[0]->priceCostSum(), 4);
    EXPECT_TRUE(form->setRowValue(0, u"price"_s, Decimal(10'000'000'000'000)));
    EXPECT_TRUE(form->setRowValue(0, u"amount"_s, Decimal(2)));
    const QStringList before = shop.dump();
    EXPECT_FALSE(form->writeDoc());
    EXPECT_EQ(shop.alertText(), u"A number is missing or too large: Tea\n"
                                "A sum of the document is missing or too large.\n"_s);
    EXPECT_FALSE(form->confirmDoc());
    EXPECT_EQ(shop.dump(), before);
    EXPECT_TRUE(form->setRowValue(0, u"price"_s, Decimal(1)));
    form->deferment.setValue(Decimal(-1));
    EXPECT_FALSE(form->writeDoc());
    EXPECT_EQ(shop.alertText(), u"The deferment must lie between 0 and 36500 days.\n"_s);
    form->deferment.setValue(Decimal::nan());
    EXPECT_FALSE(form->writeDoc());
    form->deferment.setValue(Decimal(1));
    form->shipment.setValue(Decimal::nan());
    EXPECT_FALSE(form->writeDoc());
    form->shipment.setValue(Decimal(0));
    form->document->date = std::numeric_limits<qint64>::max();
    EXPECT_FALSE(form->writeDoc());
    EXPECT_EQ(shop.alertText(), u"The date is out of range.\n"_s);
    EXPECT_EQ(shop.dump(), before);
}

TEST(ProductForm, deletingTheLastRowWarnsAndTakesTheConfirmButtonAway)
{
    TeaShop shop;
    const auto form = shop.formWithTea(DocType::BuyProduct, 1, 4);
    EXPECT_TRUE(form->mainView.confirmButton.enabled());
    EXPECT_EQ(form->mainView.groundColor(), whiteColor);
    EXPECT_FALSE(form->deleteRow()) << "nothing is selected";
    form->mainView.selectRow(0);
    form->mainView.checkControlls();
    EXPECT_TRUE(form->mainView.deleteSelectedRowsButton.enabled());
    EXPECT_TRUE(form->mainView.deleteSelectedRowsButton.userChanged());
    EXPECT_EQ(form->mainView.numberOfRows(), 0);
    EXPECT_EQ(form->mainView.groundColor(), rowsMissingColor);
    EXPECT_FALSE(form->mainView.confirmButton.enabled());
    EXPECT_FALSE(form->mainView.deleteSelectedRowsButton.enabled());
}

TEST(ProductForm, aStoredRowLeavesTheFileAtOnce)
{
    TeaShop shop;
    const auto form = shop.formWithTea(DocType::BuyProduct, 1, 4);
    shop.add(*form, *shop.cup, 2, 1);
    ASSERT_TRUE(form->writeDoc());
    const auto reopened = shop.reopen(form->document->id);
    reopened->mainView.selectRow(0);
    shop.connector->failCall(1, FaultInjectingConnector::Remove);
    EXPECT_FALSE(reopened->deleteRow());
    EXPECT_EQ(reopened->mainView.numberOfRows(), 2) << "what stays in the file stays in the form";
    shop.connector->failCall(0);
    EXPECT_TRUE(reopened->deleteRow());
    EXPECT_EQ(shop.db.freeSQL<ProductDocumentRow>().size(), 1U);
    EXPECT_EQ(shop.read(*form->document)->documentRows[0]->productID, shop.cup->id);
}

// Taxes and totals

TEST(ProductForm, taxesFollowTheSettings)
{
    TeaShop shop;
    shop.changeParams([](Params& params) { params.useVAT = true; });
    for (const DocType type : productTypes) {
        const auto form = shop.form(type);
        EXPECT_TRUE(form->vatCheck.isOn());
        EXPECT_TRUE(form->vatCheck.enabled());
        EXPECT_FALSE(form->gstCheck.isOn());
        EXPECT_FALSE(form->gstCheck.enabled());
        EXPECT_TRUE(form->document->withVAT);
        EXPECT_FALSE(form->document->withGST);
    }
}

TEST(ProductForm, columnsFollowTheTaxes)
{
    TeaShop shop;
    shop.changeParams([](Params& params) { params.useVAT = params.useGST = true; });
    const auto form = shop.formWithTea(DocType::SellProduct, 10, 12);
    EXPECT_TRUE(form->setRowValue(0, u"vatRate"_s, Decimal(20)));
    EXPECT_TRUE(form->setRowValue(0, u"gstRate"_s, Decimal(10)));
    const ProductDocumentView& view = form->mainView;
    const QStringList taxed{u"name"_s,       u"measurement"_s, u"amount"_s,   u"packs"_s, u"price"_s,
                            u"vatPercent"_s, u"vat"_s,         u"totalNet"_s, u"total"_s};
    EXPECT_EQ(shownColumns(view), taxed);
    EXPECT_EQ(titleOf(view, u"vatPercent"_s), u"VAT %"_s);
    EXPECT_EQ(view.vatAmountLabel.text(), u"VAT Amount, €"_s);
    EXPECT_EQ(view.value(0, u"vatPercent"_s).toDouble(), 0.2);
    EXPECT_EQ(view.value(0, u"vat"_s).toDouble(), 20);
    EXPECT_EQ(view.value(0, u"totalNet"_s).toDouble(), 100);
    EXPECT_EQ(view.value(0, u"total"_s).toDouble(), 120);
    form->vatCheck.setOn(false);
    EXPECT_TRUE(form->vatCheck.userChanged());
    EXPECT_EQ(shownColumns(view), taxed);
    EXPECT_EQ(titleOf(view, u"vatPercent"_s), u"TAX %"_s);
    EXPECT_EQ(view.vatAmountLabel.text(), u"TAX Amount, €"_s);
    EXPECT_EQ(view.value(0, u"vatPercent"_s).toDouble(), 0.1);
    EXPECT_EQ(view.value(0, u"vat"_s).toDouble(), 12);
    EXPECT_EQ(view.value(0, u"totalNet"_s).toDouble(), 120);
    EXPECT_EQ(view.value(0, u"total"_s).toDouble(), 132);
    form->gstCheck.setOn(false);
    EXPECT_TRUE(form->gstCheck.userChanged());
    EXPECT_EQ(shownColumns(view),
              (QStringList{u"name"_s, u"measurement"_s, u"amount"_s, u"packs"_s, u"price"_s, u"total"_s}));
    EXPECT_TRUE(view.vatAmountLabel.hidden());
    EXPECT_EQ(view.totalLabel.text(), u"Total, €"_s);
}

TEST(ProductForm, theShipmentTickShowsInPurchasesAndReturnsOnly)
{
    TeaShop shop;
    for (const DocType type : productTypes) {
        const auto form = shop.form(type);
        EXPECT_EQ(shownColumns(form->mainView).contains(u"includeShipment"_s),
                  type == DocType::BuyProduct || type == DocType::Return);
    }
}

TEST(ProductForm, totalsAddUpByTheLeadingTax)
{
    struct Case {
        bool vat, gst;
        const char* sum;
        const char* due;
        const char* tax;
    };
    const Case cases[] = {{false, false, "220", "225.5", "0"},
                          {true, false, "183.33", "225.5", "36.67"},
                          {false, true, "220", "242", "16.5"},
                          {true, true, "220", "242", "16.5"}};
    TeaShop shop;
    shop.tea->setPackAmount(4);
    shop.store(*shop.tea);
    const auto form = shop.formWithTea(DocType::SellProduct, 10, 12);
    shop.add(*form, *shop.cup, 5, 20);
    for (int row = 0; row < 2; ++row) {
        EXPECT_TRUE(form->setRowValue(row, u"vatRate"_s, Decimal(20)));
        EXPECT_TRUE(form->setRowValue(row, u"gstRate"_s, Decimal::fromText(u"7.5")));
    }
    form->shipment.setValue(Decimal::fromText(u"5.5"));
    EXPECT_TRUE(form->shipment.userChanged());
    for (const Case& given : cases) {
        form->vatCheck.setOn(given.vat);
        form->gstCheck.setOn(given.gst);
        form->mainView.taxesChecked();
        EXPECT_EQ(form->totalAmount.value(), Decimal(15));
        EXPECT_EQ(form->totalPacks.value(), Decimal::fromText(u"2.5"));
        EXPECT_EQ(form->totalSum.value().toText(), QLatin1String(given.sum));
        EXPECT_EQ(form->balanceDue.value().toText(), QLatin1String(given.due));
        EXPECT_EQ(form->vatAmount.value().toText(), QLatin1String(given.tax));
    }
}

TEST(ProductForm, anEmptiedShipmentIsZero)
{
    TeaShop shop;
    const auto form = shop.formWithTea(DocType::BuyProduct, 1, 4);
    form->shipment.setValue(Decimal(3));
    EXPECT_TRUE(form->shipment.userChanged());
    EXPECT_EQ(form->document->shipment(), 3);
    EXPECT_EQ(form->balanceDue.value(), Decimal(7));
    form->shipment.clear();
    EXPECT_TRUE(form->shipment.userChanged());
    EXPECT_FALSE(form->shipment.isEmpty());
    EXPECT_EQ(form->document->shipment(), 0);
    EXPECT_EQ(form->balanceDue.value(), Decimal(4));
}

// Discount

TEST(ProductForm, addsUpTheShipmentThatIsStored)
{
    TeaShop shop;
    const auto form = shop.formWithTea(DocType::BuyProduct, 1, 10);
    EXPECT_TRUE(form->setRowValue(0, u"price"_s, Decimal::fromText(u"10.01")));
    form->shipment.setValue(Decimal::fromText(u"1.005"));
    EXPECT_TRUE(form->shipment.userChanged());
    EXPECT_EQ(form->balanceDue.real(), 11.01);
    ASSERT_TRUE(form->confirmDoc());
    const auto stored = shop.read(*form->document);
    EXPECT_EQ(stored->docSum(), 11.01);
    EXPECT_EQ(stored->shipment(), 1);
    EXPECT_EQ(stored->subtotal().toDouble(), 10.01);
}

TEST(ProductForm, switchingTheCounterpartyPricesAllRowsAnew)
{
    TeaShop shop;
    const auto regular = shop.contragent(u"Regular"_s, 0, 10);
    const auto form = shop.formWithTea(DocType::SellProduct, 1, 99);
    shop.add(*form, *shop.cup, 1, 99);
    EXPECT_TRUE(form->setContragentFromID(regular->id));
    EXPECT_EQ(form->document->documentRows[0]->priceCost(), 6.3);
    EXPECT_EQ(form->document->documentRows[1]->priceCost(), 2.7);
    EXPECT_EQ(form->balanceDue.value(), Decimal(9));
    EXPECT_TRUE(form->setContragentFromID(shop.acme->id));
    EXPECT_EQ(form->document->documentRows[0]->priceCost(), 7);
}

TEST(ProductForm, aFreeProductKeepsItsTypedPrice)
{
    TeaShop shop;
    const auto sample = shop.product(u"Sample"_s, 0);
    const auto form = shop.form(DocType::SellProduct);
    shop.add(*form, *sample, 1, 2);
    form->contragentDiscountSlider.setValue(50);
    EXPECT_TRUE(form->contragentDiscountSlider.userChanged());
    EXPECT_EQ(form->document->documentRows[0]->priceCost(), 2);
}

TEST(ProductForm, theSliderAndTheFieldGiveTheDiscount)
{
    TeaShop shop;
    const auto form = shop.formWithTea(DocType::SellProduct, 1, 99);
    form->contragentDiscountSlider.setValue(50);
    EXPECT_TRUE(form->contragentDiscountSlider.userChanged());
    EXPECT_EQ(form->contragentDiscount.value(), Decimal(50));
    EXPECT_EQ(form->document->documentRows[0]->priceCost(), 3.5);
    form->contragentDiscount.setValue(Decimal::fromText(u"12.5"));
    EXPECT_TRUE(form->contragentDiscount.userChanged());
    EXPECT_EQ(form->contragentDiscountSlider.value(), 12);
    EXPECT_EQ(form->document->documentRows[0]->priceCost(), 6.16) << "0.125 is 0.12 at two digits";
    shop.stockRow(*shop.main, *shop.tea, 10);
    ASSERT_TRUE(form->confirmDoc());
    EXPECT_EQ(shop.read(*form->document)->contragentDiscount(), 12.5);
    EXPECT_EQ(shop.read(*shop.acme)->discount(), 0) << "the counterparty's own discount stays";
}

TEST(ProductForm, aChangedCounterpartyIsReadAnew)
{
    TeaShop shop;
    const auto form = shop.formWithTea(DocType::SellProduct, 1, 7);
    shop.acme->setDiscount(10);
    shop.acme->name = u"Acme & Sons"_s;
    shop.store(*shop.acme);
    shop.appDelegate.notifications.post(NotificationName::ContragentChangedNotification);
    EXPECT_EQ(form->mainView.contragentField.text(), u"Acme & Sons"_s);
    EXPECT_EQ(form->contragentDiscount.value(), Decimal(10));
    EXPECT_EQ(form->document->documentRows[0]->priceCost(), 6.3);
}

TEST(ProductForm, aSavedDraftThatACounterpartysNewDiscountPricedAnewCanBeSavedAgain)
{
    TeaShop shop;
    const auto form = shop.formWithTea(DocType::SellProduct, 1, 9);
    ASSERT_TRUE(form->writeDoc());
    const auto purchase = shop.formWithTea(DocType::BuyProduct, 1, 4);
    ASSERT_TRUE(purchase->writeDoc());
    shop.appDelegate.notifications.post(NotificationName::ContragentChangedNotification);
    EXPECT_EQ(form->document->documentRows[0]->priceCost(), 7) << "a list read anew prices by it";
    EXPECT_TRUE(form->mainView.saveButton.enabled());
    EXPECT_FALSE(purchase->mainView.saveButton.enabled()) << "nothing changed";
    ASSERT_TRUE(form->writeDoc());
    shop.appDelegate.notifications.post(NotificationName::ContragentChangedNotification);
    EXPECT_FALSE(form->mainView.saveButton.enabled());
}

TEST(ProductForm, changedWarehousesAreReadAnew)
{
    TeaShop shop;
    const auto form = shop.formWithTea(DocType::SellProduct, 1, 7);
    shop.main->name = u"Central"_s;
    shop.store(*shop.main);
    const auto cellar = shop.stock(u"Cellar"_s);
    shop.appDelegate.notifications.post(NotificationName::StockChangedNotification);
    QStringList titles;
    for (const auto& item : form->mainView.stockFromSelect.items())
        titles.append(item.title);
    EXPECT_EQ(titles, (QStringList{QString(), u"Cellar"_s, u"Central"_s, u"Shop"_s}));
    EXPECT_EQ(form->mainView.stockFromSelect.selectedTitle(), u"Central"_s);
    EXPECT_EQ(form->document->stockFromName(), u"Central"_s);
    form->mainView.stockFromSelect.selectTag(cellar->id);
    EXPECT_TRUE(form->mainView.stockFromSelect.userChanged());
    EXPECT_EQ(form->document->stockFromID, cellar->id);
}

// Drafts

TEST(ProductForm, aDraftStoresItsHeadAsItStands)
{
    TeaShop shop;
    shop.setBalance(-40);
    const auto form = shop.formWithTea(DocType::SellProduct, 2, 7);
    form->deferment.setValue(Decimal(3));
    form->shipment.setValue(Decimal(5));
    EXPECT_TRUE(form->shipment.userChanged());
    form->contragentDiscount.setValue(Decimal(5));
    form->mainView.comment.setText(u"call first"_s);
    EXPECT_TRUE(form->mainView.comment.userChanged());
    shop.posted.clear();
    ASSERT_TRUE(form->mainView.saveButton.userChanged());
    EXPECT_EQ(shop.posted.names, std::vector{NotificationName::ProductDocChangedNotification});
    EXPECT_FALSE(form->mainView.saveButton.enabled());
    EXPECT_TRUE(form->mainView.deleteDocButton.enabled());
    const auto stored = shop.read(*form->document);
    EXPECT_FALSE(stored->confirmed);
    EXPECT_EQ(stored->docNumber, 0);
    EXPECT_EQ(stored->docSum(), 0);
    EXPECT_EQ(stored->vatSum(), 0);
    EXPECT_EQ(stored->leftToPay(), 0);
    EXPECT_EQ(stored->contragentBalance(), 0);
    EXPECT_EQ(stored->payToDate, stored->date + 3 * 86400);
    EXPECT_EQ(stored->shipment(), 5);
    EXPECT_EQ(stored->contragentDiscount(), 5);
    EXPECT_EQ(stored->comment, u"call first"_s);
    EXPECT_EQ(stored->contragentID, shop.acme->id);
    EXPECT_EQ(stored->stockFromID, shop.main->id);
    EXPECT_EQ(shop.lastNumber(DocType::SellProduct), 0);
    EXPECT_EQ(shop.balance(), -40);
}

TEST(ProductForm, aDraftCanBeSavedWithInputsMissing)
{
    TeaShop shop;
    const auto form = shop.form(DocType::SellProduct);
    form->clearContragent();
    EXPECT_TRUE(form->writeDoc());
    EXPECT_EQ(shop.db.freeSQL<ProductDocument>().size(), 1U);
}

TEST(ProductForm, aReopenedDraftKeepsPricesTaxesDiscountAndDeferment)
{
    TeaShop shop;
    shop.changeParams([](Params& params) { params.useVAT = true; });
    const auto form = shop.formWithTea(DocType::SellProduct, 2, 9);
    form->deferment.setValue(Decimal(3));
    form->contragentDiscount.setValue(Decimal(5));
    form->vatCheck.setOn(false);
    EXPECT_TRUE(form->vatCheck.userChanged());
    ASSERT_TRUE(form->writeDoc());
    shop.acme->setDiscount(50);
    shop.acme->deferment = 30;
    shop.store(*shop.acme);
    shop.tea->setPriceCost(100);
    shop.store(*shop.tea);
    const auto reopened = shop.reopen(form->document->id);
    EXPECT_EQ(reopened->document->documentRows[0]->priceCost(), 9);
    EXPECT_FALSE(reopened->vatCheck.isOn());
    EXPECT_EQ(reopened->deferment.value(), Decimal(3));
    EXPECT_EQ(reopened->contragentDiscount.value(), Decimal(5));
    EXPECT_EQ(reopened->balanceDue.value(), Decimal(18));
    EXPECT_FALSE(reopened->mainView.saveButton.enabled());
    EXPECT_TRUE(reopened->mainView.deleteDocButton.enabled());
    EXPECT_TRUE(reopened->mainView.confirmButton.enabled());
    EXPECT_TRUE(reopened->setRowValue(0, u"amount"_s, Decimal(3)));
    EXPECT_TRUE(reopened->mainView.saveButton.enabled()) << "a change can be saved again";
    ASSERT_TRUE(reopened->writeDoc());
    EXPECT_EQ(shop.read(*form->document)->documentRows[0]->amount(), 3);
    EXPECT_EQ(shop.db.freeSQL<ProductDocumentRow>().size(), 1U);
}

TEST(ProductForm, aSaveThatFailsShowsNothingAndCanBeTriedAgain)
{
    TeaShop shop;
    const QStringList before = shop.dump();
    const auto form = shop.formWithTea(DocType::BuyProduct, 1, 4);
    shop.add(*form, *shop.cup, 1, 1);
    int call = 1;
    for (;; ++call) {
        shop.connector->failCall(call, FaultInjectingConnector::All & ~FaultInjectingConnector::Commit);
        const bool saved = form->writeDoc();
        if (!shop.connector->hasFailed()) {
            shop.connector->failCall(0);
            EXPECT_TRUE(saved);
            break;
        }
        shop.connector->failCall(0);
        ASSERT_FALSE(saved);
        EXPECT_EQ(shop.dump(), before);
        EXPECT_EQ(form->document->id, 0);
        EXPECT_EQ(form->document->documentRows[0]->id, 0);
        EXPECT_TRUE(form->mainView.saveButton.enabled());
        EXPECT_TRUE(shop.dialogs.alerts.empty());
    }
    EXPECT_GE(call, 3);
    EXPECT_EQ(shop.read(*form->document)->documentRows.size(), 2U);
}

TEST(ProductForm, aSaveThatCannotBeCommittedIsTakenBack)
{
    TeaShop shop;
    const auto form = shop.formWithTea(DocType::BuyProduct, 1, 4);
    const QStringList before = shop.dump();
    shop.connector->failCall(1, FaultInjectingConnector::Commit);
    EXPECT_FALSE(form->writeDoc());
    EXPECT_EQ(shop.dump(), before);
    EXPECT_EQ(form->document->id, 0);
    EXPECT_EQ(shop.dialogs.lastAlert(), u"The changes were not saved!"_s);
    EXPECT_TRUE(form->writeDoc());
}

TEST(ProductForm, aStoredDraftThatCannotBeRewrittenStaysAsItWas)
{
    TeaShop shop;
    const auto form = shop.formWithTea(DocType::BuyProduct, 1, 4);
    ASSERT_TRUE(form->writeDoc());
    shop.add(*form, *shop.cup, 1, 1);
    EXPECT_TRUE(form->setRowValue(0, u"amount"_s, Decimal(9)));
    const QStringList before = shop.dump();
    for (int call = 1;; ++call) {
        shop.connector->failCall(call);
        const bool saved = form->writeDoc();
        if (!shop.connector->hasFailed()) {
            shop.connector->failCall(0);
            EXPECT_TRUE(saved);
            break;
        }
        shop.connector->failCall(0);
        ASSERT_FALSE(saved);
        ASSERT_EQ(shop.dump(), before) << "call " << call;
        EXPECT_EQ(form->document->documentRows[1]->id, 0);
    }
    EXPECT_EQ(shop.read(*form->document)->documentRows[0]->amount(), 9);
}

TEST(ProductForm, deletingADraftTakesItsRowsAndClosesTheForm)
{
    TeaShop shop;
    const QStringList before = shop.dump();
    const auto form = shop.formWithTea(DocType::BuyProduct, 1, 4);
    EXPECT_FALSE(form->deleteDoc()) << "it was never saved";
    shop.add(*form, *shop.cup, 1, 1);
    ASSERT_TRUE(form->writeDoc());
    EXPECT_EQ(form->addProductFromID(shop.tasting->id), 2) << "not stored yet";
    int closed = 0;
    form->onClose = [&closed] { ++closed; };
    shop.posted.clear();
    const QStringList saved = shop.dump();
    for (int call = 1;; ++call) {
        shop.connector->failCall(call);
        const bool deleted = form->deleteDoc();
        if (!shop.connector->hasFailed()) {
            shop.connector->failCall(0);
            EXPECT_TRUE(deleted);
            break;
        }
        shop.connector->failCall(0);
        ASSERT_FALSE(deleted);
        ASSERT_EQ(shop.dump(), saved) << "call " << call;
        EXPECT_EQ(closed, 0);
        shop.posted.clear();
    }
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(shop.posted.names, std::vector{NotificationName::ProductDocChangedNotification});
    EXPECT_EQ(shop.dump(), before);
}

// Choosers

TEST(ProductForm, aProductIsDraggedOutOfTheTree)
{
    TeaShop shop;
    ProductGroup group;
    group.name = u"Drinks"_s;
    const auto drinks = shop.store(group);
    const auto form = shop.form(DocType::BuyProduct);
    EXPECT_TRUE(form->mainView.acceptDrop(shop.tea->getIdentifierForDragging()));
    EXPECT_FALSE(form->mainView.acceptDrop(drinks->getIdentifierForDragging()));
    EXPECT_FALSE(form->mainView.acceptDrop(u"nothing"_s));
    EXPECT_EQ(form->mainView.numberOfRows(), 1);
}

TEST(ProductForm, theTreeShowsStockWhereTheTypeAsksForIt)
{
    TeaShop shop;
    for (const DocType type : productTypes) {
        const auto form = shop.form(type);
        QStringList hidden;
        for (const ViewColumn& column : form->mainProductView().view.columns()) {
            if (column.hidden)
                hidden.append(column.identifier);
        }
        const bool noStock = type == DocType::BuyProduct || type == DocType::AddProduct;
        EXPECT_EQ(hidden.contains(u"amount"_s), noStock);
        EXPECT_EQ(hidden.contains(u"reserve"_s), noStock);
        EXPECT_TRUE(hidden.contains(u"selected"_s));
        EXPECT_TRUE(hidden.contains(u"hidden"_s));
    }
}

TEST(ProductForm, anotherWarehouseShowsItsOwnStock)
{
    TeaShop shop;
    shop.stockRow(*shop.shop, *shop.cup, 2);
    const auto form = shop.form(DocType::MoveProduct);
    const auto shown = [&form] { return form->mainProductView().view.products().size(); };
    EXPECT_EQ(shown(), 0U);
    form->mainView.stockFromSelect.selectTag(shop.shop->id);
    EXPECT_TRUE(form->mainView.stockFromSelect.userChanged());
    EXPECT_EQ(shown(), 1U);
}

TEST(ProductForm, aCounterpartyIsChosenByADoubleClick)
{
    TeaShop shop;
    const auto other = shop.contragent(u"Other"_s);
    const auto form = shop.form(DocType::SellProduct);
    form->selectContragent();
    ContragentSelectView& chooser = form->contragentSelectView();
    EXPECT_TRUE(chooser.selectPopover.isOpen());
    ASSERT_EQ(chooser.contragents().size(), 2U);
    chooser.doubleAction(chooser.contragents()[1]);
    EXPECT_FALSE(chooser.selectPopover.isOpen());
    EXPECT_EQ(form->document->contragentID, other->id);
}

TEST(ProductForm, whatIsDraggedIsToldBeforeItFallsAndIsSelectedAfter)
{
    TeaShop shop;
    ProductGroup group;
    group.name = u"Drinks"_s;
    const auto drinks = shop.store(group);
    const auto form = shop.form(DocType::BuyProduct);
    ProductDocumentView& view = form->mainView;
    EXPECT_TRUE(view.validateDrop(shop.tea->getIdentifierForDragging()));
    EXPECT_FALSE(view.validateDrop(drinks->getIdentifierForDragging()));
    EXPECT_FALSE(view.validateDrop(u"nonsense"_s));
    EXPECT_FALSE(view.deleteSelectedRowsButton.enabled());
    EXPECT_TRUE(view.acceptDrop(shop.cup->getIdentifierForDragging()));
    EXPECT_TRUE(view.acceptDrop(shop.tea->getIdentifierForDragging()));
    EXPECT_EQ(view.selectedRow(), 1);
    EXPECT_TRUE(view.acceptDrop(shop.cup->getIdentifierForDragging()));
    EXPECT_EQ(view.selectedRow(), 0);
    EXPECT_TRUE(view.deleteSelectedRowsButton.enabled());
    view.selectRow(-1);
    view.selectionChanged();
    EXPECT_FALSE(view.deleteSelectedRowsButton.enabled());
    form->document->confirmed = true;
    EXPECT_FALSE(view.validateDrop(shop.tea->getIdentifierForDragging()));
}

TEST(ProductForm, theResponsibleEmployeeIsChosenAmongThoseWhoAreNotHidden)
{
    TeaShop shop;
    const auto zoe = shop.employee(u"Zoe"_s);
    const auto ann = shop.employee(u"Ann"_s);
    Manager gone;
    gone.name = u"Left"_s;
    gone.isHidden = true;
    const auto left = shop.store(gone);
    const auto form = shop.form(DocType::SellProduct);
    ProductDocumentView& view = form->mainView;
    view.prepareManagers();
    QStringList names;
    for (const PopUpButton::Item& item : view.managerSelect.items())
        names.append(item.title);
    EXPECT_EQ(names.join(u'|'), u"|Ann|Zoe"_s);
    ASSERT_TRUE(view.managerSelect.selectTag(zoe->id));
    ASSERT_TRUE(view.managerSelect.userChanged());
    EXPECT_EQ(form->document->managerID, zoe->id);
    EXPECT_TRUE(view.saveButton.enabled());
    EXPECT_TRUE(form->setManagerFromID(ann->id));
    EXPECT_EQ(view.managerSelect.selectedTag(), ann->id);
    EXPECT_FALSE(form->setManagerFromID(left->id));
    EXPECT_EQ(view.managerSelect.selectedTag(), 0);
}

TEST(ProductForm, aDraftIsDeletedWhenTheUserSaysSo)
{
    TeaShop shop;
    const auto form = shop.formWithTea(DocType::SellProduct, 2, 7);
    form->askDeleteDoc();
    EXPECT_TRUE(shop.dialogs.questions.empty()); // nothing is stored yet
    ASSERT_TRUE(form->writeDoc());
    shop.dialogs.answers = {firstButton + 1};
    EXPECT_TRUE(form->mainView.deleteDocButton.userChanged());
    ASSERT_EQ(shop.dialogs.questions.size(), 1u);
    EXPECT_EQ(shop.dialogs.questions.front().messageText, u"Delete this document?"_s);
    EXPECT_EQ(shop.dialogs.questions.front().buttons, (QStringList{u"Delete"_s, u"Cancel"_s}));
    EXPECT_TRUE(shop.read(*form->document));
    const qint64 id = form->document->id;
    shop.dialogs.answers = {firstButton};
    EXPECT_TRUE(form->mainView.deleteDocButton.userChanged());
    EXPECT_FALSE(shop.db.select<ProductDocument>(id));
}

TEST(ProductForm, anAnswerThatComesAfterTheFormHasGoneDoesNothing)
{
    TeaShop shop;
    auto form = shop.formWithTea(DocType::SellProduct, 2, 7);
    ASSERT_TRUE(form->writeDoc());
    const qint64 id = form->document->id;
    form->askDeleteDoc();
    ASSERT_EQ(shop.dialogs.unanswered.size(), 1u);
    form.reset();
    shop.dialogs.unanswered.front()(firstButton);
    EXPECT_TRUE(shop.db.select<ProductDocument>(id));
}

TEST(ProductForm, nothingCanBeChangedInAProjectThatIsOpenForReading)
{
    TeaShop shop;
    const auto draft = shop.formWithTea(DocType::SellProduct, 2, 7);
    ASSERT_TRUE(draft->writeDoc());
    const qint64 id = draft->document->id;
    const QString path = shop.db.path();
    shop.db.close();
    ASSERT_TRUE(shop.db.open(path, Access::ReadOnly));
    const auto form = shop.reopen(id);
    EXPECT_FALSE(form->isEditable());
    ProductDocumentView& view = form->mainView;
    for (const Outlet* outlet :
         {static_cast<Outlet*>(&view.date), static_cast<Outlet*>(&view.comment),
          static_cast<Outlet*>(&view.stockFromSelect), static_cast<Outlet*>(&view.contragentField),
          static_cast<Outlet*>(&view.managerSelect), static_cast<Outlet*>(&form->shipment),
          static_cast<Outlet*>(&view.saveButton), static_cast<Outlet*>(&view.confirmButton),
          static_cast<Outlet*>(&view.deleteDocButton)})
        EXPECT_FALSE(outlet->enabled()) << qPrintable(outlet->name());
    EXPECT_EQ(form->addProductFromID(shop.tea->id), -1);
    EXPECT_FALSE(view.setValue(0, u"amount"_s, 5));
    EXPECT_FALSE(view.setStockFromID(shop.shop->id));
    EXPECT_FALSE(form->writeDoc());
    for (const ViewColumn& column : view.columns())
        EXPECT_FALSE(column.editable) << qPrintable(column.identifier);
}

TEST(ProductForm, makingADocumentReadsNoWholeCatalog)
{
    TeaShop shop;
    const auto countSale = [&shop] {
        shop.clock.set(shop.clock.now() + 1);
        const qint64 before = shop.db.statementCount();
        const auto form = shop.formWithTea(DocType::SellIntangibles, 1, 7);
        EXPECT_TRUE(form->confirmDoc());
        return shop.db.statementCount() - before;
    };
    const qint64 few = countSale();
    UserWrite write(shop.db);
    for (int i = 0; i < 300; ++i) {
        shop.product(u"Product"_s, i);
        shop.contragent(u"Customer"_s);
    }
    EXPECT_TRUE(write.finish());
    EXPECT_EQ(countSale(), few);
    EXPECT_LE(few, 30);
}

} // namespace
} // namespace zelvor
