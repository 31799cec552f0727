// What the forms of all reports have in common.

#include "print/print_account_report.h"
#include "print/print_balance.h"
#include "print/print_contragents_report.h"
#include "print/print_expense.h"
#include "print/print_fixed_assets.h"
#include "print/print_measurement.h"
#include "print/print_payment_calendar.h"
#include "print/print_period_sell.h"
#include "print/sample_table.h"
#include "print/table_reader.h"
#include "support/books.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr qint64 march1 = 1425168000; // 2015, midnight
constexpr qint64 march15 = 1426377600;

// The lower edge of the band.
double tableTop(const TableForm& form)
{
    return form.frame().height() - form.delta - 75;
}

} // namespace

class TableForms : public ::testing::Test {
protected:
    TableForms() : program(march15) {}

    // The lines above the table, from the title down.
    static QStringList headingOf(TableForm& form)
    {
        form.insertRows(SampleTable());
        const TableReader reader(form);
        const double top = form.frame().height();
        return {reader.line(top - 30, top).text, reader.line(top - 40, top - 30).text,
                reader.line(tableTop(form) + 15, top - 40).text};
    }

    TestProgram program;
};

TEST_F(TableForms, TheTitleAndThePeriodStandAtTheRightOfTheSheet)
{
    ZELVOR_NEEDS_PDF_TOOLS();
    PrintPeriodSell form(program.appDelegate);
    form.start = march1;
    form.finish = march15;
    form.insertRows(SampleTable());
    const TableReader reader(form);
    const double top = form.frame().height();
    const TableReader::Text title = reader.line(top - 28, top);
    EXPECT_EQ(title.text, u"Report by Selling For Period."_s);
    EXPECT_NEAR(title.right, 752 - 10, 0.3);
    EXPECT_NEAR(title.bottom, top - 30, 1);
    const TableReader::Text period = reader.line(top - 40, top - 30);
    EXPECT_EQ(period.text, u"Period From: 3/1/15 To:3/15/15"_s);
    EXPECT_NEAR(period.right, 752 - 12, 0.3);
    EXPECT_NEAR(period.bottom, top - 40, 1);
}

TEST_F(TableForms, EachFormHasItsOwnLinesAboveTheTable)
{
    ZELVOR_NEEDS_PDF_TOOLS();
    const QString period = u"Period From: 1/1/70 To:1/1/70"_s;

    PrintPeriodSell sell(program.appDelegate);
    sell.reportBy = u"Managers"_s;
    sell.groupedBy = u"Customers;Managers"_s;
    EXPECT_EQ(headingOf(sell), (QStringList{sell.title, period, u"Managers, Customers;Managers"_s}));

    PrintContragentsReport all(program.appDelegate, u"Report by All Counterparties."_s);
    all.target = u"All Counterparties"_s;
    EXPECT_EQ(headingOf(all), (QStringList{u"Report by All Counterparties."_s, period,
                                           u"Counterparties: 'All Counterparties'"_s}));

    PrintContragentReport one(program.appDelegate, u"Report by Counterparty"_s);
    one.target = u"Moor"_s;
    EXPECT_EQ(headingOf(one), (QStringList{u"Report by Counterparty"_s, period, u"Counterparty: 'Moor'"_s}));

    PrintAccountReport employee(program.appDelegate, true);
    employee.target = u"Ann"_s;
    EXPECT_EQ(headingOf(employee), (QStringList{u"Report by Employee"_s, period, u"Employee: 'Ann'"_s}));

    PrintAccountReport account(program.appDelegate, false);
    account.target = u"Till"_s;
    EXPECT_EQ(headingOf(account), (QStringList{u"Report by Account"_s, period, u"Account: 'Till'"_s}));

    PrintExpense expense(program.appDelegate);
    EXPECT_EQ(headingOf(expense), (QStringList{u"Spendings Report"_s, period, u""_s}));

    PrintFixedAssets assets(program.appDelegate);
    assets.date = march15;
    assets.total = Decimal::fromDouble(21941.5);
    EXPECT_EQ(headingOf(assets),
              (QStringList{assets.title, u"Fixed Assets Total: 21 941.50 on date: 3/15/15"_s, u""_s}));

    PrintPaymentCalendar calendar(program.appDelegate);
    calendar.date = march15;
    EXPECT_EQ(headingOf(calendar),
              (QStringList{u"Payment Calendar"_s, u"Payment Calendar on date: 3/15/15"_s, u""_s}));

    PrintBalance balance(program.appDelegate);
    balance.date = march15;
    EXPECT_EQ(headingOf(balance), (QStringList{u"Balance"_s, u"Balance on date: 3/15/15"_s, u""_s}));

    PrintMeasurement units(program.appDelegate);
    EXPECT_EQ(headingOf(units), (QStringList{u"List of Units"_s, u""_s, u""_s}));
}

