#include "catalogs/product_view_controller.h"

#include "catalogs/measurement_view_controller.h"
#include "catalogs/tree_catalog_fixture.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

class ProductCatalog : public TreeCatalogFixture {
protected:
    ProductCatalog() { controller.measurementController = &units; }

    qint64 storeProduct(const QString& name, qint64 groupID = 0, bool isIntangible = false)
    {
        Product record;
        record.name = name;
        record.parentID = groupID;
        record.isIntangible = isIntangible;
        return store(record);
    }
    void storeStock(qint64 stockID, qint64 productID, double amount, double reserved = 0)
    {
        StockRow record;
        record.stockID = stockID;
        record.productID = productID;
        record.setAmount(amount);
        record.setAmountReserved(reserved);
        store(record);
    }
    void storeTaxes(bool useVAT, bool useGST)
    {
        Params params;
        params.useVAT = useVAT;
        params.useGST = useGST;
        params.vatRate = 20;
        params.gstRate = 7.5;
        store(params);
    }
    // Group(held,missing,reserved,service) loose service2
    void storeWarehouse()
    {
        const qint64 group = storeUnder<ProductGroup>(u"Group"_s);
        storeStock(1, storeProduct(u"held"_s, group), 5);
        storeProduct(u"missing"_s, group);
        storeStock(1, storeProduct(u"reserved"_s, group), 0, 2);
        storeProduct(u"service"_s, group, true);
        storeProduct(u"loose"_s);
        storeProduct(u"service2"_s, 0, true);
    }
    QString tree() { return shape(controller.view); }
    QVariant cell(const QString& name, const QString& identifier)
    {
        return controller.view.value(row(controller.view, name), identifier);
    }

    MeasurementViewController units{program.appDelegate};
    ProductViewController controller{program.appDelegate};
};

TEST_F(ProductCatalog, listHasItsTitleColourAndColumns)
{
    EXPECT_EQ(controller.view.name(), u"Products Catalog"_s);
    EXPECT_EQ(controller.view.titleColor(), (Color{0.196, 0.396, 0.282, 1.0}));
    QStringList shown;
    for (const ViewColumn& column : controller.view.columns()) {
        if (!column.hidden)
            shown.append(column.identifier);
    }
    EXPECT_EQ(shown,
              (QStringList{u"name"_s, u"measurementName"_s, u"packName"_s, u"packAmount"_s, u"baseCost"_s,
                           u"priceCost"_s, u"description"_s, u"intangible"_s, u"hidden"_s}));
    controller.view.setColumnHidden(u"amount"_s, false);
    controller.view.setColumnHidden(u"description"_s, true);
    shown.clear();
    for (const ViewColumn& column : controller.view.columns()) {
        if (!column.hidden)
            shown.append(column.identifier);
    }
    EXPECT_TRUE(shown.contains(u"amount"_s));
    EXPECT_FALSE(shown.contains(u"description"_s));
}

TEST_F(ProductCatalog, titlesAreTheSystemsOwn)
{
    EXPECT_EQ(controller.addProductButton.entries()[0].title, u"Add New Product"_s);
    EXPECT_EQ(controller.addProductButton.entries()[1].title, u"Add New Product Group"_s);
    controller.addProductButton.choose(0);
    EXPECT_EQ(controller.productPopoverName.text(), u"Add New Product"_s);
    EXPECT_EQ(controller.productName.text(), u"New Item"_s);
    controller.addProductButton.choose(1);
    EXPECT_EQ(controller.productGroupPopoverName.text(), u"Add New Product Group"_s);
    storeProduct(u"P"_s);
    storeUnder<ProductGroup>(u"G"_s);
    controller.markStale();
    controller.view.doubleAction(row(controller.view, u"P"_s));
    EXPECT_EQ(controller.productPopoverName.text(), u"Edit Product"_s);
    controller.view.doubleAction(row(controller.view, u"G"_s));
    EXPECT_EQ(controller.productGroupPopoverName.text(), u"Edit Product Group"_s);
}

TEST_F(ProductCatalog, aNewProductTakesTheRatesOfTheTaxesInUse)
{
    storeTaxes(true, true);
    controller.addProduct();
    EXPECT_EQ(controller.productVatRate.real(), 20);
    EXPECT_EQ(controller.productGstRate.real(), 7.5);
}

