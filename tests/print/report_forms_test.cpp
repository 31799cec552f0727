// Every report form: where its columns stand, what they are called, and that no row gets lost.

#include "print/print_account_report.h"
#include "print/print_balance.h"
#include "print/print_contragents_report.h"
#include "print/print_expense.h"
#include "print/print_fixed_assets.h"
#include "print/print_journal.h"
#include "print/print_measurement.h"
#include "print/print_payment_calendar.h"
#include "print/print_period_sell.h"
#include "print/sample_table.h"
#include "print/table_reader.h"
#include "support/test_project.h"

#include <gtest/gtest.h>

#include <functional>
#include <ostream>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr qint64 march14 = 1426334400; // 2015, noon

struct Case {
    const char* name;
    std::function<std::unique_ptr<TableForm>(AppDelegate&)> make;
    bool isLandscape;
    double tableWidth;
    std::vector<double> axis;
    std::vector<double> colWidth;
    QStringList titles;
};

// What a failed test tells of its case.
void PrintTo(const Case& tested, std::ostream* out)
{
    *out << tested.name;
}

template <class Form, class... Arguments>
std::function<std::unique_ptr<TableForm>(AppDelegate&)> maker(Arguments... arguments)
{
    return [=](AppDelegate& appDelegate) { return std::make_unique<Form>(appDelegate, arguments...); };
}

const std::vector<double> statementAxis{16, 56, 161, 276, 346, 416, 486};
const std::vector<double> statementWidths{30, 50, 160, 70, 70, 70, 70};
const QStringList statementTitles{u"#"_s, u"Date"_s, u"Document"_s,    u"Start Saldo"_s,
                                  u"-"_s, u"+"_s,    u"Finish Saldo"_s};

const std::vector<Case> cases{
    {"PeriodSell",
     maker<PrintPeriodSell>(),
     true,
     750,
     {131, 286, 346, 416, 491, 571, 651, 721},
     {260, 50, 70, 70, 80, 80, 80, 60},
     {u"Name"_s, u"Unit"_s, u"Amount"_s, u"Packs"_s, u"Base Sum"_s, u"Price Sum"_s, u"Profit"_s,
      u"Percent"_s}},
    {"Contragents",
     maker<PrintContragentsReport>(u"Report by All Counterparties."_s),
     false,
     520,
     {111, 258.5, 333.5, 408.5, 483.5},
     {220, 75, 75, 75, 75},
     {u"Name"_s, u"Start Saldo"_s, u"-"_s, u"+"_s, u"Finish Saldo"_s}},
    {"Contragent", maker<PrintContragentReport>(u"Report by Counterparty"_s), false, 520, statementAxis,
     statementWidths, statementTitles},
    {"Employee", maker<PrintAccountReport>(true), false, 520, statementAxis, statementWidths,
     statementTitles},
    {"Account", maker<PrintAccountReport>(false), false, 520, statementAxis, statementWidths,
     statementTitles},
    {"Expense",
     maker<PrintExpense>(),
     false,
     521,
     {76.5, 172, 224.5, 289.5, 352, 452},
     {151, 40, 65, 65, 60, 140},
     {u"Name"_s, u"Date"_s, u"Constant"_s, u"Variable"_s, u"Total"_s, u"Comment"_s}},
    {"Journal",
     maker<PrintJournal>(),
     true,
     750,
     {23.5, 66, 161, 266, 341, 426, 506, 583.5, 686},
     {45, 40, 150, 60, 90, 80, 80, 75, 130},
     {u"Date"_s, u"Conf."_s, u"Document"_s, u"Sum"_s, u"Counterparty"_s, u"From"_s, u"To"_s, u"Employee"_s,
      u"Comment"_s}},
    {"Balance",
     maker<PrintBalance>(),
     false,
     405,
     {159, 314, 414},
     {200, 100, 100},
     {u""_s, u"Debet"_s, u"Credit"_s}},
    {"FixedAssets",
     maker<PrintFixedAssets>(),
     true,
     750,
     {16, 131, 256, 316, 386, 456, 516, 646},
     {30, 200, 50, 70, 70, 70, 50, 210},
     {u"#"_s, u"Name"_s, u"Date"_s, u"Cost"_s, u"Residual Value"_s, u"Depreciating"_s, u"Period"_s,
      u"Description"_s}},
    {"Measurement",
     maker<PrintMeasurement>(),
     false,
     521,
     {16, 226.5, 472},
     {30, 391, 100},
     {u"#"_s, u"Name"_s, u"Short"_s}},
    {"PaymentCalendar",
     maker<PrintPaymentCalendar>(),
     false,
     521,
     {23.5, 171.5, 327, 379.5, 432, 492},
     {45, 251, 60, 45, 60, 60},
     {u"Doc Date"_s, u"Document"_s, u"Doc Sum"_s, u"Pay To"_s, u"We Wait"_s, u"Wait For Us"_s}},
};

