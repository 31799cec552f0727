#include "documents/document_number.h"
#include "support/document_forms.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

using enum DocType;
using enum NotificationName;

const QString cannotConfirm = u"Can't confirm document.\n"_s;

// A business with two accounts, a counterparty, an employee and a spending.
class MoneyConfirmation : public testing::Test {
protected:
    std::unique_ptr<MoneyForm> filled(DocType type, double sum)
    {
        auto form = newMoneyForm(books, type);
        enter(form->mainView.docSum, sum);
        if (form->accountFromEnabled()) {
            EXPECT_TRUE(form->mainView.setAccountFromID(cash->id));
        }
        if (form->accountToEnabled()) {
            EXPECT_TRUE(form->mainView.setAccountToID(type == InnerTransaction ? bank->id : cash->id));
        }
        if (form->contragentEnabled()) {
            EXPECT_TRUE(form->setContragentFromID(ann->id));
        }
        if (form->employeeEnabled()) {
            EXPECT_TRUE(form->mainView.setEmployeeFromID(joe->id));
        }
        if (form->expendEnabled()) {
            EXPECT_TRUE(form->setExpendFromID(rent->id));
        }
        books.posted.clear();
        return form;
    }
    // Refused: the file is as before, the document unconfirmed with number 0.
    void expectRefused(MoneyForm& form, const QString& alert)
    {
        const QStringList before = books.dump();
        const qint64 id = form.document->id;
        const double balance = form.document->contragent->balance();
        EXPECT_FALSE(form.confirmDoc());
        EXPECT_EQ(lastAlertText(books), alert);
        EXPECT_EQ(books.dialogs.alerts.back().messageText, u"Ups! Something goes wrong!"_s);
        EXPECT_EQ(books.dialogs.alerts.back().buttons, QStringList{u"Close"_s});
        EXPECT_EQ(books.dialogs.alerts.back().alertStyle, 0);
        EXPECT_EQ(books.dump(), before);
        EXPECT_FALSE(form.document->confirmed);
        EXPECT_EQ(form.document->docNumber, 0);
        EXPECT_EQ(form.document->id, id);
        EXPECT_EQ(form.document->contragent->balance(), balance);
        EXPECT_TRUE(form.alertMessage.isEmpty());
        EXPECT_FALSE(form.progress.isRunning());
        EXPECT_TRUE(form.mainView.confirmButton.enabled()) << "it may be tried again";
    }

    Books books;
    std::shared_ptr<Account> cash = books.account(u"Cash"_s, 500, true);
    std::shared_ptr<Account> bank = books.account(u"Bank"_s, 50, false, CurrencyStruct::USD);
    std::shared_ptr<Contragent> ann = books.contragent(u"Ann"_s, -20);
    std::shared_ptr<Manager> joe = books.employee(u"Joe"_s, 30);
    std::shared_ptr<Expend> rent = books.expend(u"Rent"_s);
};

TEST_F(MoneyConfirmation, aDepositRaisesItsAccount)
{
    const auto form = filled(MoneyAdd, 100);
    EXPECT_TRUE(form->confirmDoc());
    EXPECT_EQ(books.read(*cash)->balance(), 600);
    const auto stored = books.read(*form->document);
    EXPECT_TRUE(stored->confirmed);
    EXPECT_EQ(stored->docNumber, 1);
    EXPECT_EQ(stored->accountToBalance(), 500);
    EXPECT_EQ(stored->leftToPay(), 0);
}

TEST_F(MoneyConfirmation, aSpendingTouchesOneAccountAndNothingElse)
{
    const auto form = filled(MoneyToExpend, 100);
    const QStringList before = books.dump();
    EXPECT_TRUE(form->confirmDoc());
    EXPECT_EQ(books.read(*cash)->balance(), 400);
    EXPECT_EQ(form->document->accountFromBalance(), 500);
    QStringList changed;
    for (const QString& line : books.dump()) {
        if (!before.contains(line))
            changed.append(line.section(u':', 0, 0));
    }
    changed.sort();
    EXPECT_EQ(changed, (QStringList{u"account"_s, u"doc_number"_s, u"money_doc"_s}));
}

