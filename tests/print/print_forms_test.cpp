// Which form a view is printed with, and what the form takes from it.

#include "print/print_forms.h"

#include "catalogs/account_view_controller.h"
#include "catalogs/measurement_view_controller.h"
#include "catalogs/property_journal_view_controller.h"
#include "documents/document_journal_view_controller.h"
#include "period/balance_view_controller.h"
#include "print/print_account_report.h"
#include "print/print_balance.h"
#include "print/print_contragents_report.h"
#include "print/print_expense.h"
#include "print/print_fixed_assets.h"
#include "print/print_journal.h"
#include "print/print_measurement.h"
#include "print/print_payment_calendar.h"
#include "print/print_period_sell.h"
#include "reports/contragent_report_view_controller.h"
#include "reports/contragents_report_view_controller.h"
#include "reports/employee_account_report_view_controller.h"
#include "reports/expend_report_view_controller.h"
#include "reports/payment_calendar_view_controller.h"
#include "reports/period_sell_report_view_controller.h"
#include "support/books.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

class PrintForms : public ::testing::Test {
protected:
    // The form of the view when it is of that class.
    template <class Form>
    std::unique_ptr<Form> formOf(const BaseView& view)
    {
        std::unique_ptr<PrintView> made = makePrintForm(view, books.appDelegate);
        EXPECT_TRUE(dynamic_cast<Form*>(made.get()));
        return std::unique_ptr<Form>(dynamic_cast<Form*>(made.release()));
    }
    // The names of the rows, the column of which stands at that place.
    static QStringList column(const TableForm& form, std::size_t place)
    {
        QStringList texts;
        for (const TableForm::Row& row : form.rows())
            texts.append(row.cells[place]);
        return texts;
    }
    qint64 dayBefore() const { return books.clock.now() - secondsPerDay; }

    Books books;
};

TEST_F(PrintForms, AViewWithoutAFormGivesNone)
{
    AccountViewController accounts(books.appDelegate);
    EXPECT_FALSE(makePrintForm(accounts.view, books.appDelegate));
    EXPECT_FALSE(makePrintForm(BaseView(u"Empty"_s, blackColor), books.appDelegate));
}

TEST_F(PrintForms, TheUnitsArePrintedByNameWithTheirShorthand)
{
    for (const QString& name : {u"Piece"_s, u"Box"_s}) {
        Measurement unit;
        unit.name = name;
        unit.shorthand = name.left(2);
        books.store(unit);
    }
    MeasurementViewController units(books.appDelegate);
    const auto form = formOf<PrintMeasurement>(units.view);
    EXPECT_EQ(column(*form, 0), (QStringList{u"1"_s, u"2"_s}));
    EXPECT_EQ(column(*form, 1), (QStringList{u"Box"_s, u"Piece"_s}));
    EXPECT_EQ(column(*form, 2), (QStringList{u"Bo"_s, u"Pi"_s}));
    EXPECT_TRUE(form->params && form->params->id == 1);
}

TEST_F(PrintForms, TheFixedAssetsTellTheirWorthOfToday)
{
    books.property(u"Van"_s, 1200, 12);
    books.property(u"Old compressor"_s, 300.55);
    PropertyJournalViewController assets(books.appDelegate);
    const auto form = formOf<PrintFixedAssets>(assets.view);
    EXPECT_EQ(form->total, Decimal::fromDouble(1500.55));
    EXPECT_EQ(form->date, books.clock.now());
    EXPECT_EQ(form->rows()[0].cells, (std::vector<QString>{u"1"_s, u"Van"_s, u"11/14/23"_s, u"1 200.00"_s,
                                                           u"1 200.00"_s, u"yes"_s, u"12"_s, u""_s}));
    EXPECT_EQ(form->rows()[1].cells[5], u"no"_s);
}

TEST_F(PrintForms, TheBalanceIsPrintedAsItIsShown)
{
    books.account(u"Till"_s, 250);
    books.contragent(u"Moor"_s, 40);
    BalanceViewController balance(books.appDelegate);
    balance.prepareData();
    const auto form = formOf<PrintBalance>(balance.view);
    EXPECT_EQ(column(*form, 0), (QStringList{u"Cash"_s, u"  Till"_s, u"Customers / Suppliers"_s, u"  Moor"_s,
                                             u"TOTAL:"_s, u"BALANCE:"_s}));
    EXPECT_EQ(column(*form, 1),
              (QStringList{u"250.00"_s, u"250.00"_s, u""_s, u""_s, u"250.00"_s, u"210.00"_s}));
    EXPECT_EQ(column(*form, 2), (QStringList{u""_s, u""_s, u"40.00"_s, u"40.00"_s, u"40.00"_s, u""_s}));
    EXPECT_TRUE(form->rows()[0].isGathering);
    EXPECT_FALSE(form->rows()[1].isGathering);
    EXPECT_EQ(form->date, books.clock.now());

    balance.groupCheckBox.setOn(true);
    balance.groupButtonClicked();
    EXPECT_EQ(formOf<PrintBalance>(balance.view)->rows().size(), 4);
}