TEST_F(ProductCatalog, withVatOffANewProductHasNoVatRate)
{
    storeTaxes(false, true);
    controller.addProduct();
    EXPECT_EQ(controller.productVatRate.real(), 0);
    EXPECT_EQ(controller.productGstRate.real(), 7.5);
}

TEST_F(ProductCatalog, withoutSettingsANewProductHasNoRates)
{
    controller.addProduct();
    EXPECT_TRUE(controller.productPopover.isOpen());
    EXPECT_EQ(controller.productVatRate.real(), 0);
}

TEST_F(ProductCatalog, ratesAreHeldWithThreeDigitsAndCostsWithTwoHalfToEven)
{
    controller.addProduct();
    type(controller.productVatRate, Decimal::fromText(u"18.1255"));
    type(controller.productGstRate, Decimal::fromText(u"18.1245"));
    type(controller.productBaseCost, Decimal::fromText(u"10.005"));
    type(controller.productPriceCost, Decimal::fromText(u"10.015"));
    controller.productOkButton.userChanged();
    const auto product = stored<Product>(1);
    EXPECT_EQ(product->innerVATRate.toText(), u"18.126"_s);
    EXPECT_EQ(product->innerGSTRate.toText(), u"18.124"_s);
    EXPECT_EQ(product->innerBaseCost.toFixedText(2), u"10.00"_s);
    EXPECT_EQ(product->innerPriceCost.toFixedText(2), u"10.02"_s);
}

TEST_F(ProductCatalog, emptiedNumbersBecomeZero)
{
    controller.addProduct();
    for (NumberField* field :
         {&controller.productPackAmount, &controller.productBaseCost, &controller.productPriceCost,
          &controller.productVatRate, &controller.productGstRate}) {
        field->clear();
        field->userChanged();
        EXPECT_FALSE(field->isEmpty());
        EXPECT_EQ(field->real(), 0);
    }
}

TEST_F(ProductCatalog, popoverFieldsGoIntoTheRecordAndBack)
{
    storeUnder<ProductGroup>(u"Group"_s);
    storeNamed<Measurement>(u"piece"_s);
    storeNamed<Measurement>(u"box"_s);
    controller.addProduct();
    type(controller.productName, u"Pen"_s);
    controller.productGroupSelect.selectTag(1);
    controller.productIsIntangibleCheckBox.setOn(true);
    controller.productMeasurementSelect.selectTag(1);
    controller.productPackSelect.selectTag(2);
    type(controller.productPackAmount, 12);
    type(controller.productDescription, u"blue"_s);
    controller.productOkButton.userChanged();
    const auto pen = stored<Product>(1);
    EXPECT_EQ(pen->parentID, 1);
    EXPECT_TRUE(pen->isIntangible);
    EXPECT_EQ(pen->measurementID, 1);
    EXPECT_EQ(pen->packID, 2);
    EXPECT_EQ(pen->packAmount(), 12);
    EXPECT_EQ(pen->descriptionString, u"blue"_s);
    EXPECT_EQ(cell(u"Pen"_s, u"measurementName"_s).toString(), u"piece"_s);
    EXPECT_EQ(cell(u"Pen"_s, u"packName"_s).toString(), u"box"_s);

    controller.view.doubleAction(row(controller.view, u"Pen"_s));
    EXPECT_EQ(controller.productPackSelect.selectedTitle(), u"box"_s);
    EXPECT_TRUE(controller.productIsIntangibleCheckBox.isOn());
    EXPECT_EQ(controller.productDescription.text(), u"blue"_s);
}

TEST_F(ProductCatalog, unitChoosersCarryTheShorthandAsToolTip)
{
    Measurement unit;
    unit.name = u"kilogram"_s;
    unit.shorthand = u"kg"_s;
    store(unit);
    controller.prepareProducts();
    EXPECT_EQ(titles(controller.productMeasurementSelect), (QStringList{{}, u"kilogram"_s}));
    EXPECT_EQ(controller.productMeasurementSelect.items()[1].toolTip, u"kg"_s);
    EXPECT_EQ(controller.productPackSelect.items()[1].toolTip, u"kg"_s);
    EXPECT_EQ(controller.getNameOfMeasurementWithID(1), u"kilogram"_s);
    EXPECT_EQ(controller.getMeasurementWithID(9)->id, 0);
}

