#include "catalogs/contragent_select_view.h"
#include "catalogs/expend_select_view.h"
#include "support/document_forms.h"

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

using enum DocType;

TEST(MoneyDocumentForm, eachTypeUsesItsInputs)
{
    struct Uses {
        DocType type;
        bool accountFrom, accountTo, contragent, employee, expend, sumTo;
    };
    const Uses table[] = {
        {MoneyAdd, false, true, false, false, false, false},
        {MoneyFromContragent, false, true, true, false, false, false},
        {MoneyToContragent, true, false, true, false, false, false},
        {MoneyFromEmployee, false, true, false, true, false, false},
        {MoneyToEmployee, true, false, false, true, false, false},
        {MoneyToExpend, true, false, false, false, true, false},
        {InnerTransaction, true, true, false, false, false, true},
    };
    Books books;
    for (const Uses& uses : table) {
        const auto form = newMoneyForm(books, uses.type);
        SCOPED_TRACE(qPrintable(docTypeCase(uses.type)));
        EXPECT_EQ(form->accountFromEnabled(), uses.accountFrom);
        EXPECT_EQ(form->mainView.accountFromSelect.enabled(), uses.accountFrom);
        EXPECT_EQ(form->accountToEnabled(), uses.accountTo);
        EXPECT_EQ(form->mainView.accountToSelect.enabled(), uses.accountTo);
        EXPECT_EQ(form->contragentEnabled(), uses.contragent);
        EXPECT_EQ(form->employeeEnabled(), uses.employee);
        EXPECT_EQ(form->mainView.employeeSelect.enabled(), uses.employee);
        EXPECT_EQ(form->expendEnabled(), uses.expend);
        EXPECT_EQ(form->sumToEnabled(), uses.sumTo);
        EXPECT_EQ(form->mainView.docSumTo.enabled(), uses.sumTo);
    }
}

TEST(MoneyDocumentForm, aNewDocumentIsOfNowAndTakesTheDefaultAccount)
{
    Books books;
    books.account(u"Bank"_s, 5);
    const auto cash = books.account(u"Cash"_s, 7, true);
    auto document = std::make_shared<MoneyDocument>();
    document->insertDocType(MoneyAdd);
    MoneyForm form(books.appDelegate, document);
    form.prepareData();
    EXPECT_EQ(document->date, books.clock.now());
    EXPECT_EQ(form.mainView.date.moment(), books.clock.now());
    EXPECT_EQ(document->accountToID, cash->id);
    EXPECT_EQ(form.mainView.accountToSelect.selectedTitle(), u"Cash"_s);
    EXPECT_EQ(form.mainView.accountToBalance.real(), 7);
    EXPECT_EQ(document->accountFromID, 0) << "the type does not use it";
}

TEST(MoneyDocumentForm, popUpsHoldOnlyWhatIsChosenUntilTheyAreAskedFor)
{
    Books books;
    books.account(u"Cash"_s, 0, true);
    books.account(u"Bank"_s);
    auto hidden = *books.account(u"Old"_s);
    hidden.isHidden = true;
    books.store(hidden);
    const auto form = newMoneyForm(books, MoneyToEmployee);
    EXPECT_EQ(form->mainView.accountFromSelect.items().size(), 1u);
    EXPECT_TRUE(form->mainView.employeeSelect.items().empty());
    form->mainView.prepareAccountSelects();
    ASSERT_EQ(form->mainView.accountFromSelect.items().size(), 2u);
    EXPECT_EQ(form->mainView.accountFromSelect.items()[0].title, u"Bank"_s);
    EXPECT_EQ(form->mainView.accountFromSelect.selectedTitle(), u"Cash"_s);

    books.account(u"Card"_s);
    books.appDelegate.notifications.post(NotificationName::AccountChangedNotification);
    EXPECT_EQ(form->mainView.accountFromSelect.items().size(), 2u) << "nobody looks at it";
    form->mainView.setVisible(true);
    books.employee(u"Ann"_s);
    books.appDelegate.notifications.post(NotificationName::AccountChangedNotification);
    books.appDelegate.notifications.post(NotificationName::ManagerChangedNotification);
    EXPECT_EQ(form->mainView.accountFromSelect.items().size(), 3u);
    EXPECT_EQ(form->mainView.employeeSelect.items().size(), 1u);
}

