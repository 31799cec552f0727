#include "reports/employee_account_report_view_controller.h"

#include "reports/saldo_books.h"

#include <gtest/gtest.h>

namespace zelvor {

namespace {

using namespace Qt::Literals::StringLiterals;
using enum DocType;

class StatementReport : public testing::Test {
protected:
    // The lines of a statement of today.
    QStringList linesOf(const QString& type, qint64 id)
    {
        EmployeeAccountReportViewController report(books.appDelegate, type);
        report.prepareData();
        EXPECT_TRUE(report.select.selectTag(id));
        report.prepareReport();
        return saldoLines(report.mainView);
    }

    SaldoBooks books;
    qint64 to = SaldoBooks::moment(2015, 3, 16);
    qint64 from = SaldoBooks::moment(2015, 3, 15);
};

class EmployeeReport : public StatementReport {
protected:
    std::shared_ptr<MoneyDocument> pay(DocType type, qint64 date, double sum, double balance = 0)
    {
        return books.money(type, date, sum, [&](MoneyDocument& document) {
            document.employeeID = ada->id;
            document.setManagerBalance(balance);
        });
    }
    QStringList lines() { return linesOf(u"employee"_s, ada->id); }

    std::shared_ptr<Manager> ada = books.employee(u"Ada"_s, 55);
};

class AccountReport : public StatementReport {
protected:
    std::shared_ptr<MoneyDocument> receive(DocType type, qint64 date, double sum, double balance = 0)
    {
        return books.money(type, date, sum, [&](MoneyDocument& document) {
            document.accountToID = till->id;
            document.setAccountToBalance(balance);
        });
    }
    std::shared_ptr<MoneyDocument> spend(DocType type, qint64 date, double sum, double balance = 0)
    {
        return books.money(type, date, sum, [&](MoneyDocument& document) {
            document.accountFromID = till->id;
            document.setAccountFromBalance(balance);
        });
    }
    QStringList lines() { return linesOf(u"account"_s, till->id); }