TEST_F(ProductCatalog, theBaseCostIsLockedAndOpeningTheLockAsks)
{
    storeProduct(u"Pen"_s);
    controller.addProduct();
    EXPECT_TRUE(controller.productBaseCost.enabled());
    EXPECT_FALSE(controller.productBaseCostOpenButton.enabled());
    controller.cancelProductPopover();
    controller.view.doubleAction(row(controller.view, u"Pen"_s));
    EXPECT_FALSE(controller.productBaseCost.enabled());
    EXPECT_TRUE(controller.productBaseCostOpenButton.isOn());

    program.dialogs.answers = {firstButton + 1, firstButton};
    controller.productBaseCostOpenButton.setOn(false);
    controller.productBaseCostOpenButton.userChanged();
    EXPECT_FALSE(controller.productBaseCost.enabled());
    EXPECT_TRUE(controller.productBaseCostOpenButton.isOn());
    controller.productBaseCostOpenButton.setOn(false);
    controller.productBaseCostOpenButton.userChanged();
    EXPECT_TRUE(controller.productBaseCost.enabled());
    ASSERT_EQ(program.dialogs.questions.size(), 2U);
    const Alert& question = program.dialogs.questions.front();
    EXPECT_EQ(question.messageText, u"Enable product base cost"_s);
    EXPECT_EQ(
        question.informativeText,
        u"You are trying to change product base cost manually. Normally it calculated by program. It may "
        "cause of incorrectness main balance. Are you sure?"_s);
    EXPECT_EQ(question.buttons, (QStringList{u"Proceed"_s, u"Cancel"_s}));
    EXPECT_EQ(question.alertStyle, 1);
    type(controller.productBaseCost, 3);
    controller.productOkButton.userChanged();
    EXPECT_EQ(stored<Product>(1)->baseCost(), 3);
}

TEST_F(ProductCatalog, anAnswerThatComesAfterThePopoverClosedOpensNoOtherLock)
{
    storeProduct(u"Pen"_s);
    storeProduct(u"Ink"_s);
    controller.view.doubleAction(row(controller.view, u"Pen"_s));
    controller.productBaseCostOpenButton.setOn(false);
    controller.productBaseCostOpenButton.userChanged();
    controller.cancelProductPopover();
    controller.view.doubleAction(row(controller.view, u"Ink"_s));
    ASSERT_EQ(program.dialogs.unanswered.size(), 1U);
    program.dialogs.unanswered.front()(firstButton);
    EXPECT_FALSE(controller.productBaseCost.enabled());
    EXPECT_TRUE(controller.productBaseCostOpenButton.isOn());
}

TEST_F(ProductCatalog, aCostThatADocumentChangedMeanwhileOutlivesAnEditBehindTheLock)
{
    storeProduct(u"Pen"_s);
    controller.view.doubleAction(row(controller.view, u"Pen"_s));
    const auto changed = stored<Product>(1);
    changed->setBaseCost(9);
    connector().update(*changed);
    controller.productOkButton.userChanged();
    EXPECT_EQ(stored<Product>(1)->baseCost(), 9);
}

TEST_F(ProductCatalog, aProductDroppedOnAProductLeavesItsGroupForTheEndOfTheTopLevel)
{
    const qint64 group = storeUnder<ProductGroup>(u"Group"_s);
    storeProduct(u"Inner"_s, group);
    storeProduct(u"Zinc"_s);
    EXPECT_TRUE(drop(controller.view, u"Inner"_s, u"Zinc"_s));
    EXPECT_EQ(tree(), u"Group Zinc Inner"_s);
    EXPECT_EQ(stored<Product>(1)->parentID, 0);
}

TEST_F(ProductCatalog, everyWriteTellsItsOwnKindFirst)
{
    const std::vector both{NotificationName::ProductChangedNotificationForSelf,
                           NotificationName::ProductChangedNotification};
    controller.addProduct();
    controller.productOkButton.userChanged();
    EXPECT_EQ(program.posted.names, both);
    EXPECT_EQ(program.posted.notifications[0].object, &controller);
    EXPECT_EQ(program.posted.notifications[1].object, &controller);
    program.posted.clear();
    EXPECT_TRUE(controller.view.setValue(row(controller.view, u"New Item"_s), u"hidden"_s, true));
    EXPECT_EQ(program.posted.names, both);
}