TEST(MoneyDocumentForm, costsTheSameHoweverLargeTheCatalogsAre)
{
    Books books;
    const auto ann = books.contragent(u"Ann"_s);
    const auto cash = books.account(u"Cash"_s, 0, true);
    const auto statementsOfADocument = [&] {
        const qint64 before = books.db.statementCount();
        const auto form = newMoneyForm(books, MoneyFromContragent);
        EXPECT_TRUE(form->setContragentFromID(ann->id));
        enter(form->mainView.docSum, 10);
        EXPECT_TRUE(form->confirmDoc());
        return books.db.statementCount() - before;
    };
    statementsOfADocument();
    const qint64 small = statementsOfADocument();
    for (int i = 0; i < 20; ++i) {
        books.contragent(u"Other"_s);
        books.account(u"Other"_s);
        books.employee(u"Other"_s);
        books.expend(u"Other"_s);
    }
    EXPECT_EQ(statementsOfADocument(), small);
    EXPECT_LE(small, 30);
}

TEST(MoneyDocumentForm, partiesAreChosenFromThePopovers)
{
    Books books;
    const auto ann = books.contragent(u"Ann"_s, 40);
    const auto rent = books.expend(u"Rent"_s);
    const auto payment = newMoneyForm(books, MoneyToContragent);
    payment->selectContragent();
    ContragentSelectView& contragents = payment->contragentSelectView();
    EXPECT_TRUE(contragents.selectPopover.isOpen());
    contragents.doubleAction(contragents.child(nullptr, 0));
    EXPECT_EQ(payment->document->contragentID, ann->id);
    EXPECT_EQ(payment->contragentBalance.real(), 40);
    payment->selectExpend();
    EXPECT_FALSE(payment->expendSelectView().selectPopover.isOpen()) << "the type uses none";

    const auto spending = newMoneyForm(books, MoneyToExpend);
    spending->selectExpend();
    ExpendSelectView& expends = spending->expendSelectView();
    EXPECT_TRUE(expends.selectPopover.isOpen());
    expends.doubleAction(expends.child(nullptr, 0));
    EXPECT_EQ(spending->document->expendID, rent->id);
    EXPECT_EQ(spending->mainView.expendField.text(), u"Rent"_s);
    spending->clearExpend();
    EXPECT_EQ(spending->document->expendID, 0);
}

TEST(MoneyDocumentForm, aChangedPartyIsShownAnew)
{
    Books books;
    const auto ann = books.contragent(u"Ann"_s, 40);
    const auto form = newMoneyForm(books, MoneyToContragent);
    form->setContragentFromID(ann->id);
    ann->name = u"Anna"_s;
    ann->setBalance(50);
    books.store(*ann);
    books.appDelegate.notifications.post(NotificationName::ContragentChangedNotification);
    EXPECT_EQ(form->mainView.contragentField.text(), u"Anna"_s);
    EXPECT_EQ(form->contragentBalance.real(), 50);
}

TEST(MoneyDocumentForm, aHiddenOrMissingRecordCannotBeChosen)
{
    Books books;
    Account hidden;
    hidden.name = u"Old"_s;
    hidden.isHidden = true;
    const auto stored = books.store(hidden);
    const auto form = newMoneyForm(books, MoneyToContragent);
    EXPECT_FALSE(form->mainView.setAccountFromID(stored->id));
    EXPECT_FALSE(form->mainView.setAccountFromID(99));
    EXPECT_FALSE(form->setContragentFromID(99));
    EXPECT_EQ(form->document->accountFromID, 0);
    EXPECT_EQ(form->document->contragentID, 0);
}