TEST_F(MoneyConfirmation, anEmployeesBalanceMovesWithTheMoney)
{
    EXPECT_TRUE(filled(MoneyFromEmployee, 10)->confirmDoc());
    EXPECT_EQ(books.read(*joe)->balance(), 40);
    const auto form = filled(MoneyToEmployee, 25);
    EXPECT_TRUE(form->confirmDoc());
    EXPECT_EQ(books.read(*joe)->balance(), 15);
    EXPECT_EQ(books.read(*form->document)->managerBalance(), 40);
    EXPECT_EQ(form->mainView.employeeBalance.real(), 15);
}

TEST_F(MoneyConfirmation, aDividendLeavesTheEmployeesBalanceAlone)
{
    const auto form = filled(MoneyToEmployee, 25);
    tick(form->mainView.dividentCheck);
    EXPECT_TRUE(form->confirmDoc());
    EXPECT_EQ(books.read(*cash)->balance(), 475);
    EXPECT_EQ(books.read(*joe)->balance(), 30);
    const auto stored = books.read(*form->document);
    EXPECT_TRUE(stored->divident);
    EXPECT_EQ(stored->managerBalance(), 0);
}

TEST_F(MoneyConfirmation, aTransferBetweenCurrenciesLosesTheSumAndGainsTheConvertedSum)
{
    books.setRate(CurrencyStruct::USD, 1.1);
    const auto form = filled(InnerTransaction, 100);
    EXPECT_EQ(form->mainView.docSumTo.real(), 110);
    EXPECT_TRUE(form->confirmDoc());
    EXPECT_EQ(books.read(*cash)->balance(), 400);
    EXPECT_EQ(books.read(*bank)->balance(), 160);
    const auto stored = books.read(*form->document);
    EXPECT_EQ(stored->convertedSum(), 110);
    EXPECT_EQ(stored->exchangeRate(), 1.1);
    EXPECT_EQ(stored->accountFromBalance(), 500);
    EXPECT_EQ(stored->accountToBalance(), 50);
}

TEST_F(MoneyConfirmation, anAccountWithExactlyTheSumIsEnough)
{
    EXPECT_TRUE(filled(MoneyToExpend, 500)->confirmDoc());
    EXPECT_EQ(books.read(*cash)->balance(), 0);
}

TEST_F(MoneyConfirmation, anAccountWithLessThanTheSumRefuses)
{
    const auto form = filled(MoneyToContragent, 500.01);
    expectRefused(*form, u"Have not enough money on account 'Cash'. Need: 500.01 Have: 500.0\n"_s);
    EXPECT_TRUE(books.posted.names.empty());
}

TEST_F(MoneyConfirmation, theAccountIsJudgedAsItStandsInTheFile)
{
    const auto form = filled(MoneyToExpend, 400);
    const auto faster = filled(MoneyToExpend, 200);
    EXPECT_TRUE(faster->confirmDoc());
    expectRefused(*form, u"Have not enough money on account 'Cash'. Need: 400.0 Have: 300.0\n"_s);
    EXPECT_EQ(form->document->accountFrom->balance(), 500) << "in memory as before";
}

TEST_F(MoneyConfirmation, twoOpenFormsOfTheSamePartiesLoseNoUpdate)
{
    const auto first = filled(MoneyFromContragent, 10);
    const auto second = filled(MoneyFromContragent, 5);
    const auto wage = filled(MoneyToEmployee, 1);
    const auto advance = filled(MoneyToEmployee, 2);
    for (MoneyForm* form : {first.get(), second.get(), wage.get(), advance.get()})
        EXPECT_TRUE(form->confirmDoc());
    EXPECT_EQ(books.read(*cash)->balance(), 512);
    EXPECT_EQ(books.read(*ann)->balance(), -5);
    EXPECT_EQ(books.read(*joe)->balance(), 27);
}