TEST_F(ProductCatalog, boxesOfTheListAreStoredAtOnceAndPutBackOnFailure)
{
    storeUnder<ProductGroup>(u"Group"_s);
    storeProduct(u"Pen"_s);
    EXPECT_TRUE(controller.view.setValue(row(controller.view, u"Pen"_s), u"intangible"_s, true));
    EXPECT_TRUE(stored<Product>(1)->isIntangible);
    EXPECT_TRUE(controller.view.setValue(row(controller.view, u"Group"_s), u"hidden"_s, true));
    EXPECT_TRUE(stored<ProductGroup>(1)->isHidden);
    EXPECT_FALSE(controller.view.setValue(row(controller.view, u"Group"_s), u"intangible"_s, true));
    program.connector->failCall(1, FaultInjectingConnector::Update);
    EXPECT_FALSE(controller.view.setValue(row(controller.view, u"Pen"_s), u"intangible"_s, false));
    EXPECT_EQ(cell(u"Pen"_s, u"intangible"_s), QVariant(true));
}

TEST_F(ProductCatalog, aGroupRowShowsNameDescriptionAndHiddenOnly)
{
    storeUnder<ProductGroup>(u"Group"_s);
    EXPECT_EQ(cell(u"Group"_s, u"hidden"_s), QVariant(false));
    for (const auto& blank : {u"baseCost"_s, u"intangible"_s, u"measurementName"_s, u"amount"_s})
        EXPECT_EQ(cell(u"Group"_s, blank), QVariant(QString()));
}

// --- the chooser of a document

TEST_F(ProductCatalog, onASaleReservedProductsAndServicesStayAndProductsWithoutStockGo)
{
    storeWarehouse();
    controller.setDocument(DocType::SellProduct, 1, u"Main"_s);
    EXPECT_EQ(tree(), u"Group(held,reserved,service) service2"_s);
    EXPECT_EQ(cell(u"held"_s, u"amount"_s), QVariant(5.0));
    EXPECT_EQ(cell(u"reserved"_s, u"reserve"_s), QVariant(2.0));
    EXPECT_EQ(controller.stockNameLabelForProducts.text(), u"All Products on 'Main'"_s);
    EXPECT_FALSE(controller.addProductButton.enabled());
    EXPECT_EQ(controller.all().size(), 7U) << "what is taken out of the tree stays in the list of all";
}

TEST_F(ProductCatalog, onATransferOrAWriteOffServicesGo)
{
    storeWarehouse();
    for (const DocType type : {DocType::MoveProduct, DocType::DeleteProduct}) {
        controller.setDocument(type, 1, u"Main"_s);
        EXPECT_EQ(tree(), u"Group(held,reserved)"_s);
        EXPECT_FALSE(controller.addProductButton.enabled());
        EXPECT_EQ(controller.stockNameLabelForProducts.text(), u"All Products on 'Main'"_s);
    }
}

TEST_F(ProductCatalog, onAPurchaseReturnOrStockInOnlyTangibleProductsStay)
{
    storeWarehouse();
    for (const DocType type : {DocType::AddProduct, DocType::BuyProduct, DocType::Return}) {
        controller.setDocument(type, 0, {});
        EXPECT_EQ(tree(), u"Group(held,missing,reserved) loose"_s);
        EXPECT_TRUE(controller.addProductButton.enabled());
        EXPECT_TRUE(controller.stockNameLabelForProducts.text().isEmpty());
    }
}

TEST_F(ProductCatalog, onASaleOfServicesOnlyServicesStay)
{
    storeWarehouse();
    controller.setDocument(DocType::SellIntangibles, 0, {});
    EXPECT_EQ(tree(), u"Group(service) service2"_s);
    EXPECT_EQ(controller.stockNameLabelForProducts.text(), u"All Intangibles"_s);
    EXPECT_TRUE(controller.addProductButton.enabled());
}

