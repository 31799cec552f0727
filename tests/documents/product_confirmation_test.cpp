#include "product_form.h"

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

TEST(Confirmation, aPurchaseAddsStockAveragesTheCostAndCreditsTheSupplier)
{
    TeaShop shop;
    const auto form = shop.formWithTea(DocType::BuyProduct, 10, 5);
    form->deferment.setValue(Decimal(14));
    ASSERT_TRUE(form->confirmDoc()) << qPrintable(shop.alertText());
    const auto stored = shop.db.select<ProductDocument>(form->document->id);
    ASSERT_TRUE(stored);
    EXPECT_TRUE(stored->confirmed);
    EXPECT_EQ(stored->docNumber, 1);
    EXPECT_EQ(stored->docSum(), 50);
    EXPECT_EQ(stored->leftToPay(), 50);
    EXPECT_EQ(stored->contragentBalance(), 0);
    EXPECT_EQ(stored->payToDate, stored->date + 14 * 86400);
    ASSERT_EQ(stored->documentRows.size(), 1U);
    EXPECT_EQ(stored->documentRows[0]->priceCostSum(), 50);
    EXPECT_EQ(shop.onHand(*shop.main, *shop.tea), 10);
    EXPECT_EQ(shop.read(*shop.tea)->baseCost(), 5);
    EXPECT_EQ(shop.balance(), 50);
    EXPECT_TRUE(shop.dialogs.alerts.empty());
}

TEST(Confirmation, theFormShowsWhatWasConfirmed)
{
    TeaShop shop;
    const auto form = shop.formWithTea(DocType::BuyProduct, 10, 5);
    ASSERT_TRUE(form->confirmDoc());
    EXPECT_TRUE(form->documentTitle.text().endsWith(u"' #1 (read)"_s));
    EXPECT_EQ(form->documentTitle.color(), inOrderColor);
    EXPECT_EQ(form->mainView.name(), form->document->name());
    EXPECT_EQ(form->mainView.titleColor(), inOrderColor);
    EXPECT_EQ(form->contragentBalance.value(), Decimal(50));
    EXPECT_EQ(form->contragentBalance.color(), inOrderColor);
    EXPECT_FALSE(form->mainView.saveButton.enabled());
    EXPECT_FALSE(form->mainView.confirmButton.enabled());
    EXPECT_FALSE(form->mainView.stockToSelect.enabled());
    EXPECT_FALSE(form->shipment.enabled());
    EXPECT_FALSE(form->progress.isRunning());
}

TEST(Confirmation, aConfirmedDocumentTakesNoChange)
{
    TeaShop shop;
    const auto form = shop.formWithTea(DocType::BuyProduct, 10, 5);
    ASSERT_TRUE(form->confirmDoc());
    const QStringList before = shop.dump();
    EXPECT_EQ(form->addProduct(shop.cup), -1);
    EXPECT_FALSE(form->setRowValue(0, u"amount"_s, Decimal(1)));
    form->mainView.selectRow(0);
    EXPECT_FALSE(form->deleteRow());
    EXPECT_FALSE(form->writeDoc());
    EXPECT_FALSE(form->deleteDoc());
    EXPECT_FALSE(form->setContragentFromID(0));
    EXPECT_FALSE(form->confirmDoc());
    EXPECT_EQ(shop.alertText(), u"The document is confirmed already.\n"_s);
    EXPECT_EQ(shop.dump(), before);
    EXPECT_TRUE(form->document->confirmed);
}

TEST(Confirmation, twoTypesCountSeparately)
{
    TeaShop shop;
    ASSERT_TRUE(shop.formWithTea(DocType::BuyProduct, 10, 5)->confirmDoc());
    ASSERT_TRUE(shop.formWithTea(DocType::BuyProduct, 10, 5)->confirmDoc());
    EXPECT_EQ(shop.lastNumber(DocType::BuyProduct), 2);
    EXPECT_EQ(shop.lastNumber(DocType::SellProduct), 0);
    const auto sale = shop.formWithTea(DocType::SellProduct, 1, 7);
    ASSERT_TRUE(sale->confirmDoc());
    EXPECT_EQ(sale->document->docNumber, 1);
    EXPECT_EQ(shop.lastNumber(DocType::BuyProduct), 2);
}