TEST_F(MoneyConfirmation, moneyReceivedSettlesTheEarliestDueSaleFirstAndRaisesTheBalanceAnyway)
{
    const auto late = openDocument<ProductDocument>(books, SellProduct, *ann, 90, 200);
    const auto early = openDocument<ProductDocument>(books, SellProduct, *ann, 30, 100);
    EXPECT_TRUE(filled(MoneyFromContragent, 100)->confirmDoc());
    EXPECT_EQ(books.read(*early)->leftToPay(), 0);
    EXPECT_EQ(books.read(*late)->leftToPay(), 20);
    EXPECT_EQ(books.read(*ann)->balance(), 80);
}

TEST_F(MoneyConfirmation, moneyReceivedSettlesSalesOfGoodsServicesAndAssetsOfThisCounterpartyOnly)
{
    const auto bob = books.contragent(u"Bob"_s);
    const auto goods = openDocument<ProductDocument>(books, SellProduct, *ann, 10, 1);
    const auto services = openDocument<ProductDocument>(books, SellIntangibles, *ann, 10, 3);
    const auto asset = openDocument<PropertyDocument>(books, SellProperty, *ann, 10, 2);
    const auto purchase = openDocument<ProductDocument>(books, BuyProduct, *ann, 10, 1);
    const auto others = openDocument<ProductDocument>(books, SellProduct, *bob, 10, 1);
    auto draft = *openDocument<ProductDocument>(books, SellProduct, *ann, 10, 0);
    draft.confirmed = false;
    books.store(draft);
    EXPECT_TRUE(filled(MoneyFromContragent, 25)->confirmDoc());
    EXPECT_EQ(books.read(*goods)->leftToPay(), 0);
    EXPECT_EQ(books.read(*asset)->leftToPay(), 0);
    EXPECT_EQ(books.read(*services)->leftToPay(), 5);
    EXPECT_EQ(books.read(*purchase)->leftToPay(), 10);
    EXPECT_EQ(books.read(*others)->leftToPay(), 10);
    EXPECT_EQ(books.read(draft)->leftToPay(), 10);
}

TEST_F(MoneyConfirmation, moneyPaidSettlesPurchasesReturnsAndBoughtAssets)
{
    const auto purchase = openDocument<ProductDocument>(books, BuyProduct, *ann, 10, 3);
    const auto goodsBack = openDocument<ProductDocument>(books, Return, *ann, 10, 1);
    const auto asset = openDocument<PropertyDocument>(books, BuyProperty, *ann, 10, 2);
    const auto sale = openDocument<ProductDocument>(books, SellProduct, *ann, 10, 1);
    EXPECT_TRUE(filled(MoneyToContragent, 20)->confirmDoc());
    EXPECT_EQ(books.read(*goodsBack)->leftToPay(), 0);
    EXPECT_EQ(books.read(*asset)->leftToPay(), 0);
    EXPECT_EQ(books.read(*purchase)->leftToPay(), 10);
    EXPECT_EQ(books.read(*sale)->leftToPay(), 10);
    EXPECT_EQ(books.read(*ann)->balance(), -40);
}

TEST_F(MoneyConfirmation, moneyWithoutOpenDocumentsChangesNoDocument)
{
    const auto settled = openDocument<ProductDocument>(books, SellProduct, *ann, 0, 1);
    const auto form = filled(MoneyFromContragent, 100);
    EXPECT_TRUE(form->confirmDoc());
    EXPECT_EQ(books.read(*settled)->leftToPay(), 0);
    EXPECT_EQ(books.read(*ann)->balance(), 80);
    EXPECT_EQ(form->document->contragentBalance(), -20);
    EXPECT_EQ(form->contragentBalance.real(), 80) << "the form shows the new balance";
}