TEST_F(ProductCatalog, anyOtherDocumentChangesNothing)
{
    storeWarehouse();
    controller.setDocument(DocType::Money, 1, u"Main"_s);
    EXPECT_EQ(tree(), u"Group(held,missing,reserved,service) loose service2"_s);
}

TEST_F(ProductCatalog, groupsLeftEmptyStayInTheTree)
{
    const qint64 group = storeUnder<ProductGroup>(u"Group"_s);
    storeProduct(u"missing"_s, group);
    controller.setDocument(DocType::SellProduct, 1, u"Main"_s);
    EXPECT_EQ(tree(), u"Group"_s);
}

TEST_F(ProductCatalog, aProductWithSeveralStockRowsShowsNone)
{
    storeStock(1, storeProduct(u"twice"_s), 5);
    storeStock(1, 1, 6);
    storeStock(2, 1, 7);
    controller.setDocument(DocType::BuyProduct, 1, u"Main"_s);
    EXPECT_EQ(cell(u"twice"_s, u"amount"_s), QVariant(0.0));
    controller.setDocument(DocType::BuyProduct, 2, u"Other"_s);
    EXPECT_EQ(cell(u"twice"_s, u"amount"_s), QVariant(7.0));
}

TEST_F(ProductCatalog, theWholeWarehouseIsOneRead)
{
    for (int i = 0; i < 50; ++i)
        storeStock(1, storeProduct(QString::number(i)), 1);
    controller.prepareProducts();
    controller.document = ChooserDocument{DocType::SellProduct, 1, u"Main"_s};
    const qint64 before = connector().statementCount();
    controller.prepareStockAmount();
    EXPECT_EQ(connector().statementCount() - before, 1);
}

TEST_F(ProductCatalog, aDocumentReadsNothingBeforeItsChooserIsLookedAt)
{
    storeWarehouse();
    const qint64 before = connector().statementCount();
    controller.setDocument(DocType::SellProduct, 1, u"Main"_s);
    program.appDelegate.notifications.post(NotificationName::ProductAmountChangedNotification);
    program.appDelegate.notifications.post(NotificationName::ProductBaseCostChangedNotification);
    EXPECT_EQ(connector().statementCount(), before);
}

TEST_F(ProductCatalog, changedAmountsConcernTheChooserOfADocumentOnly)
{
    storeWarehouse();
    tree();
    ProductViewController chooser{program.appDelegate};
    chooser.setDocument(DocType::SellProduct, 1, u"Main"_s);
    EXPECT_EQ(shape(chooser.view), u"Group(held,reserved,service) service2"_s);
    storeStock(1, 5, 1);
    program.appDelegate.notifications.post(NotificationName::ProductAmountChangedNotification);
    EXPECT_FALSE(controller.isStale());
    EXPECT_EQ(shape(chooser.view), u"Group(held,reserved,service) loose service2"_s);
}

TEST_F(ProductCatalog, aVisibleChooserFollowsAtOnce)
{
    storeWarehouse();
    controller.view.setVisible(true);
    controller.setDocument(DocType::SellProduct, 1, u"Main"_s);
    EXPECT_EQ(controller.view.loadedTopLevel().size(), 2U);
    storeStock(1, 5, 1);
    program.appDelegate.notifications.post(NotificationName::ProductAmountChangedNotification);
    EXPECT_EQ(controller.view.loadedTopLevel().size(), 3U);
}

TEST_F(ProductCatalog, refreshingAFormKeepsTheTreesExpansion)
{
    storeWarehouse();
    controller.setDocument(DocType::SellProduct, 1, u"Main"_s);
    controller.view.setItemExpanded(row(controller.view, u"Group"_s), true);
    controller.prepareProducts();
    controller.prepareStockAmount();
    EXPECT_TRUE(controller.view.isItemExpanded(row(controller.view, u"Group"_s)));
}

TEST_F(ProductCatalog, aProductAddedInADocumentsChooserLeavesItFiltered)
{
    storeWarehouse();
    controller.setDocument(DocType::BuyProduct, 1, u"Main"_s);
    tree();
    controller.addProduct();
    type(controller.productName, u"advice"_s);
    controller.productIsIntangibleCheckBox.setOn(true);
    controller.productOkButton.userChanged();
    EXPECT_EQ(tree(), u"Group(held,missing,reserved) loose"_s);
}