TEST_F(TableForms, AReportWithoutRowsIsOnePageWithItsTitles)
{
    ZELVOR_NEEDS_PDF_TOOLS();
    PrintMeasurement form(program.appDelegate);
    form.insertRows(SampleTable());
    EXPECT_EQ(form.calculateTableHeight(), 45);
    EXPECT_EQ(form.frame().height(), 85);
    const TableReader reader(form);
    EXPECT_EQ(reader.pages().pages(), 1);
    EXPECT_EQ(reader.line(tableTop(form), tableTop(form) + 15).text, u"# Name Short"_s);
}

TEST_F(TableForms, ALogoMovesEverythingDownAndTheSheetGrowsByIt)
{
    ZELVOR_NEEDS_PDF_TOOLS();
    Books books;
    books.changeParams([](Params& params) { params.printCompanyLogo = true; });
    PrintMeasurement form(books.appDelegate);
    form.insertRows(SampleTable(u"Piece"_s));
    form.setData();
    ASSERT_GT(form.delta, 0);
    EXPECT_EQ(form.frame().height(), 16 + 45 + 40 + form.delta);
    const TableReader reader(form);
    EXPECT_NEAR(reader.line(form.frame().height() - form.delta - 28, form.frame().height()).bottom,
                form.frame().height() - form.delta - 30, 1);
    EXPECT_EQ(reader.line(tableTop(form) - 15, tableTop(form)).text, u"1 Piece"_s);
    EXPECT_GE(tableTop(form) - 15, 0);
}

TEST_F(TableForms, GatheringRowsAreBlueAndTheOthersBlack)
{
    PrintExpense form(program.appDelegate);
    SampleTable report;
    report.append({{u"name"_s, u"Rent"_s}, {u"total"_s, 800.0}}, true);
    report.append({{u"name"_s, u"Rent of March"_s}, {u"total"_s, 800.0}});
    form.insertRows(report);
    const QImage page = pictures(form, 144).front();
    // Of the row's middle, two dots for a point.
    const auto darkest = [&](double bottom) {
        QRgb found = qRgb(255, 255, 255);
        const int upper = static_cast<int>(2 * (45 + form.frame().height() - bottom - 13));
        for (int y = upper; y < upper + 22; ++y) {
            for (int x = 2 * (36 + 4); x < 2 * (36 + 100); ++x) {
                if (qGray(page.pixel(x, y)) < qGray(found))
                    found = page.pixel(x, y);
            }
        }
        return found;
    };
    const QRgb gathering = darkest(tableTop(form) - 15);
    EXPECT_NEAR(qRed(gathering), 0.121 * 255, 8);
    EXPECT_NEAR(qGreen(gathering), 0.212 * 255, 8);
    EXPECT_NEAR(qBlue(gathering), 0.607 * 255, 8);
    EXPECT_LT(qBlue(darkest(tableTop(form) - 16 - 15)), 60);
}

TEST_F(TableForms, GatheringRowsAreBoldAndOblique)
{
    ZELVOR_NEEDS_PDF_TOOLS();
    const auto tallest = [&](bool isGathering) {
        PrintBalance form(program.appDelegate);
        SampleTable report;
        report.append({{u"name"_s, u"Cash"_s}}, isGathering);
        form.insertRows(report);
        return TableReader(form).line(tableTop(form) - 15, tableTop(form));
    };
    const TableReader::Text group = tallest(true);
    const TableReader::Text plain = tallest(false);
    const PrintBalance form(program.appDelegate);
    EXPECT_NEAR(group.right - group.left, form.textSize(u"Cash"_s, form.groupFont).width(), 0.2);
    EXPECT_NEAR(plain.right - plain.left, form.textSize(u"Cash"_s, form.colDataFont).width(), 0.2);
    EXPECT_TRUE(form.groupFont.bold() && form.groupFont.italic());
}

TEST_F(TableForms, AWordThatIsWiderThanItsColumnIsDrawnSmallerAndWhole)
{
    ZELVOR_NEEDS_PDF_TOOLS();
    PrintMeasurement form(program.appDelegate);
    const QString word = u"Kraftfahrzeughaftpflichtversicherung"_s;
    SampleTable report;
    report.append({{u"name"_s, u"Left"_s}, {u"shorthand"_s, word}});
    form.insertRows(report);
    EXPECT_EQ(form.rows().front().lines, 1);
    const TableReader::Text read = TableReader(form).cell(form, 2, tableTop(form) - 15, tableTop(form));
    EXPECT_EQ(read.text, word);
    EXPECT_GE(read.left, 422 + 6 - 0.3);
    EXPECT_LE(read.right, 522);
}

