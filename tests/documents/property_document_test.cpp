#include "catalogs/contragent_select_view.h"
#include "support/document_forms.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

using enum DocType;
using enum NotificationName;

const QString cannotConfirm = u"Can't confirm document.\n"_s;

class FixedAssets : public testing::Test {
protected:
    std::unique_ptr<PropertyForm> filled(DocType type, double sum)
    {
        auto form = newPropertyForm(books, type);
        if (form->contragentEnabled()) {
            EXPECT_TRUE(form->setContragentFromID(ann->id));
        }
        if (form->propertyTextEnabled()) {
            enter(form->mainView.propertyName, u"Lathe"_s);
            tick(form->mainView.amortizedCheck);
            enter(form->amortizationPeriod, 12);
        } else {
            EXPECT_TRUE(form->setPropertyFromID(van->id));
        }
        if (form->deleteBasisEnabled()) {
            EXPECT_TRUE(form->setDeleteBasisFromID(1));
        }
        if (form->sumEnabled())
            enter(form->docSum, sum);
        books.posted.clear();
        return form;
    }
    void setBalance(double balance)
    {
        ann->setBalance(balance);
        books.store(*ann);
    }
    std::shared_ptr<Property> onlyNewAsset()
    {
        const auto assets = books.db.freeSQL<Property>("WHERE id<>?", {van->id});
        return assets.size() == 1 ? assets.front() : nullptr;
    }
    // Refused: the file is as before, the document unconfirmed with number 0 and without its asset.
    void expectRefused(PropertyForm& form, const QString& alert)
    {
        const QStringList before = books.dump();
        const qint64 propertyID = form.document->propertyID;
        const Property asset = *form.document->property;
        EXPECT_FALSE(form.confirmDoc());
        EXPECT_EQ(lastAlertText(books), alert);
        EXPECT_EQ(books.dump(), before);
        EXPECT_FALSE(form.document->confirmed);
        EXPECT_EQ(form.document->docNumber, 0);
        EXPECT_EQ(form.document->id, 0);
        EXPECT_EQ(form.document->propertyID, propertyID);
        EXPECT_EQ(form.document->property->id, asset.id);
        EXPECT_EQ(form.document->property->soldDate, asset.soldDate);
        EXPECT_EQ(form.document->property->baseCost(), asset.baseCost());
        EXPECT_EQ(form.document->contragent->balance(), ann->balance() * form.contragentEnabled());
        EXPECT_TRUE(form.alertMessage.isEmpty());
        EXPECT_FALSE(form.progress.isRunning());
        EXPECT_TRUE(form.mainView.confirmButton.enabled()) << "it may be tried again";
    }

    Books books;
    std::shared_ptr<Contragent> ann = books.contragent(u"Ann"_s, 0, 0, 14);
    std::shared_ptr<Property> van = books.property(u"Van"_s, 900, 36);
};

TEST_F(FixedAssets, aMonthClosedOnTheWayDepreciatesTheAssetThatGoes)
{
    books.changeParams([](Params& params) { params.lastPeriodSaved = 202309; });
    for (const DocType type : {SellProperty, DeleteProperty}) {
        const auto truck = books.property(u"Truck"_s, 1200, 12);
        const auto form = filled(type, 500);
        ASSERT_TRUE(form->setPropertyFromID(truck->id));
        ASSERT_TRUE(form->confirmDoc());
        EXPECT_EQ(books.read(*truck)->currentCost(), 1100);
        EXPECT_NE(books.read(*truck)->soldDate, 0);
        books.changeParams([](Params& params) { params.lastPeriodSaved = 202309; });
    }
}

TEST_F(FixedAssets, eachTypeShowsItsInputs)
{
    struct Shows {
        DocType type;
        bool contragent, text, choice, basis, basisHidden, sum;
    };
    const Shows table[] = {
        {BuyProperty, true, true, false, false, true, true},
        {SellProperty, true, false, true, false, false, true},
        {AddProperty, false, true, false, false, true, true},
        {DeleteProperty, false, false, true, true, false, false},
    };
    for (const Shows& shows : table) {
        SCOPED_TRACE(qPrintable(docTypeCase(shows.type)));
        const auto form = newPropertyForm(books, shows.type);
        EXPECT_EQ(form->contragentEnabled(), shows.contragent);
        EXPECT_EQ(form->propertyTextEnabled(), shows.text);
        EXPECT_EQ(form->mainView.propertyName.enabled(), shows.text);
        EXPECT_EQ(form->propertyControllsEnabled(), shows.choice);
        EXPECT_EQ(form->deleteBasisEnabled(), shows.basis);
        EXPECT_EQ(form->mainView.deleteBasisSelect.hidden(), shows.basisHidden);
        EXPECT_EQ(form->docSum.enabled(), shows.sum);
        EXPECT_EQ(form->controlsEnabled(), shows.text);
        EXPECT_EQ(form->amortizationPeriod.enabled(), shows.text);
        EXPECT_EQ(form->deferment.enabled(), shows.contragent);
    }
}