TEST_F(MoneyConfirmation, isToldInOrderBeforeTheCommit)
{
    using Names = std::vector<NotificationName>;
    const Names all{MoneyDocChangedNotification, AccountBalanceChangedNotification,
                    BalanceChangedNotification};
    const std::pair<DocType, Names> then[] = {
        {MoneyFromContragent, {ContragentBalanceChangedNotification, DocWithContragentChangedNotification}},
        {MoneyToContragent, {ContragentBalanceChangedNotification, DocWithContragentChangedNotification}},
        {MoneyFromEmployee, {ManagerBalanceChangedNotification}},
        {MoneyToEmployee, {ManagerBalanceChangedNotification}},
        {MoneyToExpend, {ExpendDocChangedNotification}},
        {MoneyAdd, {}},
        {InnerTransaction, {}},
    };
    for (const auto& [type, more] : then) {
        SCOPED_TRACE(qPrintable(docTypeCase(type)));
        const auto form = filled(type, 1);
        PostingsInsideTransaction postings(books);
        EXPECT_TRUE(form->confirmDoc());
        Names expected = all;
        expected.insert(expected.end(), more.begin(), more.end());
        EXPECT_EQ(books.posted.names, expected);
        EXPECT_EQ(books.posted.notifications.front().object, form.get());
        EXPECT_EQ(postings.outside, 0);
    }
}

TEST_F(MoneyConfirmation, eachTypeCountsItsOwnNumbers)
{
    EXPECT_TRUE(filled(MoneyAdd, 1)->confirmDoc());
    const auto second = filled(MoneyAdd, 1);
    EXPECT_TRUE(second->confirmDoc());
    EXPECT_EQ(second->document->docNumber, 2);
    EXPECT_EQ(books.lastNumber(MoneyAdd), 2);
    EXPECT_EQ(books.lastNumber(MoneyToExpend), 0);
}

TEST_F(MoneyConfirmation, withoutACounterOfItsTypeFailsWithBothSentences)
{
    const auto counters = books.db.freeSQL<DocumentNumber>("WHERE doc_type_id=?", {MoneyAdd});
    ASSERT_EQ(books.db.remove(*counters.front()), 1);
    expectRefused(*filled(MoneyAdd, 1), u"Can't get serial number for document.\n"_s + cannotConfirm);
}

TEST_F(MoneyConfirmation, eachStepHasItsOwnSentence)
{
    openDocument<ProductDocument>(books, SellProduct, *ann, 5, 1);
    struct Failure {
        DocType type;
        int update; // which update fails
        QString sentence;
    };
    const QString number = u"Can't get serial number for document.\n"_s + cannotConfirm;
    const QString plus = u"Failed to add doc sum to account balance.\n"_s + cannotConfirm;
    const QString minus = u"Failed to subtract doc sum from account balance.\n"_s + cannotConfirm;
    const QString contragent = u"Failed to update contragent balance.\n"_s + cannotConfirm;
    const QString employee = u"Failed to update employee balance.\n"_s + cannotConfirm;
    const Failure failures[] = {
        {MoneyFromContragent, 1, number},
        {MoneyFromContragent, 2, plus},
        {MoneyFromContragent, 3, contragent},
        {MoneyFromContragent, 4, {}}, // an open document
        {MoneyToContragent, 2, minus},
        {MoneyToContragent, 3, contragent},
        {MoneyToExpend, 2, minus},
        {MoneyFromEmployee, 2, plus},
        {MoneyFromEmployee, 3, employee},
        {MoneyToEmployee, 2, minus},
        {MoneyToEmployee, 3, employee},
        {InnerTransaction, 2, minus},
        {InnerTransaction, 3, plus},
        {MoneyAdd, 2, plus},
    };
    for (const Failure& failure : failures) {
        SCOPED_TRACE(
            QStringLiteral("%1, update %2").arg(docTypeCase(failure.type)).arg(failure.update).toStdString());
        const auto form = filled(failure.type, 10);
        books.connector->failCall(failure.update, FaultInjectingConnector::Update);
        expectRefused(*form, failure.sentence);
        EXPECT_TRUE(books.connector->hasFailed());
        EXPECT_TRUE(books.posted.names.empty());
    }
}

TEST_F(MoneyConfirmation, aDocumentThatIsNotStoredIsRefusedWithoutASentence)
{
    const auto form = filled(MoneyFromContragent, 10);
    books.connector->failCall(1, FaultInjectingConnector::Insert);
    expectRefused(*form, {});
    EXPECT_TRUE(books.posted.names.empty());
}