TEST(Confirmation, aTypeWithoutACounterIsRefusedWithBothSentences)
{
    TeaShop shop;
    const auto counters = shop.db.freeSQL<DocumentNumber>("WHERE doc_type_id=?", {DocType::BuyProduct});
    ASSERT_EQ(shop.db.remove(*counters.front()), 1);
    const auto form = shop.formWithTea(DocType::BuyProduct, 10, 5);
    expectRefused(shop, *form, u"Can't get serial number for document.\nCan't confirm document.\n"_s);
    EXPECT_EQ(form->document->docNumber, 0);
}

TEST(Confirmation, behindTheLastNumberThereIsNone)
{
    TeaShop shop;
    const auto counter =
        shop.db.freeSQL<DocumentNumber>("WHERE doc_type_id=?", {DocType::BuyProduct}).front();
    counter->docNumber = std::numeric_limits<qint64>::max();
    shop.store(*counter);
    const auto form = shop.formWithTea(DocType::BuyProduct, 10, 5);
    expectRefused(shop, *form, u"Can't get serial number for document.\nCan't confirm document.\n"_s);
}

using enum NotificationName;

TEST(Confirmation, eachTypeTellsItsNewsInOrderBeforeTheCommit)
{
    const std::vector<NotificationName> receipt{
        BalanceChangedNotification,         ProductDocChangedNotification,
        ProductAmountChangedNotification,   ContragentBalanceChangedNotification,
        ProductBaseCostChangedNotification, DocWithContragentChangedNotification};
    const std::vector<NotificationName> sale{
        BalanceChangedNotification, ProductDocChangedNotification, ProductAmountChangedNotification,
        ContragentBalanceChangedNotification, DocWithContragentChangedNotification};
    const std::vector<NotificationName> service{BalanceChangedNotification, ProductDocChangedNotification,
                                                ContragentBalanceChangedNotification,
                                                DocWithContragentChangedNotification};
    const std::vector<NotificationName> stock{BalanceChangedNotification, ProductDocChangedNotification,
                                              ProductAmountChangedNotification};
    const std::pair<DocType, std::vector<NotificationName>> expected[] = {
        {DocType::BuyProduct, receipt},      {DocType::Return, receipt},    {DocType::SellProduct, sale},
        {DocType::SellIntangibles, service}, {DocType::MoveProduct, stock}, {DocType::AddProduct, stock},
        {DocType::DeleteProduct, stock}};
    for (const auto& [type, names] : expected) {
        TeaShop shop;
        shop.stockRow(*shop.main, *shop.tea, 10);
        const auto form = shop.formWithTea(type, 2, 5);
        bool allInside = true;
        const auto watch = shop.appDelegate.notifications.observeAll([&](const Notification& posted) {
            allInside = allInside && shop.db.inTransaction() && posted.object == form.get();
            const auto seen = shop.db.select<ProductDocument>(form->document->id);
            allInside = allInside && seen && seen->confirmed;
        });
        shop.posted.clear();
        ASSERT_TRUE(form->confirmDoc()) << qPrintable(shop.alertText());
        EXPECT_EQ(shop.posted.names, names) << qPrintable(docTypeName(type));
        EXPECT_TRUE(allInside);
    }
}

TEST(Confirmation, aTypeOfAnotherFormIsRefused)
{
    TeaShop shop;
    const auto form = shop.formWithTea(DocType::BuyProduct, 1, 1);
    form->document->insertDocType(DocType::MoneyAdd);
    expectRefused(shop, *form, QString());
}

TEST(Confirmation, missingInputsAreNamedAndChangeNothing)
{
    TeaShop shop;
    const auto sale = shop.form(DocType::SellProduct);
    sale->clearContragent();
    EXPECT_TRUE(sale->mainView.setStockFromID(0));
    expectRefused(shop, *sale, u"These inputs are missing: From Warehouse, Counterparty, Products.\n"_s);
    const auto move = shop.formWithTea(DocType::MoveProduct, 1, 1);
    EXPECT_FALSE(move->mainView.setStockToID(999));
    expectRefused(shop, *move, u"These inputs are missing: To Warehouse.\n"_s);
    const auto small = shop.form(DocType::AddProduct);
    ASSERT_EQ(small->addProductFromID(shop.tea->id), 0);
    EXPECT_TRUE(small->setRowValue(0, u"amount"_s, Decimal::fromText(u"0.005")));
    expectRefused(shop, *small, u"These inputs are missing: Products.\n"_s);
}