TEST_F(FixedAssets, confirmingNeedsEveryInputOfTheType)
{
    const auto buy = newPropertyForm(books, BuyProperty);
    EXPECT_EQ(buy->missingInputs(), (QStringList{u"Fixed Asset"_s, u"Counterparty"_s, u"Sum"_s}));
    const auto sell = newPropertyForm(books, SellProperty);
    EXPECT_EQ(sell->missingInputs(), (QStringList{u"Fixed Asset"_s, u"Counterparty"_s, u"Sum"_s}));
    const auto add = newPropertyForm(books, AddProperty);
    EXPECT_EQ(add->missingInputs(), (QStringList{u"Fixed Asset"_s, u"Sum"_s}));
    const auto writeOff = newPropertyForm(books, DeleteProperty);
    EXPECT_EQ(writeOff->missingInputs(), (QStringList{u"Fixed Asset"_s, u"Reason"_s}));
    EXPECT_FALSE(writeOff->mainView.confirmButton.enabled());
    EXPECT_EQ(writeOff->mainView.deleteBasisLabel.color(), redColor);
    const QStringList before = books.dump();
    EXPECT_FALSE(writeOff->confirmDoc());
    EXPECT_EQ(lastAlertText(books), u"These inputs are missing: Fixed Asset, Reason.\n"_s);
    EXPECT_EQ(books.dump(), before);
}

TEST_F(FixedAssets, aBlankNameANegativePeriodAndASumTooLargeAreMissing)
{
    const auto form = filled(AddProperty, 1e13 + 1);
    enter(form->mainView.propertyName, u"  "_s);
    enter(form->amortizationPeriod, -1);
    EXPECT_EQ(form->missingInputs(), (QStringList{u"Fixed Asset"_s, u"Sum"_s, u"Period"_s}));
    enter(form->docSum, 0.004);
    EXPECT_TRUE(form->missingInputs().contains(u"Sum"_s)) << "0 after rounding";
    const auto buy = filled(BuyProperty, 1);
    enter(buy->deferment, 1e9);
    EXPECT_EQ(buy->missingInputs(), QStringList{u"Deferment"_s});
}

TEST_F(FixedAssets, anAdditionTakesItsCostFromTheSumAndTouchesNoBalance)
{
    const auto form = filled(AddProperty, 1200);
    EXPECT_TRUE(form->confirmDoc());
    const auto asset = onlyNewAsset();
    ASSERT_TRUE(asset);
    EXPECT_EQ(asset->name, u"Lathe"_s);
    EXPECT_EQ(asset->baseCost(), 1200);
    EXPECT_EQ(asset->currentCost(), 1200);
    EXPECT_EQ(asset->amortizationPeriod, 12);
    EXPECT_TRUE(asset->isAmortized);
    EXPECT_EQ(asset->date, form->document->date);
    EXPECT_EQ(asset->soldDate, 0);
    const auto stored = books.read(*form->document);
    EXPECT_TRUE(stored->confirmed);
    EXPECT_EQ(stored->docNumber, 1);
    EXPECT_EQ(stored->propertyID, asset->id);
    EXPECT_EQ(stored->docSum(), 1200);
    EXPECT_EQ(stored->contragentID, 0);
    EXPECT_EQ(books.read(*ann)->balance(), 0);
}

TEST_F(FixedAssets, aPurchaseRaisesTheBalanceAndStaysOpenUntilItIsDue)
{
    const auto form = filled(BuyProperty, 500);
    EXPECT_EQ(form->deferment.integer(), 14) << "the counterparty's";
    EXPECT_EQ(form->defermentSlider.value(), 14);
    EXPECT_TRUE(form->confirmDoc());
    const auto stored = books.read(*form->document);
    EXPECT_EQ(stored->leftToPay(), 500);
    EXPECT_EQ(stored->payToDate, stored->date + 14 * secondsPerDay);
    EXPECT_EQ(books.read(*ann)->balance(), 500);
    EXPECT_EQ(form->contragentBalance.real(), 500);
}