TEST(MoneyDocumentForm, labelsAreRedAndButtonsClosedUntilEverythingIsThere)
{
    Books books;
    const auto cash = books.account(u"Cash"_s, 100);
    const auto ann = books.contragent(u"Ann"_s);
    const auto form = newMoneyForm(books, MoneyToContragent);
    MoneyDocumentView& view = form->mainView;
    EXPECT_EQ(form->missingInputs(), (QStringList{u"Account From"_s, u"Counterparty"_s, u"Sum"_s}));
    EXPECT_EQ(view.contragentLabel.color(), redColor);
    EXPECT_FALSE(view.confirmButton.enabled());
    EXPECT_FALSE(view.saveButton.enabled());
    view.setAccountFromID(cash->id);
    form->setContragentFromID(ann->id);
    EXPECT_EQ(view.contragentField.text(), u"Ann"_s);
    EXPECT_EQ(view.contragentLabel.color(), inOrderColor);
    EXPECT_FALSE(view.confirmButton.enabled());
    enter(view.docSum, 10);
    EXPECT_TRUE(form->missingInputs().isEmpty());
    EXPECT_TRUE(view.confirmButton.enabled());
    EXPECT_TRUE(view.saveButton.enabled());
    EXPECT_FALSE(view.deleteDocButton.enabled());
    form->clearContragent();
    EXPECT_FALSE(view.confirmButton.enabled());
}

TEST(MoneyDocumentForm, aSumMustBeAFinitePositiveNumberOfAtMostTenTrillion)
{
    Books books;
    books.account(u"Cash"_s, 0, true);
    const auto form = newMoneyForm(books, MoneyAdd);
    for (const double sum : {0.0, -1.0, 0.004, 1e13 + 1, std::numeric_limits<double>::quiet_NaN()}) {
        enter(form->mainView.docSum, sum);
        EXPECT_EQ(form->missingInputs(), QStringList{u"Sum"_s}) << sum;
        const QStringList before = books.dump();
        EXPECT_FALSE(form->confirmDoc());
        EXPECT_EQ(lastAlertText(books), u"These inputs are missing: Sum.\n"_s);
        EXPECT_EQ(books.dump(), before);
    }
    enter(form->mainView.docSum, 1e13);
    EXPECT_TRUE(form->missingInputs().isEmpty());
}

TEST(MoneyDocumentForm, anEmptiedSumBecomesZero)
{
    Books books;
    const auto form = newMoneyForm(books, MoneyAdd);
    enter(form->mainView.docSum, 5);
    form->mainView.docSum.clear();
    EXPECT_TRUE(form->mainView.docSum.userChanged());
    EXPECT_FALSE(form->mainView.docSum.isEmpty());
    EXPECT_EQ(form->document->docSum(), 0);
}

class Transfer : public testing::Test {
protected:
    Transfer()
    {
        books.setRate(CurrencyStruct::USD, 1.25);
        books.setRate(CurrencyStruct::GBP, 0.75);
    }
    Books books;
    std::shared_ptr<Account> dollars = books.account(u"Dollars"_s, 1000, false, CurrencyStruct::USD);
    std::shared_ptr<Account> pounds = books.account(u"Pounds"_s, 10, false, CurrencyStruct::GBP);
    std::unique_ptr<MoneyForm> form = newMoneyForm(books, InnerTransaction);
    MoneyDocumentView& view = form->mainView;
};

TEST_F(Transfer, choosingBothAccountsShowsTheRateAndTheReceivedSum)
{
    enter(view.docSum, 1000.30);
    view.setAccountFromID(dollars->id);
    EXPECT_EQ(view.docSumTo.real(), 1000.30) << "the rate is 1 until both are chosen";
    view.setAccountToID(pounds->id);
    EXPECT_DOUBLE_EQ(view.currencyRate.real(), 0.6);
    EXPECT_EQ(form->document->exchangeRate(), 0.6);
    EXPECT_EQ(view.docSumTo.real(), 600.18);
}