// Some value of each of the form's columns.
SampleTable::Cells someCells(const TableForm& form, const QString& text)
{
    SampleTable::Cells cells;
    for (const TableForm::Column& column : form.columns) {
        switch (column.kind) {
        case CellKind::Text:
            cells[column.identifier] = text;
            break;
        case CellKind::CheckBox:
            cells[column.identifier] = true;
            break;
        case CellKind::Date:
            cells[column.identifier] = march14;
            break;
        case CellKind::Integer:
            cells[column.identifier] = 24;
            break;
        default:
            cells[column.identifier] = 1234.5;
        }
    }
    return cells;
}

QString shown(CellKind kind, const QString& text)
{
    switch (kind) {
    case CellKind::Text:
        return text;
    case CellKind::CheckBox:
        return u"yes"_s;
    case CellKind::Date:
        return u"3/14/15"_s;
    case CellKind::Integer:
        return u"24"_s;
    case CellKind::Percent:
        return u"123 450.00 %"_s;
    default:
        return u"1 234.50"_s;
    }
}

} // namespace

class ReportForms : public ::testing::TestWithParam<Case> {
protected:
    ReportForms() : program(march14), form(GetParam().make(program.appDelegate)) {}

    // The lower edge of the band.
    double tableTop() const { return form->frame().height() - form->delta - 75; }

    TestProgram program;
    std::unique_ptr<TableForm> form;
};

INSTANTIATE_TEST_SUITE_P(Every, ReportForms, ::testing::ValuesIn(cases),
                         [](const auto& tested) { return std::string(tested.param.name); });

TEST_P(ReportForms, HasItsColumnsSideBySideFromTheLeftOfTheSheet)
{
    const Case& told = GetParam();
    EXPECT_EQ(form->isLandscape(), told.isLandscape);
    EXPECT_EQ(form->frame(), told.isLandscape ? PrintView::landscape : PrintView::portrait);
    EXPECT_EQ(form->axis, told.axis);
    EXPECT_EQ(form->colWidth, told.colWidth);
    EXPECT_EQ(form->titles, told.titles);
    EXPECT_EQ(form->axis.back() + form->colWidth.back() / 2 -
                  (form->axis.front() - form->colWidth.front() / 2),
              told.tableWidth);
}

TEST_P(ReportForms, TitlesStandInTheMiddleOfTheirColumnsInABandAboveTheRows)
{
    ZELVOR_NEEDS_PDF_TOOLS();
    form->insertRows(SampleTable());
    const TableReader reader(*form);
    const double titleHeight = form->textSize(u"#"_s, form->colTitleFont).height();
    for (std::size_t column = 0; column < form->columns.size(); ++column) {
        const QString title = GetParam().titles[static_cast<qsizetype>(column)];
        const TableReader::Text read = reader.cell(*form, column, tableTop(), tableTop() + 15);
        EXPECT_EQ(read.text, title);
        if (title.isEmpty())
            continue;
        EXPECT_NEAR(read.centre(), form->axis[column], 0.5) << title.toStdString();
        EXPECT_NEAR(read.top, tableTop() + 15 - 2, 1) << title.toStdString();
        EXPECT_NEAR(read.bottom, tableTop() + 15 - 2 - titleHeight, 1) << title.toStdString();
    }
}

TEST_P(ReportForms, TextsStandLeftNumbersRightAndDatesInTheMiddle)
{
    ZELVOR_NEEDS_PDF_TOOLS();
    SampleTable report;
    report.append(someCells(*form, u"Brill"_s));
    form->insertRows(report);
    const TableReader reader(*form);
    for (std::size_t column = 0; column < form->columns.size(); ++column) {
        const TableForm::Column& shownColumn = form->columns[column];
        const double left = form->axis[column] - form->colWidth[column] / 2;
        const double right = form->axis[column] + form->colWidth[column] / 2;
        const TableReader::Text read = reader.cell(*form, column, tableTop() - 15, tableTop());
        const bool isNumbered = shownColumn.identifier.isEmpty();
        EXPECT_EQ(read.text, isNumbered ? u"1"_s : shown(shownColumn.kind, u"Brill"_s));
        if (shownColumn.kind == CellKind::Text)
            EXPECT_NEAR(read.left, left + 6, 0.3) << read.text.toStdString();
        else if (shownColumn.kind == CellKind::Date || shownColumn.kind == CellKind::CheckBox)
            EXPECT_NEAR(read.centre(), form->axis[column], 0.3) << read.text.toStdString();
        else
            EXPECT_NEAR(read.right, right - 3, 0.3) << read.text.toStdString();
    }
}