TEST_F(MoneyConfirmation, anAccountThatIsNotThereCannotBeChecked)
{
    const auto form = filled(MoneyToExpend, 10);
    ASSERT_EQ(books.db.remove(*cash), 1);
    expectRefused(*form, u"Failed to check account balance.\n"_s + cannotConfirm);
}

TEST_F(MoneyConfirmation, aMonthThatCannotBeClosedOnTheWayRefusesInTheWordsOfMoney)
{
    books.changeParams([](Params& params) { params.lastPeriodSaved = 202309; });
    const auto form = filled(MoneyAdd, 10);
    books.connector->failCall(1, FaultInjectingConnector::Update);
    expectRefused(*form, u"Last report period must be closed before we can proceed document with date from "
                         "later period. But we can't now close it for unknown reason!\n"_s);
}

TEST_F(MoneyConfirmation, aDateFromTheFutureRefuses)
{
    const auto form = filled(MoneyAdd, 10);
    form->mainView.date.setMoment(books.clock.now());
    EXPECT_TRUE(form->mainView.date.userChanged());
    expectRefused(*form, u"Can't confirm document with date from future!\n"_s);
}

TEST_F(MoneyConfirmation, namesTheInputsThatAreMissingAndChangesNothing)
{
    const auto form = newMoneyForm(books, MoneyFromContragent);
    const QStringList before = books.dump();
    EXPECT_FALSE(form->confirmDoc());
    EXPECT_EQ(lastAlertText(books), u"These inputs are missing: Counterparty, Sum.\n"_s);
    EXPECT_EQ(books.dump(), before);
}

TEST_F(MoneyConfirmation, ofAConfirmedDocumentIsRefusedAndItsFormClosedToInput)
{
    const auto form = filled(MoneyFromContragent, 10);
    ASSERT_TRUE(form->confirmDoc());
    const QStringList before = books.dump();
    EXPECT_FALSE(form->confirmDoc());
    EXPECT_FALSE(form->writeDoc());
    EXPECT_FALSE(form->deleteDoc());
    EXPECT_EQ(books.dump(), before);
    form->clearContragent();
    EXPECT_EQ(form->document->contragentID, ann->id);
    for (Outlet* outlet :
         std::initializer_list<Outlet*>{&form->mainView.docSum, &form->mainView.date, &form->mainView.comment,
                                        &form->mainView.accountToSelect, &form->mainView.saveButton,
                                        &form->mainView.confirmButton, &form->mainView.deleteDocButton})
        EXPECT_FALSE(outlet->enabled()) << qPrintable(outlet->name());
    EXPECT_EQ(form->documentTitle.text(), form->document->name());
    EXPECT_TRUE(form->documentTitle.text().endsWith(u"#1 (read)"_s));
    EXPECT_EQ(form->documentTitle.color(), inOrderColor);
    EXPECT_EQ(form->mainView.titleColor(), inOrderColor);
    EXPECT_TRUE(form->justConfirmed);
}

TEST_F(MoneyConfirmation, ofADraftKeepsItsId)
{
    const auto form = filled(MoneyAdd, 10);
    ASSERT_TRUE(form->writeDoc());
    const qint64 id = form->document->id;
    EXPECT_TRUE(openMoneyForm(books, id)->confirmDoc());
    ASSERT_EQ(books.db.freeSQL<MoneyDocument>().size(), 1u);
    EXPECT_TRUE(books.db.select<MoneyDocument>(id)->confirmed);
}

TEST_F(MoneyConfirmation, thatTheDiskRefusesIsTakenBackInMemoryTooAndToldOnce)
{
    const auto form = filled(MoneyFromContragent, 10);
    const QStringList before = books.dump();
    books.connector->failCall(1, FaultInjectingConnector::Commit);
    EXPECT_FALSE(form->confirmDoc());
    EXPECT_EQ(books.dump(), before);
    ASSERT_EQ(books.dialogs.alerts.size(), 1u);
    EXPECT_EQ(books.dialogs.lastAlert(), u"The changes were not saved!"_s);
    EXPECT_FALSE(form->document->confirmed);
    EXPECT_EQ(form->document->id, 0);
    EXPECT_TRUE(form->documentTitle.text().endsWith(u"#0 (write)"_s));
    EXPECT_EQ(form->contragentBalance.real(), -20);
    EXPECT_TRUE(form->mainView.docSum.enabled());
    EXPECT_TRUE(form->confirmDoc());
    EXPECT_EQ(books.read(*ann)->balance(), -10);
}