// Stock

TEST(Confirmation, allShortagesAreListedAndNothingIsChanged)
{
    TeaShop shop;
    const auto pot = shop.product(u"Pot"_s, 30);
    shop.stockRow(*shop.main, *shop.cup, 2.5, 1);
    shop.stockRow(*shop.main, *pot, 1);
    const auto form = shop.formWithTea(DocType::SellProduct, 6, 7);
    shop.add(*form, *shop.cup, 3, 3);
    shop.add(*form, *pot, 4, 30);
    expectRefused(shop, *form,
                  u"We have not 'Tea' on WH: 'Main'\n"
                  "We have not enough 'Cup' on WH: 'Main'. Need: 3.0 Have: 2.5 Reserv: 1.0\n"
                  "We have not enough 'Pot' on WH: 'Main'. Need: 4.0 Have: 1.0 Reserv: 0.0\n"_s);
}

TEST(Confirmation, reservesDoNotCountAgainstASale)
{
    TeaShop shop;
    shop.stockRow(*shop.main, *shop.tea, 6, 4);
    ASSERT_TRUE(shop.formWithTea(DocType::SellProduct, 5, 7)->confirmDoc());
    EXPECT_EQ(shop.onHand(*shop.main, *shop.tea), 1);
}

TEST(Confirmation, movingTheLastOnesDeletesTheStockRow)
{
    TeaShop shop;
    shop.stockRow(*shop.main, *shop.tea, 10, 3);
    ASSERT_TRUE(shop.formWithTea(DocType::MoveProduct, 10, 4)->confirmDoc());
    const auto rows = shop.db.freeSQL<StockRow>();
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0]->stockID, shop.shop->id);
    EXPECT_EQ(rows[0]->amount(), 10);
}

TEST(Confirmation, aMoveAddsToWhatTheTargetHolds)
{
    TeaShop shop;
    shop.stockRow(*shop.main, *shop.tea, 10);
    shop.stockRow(*shop.shop, *shop.tea, 1.25, 2);
    ASSERT_TRUE(shop.formWithTea(DocType::MoveProduct, 4, 4)->confirmDoc());
    EXPECT_EQ(shop.onHand(*shop.main, *shop.tea), 6);
    EXPECT_EQ(shop.onHand(*shop.shop, *shop.tea), 5.25);
    EXPECT_EQ(shop.balance(), 0);
}

TEST(Confirmation, aStockInAndAWriteOffMoveGoodsAlone)
{
    TeaShop shop;
    ASSERT_TRUE(shop.formWithTea(DocType::AddProduct, 4, 9)->confirmDoc());
    EXPECT_EQ(shop.onHand(*shop.main, *shop.tea), 4);
    EXPECT_EQ(shop.read(*shop.tea)->baseCost(), 4) << "a stock-in does not average the cost";
    ASSERT_TRUE(shop.formWithTea(DocType::DeleteProduct, 3, 9)->confirmDoc());
    EXPECT_EQ(shop.onHand(*shop.main, *shop.tea), 1);
    EXPECT_EQ(shop.balance(), 0);
}

TEST(Confirmation, servicesStayOutOfStockAndCost)
{
    TeaShop shop;
    const auto purchase = shop.form(DocType::BuyProduct);
    shop.add(*purchase, *shop.tasting, 2, 15);
    ASSERT_TRUE(purchase->confirmDoc());
    EXPECT_TRUE(shop.db.freeSQL<StockRow>().empty());
    EXPECT_EQ(shop.read(*shop.tasting)->baseCost(), 0);
    EXPECT_EQ(shop.balance(), 30);
}

TEST(Confirmation, aServiceCountsLikeGoodsInTheStockCheckOfASale)
{
    TeaShop shop;
    const auto sale = shop.form(DocType::SellProduct);
    shop.add(*sale, *shop.tasting, 1, 20);
    expectRefused(shop, *sale, u"We have not 'Tasting' on WH: 'Main'\n"_s);
}

TEST(Confirmation, aSaleOfServicesNeedsNoWarehouseAndLooksAtNoStock)
{
    TeaShop shop;
    const auto sale = shop.formWithTea(DocType::SellIntangibles, 3, 7);
    shop.add(*sale, *shop.tasting, 1, 20);
    ASSERT_TRUE(sale->confirmDoc());
    EXPECT_EQ(shop.balance(), -41);
    EXPECT_TRUE(shop.db.freeSQL<StockRow>().empty());
}