    std::shared_ptr<Account> till = books.account(u"Till"_s, 1000);
};

} // namespace

// Kept as it has always been: a document's row and the end row have the names of debit and credit crossed, so
// the balances of the documents run against the sums of the end row.
TEST_F(EmployeeReport, theSidesOfADocumentAndOfTheEndRowAreCrossed)
{
    pay(MoneyFromEmployee, from + 10, 5, 100);
    pay(MoneyToEmployee, from + 20, 30, 105);
    EXPECT_EQ(lines(),
              (QStringList{u"START PERIOD:|100|0|0|"_s,
                           u"Money Document '%1' #1 (read)|100|5||95"_s.arg(docTypeName(MoneyFromEmployee)),
                           u"Money Document '%1' #2 (read)|95||30|125"_s.arg(docTypeName(MoneyToEmployee)),
                           u"END PERIOD:||30|5|75"_s}));
}

TEST_F(EmployeeReport, dividendsAreNotInTheReport)
{
    books.money(MoneyToEmployee, from + 5, 500, [&](MoneyDocument& document) {
        document.employeeID = ada->id;
        document.divident = true;
        document.setManagerBalance(7);
    });
    EXPECT_EQ(lines(), (QStringList{u"START PERIOD:|55|0|0|"_s, u"END PERIOD:||0|0|55"_s}));
}

TEST_F(EmployeeReport, aDocumentAtEitherBoundIsInside)
{
    pay(MoneyToEmployee, from - 1, 1);
    pay(MoneyToEmployee, from, 10);
    pay(MoneyToEmployee, to, 100);
    pay(MoneyToEmployee, to + 1, 1000);
    EXPECT_EQ(lines().last(), u"END PERIOD:||110|0|-110"_s);
}

TEST_F(EmployeeReport, onlyConfirmedDocumentsOfTheEmployeeCount)
{
    const auto bo = books.employee(u"Bo"_s);
    books.money(MoneyToEmployee, from, 1, [&](MoneyDocument& document) {
        document.employeeID = ada->id;
        document.confirmed = false;
    });
    books.money(MoneyToEmployee, from, 1, [&](MoneyDocument& document) {
        document.employeeID = bo->id;
        document.managerID = ada->id; // the one who wrote it
    });
    EXPECT_EQ(lines().size(), 2);
}

// Kept as it has always been: the balance of today, also when the period is long past.
TEST_F(EmployeeReport, withoutDocumentsTodaysBalanceIsShown)
{
    EmployeeAccountReportViewController report(books.appDelegate, u"employee"_s);
    report.prepareData();
    report.select.selectTag(ada->id);
    ada->setBalance(66);
    books.store(*ada);
    report.dateFrom.setMoment(10);
    report.dateTo.setMoment(20);
    report.prepareReport();
    EXPECT_EQ(saldoLines(report.mainView),
              (QStringList{u"START PERIOD:|66|0|0|"_s, u"END PERIOD:||0|0|66"_s}));
}

TEST_F(EmployeeReport, theChooserListsThoseInUseByName)
{
    books.employee(u"Zoe"_s);
    const auto bo = books.employee(u"Bo"_s);
    const auto gone = books.employee(u"Al"_s);
    gone->isHidden = true;
    books.store(*gone);
    EmployeeAccountReportViewController report(books.appDelegate, u"employee"_s);
    report.prepareData();
    QStringList titles;
    for (const PopUpButton::Item& item : report.select.items())
        titles << item.title;
    EXPECT_EQ(titles, (QStringList{u"Ada"_s, u"Bo"_s, u"Zoe"_s}));
    EXPECT_EQ(report.employees.size(), 3U);
    EXPECT_EQ(report.select.selectedTag(), ada->id) << "the first one is chosen at the start";
    EXPECT_EQ(report.selectLabel.text(), u"Employee"_s);
    EXPECT_TRUE(report.mainView.name().startsWith(u"Report By Employee 'Ada' From: "_s));
    EXPECT_EQ(report.mainView.reportType, u"employee"_s);

    report.select.selectTag(bo->id);
    books.employee(u"Aki"_s);
    books.appDelegate.notifications.post(NotificationName::ManagerChangedNotification);
    EXPECT_EQ(report.select.items().size(), 4U);
    EXPECT_EQ(report.select.items()[1].title, u"Aki"_s);
    EXPECT_EQ(report.select.selectedTag(), bo->id);
}

TEST_F(EmployeeReport, withNobodyChosenNothingIsComputedAndTheOldTableStays)
{
    EmployeeAccountReportViewController report(books.appDelegate, u"employee"_s);
    report.prepareData();
    report.prepareReport();
    EXPECT_EQ(report.mainView.numberOfRows(), 2);
    ada->isHidden = true;
    books.store(*ada);
    books.appDelegate.notifications.post(NotificationName::ManagerChangedNotification);
    EXPECT_EQ(report.select.selectedTag(), 0);
    report.dateFrom.setMoment(5);
    report.prepareReport();
    EXPECT_EQ(report.mainView.numberOfRows(), 2);
    EXPECT_EQ(report.mainView.start(), from);
}

TEST_F(AccountReport, receiptsAndPaymentsHaveTheSidesOfTheirTypes)
{
    receive(MoneyFromContragent, from + 1, 1, 500);
    receive(MoneyFromEmployee, from + 2, 2);
    receive(MoneyAdd, from + 3, 4);
    spend(MoneyToContragent, from + 4, 10);
    spend(MoneyToEmployee, from + 5, 20);
    spend(MoneyToExpend, from + 6, 40);
    QStringList figures;
    for (const QString& line : lines())
        figures << line.section(u'|', 1);
    EXPECT_EQ(figures, (QStringList{u"500|0|0|"_s, u"500|1||499"_s, u"499|2||497"_s, u"497|4||493"_s,
                                    u"493||10|503"_s, u"503||20|523"_s, u"523||40|563"_s, u"|70|7|437"_s}));
}

TEST_F(AccountReport, aTransferShowsInBothAccountsTheOppositeWay)
{
    const auto bank = books.account(u"Bank"_s, 0, false, CurrencyStruct::USD);
    books.money(InnerTransaction, from + 1, 100, [&](MoneyDocument& document) {
        document.accountFromID = till->id;
        document.accountToID = bank->id;
        document.setAccountFromBalance(300);
        document.setAccountToBalance(20);
        document.setConvertedSum(108.5);
    });
    const QString name = u"Money Document '%1' #1 (read)"_s.arg(docTypeName(InnerTransaction));
    EXPECT_EQ(lines(), (QStringList{u"START PERIOD:|300|0|0|"_s, name + u"|300||100|400"_s,
                                    u"END PERIOD:||100|0|200"_s}));
    EXPECT_EQ(linesOf(u"account"_s, bank->id),
              (QStringList{u"START PERIOD:|20|0|0|"_s, name + u"|20|108.5||-88.5"_s,
                           u"END PERIOD:||0|108.5|128.5"_s}));
}

TEST_F(AccountReport, aTransferToItselfIsOneReceipt)
{
    books.money(InnerTransaction, from + 1, 100, [&](MoneyDocument& document) {
        document.accountFromID = till->id;
        document.accountToID = till->id;
        document.setAccountFromBalance(300);
        document.setConvertedSum(99);
    });
    EXPECT_EQ(lines().size(), 3);
    EXPECT_EQ(lines().last(), u"END PERIOD:||0|99|399"_s);
}

TEST_F(AccountReport, whatLeftAndWhatCameStandTogetherByDateAndThenInTheOrderOfTheirMaking)
{
    spend(MoneyToExpend, from + 9, 3);
    receive(MoneyAdd, from + 9, 4);
    spend(MoneyToExpend, from + 9, 5);
    receive(MoneyAdd, from + 1, 1);
    spend(MoneyToExpend, from + 2, 2);
    QStringList sums;
    for (const QString& line : lines())
        sums << line.section(u'|', 2, 3).remove(u'|');
    EXPECT_EQ(sums.mid(1, 5), (QStringList{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s}));
}

TEST_F(AccountReport, aDocumentAtEitherBoundIsInside)
{
    receive(MoneyAdd, from - 1, 1);
    receive(MoneyAdd, from, 10);
    spend(MoneyToExpend, from - 1, 1);
    spend(MoneyToExpend, to, 100);
    receive(MoneyAdd, to + 1, 1000);
    EXPECT_EQ(lines().last(), u"END PERIOD:||100|10|-90"_s);
}

// Kept as it has always been: the balance of today, also when the period is long past.
TEST_F(AccountReport, withoutDocumentsTodaysBalanceIsShown)
{
    EXPECT_EQ(lines(), (QStringList{u"START PERIOD:|1000|0|0|"_s, u"END PERIOD:||0|0|1000"_s}));
}

TEST_F(AccountReport, theChooserListsAllAccountsByNameAndFollowsTheirChanges)
{
    const auto old = books.account(u"Old bank"_s);
    old->isHidden = true;
    books.store(*old);
    EmployeeAccountReportViewController report(books.appDelegate, u"account"_s);
    report.prepareData();
    EXPECT_EQ(report.select.items().size(), 2U) << "a hidden account still has a past";
    EXPECT_EQ(report.select.items()[0].title, u"Old bank"_s);
    EXPECT_EQ(report.selectLabel.text(), u"Account"_s);
    books.account(u"New bank"_s);
    books.appDelegate.notifications.post(NotificationName::AccountChangedNotification);
    EXPECT_EQ(report.select.items().size(), 3U);
    EXPECT_EQ(report.accounts.size(), 3U);
    EXPECT_TRUE(report.mainView.name().startsWith(u"Report By Account 'Old bank' From: "_s));
    report.select.selectTag(till->id);
    report.prepareReport();
    EXPECT_TRUE(report.mainView.name().startsWith(u"Report By Account 'Till' From: "_s));
    EXPECT_EQ(report.mainView.target(), u"Till"_s);
}

TEST_F(AccountReport, aChangedMoneyDocumentComputesAgainAtOnceOnTheScreenOtherwiseWhenAsked)
{
    EmployeeAccountReportViewController report(books.appDelegate, u"account"_s);
    report.prepareData();
    report.prepareReport();
    NotificationCenter& center = books.appDelegate.notifications;
    receive(MoneyAdd, from, 1);
    const qint64 stored = books.db.statementCount();
    center.post(NotificationName::MoneyDocChangedNotification);
    EXPECT_EQ(books.db.statementCount(), stored);
    EXPECT_EQ(report.mainView.numberOfRows(), 3);
    report.mainView.setVisible(true);
    receive(MoneyAdd, from, 1);
    bool reloaded = false;
    report.mainView.onReload([&] { reloaded = true; });
    center.post(NotificationName::MoneyDocChangedNotification);
    EXPECT_TRUE(reloaded);
    EXPECT_EQ(report.mainView.numberOfRows(), 4);
}

TEST_F(AccountReport, aRowOpensItsDocument)
{
    const auto document = receive(MoneyAdd, from, 1);
    EmployeeAccountReportViewController report(books.appDelegate, u"account"_s);
    report.prepareData();
    report.prepareReport();
    for (const int row : {0, 1, 2})
        report.mainView.doubleAction(row);
    EXPECT_EQ(books.openedDocuments, QStringList{u"Money %1"_s.arg(document->id)});
}

TEST_F(AccountReport, datesTheWrongWayRoundLeaveTheOldTable)
{
    EmployeeAccountReportViewController report(books.appDelegate, u"account"_s);
    report.prepareData();
    report.prepareReport();
    report.dateFrom.setMoment(to + 1);
    report.prepareReport();
    EXPECT_EQ(report.dateToLabel.color(), redColor);
    EXPECT_EQ(report.mainView.start(), from);
}

TEST_F(StatementReport, goesByTheIndexOfTheEmployeeOrAccount)
{
    for (const QString& column : {u"employee"_s, u"account_from"_s, u"account_to"_s}) {
        QString plan;
        const QString sql = u"EXPLAIN QUERY PLAN SELECT * FROM money_doc WHERE date>=1 AND date<=9 AND "
                            u"%1_id=1 AND %1_id<>0 AND is_confirmed=1"_s.arg(column);
        EXPECT_TRUE(books.db.scan(sql.toStdString(), {}, [&](const Statement& row) { plan += row.text(3); }));
        EXPECT_TRUE(plan.contains(u"ix_money_doc_%1 (%1_id=? AND date>? AND date<?)"_s.arg(column)))
            << qPrintable(plan);
    }
}

} // namespace zelvor