// Every write of every type fails once: nothing of it is left, and the next try goes through.
class MoneyFaults : public MoneyConfirmation, public testing::WithParamInterface<DocType> {
protected:
    template <class Action>
    int expectNothingLeft(MoneyForm& form, Action action, unsigned kinds)
    {
        const QStringList before = books.dump();
        const MoneyDocument document = *form.document;
        int call = 1;
        for (;; ++call) {
            books.connector->failCall(call, kinds);
            const bool done = action();
            const bool failed = books.connector->hasFailed();
            books.connector->failCall(0);
            EXPECT_EQ(done, !failed) << "call " << call;
            if (done || call > 100)
                break;
            EXPECT_EQ(books.dump(), before) << "call " << call;
            EXPECT_EQ(form.document->id, document.id);
            EXPECT_EQ(form.document->docNumber, document.docNumber);
            EXPECT_FALSE(form.document->confirmed);
            EXPECT_EQ(form.document->accountFrom->balance(), document.accountFrom->balance());
            EXPECT_EQ(form.document->accountTo->balance(), document.accountTo->balance());
            EXPECT_EQ(form.document->contragent->balance(), document.contragent->balance());
            EXPECT_EQ(form.document->employee->balance(), document.employee->balance());
        }
        EXPECT_FALSE(books.db.inTransaction());
        return call - 1;
    }
    static constexpr unsigned writes =
        FaultInjectingConnector::Begin | FaultInjectingConnector::Commit | FaultInjectingConnector::Writes;
};

TEST_P(MoneyFaults, leaveNothingOfAConfirmation)
{
    openDocument<ProductDocument>(books, SellProduct, *ann, 5, 1);
    openDocument<ProductDocument>(books, BuyProduct, *ann, 5, 1);
    books.changeParams([](Params& params) { params.lastPeriodSaved = 202309; });
    const auto form = filled(GetParam(), 10);
    EXPECT_GE(expectNothingLeft(
                  *form, [&] { return form->confirmDoc(); }, writes),
              6);
}

TEST_P(MoneyFaults, leaveNothingOfASaveOrADelete)
{
    const auto form = filled(GetParam(), 10);
    EXPECT_EQ(expectNothingLeft(
                  *form, [&] { return form->writeDoc(); }, writes),
              3);
    enter(form->mainView.docSum, 11);
    EXPECT_EQ(expectNothingLeft(
                  *form, [&] { return form->writeDoc(); }, writes),
              3);
    EXPECT_EQ(expectNothingLeft(
                  *form, [&] { return form->deleteDoc(); }, writes),
              3);
    EXPECT_TRUE(books.db.freeSQL<MoneyDocument>().empty());
}

TEST_P(MoneyFaults, ofReadingLeaveNothingOfAConfirmation)
{
    const auto form = filled(GetParam(), 10);
    const QStringList before = books.dump();
    for (int call = 1; call < 20; ++call) {
        books.connector->failCall(call, FaultInjectingConnector::Reads);
        const bool done = form->confirmDoc();
        const bool failed = books.connector->hasFailed();
        books.connector->failCall(0);
        EXPECT_EQ(done, !failed) << "call " << call;
        if (done)
            return;
        EXPECT_EQ(books.dump(), before) << "call " << call;
        EXPECT_EQ(form->document->docNumber, 0);
    }
    FAIL() << "was never confirmed";
}

INSTANTIATE_TEST_SUITE_P(EveryType, MoneyFaults,
                         testing::Values(MoneyAdd, MoneyFromContragent, MoneyToContragent, MoneyFromEmployee,
                                         MoneyToEmployee, MoneyToExpend, InnerTransaction),
                         [](const auto& type) { return docTypeCase(type.param).toStdString(); });

} // namespace
} // namespace zelvor