TEST_F(FixedAssets, whatAPurchaseLeavesOpenIsLessWhatTheCounterpartyOwes)
{
    const std::pair<double, double> balanceAndLeft[] = {{10, 100}, {0, 100}, {-30, 70}, {-100, 0}, {-130, 0}};
    for (const auto& [balance, left] : balanceAndLeft) {
        setBalance(balance);
        const auto form = filled(BuyProperty, 100);
        EXPECT_TRUE(form->confirmDoc());
        EXPECT_EQ(form->document->leftToPay(), left) << balance;
        EXPECT_EQ(form->document->contragentBalance(), balance);
        EXPECT_EQ(books.read(*ann)->balance(), balance + 100);
    }
}

TEST_F(FixedAssets, whatASaleLeavesOpenIsLessWhatTheCounterpartyHasWithUs)
{
    const std::pair<double, double> balanceAndLeft[] = {{-10, 100}, {0, 100}, {30, 70}, {100, 0}, {130, 0}};
    for (const auto& [balance, left] : balanceAndLeft) {
        setBalance(balance);
        van = books.property(u"Car"_s, 80);
        const auto form = filled(SellProperty, 100);
        EXPECT_TRUE(form->confirmDoc());
        EXPECT_EQ(form->document->leftToPay(), left) << balance;
        EXPECT_EQ(books.read(*ann)->balance(), balance - 100);
    }
}

TEST_F(FixedAssets, aPurchaseSettlesTheCounterpartysOpenSalesByItsDebt)
{
    setBalance(-60);
    const auto late = openDocument<PropertyDocument>(books, SellProperty, *ann, 40, 300);
    const auto early = openDocument<ProductDocument>(books, SellProduct, *ann, 50, 100);
    const auto purchase = openDocument<ProductDocument>(books, BuyProduct, *ann, 50, 1);
    EXPECT_TRUE(filled(BuyProperty, 100)->confirmDoc());
    EXPECT_EQ(books.read(*early)->leftToPay(), 0);
    EXPECT_EQ(books.read(*late)->leftToPay(), 30) << "no more than the debt of 60";
    EXPECT_EQ(books.read(*purchase)->leftToPay(), 50);
}

TEST_F(FixedAssets, aSaleSettlesOurOpenPurchasesByTheCounterpartysCredit)
{
    setBalance(500);
    const auto late = openDocument<PropertyDocument>(books, BuyProperty, *ann, 90, 300);
    const auto early = openDocument<ProductDocument>(books, Return, *ann, 30, 100);
    EXPECT_TRUE(filled(SellProperty, 100)->confirmDoc());
    EXPECT_EQ(books.read(*early)->leftToPay(), 0);
    EXPECT_EQ(books.read(*late)->leftToPay(), 20) << "no more than the sum of 100";
}

TEST_F(FixedAssets, aPurchaseOnCreditSettlesNothing)
{
    setBalance(60);
    const auto sale = openDocument<ProductDocument>(books, SellProduct, *ann, 50, 1);
    EXPECT_TRUE(filled(BuyProperty, 100)->confirmDoc());
    EXPECT_EQ(books.read(*sale)->leftToPay(), 50);
}

TEST_F(FixedAssets, choosingAnAssetToSellFillsItsFields)
{
    const auto form = newPropertyForm(books, SellProperty);
    EXPECT_EQ(form->propertySelectView.numberOfRows(), 0) << "nothing is read before the popover opens";
    form->selectProperty();
    EXPECT_TRUE(form->propertySelectPopover.isOpen());
    ASSERT_EQ(form->propertySelectView.numberOfRows(), 1);
    form->propertySelectView.doubleAction(0);
    EXPECT_FALSE(form->propertySelectPopover.isOpen());
    EXPECT_EQ(form->mainView.propertyName.text(), u"Van"_s);
    EXPECT_EQ(form->amortizationPeriod.integer(), 36);
    EXPECT_EQ(form->currentCost.real(), 900);
    EXPECT_EQ(form->docSum.real(), 900);
    form->clearProperty();
    EXPECT_TRUE(form->missingInputs().contains(u"Fixed Asset"_s));

    const auto writeOff = newPropertyForm(books, DeleteProperty);
    writeOff->setPropertyFromID(van->id);
    EXPECT_EQ(writeOff->docSum.real(), 0) << "only a sale takes the cost as its sum";
}