TEST_F(ProductCatalog, anotherControllersWriteIsReadAnew)
{
    ProductViewController other{program.appDelegate};
    EXPECT_EQ(shape(other.view), QString());
    controller.addProduct();
    controller.productOkButton.userChanged();
    EXPECT_EQ(shape(other.view), u"New Item"_s);
}

// --- units added from the popover

TEST_F(ProductCatalog, aUnitAddedForTheProductIsChosenAndThePackStays)
{
    storeNamed<Measurement>(u"box"_s);
    controller.addProduct();
    controller.productPackSelect.selectTag(1);
    controller.addMeasurement(u"newMeasurement"_s);
    EXPECT_TRUE(units.measurementPopover.isOpen());
    type(units.measurementName, u"piece"_s);
    units.okButton.userChanged();
    EXPECT_EQ(controller.productMeasurementSelect.selectedTitle(), u"piece"_s);
    EXPECT_EQ(controller.productPackSelect.selectedTitle(), u"box"_s);
    EXPECT_FALSE(controller.addNewMeasurement);
    EXPECT_FALSE(controller.senderIdentifier.has_value());
}

TEST_F(ProductCatalog, aUnitAddedForThePackIsChosenAndTheUnitStays)
{
    storeNamed<Measurement>(u"piece"_s);
    controller.addProduct();
    controller.productMeasurementSelect.selectTag(1);
    controller.addMeasurement(u"newPack"_s);
    type(units.measurementName, u"box"_s);
    units.okButton.userChanged();
    EXPECT_EQ(controller.productPackSelect.selectedTitle(), u"box"_s);
    EXPECT_EQ(controller.productMeasurementSelect.selectedTitle(), u"piece"_s);
}

TEST_F(ProductCatalog, aCancelledUnitClearsTheFlag)
{
    controller.addProduct();
    controller.addMeasurement(u"newMeasurement"_s);
    units.cancelMeasurementPopover();
    EXPECT_FALSE(controller.addNewMeasurement);
}

TEST_F(ProductCatalog, aRenamedUnitIsRenewedInEveryRow)
{
    storeNamed<Measurement>(u"piece"_s);
    Product record;
    record.name = u"Pen"_s;
    record.measurementID = 1;
    record.packID = 1;
    store(record);
    const auto node = row(controller.view, u"Pen"_s);
    EXPECT_EQ(controller.view.value(node, u"packName"_s).toString(), u"piece"_s);
    units.view.doubleAction(0);
    type(units.measurementName, u"item"_s);
    units.okButton.userChanged();
    controller.refresh();
    EXPECT_EQ(controller.view.value(node, u"measurementName"_s).toString(), u"item"_s) << "the same row";
    EXPECT_EQ(controller.view.value(node, u"packName"_s).toString(), u"item"_s);
}

TEST(ProductRecord, answersTheIdentifiersOfItsList)
{
    Product record;
    record.measurement.edit().name = u"piece"_s;
    record.pack.edit().name = u"box"_s;
    record.stockRow.edit().setAmount(3);
    record.stockRow.edit().setAmountReserved(1);
    record.setPackAmount(12);
    EXPECT_EQ(record.valueForIdentifier(u"name"), QVariant(u"New Item"_s));
    EXPECT_EQ(record.valueForIdentifier(u"measurementName"), QVariant(u"piece"_s));
    EXPECT_EQ(record.valueForIdentifier(u"packName"), QVariant(u"box"_s));
    EXPECT_EQ(record.valueForIdentifier(u"packAmount"), QVariant(12.0));
    EXPECT_EQ(record.valueForIdentifier(u"intangible"), QVariant(false));
    EXPECT_EQ(record.valueForIdentifier(u"amount"), QVariant(3.0));
    EXPECT_EQ(record.valueForIdentifier(u"reserve"), QVariant(1.0));
    EXPECT_EQ(record.valueForIdentifier(u"colour"), QVariant(QString()));
    ProductGroup group;
    EXPECT_EQ(group.valueForIdentifier(u"description"), QVariant(QString()));
    EXPECT_EQ(group.valueForIdentifier(u"hidden"), QVariant(false));
}

} // namespace
} // namespace zelvor