// The counterparty

struct Rest {
    double balance;
    int sum;
    double leftToPay;
};

TEST(Confirmation, aPurchaseLeavesOpenWhatTheDebtDoesNotCover)
{
    const Rest cases[] = {{0, 300, 300}, {50, 300, 300}, {-100, 300, 200}, {-300, 300, 0}, {-400, 300, 0}};
    for (const Rest& rest : cases) {
        TeaShop shop;
        shop.setBalance(rest.balance);
        const auto form = shop.formWithTea(DocType::BuyProduct, 1, rest.sum);
        ASSERT_TRUE(form->confirmDoc());
        EXPECT_EQ(shop.read(*form->document)->leftToPay(), rest.leftToPay) << rest.balance;
        EXPECT_EQ(shop.read(*form->document)->contragentBalance(), rest.balance);
        EXPECT_EQ(shop.balance(), rest.balance + rest.sum);
    }
}

TEST(Confirmation, aSaleLeavesOpenWhatTheCreditDoesNotCover)
{
    const Rest cases[] = {{0, 300, 300}, {-50, 300, 300}, {100, 300, 200}, {300, 300, 0}, {400, 300, 0}};
    for (const Rest& rest : cases) {
        TeaShop shop;
        shop.setBalance(rest.balance);
        const auto form = shop.formWithTea(DocType::SellIntangibles, 1, rest.sum);
        ASSERT_TRUE(form->confirmDoc());
        EXPECT_EQ(shop.read(*form->document)->leftToPay(), rest.leftToPay) << rest.balance;
        EXPECT_EQ(shop.balance(), rest.balance - rest.sum);
    }
}