TEST_F(FixedAssets, aSoldAssetLeavesTheSelectionAndCannotBeSoldAgain)
{
    const auto second = filled(SellProperty, 100);
    const auto third = newPropertyForm(books, SellProperty);
    third->selectProperty();
    EXPECT_EQ(third->propertySelectView.numberOfRows(), 1);
    const auto form = filled(SellProperty, 100);
    ASSERT_TRUE(form->confirmDoc());
    const auto sold = books.read(*van);
    EXPECT_EQ(sold->soldDate, form->document->date);
    EXPECT_EQ(sold->currentCost(), 900) << "profit and loss are a matter of the reports";
    EXPECT_EQ(third->propertySelectView.numberOfRows(), 0) << "the open popover hears of it";
    EXPECT_FALSE(third->setPropertyFromID(van->id));
    EXPECT_EQ(third->document->propertyID, 0);
    const QStringList before = books.dump();
    EXPECT_FALSE(second->confirmDoc()) << "a form that chose it before";
    EXPECT_EQ(lastAlertText(books), u"The fixed asset is sold or written off already.\n"_s + cannotConfirm);
    EXPECT_EQ(books.dump(), before);
}

TEST_F(FixedAssets, aSaleStoresWhateverReasonIsSelectedOrNone)
{
    EXPECT_TRUE(filled(SellProperty, 100)->confirmDoc());
    EXPECT_EQ(books.db.freeSQL<PropertyDocument>().back()->deleteBasisID, 0);
    van = books.property(u"Car"_s, 80);
    const auto form = filled(SellProperty, 100);
    EXPECT_TRUE(form->setDeleteBasisFromID(1));
    EXPECT_TRUE(form->confirmDoc());
    EXPECT_EQ(books.read(*form->document)->deleteBasisID, 1);
}

TEST_F(FixedAssets, aWriteOffMovesNoSumAndMarksTheAsset)
{
    const auto form = filled(DeleteProperty, 0);
    EXPECT_FALSE(form->docSum.enabled());
    EXPECT_TRUE(form->confirmDoc());
    const auto stored = books.read(*form->document);
    EXPECT_EQ(stored->docSum(), 0);
    EXPECT_EQ(stored->deleteBasisID, 1);
    EXPECT_EQ(stored->propertyID, van->id);
    EXPECT_EQ(stored->deleteBasis->name, u"Broken"_s);
    EXPECT_EQ(books.read(*van)->soldDate, stored->date);
    EXPECT_EQ(books.read(*van)->currentCost(), 900);
}

TEST_F(FixedAssets, theAssetIsTakenAsItStandsInTheFile)
{
    const auto form = filled(SellProperty, 100);
    auto depreciated = *van;
    depreciated.setCurrentCost(875);
    depreciated.descriptionString = u"dented"_s;
    books.store(depreciated);
    EXPECT_TRUE(form->confirmDoc());
    EXPECT_EQ(books.read(*van)->currentCost(), 875);
    EXPECT_EQ(books.read(*van)->descriptionString, u"dented"_s);
}

TEST_F(FixedAssets, theCounterpartyIsTakenAsItStandsInTheFile)
{
    const auto form = filled(BuyProperty, 100);
    const auto faster = filled(BuyProperty, 50);
    EXPECT_TRUE(faster->confirmDoc());
    EXPECT_TRUE(form->confirmDoc());
    EXPECT_EQ(books.read(*ann)->balance(), 150);
}

TEST_F(FixedAssets, areToldInOrderBeforeTheCommit)
{
    using Names = std::vector<NotificationName>;
    const Names all{PropertiesChangedNotification, BalanceChangedNotification};
    for (const DocType type : {BuyProperty, AddProperty, SellProperty, DeleteProperty}) {
        SCOPED_TRACE(qPrintable(docTypeCase(type)));
        van = books.property(u"Car"_s, 80);
        const auto form = filled(type, 1);
        PostingsInsideTransaction postings(books);
        EXPECT_TRUE(form->confirmDoc());
        Names expected = all;
        if (form->contragentEnabled())
            expected.insert(expected.end(),
                            {DocWithContragentChangedNotification, ContragentBalanceChangedNotification});
        EXPECT_EQ(books.posted.names, expected);
        for (const Notification& notification : books.posted.notifications)
            EXPECT_EQ(notification.object, form.get());
        EXPECT_EQ(postings.outside, 0);
    }
}