TEST_F(PrintForms, TheJournalIsPrintedForThePeriodItWasReadFor)
{
    MoneyDocument payment;
    payment.insertDocType(DocType::MoneyAdd);
    payment.date = dayBefore();
    payment.docNumber = 7;
    payment.setDocSum(1500);
    payment.comment = u"Deposit"_s;
    payment.confirmed = true;
    books.store(payment);
    payment.id = 0;
    payment.docNumber = 8;
    payment.confirmed = false;
    books.store(payment);
    DocumentJournalViewController journal(books.appDelegate, u"Money"_s);
    journal.prepareData();
    journal.dateFrom.setMoment(dayBefore() - 100);
    journal.dateTo.setMoment(dayBefore() + 100);
    journal.prepareJournal();
    journal.dateTo.setMoment(dayBefore() + 999'999); // chosen, and not read yet
    const auto form = formOf<PrintJournal>(journal.mainView);
    EXPECT_EQ(form->start, dayBefore() - 100);
    EXPECT_EQ(form->finish, dayBefore() + 100);
    EXPECT_EQ(column(*form, 0), (QStringList{u"11/13/23"_s, u"11/13/23"_s}));
    EXPECT_EQ(column(*form, 1), (QStringList{u"yes"_s, u"no"_s}));
    EXPECT_TRUE(column(*form, 2).first().contains(u"#7"_s));
    EXPECT_EQ(column(*form, 3).first(), u"1 500.00"_s);
    EXPECT_EQ(column(*form, 8).first(), u"Deposit"_s);
}

TEST_F(PrintForms, TheSalesReportTellsItsTypeAndItsGroups)
{
    PeriodSellReportViewController report(books.appDelegate);
    report.prepareData();
    report.mainView.reportTypeSelect.selectTag(2);
    report.mainView.reportTypeChanged();
    report.mainView.managersGroupCheck.setOn(true);
    report.prepareReport();
    const auto form = formOf<PrintPeriodSell>(report.mainView);
    EXPECT_EQ(form->title, u"Report by Selling For Period."_s);
    EXPECT_EQ(form->reportBy, u"Managers"_s);
    EXPECT_EQ(form->groupedBy, u"Managers"_s);
    EXPECT_EQ(form->start, report.dateFrom.moment());
    EXPECT_EQ(form->finish, report.dateTo.moment());
    EXPECT_TRUE(form->rows().empty());
}

TEST_F(PrintForms, TheSpendingsArePrintedWithTheirDocuments)
{
    const auto rent = books.expend(u"Rent"_s);
    MoneyDocument payment;
    payment.insertDocType(DocType::MoneyToExpend);
    payment.date = dayBefore();
    payment.expendID = rent->id;
    payment.setDocSum(800);
    payment.comment = u"of March"_s;
    payment.confirmed = true;
    books.store(payment);
    ExpendReportViewController report(books.appDelegate);
    report.prepareData();
    report.dateFrom.setMoment(dayBefore() - 1);
    report.prepareReport();
    const auto form = formOf<PrintExpense>(report.mainView);
    EXPECT_EQ(form->start, dayBefore() - 1);
    ASSERT_EQ(form->rows().size(), 3); // the spending, its document, the total
    EXPECT_EQ(column(*form, 1), (QStringList{u""_s, u"11/13/23"_s, u""_s}));
    EXPECT_EQ(column(*form, 2), (QStringList{u"800.00"_s, u"800.00"_s, u"800.00"_s}));
    EXPECT_EQ(column(*form, 3), (QStringList{u""_s, u""_s, u""_s}));
    EXPECT_EQ(column(*form, 5), (QStringList{u""_s, u"of March"_s, u""_s}));
    EXPECT_TRUE(form->rows()[2].isGathering);
}

TEST_F(PrintForms, TheCounterpartiesArePrintedWithWhatTheyOwed)
{
    const auto moor = books.contragent(u"Moor"_s, 40);
    books.contragent(u"Fen"_s, 2.5);
    ContragentsReportViewController report(books.appDelegate);
    report.prepareData();
    report.prepareReport();
    const auto form = formOf<PrintContragentsReport>(report.mainView);
    EXPECT_EQ(form->title, u"Report by All Counterparties."_s);
    EXPECT_EQ(form->target, u"All Counterparties"_s);
    EXPECT_EQ(form->start, report.dateFrom.moment());
    EXPECT_EQ(form->finish, report.dateTo.moment());
    EXPECT_EQ(column(*form, 0), (QStringList{u"START PERIOD:"_s, u"Fen"_s, u"Moor"_s, u"END PERIOD:"_s}));
    EXPECT_EQ(column(*form, 1), (QStringList{u"42.50"_s, u"2.50"_s, u"40.00"_s, u"42.50"_s}));
    EXPECT_EQ(column(*form, 4).last(), u"42.50"_s);
    EXPECT_TRUE(form->rows().front().isGathering);
    EXPECT_FALSE(form->rows()[1].isGathering);

    report.setContragentIDs({moor->id});
    report.setStringPredicates();
    report.prepareReport();
    const auto selected = formOf<PrintContragentsReport>(report.mainView);
    EXPECT_EQ(selected->title, u"Report by Selected Counterparties."_s);
    EXPECT_EQ(selected->target, u"Selected Counterparties"_s);
    EXPECT_EQ(selected->rows().size(), 3);
}

TEST_F(PrintForms, AStatementNamesItsCounterpartyAndNumbersTheDocuments)
{
    const auto moor = books.contragent(u"Moor"_s, 40);
    MoneyDocument payment;
    payment.insertDocType(DocType::MoneyFromContragent);
    payment.insertContragent(moor);
    payment.date = dayBefore();
    payment.setDocSum(100);
    payment.confirmed = true;
    books.store(payment);
    ContragentReportViewController report(books.appDelegate);
    report.prepareData();
    ASSERT_TRUE(report.openReport(moor->id, dayBefore() - 1, dayBefore() + 1));
    const auto form = formOf<PrintContragentReport>(report.mainView);
    EXPECT_EQ(form->title, u"Report by Counterparty"_s);
    EXPECT_EQ(form->target, u"Moor"_s);
    EXPECT_EQ(form->start, dayBefore() - 1);
    EXPECT_EQ(form->finish, dayBefore() + 1);
    EXPECT_EQ(column(*form, 0), (QStringList{u""_s, u"1"_s, u""_s}));
    EXPECT_EQ(column(*form, 1), (QStringList{u""_s, u"11/13/23"_s, u""_s}));
    EXPECT_EQ(column(*form, 5), (QStringList{u"0.00"_s, u"100.00"_s, u"100.00"_s}));
    EXPECT_EQ(column(*form, 3).last(), u""_s);
    EXPECT_EQ(column(*form, 6).first(), u""_s);
    EXPECT_EQ(column(*form, 6).last(), u"100.00"_s);
}

TEST_F(PrintForms, AStatementOfMoneyIsOfAnEmployeeOrOfAnAccount)
{
    const auto ann = books.employee(u"Ann"_s, 12);
    const auto till = books.account(u"Till"_s, 250);
    EmployeeAccountReportViewController ofEmployee(books.appDelegate, u"employee"_s);
    ofEmployee.prepareData();
    ofEmployee.select.selectTag(ann->id);
    ofEmployee.prepareReport();
    const auto employee = formOf<PrintAccountReport>(ofEmployee.mainView);
    EXPECT_EQ(employee->title, u"Report by Employee"_s);
    EXPECT_EQ(employee->target, u"Ann"_s);
    EXPECT_EQ(column(*employee, 2), (QStringList{u"START PERIOD:"_s, u"END PERIOD:"_s}));
    EXPECT_EQ(column(*employee, 6).last(), u"12.00"_s);

    EmployeeAccountReportViewController ofAccount(books.appDelegate, u"account"_s);
    ofAccount.prepareData();
    ofAccount.select.selectTag(till->id);
    ofAccount.prepareReport();
    const auto account = formOf<PrintAccountReport>(ofAccount.mainView);
    EXPECT_EQ(account->title, u"Report by Account"_s);
    EXPECT_EQ(account->target, u"Till"_s);
}

TEST_F(PrintForms, ThePaymentCalendarIsOfToday)
{
    const auto moor = books.contragent(u"Moor"_s);
    ProductDocument sale;
    sale.insertDocType(DocType::SellProduct);
    sale.insertContragent(moor);
    sale.date = dayBefore();
    sale.payToDate = books.clock.now() + secondsPerDay;
    sale.setDocSum(90);
    sale.setLeftToPay(30);
    sale.confirmed = true;
    books.store(sale);
    PaymentCalendarViewController calendar(books.appDelegate);
    calendar.prepareReport();
    const auto form = formOf<PrintPaymentCalendar>(calendar.mainView);
    EXPECT_EQ(form->date, books.clock.now());
    ASSERT_EQ(form->rows().size(), 3);
    EXPECT_TRUE(column(*form, 1).front().endsWith(u"(Moor)"_s));
    EXPECT_EQ(column(*form, 0), (QStringList{u"11/13/23"_s, u""_s, u""_s}));
    EXPECT_EQ(column(*form, 2), (QStringList{u"90.00"_s, u""_s, u""_s}));
    EXPECT_EQ(column(*form, 3), (QStringList{u"11/15/23"_s, u""_s, u""_s}));
    EXPECT_EQ(column(*form, 4), (QStringList{u"30.00"_s, u"30.00"_s, u"30.00"_s}));
    EXPECT_EQ(column(*form, 5), (QStringList{u""_s, u""_s, u""_s}));
}

} // namespace zelvor