TEST_F(Transfer, aCurrencyThatIsNotFoundCountsOne)
{
    EXPECT_EQ(view.getCurrencyRateFromID(77), 1.0);
    EXPECT_EQ(view.getCurrencyRateFromID(rawValue(CurrencyStruct::USD)), 1.25);
}

TEST_F(Transfer, typingTheSumFollowsTheRateTypingTheReceivedSumOverrulesIt)
{
    view.setAccountFromID(dollars->id);
    view.setAccountToID(pounds->id);
    enter(view.docSum, 100);
    EXPECT_EQ(view.docSumTo.real(), 60);
    enter(view.docSumTo, 61.23);
    EXPECT_EQ(view.currencyRate.real(), 0.6123);
    EXPECT_EQ(form->document->exchangeRate(), 0.6123);
    enter(view.docSum, 200);
    EXPECT_EQ(view.docSumTo.real(), 122.46);
}

TEST_F(Transfer, reckonsWithTheSumsThatAreStored)
{
    view.setAccountFromID(dollars->id);
    view.setAccountToID(pounds->id);
    enter(view.docSum, 10.006);
    EXPECT_EQ(view.docSum.value(), form->document->innerDocSum);
    EXPECT_EQ(view.docSumTo.real(), 6.01) << "10.01 leave, not 10.006";
    view.setAccountToID(pounds->id);
    EXPECT_EQ(view.docSumTo.real(), 6.01);
    enter(view.docSum, 1);
    enter(view.docSumTo, 0.618);
    EXPECT_EQ(view.docSumTo.value(), form->document->innerConvertedSum);
    EXPECT_EQ(form->document->exchangeRate(), 0.62) << "0.62 arrive";
}

TEST_F(Transfer, toTheSameAccountIsMissingItsTarget)
{
    view.setAccountFromID(dollars->id);
    view.setAccountToID(dollars->id);
    enter(view.docSum, 10);
    EXPECT_EQ(form->missingInputs(), QStringList{u"Account To"_s});
    EXPECT_FALSE(form->confirmDoc());
    EXPECT_EQ(books.read(*dollars)->balance(), 1000);
}

TEST_F(Transfer, withoutAReceivedSumTakesTheSumTimesTheRateOfBothAccounts)
{
    view.setAccountFromID(dollars->id);
    view.setAccountToID(pounds->id);
    enter(view.docSum, 100);
    enter(view.docSumTo, 0);
    EXPECT_TRUE(form->confirmDoc());
    EXPECT_EQ(form->document->convertedSum(), 60);
    EXPECT_EQ(books.read(*pounds)->balance(), 70);
}

TEST_F(Transfer, ofWhichNothingWouldArriveIsRefused)
{
    books.setRate(CurrencyStruct::GBP, 0.0001);
    view.setAccountFromID(dollars->id);
    view.setAccountToID(pounds->id);
    enter(view.docSum, 1);
    EXPECT_FALSE(form->confirmDoc());
    EXPECT_EQ(lastAlertText(books), u"These inputs are missing: Received Sum.\n"_s);
    EXPECT_EQ(books.read(*dollars)->balance(), 1000);
}

TEST_F(Transfer, aRateThatIsNoNumberMakesNoSum)
{
    books.setRate(CurrencyStruct::USD, 0);
    view.setAccountFromID(dollars->id);
    view.setAccountToID(pounds->id);
    enter(view.docSum, 1);
    EXPECT_EQ(form->missingInputs(), QStringList{u"Received Sum"_s});
}

TEST_F(Transfer, asADraftKeepsItsSumsAndItsRate)
{
    view.setAccountFromID(dollars->id);
    view.setAccountToID(pounds->id);
    enter(view.docSum, 100);
    enter(view.docSumTo, 61.23);
    ASSERT_TRUE(form->writeDoc());
    books.setRate(CurrencyStruct::GBP, 2);
    const auto opened = openMoneyForm(books, form->document->id);
    EXPECT_EQ(opened->mainView.docSum.real(), 100);
    EXPECT_EQ(opened->mainView.docSumTo.real(), 61.23);
    EXPECT_EQ(opened->mainView.currencyRate.real(), 0.6123);
    EXPECT_EQ(opened->mainView.accountToSelect.selectedTitle(), u"Pounds"_s);
    EXPECT_TRUE(opened->confirmDoc());
    EXPECT_EQ(books.read(*pounds)->balance(), 71.23);
}