TEST_F(FixedAssets, aConfirmedDocumentIsRefusedAndReadOnly)
{
    const auto form = filled(BuyProperty, 100);
    ASSERT_TRUE(form->confirmDoc());
    const QStringList before = books.dump();
    EXPECT_FALSE(form->confirmDoc());
    EXPECT_EQ(lastAlertText(books), u"The document is confirmed already.\n"_s);
    EXPECT_EQ(books.dump(), before);
    for (Outlet* outlet : std::initializer_list<Outlet*>{
             &form->docSum, &form->deferment, &form->amortizationPeriod, &form->mainView.date,
             &form->mainView.propertyName, &form->mainView.amortizedCheck, &form->mainView.confirmButton})
        EXPECT_FALSE(outlet->enabled()) << qPrintable(outlet->name());
    EXPECT_TRUE(form->documentTitle.text().endsWith(u"#1 (read)"_s));
    EXPECT_EQ(form->mainView.titleColor(), inOrderColor);

    PropertyForm opened(books.appDelegate, books.db.select<PropertyDocument>(form->document->id));
    opened.prepareData();
    EXPECT_EQ(opened.docSum.real(), 100);
    EXPECT_EQ(opened.deferment.integer(), 14);
    EXPECT_EQ(opened.amortizationPeriod.integer(), 12);
    EXPECT_EQ(opened.mainView.propertyName.text(), u"Lathe"_s);
    EXPECT_EQ(opened.mainView.contragentField.text(), u"Ann"_s);
    EXPECT_TRUE(opened.mainView.amortizedCheck.isOn());
    EXPECT_FALSE(opened.mainView.confirmButton.enabled());
}

TEST_F(FixedAssets, aCounterpartyIsChosenFromThePopover)
{
    const auto form = newPropertyForm(books, BuyProperty);
    form->selectContragent();
    ContragentSelectView& chooser = form->contragentSelectView();
    EXPECT_TRUE(chooser.selectPopover.isOpen());
    ASSERT_EQ(chooser.numberOfChildren(nullptr), 1);
    chooser.doubleAction(chooser.child(nullptr, 0));
    EXPECT_EQ(form->document->contragentID, ann->id);
    EXPECT_FALSE(chooser.selectPopover.isOpen());
    enter(form->deferment, 3);
    ann->name = u"Anna"_s;
    books.store(*ann);
    books.appDelegate.notifications.post(ContragentChangedNotification);
    EXPECT_EQ(form->mainView.contragentField.text(), u"Anna"_s);
    EXPECT_EQ(form->deferment.integer(), 3) << "as it was entered";
}

TEST_F(FixedAssets, theReasonsAreReadWhenTheyAreAskedFor)
{
    DeleteBasis basis;
    basis.name = u"Age"_s;
    books.store(basis);
    const auto form = newPropertyForm(books, DeleteProperty);
    EXPECT_TRUE(form->mainView.deleteBasisSelect.items().empty());
    form->prepareDeleteBasises();
    ASSERT_EQ(form->mainView.deleteBasisSelect.items().size(), 2u);
    EXPECT_EQ(form->mainView.deleteBasisSelect.items()[0].title, u"Age"_s);
    choose(form->mainView.deleteBasisSelect, 2);
    EXPECT_EQ(form->document->deleteBasisID, 2);
    EXPECT_FALSE(form->setDeleteBasisFromID(9));
    EXPECT_EQ(form->document->deleteBasisID, 0);
}