TEST(Confirmation, aSaleSettlesTheEarliestDebtFirst)
{
    TeaShop shop;
    shop.setBalance(100);
    const auto later = shop.openDocument(DocType::BuyProduct, 90, 2'000);
    const auto earlier = shop.openDocument(DocType::Return, 30, 1'000);
    const auto form = shop.formWithTea(DocType::SellIntangibles, 1, 300);
    ASSERT_TRUE(form->confirmDoc());
    EXPECT_EQ(shop.read(*form->document)->leftToPay(), 200);
    EXPECT_EQ(shop.read(*earlier)->leftToPay(), 0);
    EXPECT_EQ(shop.read(*later)->leftToPay(), 20);
}

TEST(Confirmation, aSettledDocumentKeepsItsRows)
{
    TeaShop shop;
    const auto purchase = shop.formWithTea(DocType::BuyProduct, 10, 3);
    ASSERT_TRUE(purchase->confirmDoc());
    ASSERT_TRUE(shop.formWithTea(DocType::SellProduct, 1, 10)->confirmDoc());
    const auto stored = shop.read(*purchase->document);
    EXPECT_EQ(stored->leftToPay(), 20);
    EXPECT_EQ(stored->documentRows.size(), 1U);
    EXPECT_EQ(stored->docSum(), 30);
}

TEST(Confirmation, goodsAndFixedAssetsAreSettledTogetherByDueDate)
{
    TeaShop shop;
    shop.setBalance(-100);
    const auto other = shop.openDocument(DocType::BuyProduct, 50, 10); // the wrong direction
    const auto service = shop.openDocument(DocType::SellIntangibles, 40, 3'000);
    const auto asset = shop.openPropertyDocument(DocType::SellProperty, 25, 2'000);
    const auto goods = shop.openDocument(DocType::SellProduct, 20, 2'000);
    ASSERT_TRUE(shop.formWithTea(DocType::BuyProduct, 1, 60)->confirmDoc());
    EXPECT_EQ(shop.read(*goods)->leftToPay(), 0);
    EXPECT_EQ(shop.read(*asset)->leftToPay(), 0);
    EXPECT_EQ(shop.read(*service)->leftToPay(), 25);
    EXPECT_EQ(shop.read(*other)->leftToPay(), 50);
}

TEST(Confirmation, withoutACreditNothingIsSettled)
{
    TeaShop shop;
    shop.setBalance(-100);
    const auto debt = shop.openDocument(DocType::BuyProduct, 50, 10);
    ASSERT_TRUE(shop.formWithTea(DocType::SellIntangibles, 1, 60)->confirmDoc());
    EXPECT_EQ(shop.read(*debt)->leftToPay(), 50);
}

TEST(Confirmation, aFailingSettlementAddsNoSentence)
{
    TeaShop shop;
    shop.setBalance(100);
    shop.openDocument(DocType::BuyProduct, 90, 2'000);
    const auto form = shop.formWithTea(DocType::SellIntangibles, 1, 300);
    shop.connector->failCall(2, FaultInjectingConnector::Update); // behind the serial number
    expectRefused(shop, *form, QString());
}

// Each step that writes

TEST(Confirmation, aStepThatCannotWriteSaysSo)
{
    using Kind = FaultInjectingConnector;
    struct Case {
        DocType type;
        unsigned kinds;
        int call;
        QString alert;
    };
    const QString end = u"Can't confirm document.\n"_s;
    const Case cases[] = {
        {DocType::BuyProduct, Kind::Update, 1, u"Can't get serial number for document.\n"_s + end},
        {DocType::BuyProduct, Kind::Update, 2, u"Failed to change product's base cost\n"_s + end},
        {DocType::BuyProduct, Kind::Writes, 3, u"Failed to add products to WH.\n"_s + end},
        {DocType::SellProduct, Kind::Update, 2, u"Failed to delete products from WH.\n"_s + end},
        {DocType::SellProduct, Kind::Update, 3, u"Failed to change contragent's balance.\n"_s + end},
        {DocType::AddProduct, Kind::Update, 2, u"Failed to add products to WH.\n"_s + end},
        {DocType::BuyProduct, Kind::Insert, 1, QString()},
    };
    for (const Case& given : cases) {
        TeaShop shop;
        shop.stockRow(*shop.main, *shop.tea, 10);
        const auto form = shop.formWithTea(given.type, 2, 5);
        shop.connector->failCall(given.call, given.kinds);
        expectRefused(shop, *form, given.alert);
        EXPECT_TRUE(shop.connector->hasFailed());
    }
}

TEST(Confirmation, aCommitThatFailsLeavesTheDocumentUnconfirmed)
{
    TeaShop shop;
    shop.stockRow(*shop.main, *shop.tea, 10);
    const auto form = shop.formWithTea(DocType::SellProduct, 2, 5);
    shop.connector->failCall(1, FaultInjectingConnector::Commit);
    const QStringList before = shop.dump();
    EXPECT_FALSE(form->confirmDoc());
    EXPECT_EQ(shop.dump(), before);
    EXPECT_EQ(shop.dialogs.alerts.size(), 1U);
    EXPECT_EQ(shop.dialogs.lastAlert(), u"The changes were not saved!"_s);
    EXPECT_FALSE(form->document->confirmed);
    EXPECT_EQ(form->document->id, 0);
    EXPECT_EQ(form->document->documentRows[0]->id, 0);
    EXPECT_EQ(form->document->docNumber, 0);
    EXPECT_EQ(form->document->contragent->balance(), 0);
    EXPECT_TRUE(form->mainView.confirmButton.enabled());
    EXPECT_TRUE(form->documentTitle.text().endsWith(u"' #0 (write)"_s));
    EXPECT_TRUE(form->confirmDoc()) << "and it can try again";
    EXPECT_EQ(form->document->docNumber, 1);
    EXPECT_EQ(shop.onHand(*shop.main, *shop.tea), 8);
    EXPECT_EQ(shop.balance(), -10);
}

TEST(Confirmation, anyCallThatFailsLeavesTheFileAsItWas)
{
    for (const DocType type : productTypes) {
        TeaShop shop;
        shop.changeParams([](Params& params) { params.lastPeriodSaved = 202309; });
        shop.property(u"Van"_s, 1200, 12);
        shop.stockRow(*shop.main, *shop.tea, 10);
        shop.stockRow(*shop.main, *shop.cup, 2);
        const bool sells = type == DocType::SellProduct || type == DocType::SellIntangibles;
        shop.setBalance(sells ? 12 : -12);
        shop.openDocument(DocType::BuyProduct, 9, 2'000);
        shop.openDocument(DocType::SellProduct, 9, 2'000);
        shop.openPropertyDocument(DocType::BuyProperty, 9, 1'000);
        shop.openPropertyDocument(DocType::SellProperty, 9, 1'000);
        const QStringList before = shop.dump();
        int failures = 0;
        for (int call = 1;; ++call) {
            const auto form = shop.formWithTea(type, 2, 5);
            shop.add(*form, *shop.cup, 2, 3);
            shop.connector->failCall(call);
            const bool confirmed = form->confirmDoc();
            if (!shop.connector->hasFailed()) {
                shop.connector->failCall(0);
                EXPECT_TRUE(confirmed) << qPrintable(shop.alertText());
                break;
            }
            ++failures;
            shop.connector->failCall(0);
            ASSERT_FALSE(confirmed) << "call " << call;
            ASSERT_EQ(shop.dump(), before) << "call " << call;
            EXPECT_FALSE(form->document->confirmed);
            EXPECT_EQ(form->document->id, 0);
            EXPECT_EQ(form->document->docNumber, 0);
            EXPECT_EQ(form->document->documentRows[1]->id, 0);
        }
        EXPECT_GT(failures, 10);
    }
}

// Stored drafts and other writers

TEST(Confirmation, aStoredDraftIsConfirmedFromItsForm)
{
    TeaShop shop;
    const auto draft = shop.formWithTea(DocType::BuyProduct, 10, 5);
    draft->deferment.setValue(Decimal(7));
    ASSERT_TRUE(draft->writeDoc());
    const auto form = shop.reopen(draft->document->id);
    ASSERT_TRUE(form->confirmDoc()) << qPrintable(shop.alertText());
    const auto stored = shop.read(*form->document);
    EXPECT_EQ(stored->id, draft->document->id);
    EXPECT_TRUE(stored->confirmed);
    EXPECT_EQ(stored->docSum(), 50);
    EXPECT_EQ(stored->payToDate, stored->date + 7 * 86400);
    EXPECT_EQ(stored->documentRows.size(), 1U);
}

TEST(Confirmation, aDraftThatAnotherFormConfirmedIsRefused)
{
    TeaShop shop;
    const auto draft = shop.formWithTea(DocType::BuyProduct, 10, 5);
    ASSERT_TRUE(draft->writeDoc());
    const auto first = shop.reopen(draft->document->id);
    const auto second = shop.reopen(draft->document->id);
    ASSERT_TRUE(first->confirmDoc());
    const QString alert = u"The document was confirmed or deleted in the meantime.\n"_s;
    expectRefused(shop, *second, alert);
    const QStringList before = shop.dump();
    EXPECT_FALSE(second->writeDoc());
    EXPECT_EQ(shop.alertText(), alert);
    EXPECT_FALSE(second->deleteDoc());
    second->mainView.selectRow(0);
    EXPECT_FALSE(second->deleteRow());
    EXPECT_EQ(shop.dump(), before);
}

TEST(Confirmation, aDraftThatAnotherFormDeletedIsRefused)
{
    TeaShop shop;
    const auto draft = shop.formWithTea(DocType::BuyProduct, 10, 5);
    ASSERT_TRUE(draft->writeDoc());
    const auto second = shop.reopen(draft->document->id);
    ASSERT_TRUE(draft->deleteDoc());
    expectRefused(shop, *second, u"The document was confirmed or deleted in the meantime.\n"_s);
}

TEST(Confirmation, aDraftWhoseRowsAnotherFormChangedIsRefused)
{
    TeaShop shop;
    const auto draft = shop.formWithTea(DocType::BuyProduct, 10, 5);
    ASSERT_TRUE(draft->writeDoc());
    const auto second = shop.reopen(draft->document->id);
    shop.add(*draft, *shop.cup, 1, 1);
    ASSERT_TRUE(draft->writeDoc());
    expectRefused(shop, *second,
                  u"The document's rows were changed in the meantime. Please open it again.\n"_s);
}

TEST(Confirmation, balancesAndCostsAreReadAnewInsideTheTransaction)
{
    TeaShop shop;
    shop.stockRow(*shop.main, *shop.tea, 10);
    const auto first = shop.formWithTea(DocType::BuyProduct, 10, 6);
    const auto second = shop.formWithTea(DocType::BuyProduct, 10, 8);
    ASSERT_TRUE(first->confirmDoc());
    EXPECT_EQ(shop.read(*shop.tea)->baseCost(), 5);
    ASSERT_TRUE(second->confirmDoc());
    EXPECT_EQ(shop.read(*shop.tea)->baseCost(), 6);
    EXPECT_EQ(shop.balance(), 140);
    EXPECT_EQ(second->document->contragentBalance(), 60);
}

TEST(Confirmation, aRefusalLeavesACounterpartyThatIsGoneAsItWasShown)
{
    TeaShop shop;
    shop.setBalance(30);
    const auto form = shop.formWithTea(DocType::SellIntangibles, 1, 50);
    ASSERT_EQ(shop.db.remove(*shop.acme), 1);
    expectRefused(shop, *form, u"Failed to change contragent's balance.\nCan't confirm document.\n"_s);
    EXPECT_EQ(form->document->contragent->balance(), 30);
    EXPECT_EQ(form->contragentBalance.real(), 30);
}

TEST(Confirmation, aRefusalLeavesAProductThatIsGoneAsItWasShown)
{
    TeaShop shop;
    const auto form = shop.formWithTea(DocType::BuyProduct, 10, 8);
    const double cost = form->document->documentRows[0]->product->baseCost();
    ASSERT_NE(cost, 8);
    ASSERT_EQ(shop.db.remove(*shop.tea), 1);
    expectRefused(shop, *form, u"Failed to change product's base cost\nCan't confirm document.\n"_s);
    EXPECT_EQ(form->document->documentRows[0]->product->baseCost(), cost);
}

TEST(Confirmation, bothTaxesShareTheOneField)
{
    TeaShop shop;
    const auto form = shop.formWithTea(DocType::SellIntangibles, 1, 120);
    EXPECT_TRUE(form->setRowValue(0, u"vatRate"_s, Decimal(20)));
    EXPECT_TRUE(form->setRowValue(0, u"gstRate"_s, Decimal(10)));
    form->vatCheck.setOn(true);
    form->mainView.taxesChecked();
    EXPECT_EQ(form->vatAmount.value(), Decimal(20));
    form->gstCheck.setOn(true);
    form->mainView.taxesChecked();
    EXPECT_EQ(form->vatAmount.value(), Decimal(12));
    ASSERT_TRUE(form->confirmDoc());
    const auto stored = shop.read(*form->document);
    EXPECT_EQ(stored->vatSum(), 12);
    EXPECT_EQ(stored->gstSum(), 12);
    EXPECT_EQ(stored->docSum(), 132);
    EXPECT_TRUE(stored->withVAT);
    EXPECT_TRUE(stored->withGST);
}

// A few months of a shop on one page.
TEST(Confirmation, theLedgerOfATeaShop)
{
    struct Entry {
        DocType type;
        int amount;
        int price;
        double main, shop, cost, balance, leftToPay;
    };
    const Entry ledger[] = {
        // type, amount, price; on hand in Main and Shop, average cost, Acme's balance, left to pay
        {DocType::BuyProduct, 10, 4, 10, 0, 4, 40, 40},
        {DocType::BuyProduct, 10, 6, 20, 0, 5, 100, 60},
        {DocType::MoveProduct, 5, 5, 15, 5, 5, 100, 0},
        {DocType::SellProduct, 4, 8, 11, 5, 5, 68, 0},
        {DocType::SellProduct, 11, 8, 0, 5, 5, -20, 20},
        {DocType::AddProduct, 5, 1, 5, 5, 5, -20, 0},
        {DocType::Return, 10, 8, 15, 5, 6.5, 60, 60},
        {DocType::DeleteProduct, 15, 1, 0, 5, 6.5, 60, 0},
        {DocType::SellIntangibles, 1, 100, 0, 5, 6.5, -40, 40},
    };
    TeaShop shop;
    for (const Entry& entry : ledger) {
        shop.clock.set(shop.clock.now() + 60);
        const auto form = shop.formWithTea(entry.type, entry.amount, entry.price);
        ASSERT_TRUE(form->confirmDoc()) << qPrintable(shop.alertText());
        const std::string at = docTypeName(entry.type).toStdString();
        EXPECT_EQ(shop.onHand(*shop.main, *shop.tea), entry.main) << at;
        EXPECT_EQ(shop.onHand(*shop.shop, *shop.tea), entry.shop) << at;
        EXPECT_EQ(shop.read(*shop.tea)->baseCost(), entry.cost) << at;
        EXPECT_EQ(shop.balance(), entry.balance) << at;
        EXPECT_EQ(shop.read(*form->document)->leftToPay(), entry.leftToPay) << at;
    }
}

} // namespace
} // namespace zelvor