TEST_P(ReportForms, EmptyCellsStayEmpty)
{
    ZELVOR_NEEDS_PDF_TOOLS();
    SampleTable report;
    report.append({}, true);
    form->insertRows(report);
    EXPECT_EQ(TableReader(*form).line(0, tableTop()).text, u""_s);
}

TEST_P(ReportForms, ALongTextMakesItsRowHigherAndTheSheetHoldsAllOfIt)
{
    ZELVOR_NEEDS_PDF_TOOLS();
    QString longText;
    for (int word = 10; word < 60; ++word)
        longText += u"Lang%1 "_s.arg(word);
    for (const TableForm::Column& column : form->columns) {
        if (column.kind != CellKind::Text)
            continue;
        SampleTable report;
        report.append({{column.identifier, longText.trimmed()}});
        report.append({{column.identifier, u"Behind"_s}});
        form->insertRows(report);
        const auto lines = form->splitRow(longText.trimmed(), column.width - 6).size();
        EXPECT_GT(lines, 1);
        EXPECT_EQ(form->calculateTableHeight(), lines * 15 + 1 + 16 + 45);
        EXPECT_EQ(form->frame().height(), form->calculateTableHeight() + 40);
        const TableReader reader(*form);
        const auto place = static_cast<std::size_t>(&column - form->columns.data());
        const double left = form->axis[place] - column.width / 2;
        for (int line = 0; line < lines; ++line) {
            const double bottom = tableTop() - (line + 1) * 15;
            const TableReader::Text read = reader.cell(*form, place, bottom, bottom + 15);
            EXPECT_TRUE(read.text.startsWith(u"Lang"_s)) << read.text.toStdString();
            EXPECT_NEAR(read.left, left + 6, 0.3);
            EXPECT_LE(read.right, left + column.width);
        }
        const double behind = tableTop() - (static_cast<double>(lines) * 15 + 1);
        EXPECT_EQ(reader.cell(*form, place, behind - 15, behind).text, u"Behind"_s);
        EXPECT_GE(behind - 15, 0);
    }
}

TEST_P(ReportForms, LosesNoneOf300RowsAtTheEdgesOfItsPages)
{
    ZELVOR_NEEDS_PDF_TOOLS();
    const auto text = std::ranges::find(form->columns, CellKind::Text, &TableForm::Column::kind);
    SampleTable report;
    for (int row = 100; row < 400; ++row) {
        SampleTable::Cells cells = someCells(*form, u"x"_s);
        cells[text->identifier] = row % 7 == 0
                                      ? u"Row%1 and more words than a narrow column has room for, so that it "
                                        "takes several lines of whatever form it stands on"_s.arg(row)
                                      : u"Row%1"_s.arg(row);
        report.append(cells, row % 10 == 0);
    }
    form->insertRows(report);
    form->setData();
    PrintedPages::keep(*form, u"form-"_s + QLatin1StringView(GetParam().name));
    const TableReader reader(*form);
    const double pageHeight = pageLayout(*form).paintRect(QPageLayout::Point).height();
    EXPECT_GT(reader.pages().pages(), 5);
    EXPECT_EQ(reader.pages().pages(), form->knowsPageRange(static_cast<float>(pageHeight)));
    for (int row = 100; row < 400; ++row) {
        const double top = tableTop() - form->rows()[static_cast<std::size_t>(row - 100)].top;
        const auto column = static_cast<std::size_t>(text - form->columns.begin());
        const QString first = reader.cell(*form, column, top - 15, top).text;
        EXPECT_TRUE(first.startsWith(u"Row%1"_s.arg(row))) << row << ": " << first.toStdString();
    }
    const TableForm::Row& last = form->rows().back();
    EXPECT_GE(tableTop() - last.top - last.lines * 15, 0);
}

TEST_P(ReportForms, PrintsCyrillic)
{
    ZELVOR_NEEDS_PDF_TOOLS();
    SampleTable report;
    report.append(someCells(*form, u"Щётка"_s));
    report.append(someCells(*form, u"Ёлка"_s), true);
    form->insertRows(report);
    const TableReader reader(*form);
    EXPECT_GE(reader.pages().count(u"Щётка"_s), 1);
    EXPECT_GE(reader.pages().count(u"Ёлка"_s), 1);
}

} // namespace zelvor