TEST_F(FixedAssets, eachStepHasItsOwnSentence)
{
    setBalance(-10);
    openDocument<ProductDocument>(books, SellProduct, *ann, 5, 1);
    struct Failure {
        DocType type;
        unsigned kind;
        int call;
        QString sentence;
    };
    constexpr unsigned update = FaultInjectingConnector::Update;
    constexpr unsigned insert = FaultInjectingConnector::Insert;
    const QString number = u"Can't get serial number for document.\n"_s + cannotConfirm;
    const QString balance = u"Failed to change contragent's balance.\n"_s + cannotConfirm;
    const Failure failures[] = {
        {BuyProperty, update, 1, number},           {BuyProperty, update, 2, {}}, // an open document
        {BuyProperty, update, 3, balance},          {BuyProperty, insert, 1, cannotConfirm},
        {BuyProperty, insert, 2, cannotConfirm},    {SellProperty, update, 2, balance},
        {SellProperty, update, 3, cannotConfirm},   {AddProperty, insert, 1, cannotConfirm},
        {DeleteProperty, update, 2, cannotConfirm}, {DeleteProperty, insert, 1, cannotConfirm},
    };
    for (const Failure& failure : failures) {
        SCOPED_TRACE(
            QStringLiteral("%1, call %2").arg(docTypeCase(failure.type)).arg(failure.call).toStdString());
        const auto form = filled(failure.type, 10);
        books.connector->failCall(failure.call, failure.kind);
        expectRefused(*form, failure.sentence);
        EXPECT_TRUE(books.connector->hasFailed());
        EXPECT_TRUE(books.posted.names.empty());
    }
}

TEST_F(FixedAssets, aMonthThatCannotBeClosedOnTheWayRefusesInTheWordsOfMoney)
{
    books.changeParams([](Params& params) { params.lastPeriodSaved = 202309; });
    const auto form = filled(AddProperty, 10);
    books.connector->failCall(1, FaultInjectingConnector::Update);
    expectRefused(*form, u"Last report period must be closed before we can proceed document with date from "
                         "later period. But we can't now close it for unknown reason!\n"_s);
}

TEST_F(FixedAssets, aCommitThatDoesNotHoldIsTakenBackInMemoryTooAndToldOnce)
{
    const auto form = filled(BuyProperty, 10);
    const QStringList before = books.dump();
    books.connector->failCall(1, FaultInjectingConnector::Commit);
    EXPECT_FALSE(form->confirmDoc());
    EXPECT_EQ(books.dump(), before);
    EXPECT_EQ(books.dialogs.alerts.size(), 1u);
    EXPECT_FALSE(form->document->confirmed);
    EXPECT_EQ(form->document->id, 0);
    EXPECT_EQ(form->document->property->id, 0);
    EXPECT_EQ(form->contragentBalance.real(), 0);
    EXPECT_TRUE(form->confirmDoc());
    EXPECT_EQ(books.read(*ann)->balance(), 10);
}

// Every call of every type fails once: nothing of it is left, and the next try goes through.
class FixedAssetFaults : public FixedAssets, public testing::WithParamInterface<DocType> {
protected:
    // How many calls could fail before the confirmation went through.
    int expectNothingLeft(PropertyForm& form, unsigned kinds)
    {
        const QStringList before = books.dump();
        for (int call = 1; call < 100; ++call) {
            books.connector->failCall(call, kinds);
            const bool done = form.confirmDoc();
            EXPECT_EQ(done, !books.connector->hasFailed()) << "call " << call;
            books.connector->failCall(0);
            if (done)
                return call - 1;
            EXPECT_EQ(books.dump(), before) << "call " << call;
            EXPECT_EQ(form.document->id, 0);
            EXPECT_EQ(form.document->docNumber, 0);
            EXPECT_FALSE(form.document->confirmed);
            EXPECT_EQ(form.document->property->soldDate, 0);
            EXPECT_EQ(form.document->contragent->balance(), form.contragentEnabled() ? -10 : 0);
        }
        return -1;
    }
};

TEST_P(FixedAssetFaults, ofWritingLeaveNothing)
{
    setBalance(-10);
    openDocument<ProductDocument>(books, SellProduct, *ann, 5, 1);
    books.changeParams([](Params& params) { params.lastPeriodSaved = 202309; });
    const auto form = filled(GetParam(), 10);
    EXPECT_GE(expectNothingLeft(*form, FaultInjectingConnector::Begin | FaultInjectingConnector::Commit |
                                           FaultInjectingConnector::Writes),
              6);
}

TEST_P(FixedAssetFaults, ofReadingLeaveNothing)
{
    setBalance(-10);
    openDocument<ProductDocument>(books, SellProduct, *ann, 5, 1);
    const auto form = filled(GetParam(), 10);
    EXPECT_GE(expectNothingLeft(*form, FaultInjectingConnector::Reads), 5);
}

INSTANTIATE_TEST_SUITE_P(EveryType, FixedAssetFaults,
                         testing::Values(BuyProperty, SellProperty, AddProperty, DeleteProperty),
                         [](const auto& type) { return docTypeCase(type.param).toStdString(); });

} // namespace
} // namespace zelvor