TEST_F(TableForms, AFigureThatIsWiderThanItsColumnIsDrawnSmallerAndWhole)
{
    ZELVOR_NEEDS_PDF_TOOLS();
    PrintExpense form(program.appDelegate);
    SampleTable report;
    report.append({{u"total"_s, -9876543210.25}}, true);
    form.insertRows(report);
    const TableReader::Text read = TableReader(form).cell(form, 4, tableTop(form) - 15, tableTop(form));
    EXPECT_EQ(read.text, u"-9 876 543 210.25"_s);
    EXPECT_GE(read.left, form.axis[4] - 30);
    EXPECT_NEAR(read.right, form.axis[4] + 30 - 3, 0.3);
}

TEST_F(TableForms, ALongHeadingStaysOnTheSheet)
{
    ZELVOR_NEEDS_PDF_TOOLS();
    PrintContragentReport form(program.appDelegate, u"Report by Counterparty and all that belongs to it"_s);
    form.target = QString(100, u'W');
    form.insertRows(SampleTable());
    const TableReader reader(form);
    const double top = form.frame().height();
    EXPECT_GE(reader.line(top - 30, top).left, 0);
    const TableReader::Text target = reader.line(tableTop(form) + 15, top - 40);
    EXPECT_TRUE(target.text.endsWith(u"W'"_s));
}

TEST_F(TableForms, LinesOfAnIndentedNameStandOneBelowTheOther)
{
    ZELVOR_NEEDS_PDF_TOOLS();
    PrintExpense form(program.appDelegate);
    form.insertRows(SampleTable(u"      Electricity of the workshop and of the shop"_s));
    ASSERT_EQ(form.rows().front().lines, 2);
    const TableReader reader(form);
    const TableReader::Text first = reader.cell(form, 0, tableTop(form) - 15, tableTop(form));
    const TableReader::Text second = reader.cell(form, 0, tableTop(form) - 30, tableTop(form) - 15);
    const double indent = form.textSize(QString(6, u' '), form.colDataFont).width();
    EXPECT_NEAR(first.left, 1 + 6 + indent, 0.3);
    EXPECT_NEAR(second.left, first.left, 0.3);
}

TEST_F(TableForms, AnIndentedWordThatNeedsTheWholeLineLeavesNoEmptyOneAboveIt)
{
    PrintExpense form(program.appDelegate);
    form.insertRows(SampleTable(u"            "_s + QString(30, u'm')));
    EXPECT_EQ(form.rows().front().lines, 1);
}

TEST_F(TableForms, LineFeedsOfACommentBecomeBlanks)
{
    PrintExpense form(program.appDelegate);
    SampleTable report;
    report.append({{u"comment"_s, u"one\ntwo\tthree"_s}});
    form.insertRows(report);
    EXPECT_EQ(form.rows().front().lines, 1);
    EXPECT_EQ(form.rows().front().cells[5], u"one two three"_s);
}

TEST_F(TableForms, OnlyRowsThatGatherNothingAreNumbered)
{
    PrintContragentReport form(program.appDelegate, u"Report by Counterparty"_s);
    SampleTable report;
    report.append({{u"name"_s, u"START PERIOD:"_s}}, true);
    report.append({{u"name"_s, u"Sale"_s}});
    report.append({{u"name"_s, u"Payment"_s}});
    report.append({{u"name"_s, u"END PERIOD:"_s}}, true);
    form.insertRows(report);
    QStringList numbers;
    for (const TableForm::Row& row : form.rows())
        numbers.append(row.cells.front());
    EXPECT_EQ(numbers, (QStringList{u""_s, u"1"_s, u"2"_s, u""_s}));
}

TEST_F(TableForms, FiguresAndDatesFollowTheLocale)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::Russian, QLocale::Russia));
    PrintPeriodSell form(program.appDelegate);
    form.finish = march15;
    SampleTable report;
    report.append({{u"amount"_s, 1234567.5}, {u"percent"_s, -0.12345}});
    form.insertRows(report);
    QLocale::setDefault(before);
    EXPECT_EQ(form.rows().front().cells[2], u"1 234 567,50"_s);
    EXPECT_EQ(form.rows().front().cells[7], u"-12,34 %"_s);
}

TEST_F(TableForms, ATickIsPrintedAsYesOrNo)
{
    PrintFixedAssets form(program.appDelegate);
    SampleTable report;
    report.append({{u"isAmortized"_s, true}});
    report.append({{u"isAmortized"_s, false}});
    form.insertRows(report);
    EXPECT_EQ(form.rows()[0].cells[5], u"yes"_s);
    EXPECT_EQ(form.rows()[1].cells[5], u"no"_s);
}

TEST_F(TableForms, TheOutermostNameOfASalesReportStandsAtTheInsetOfItsCell)
{
    PrintPeriodSell form(program.appDelegate);
    SampleTable report;
    report.append({{u"name"_s, u" Bicycles"_s}}, true);
    report.append({{u"name"_s, u"    Canal"_s}});
    form.insertRows(report);
    EXPECT_EQ(form.rows()[0].cells[0], u"Bicycles"_s);
    EXPECT_EQ(form.rows()[1].cells[0], u"   Canal"_s);
}

} // namespace zelvor