TEST(MoneyDraft, isStoredUnconfirmedAndToldAfterTheCommit)
{
    Books books;
    const auto cash = books.account(u"Cash"_s, 3, true);
    const auto form = newMoneyForm(books, MoneyAdd);
    enter(form->mainView.docSum, 10.125);
    enter(form->mainView.comment, u"seed"_s);
    PostingsInsideTransaction postings(books);
    ASSERT_TRUE(form->writeDoc());
    EXPECT_EQ(postings.inside, 0);
    EXPECT_EQ(postings.outside, 1);
    EXPECT_EQ(books.posted.names, std::vector{NotificationName::MoneyDocChangedNotification});
    const auto stored = books.read(*form->document);
    EXPECT_FALSE(stored->confirmed);
    EXPECT_EQ(stored->docNumber, 0);
    EXPECT_EQ(stored->docSum(), 10.12) << "half to even";
    EXPECT_EQ(stored->comment, u"seed"_s);
    EXPECT_EQ(books.read(*cash)->balance(), 3);
    EXPECT_FALSE(form->mainView.saveButton.enabled());
    EXPECT_TRUE(form->mainView.deleteDocButton.enabled());
    enter(form->mainView.docSum, 11);
    EXPECT_TRUE(form->mainView.saveButton.enabled());
    ASSERT_TRUE(form->writeDoc());
    EXPECT_EQ(books.db.freeSQL<MoneyDocument>().size(), 1u);
}

TEST(MoneyDraft, needsAllItsInputs)
{
    Books books;
    const auto form = newMoneyForm(books, MoneyToExpend);
    enter(form->mainView.docSum, 10);
    EXPECT_FALSE(form->writeDoc());
    EXPECT_EQ(lastAlertText(books), u"These inputs are missing: Account From, Spending.\n"_s);
    EXPECT_TRUE(books.db.freeSQL<MoneyDocument>().empty());
}

TEST(MoneyDraft, isDeletedAndItsFormClosed)
{
    Books books;
    books.account(u"Cash"_s, 3, true);
    const auto form = newMoneyForm(books, MoneyAdd);
    enter(form->mainView.docSum, 10);
    EXPECT_FALSE(form->deleteDoc()) << "there is nothing in the file";
    ASSERT_TRUE(form->writeDoc());
    books.posted.clear();
    bool closed = false;
    form->onClose = [&closed] { closed = true; };
    EXPECT_TRUE(form->deleteDoc());
    EXPECT_TRUE(closed);
    EXPECT_TRUE(books.db.freeSQL<MoneyDocument>().empty());
    EXPECT_EQ(books.posted.names, std::vector{NotificationName::MoneyDocChangedNotification});
}

TEST(MoneyDraft, thatAnotherFormConfirmedIsLeftAlone)
{
    Books books;
    const auto cash = books.account(u"Cash"_s, 3, true);
    const auto form = newMoneyForm(books, MoneyAdd);
    enter(form->mainView.docSum, 10);
    ASSERT_TRUE(form->writeDoc());
    const auto other = openMoneyForm(books, form->document->id);
    ASSERT_TRUE(other->confirmDoc());
    const QStringList confirmed = books.dump();
    enter(form->mainView.docSum, 20);
    EXPECT_FALSE(form->writeDoc());
    EXPECT_FALSE(form->deleteDoc());
    EXPECT_FALSE(form->confirmDoc());
    EXPECT_EQ(lastAlertText(books), u"The document was confirmed or deleted in the meantime.\n"_s);
    EXPECT_EQ(books.dump(), confirmed);
    EXPECT_EQ(books.read(*cash)->balance(), 13);
}

} // namespace
} // namespace zelvor
