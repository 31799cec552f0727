#include "core/localized.h"
#include "reports/dynamics_report_view_controller.h"
#include "reports/money_books.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace zelvor {

namespace {

using namespace Qt::Literals::StringLiterals;

// The sums of a row as they are stored, rounded by nobody.
class StrangeRow : public TableModel {
public:
    double priceCostSum = 0;
    double baseCostSum = 0;

    static const TableInfo& table()
    {
        static constexpr ColumnInfo columns[] = {
            plainRealColumn<&StrangeRow::priceCostSum>("price_cost_sum"),
            plainRealColumn<&StrangeRow::baseCostSum>("base_cost_sum"),
        };
        static constexpr TableInfo info{"product_doc_row", columns, {}, {}, nullptr, makeRecord<StrangeRow>};
        return info;
    }
};

class DynamicsReport : public testing::Test {
protected:
    explicit DynamicsReport(const QTimeZone& zone = QTimeZone::utc()) : books(zone)
    {
        controller.prepareData();
    }

    // From the first day to the end of the last, as the date pickers have them.
    void report(const DayComponents& from, const DayComponents& to)
    {
        controller.dateFrom.setMoment(books.moment(from.year, from.month, from.day));
        controller.dateTo.setMoment(books.moment(to.year, to.month, to.day) + secondsPerDay);
        controller.prepareReport();
    }
    void tick(CheckBox& check, bool on)
    {
        check.setOn(on);
        check.userChanged();
    }
    // Changes what the file holds, whatever the program would store.
    template <class Change>
    void changeRows(Change change)
    {
        for (const auto& row : books.connection.freeSQL<StrangeRow>()) {
            change(*row);
            ASSERT_EQ(books.connection.update(*row), 1);
        }
    }
    // "name|sum|sum..." of each shown row.
    QStringList lines() const
    {
        QStringList lines;
        for (const auto& row : controller.reportRows()) {
            QString line = row->name;
            for (const Decimal& value : row->data)
                line += u'|' + value.toText();
            lines += line;
        }
        return lines;
    }
    QStringList monthTitles() const
    {
        QStringList titles;
        for (const MonthPeriod& month : controller.dates())
            titles += controller.view.monthTitle(month);
        return titles;
    }

    MoneyBooks books;
    DynamicsReportViewController controller{books.appDelegate};
    DynamicsReportView& view = controller.view;
};

class DynamicsReportInNewYork : public DynamicsReport {
protected:
    DynamicsReportInNewYork() : DynamicsReport(QTimeZone("America/New_York")) {}
};

} // namespace

TEST_F(DynamicsReport, fourFiguresMonthByMonth)
{
    books.addProducts(DocType::SellProduct, books.moment(2015, 1, 5), {{10.5, 4}, {20, 9.25}});
    books.addProducts(DocType::SellIntangibles, books.moment(2015, 1, 31, 23), {{5, 0}});
    books.addProducts(DocType::SellProduct, books.moment(2015, 2, 1), {{1, 3}});
    books.addMoneyOn(DocType::MoneyFromContragent, books.moment(2015, 1, 7), 100);
    books.addMoneyOn(DocType::MoneyFromContragent, books.moment(2015, 1, 8), 0.01);
    books.addMoneyOn(DocType::MoneyToExpend, books.moment(2015, 2, 7), 33);
    report({2015, 1, 1}, {2015, 2, 28});
    EXPECT_EQ(lines(), (QStringList{u"Income|100.01|0"_s, u"Spendings|0|33"_s, u"Selling|35.5|1"_s,
                                    u"Margin|22.25|-2"_s}));
    EXPECT_EQ(monthTitles(), (QStringList{u"1.2015"_s, u"2.2015"_s}));
    EXPECT_EQ(view.name(), u"Dynamics"_s);
}

TEST_F(DynamicsReport, onlyConfirmedDocumentsOfTheFourKindsCount)
{
    const qint64 day = books.moment(2015, 1, 5);
    for (const DocType type :
         {DocType::BuyProduct, DocType::Return, DocType::MoveProduct, DocType::DeleteProduct})
        books.addProducts(type, day, {{10, 4}});
    books.addProducts(DocType::SellProduct, day, {{10, 4}}, false);
    for (const DocType type : {DocType::MoneyAdd, DocType::MoneyToContragent, DocType::MoneyFromEmployee,
                               DocType::MoneyToEmployee, DocType::InnerTransaction})
        books.addMoneyOn(type, day, 7);
    books.addMoney(DocType::MoneyToExpend, 7, [day](MoneyDocument& document) {
        document.date = day;
        document.confirmed = false;
    });
    report({2015, 1, 1}, {2015, 1, 31});
    EXPECT_TRUE(controller.dates().empty());
    EXPECT_EQ(lines().size(), 4);
}

TEST_F(DynamicsReport, loansAreNeitherIncomeNorSpendings)
{
    const qint64 day = books.moment(2015, 1, 5);
    for (const DocType type : {DocType::MoneyFromContragent, DocType::MoneyToExpend}) {
        books.addMoney(type, 1000, [day](MoneyDocument& document) {
            document.date = day;
            document.loans = true;
        });
        books.addMoneyOn(type, day, 1);
    }
    report({2015, 1, 1}, {2015, 1, 31});
    EXPECT_EQ(lines(), (QStringList{u"Income|1"_s, u"Spendings|1"_s, u"Selling|0"_s, u"Margin|0"_s}));
}

TEST_F(DynamicsReport, aMonthWithoutAnyFigureIsGoneFromTableAndGraph)
{
    books.addMoneyOn(DocType::MoneyToExpend, books.moment(2014, 11, 5), 5);
    books.addMoneyOn(DocType::MoneyToExpend, books.moment(2015, 2, 5), 10);
    report({2014, 10, 1}, {2015, 3, 31});
    EXPECT_EQ(monthTitles(), (QStringList{u"11.2014"_s, u"2.2015"_s}));
    EXPECT_EQ(lines()[1], u"Spendings|5|10"_s);
    EXPECT_EQ(controller.graphView.dates, controller.dates());
    EXPECT_EQ(view.columns().size(), 4U);
    EXPECT_DOUBLE_EQ(view.value(1, u"percent_1"_s).toDouble(), 1) << "against the month that is shown before";
}

TEST_F(DynamicsReport, aDateInTheMiddleOfAMonthTakesTheWholeMonthIn)
{
    books.addMoneyOn(DocType::MoneyToExpend, books.moment(2015, 1, 1), 1);
    books.addMoneyOn(DocType::MoneyToExpend, books.moment(2015, 2, 28, 23), 2);
    report({2015, 1, 20}, {2015, 2, 3});
    EXPECT_EQ(lines()[1], u"Spendings|1|2"_s);
}

TEST_F(DynamicsReport, monthsRunWhileTheirFirstDayIsBeforeTheEnd)
{
    books.addMoneyOn(DocType::MoneyToExpend, books.moment(2015, 1, 1), 1);
    books.addMoneyOn(DocType::MoneyToExpend, books.moment(2015, 2, 1), 2);
    report({2015, 1, 1}, {2015, 1, 31});
    EXPECT_EQ(lines()[1], u"Spendings|1"_s);
    controller.dateTo.setMoment(books.moment(2015, 2, 1) + 1);
    controller.prepareReport();
    EXPECT_EQ(lines()[1], u"Spendings|1|2"_s);
}

TEST_F(DynamicsReport, theYearsEndIsPassed)
{
    const auto months =
        monthsBetween(books.appDelegate.calendar, books.moment(2014, 11, 30), books.moment(2015, 2, 1));
    ASSERT_EQ(months.size(), 3U);
    EXPECT_EQ(months[0], MonthPeriod(books.moment(2014, 11, 1), books.moment(2014, 12, 1)));
    EXPECT_EQ(months[2], MonthPeriod(books.moment(2015, 1, 1), books.moment(2015, 2, 1)));
}

TEST_F(DynamicsReportInNewYork, monthsAreLocalAndMeetWithoutAGap)
{
    const qint64 midnight = books.moment(2015, 4, 1); // the clocks went forward in March
    books.addMoneyOn(DocType::MoneyToExpend, midnight - 1, 1);
    books.addMoneyOn(DocType::MoneyToExpend, midnight, 2);
    report({2015, 3, 1}, {2015, 4, 30});
    EXPECT_EQ(lines()[1], u"Spendings|1|2"_s);
    for (const MonthPeriod& month : controller.dates())
        EXPECT_EQ(books.appDelegate.calendar.components(month.first).day, 1);
    EXPECT_EQ(controller.graphView.label(controller.dates()[0]), u"1.3.15 - 31.3.15"_s);
}

TEST_F(DynamicsReport, theCheckBoxesChooseTheRowsWithoutAQuery)
{
    books.addMoneyOn(DocType::MoneyToExpend, books.moment(2015, 1, 1), 1);
    report({2015, 1, 1}, {2015, 1, 31});
    const qint64 statements = books.connection.statementCount();
    int redraws = 0;
    controller.graphView.onRedraw = [&redraws] { ++redraws; };
    tick(controller.incomeCheck, false);
    tick(controller.realizationCheck, false);
    EXPECT_EQ(lines(), (QStringList{u"Spendings|1"_s, u"Margin|0"_s}));
    EXPECT_EQ(view.reportRows(), controller.reportRows());
    EXPECT_EQ(controller.graphView.reportRows, controller.reportRows());
    tick(controller.expensesCheck, false);
    tick(controller.marginCheck, false);
    EXPECT_EQ(view.numberOfRows(), 0);
    EXPECT_TRUE(controller.graphView.reportRows.empty());
    tick(controller.incomeCheck, true);
    EXPECT_EQ(lines(), QStringList{u"Income|0"_s});
    EXPECT_EQ(controller.allRows().size(), 4U);
    EXPECT_EQ(redraws, 5);
    EXPECT_EQ(books.connection.statementCount(), statements);
}

TEST_F(DynamicsReport, aBoxTickedBeforeAnythingWasComputedShowsNothing)
{
    tick(controller.incomeCheck, false);
    tick(controller.incomeCheck, true);
    EXPECT_EQ(view.numberOfRows(), 0);
}

TEST_F(DynamicsReport, eachFurtherMonthTellsTheChangeAgainstTheOneBefore)
{
    const std::array<double, 4> sums{200, 150, 0, 30};
    for (int month = 1; month <= 4; ++month) {
        books.addMoneyOn(DocType::MoneyToExpend, books.moment(2015, month, 2),
                         sums[static_cast<std::size_t>(month) - 1]);
        books.addMoneyOn(DocType::MoneyFromContragent, books.moment(2015, month, 2), 3);
    }
    report({2015, 1, 1}, {2015, 4, 30});
    QStringList identifiers;
    QStringList titles;
    for (const ViewColumn& column : view.columns()) {
        identifiers += column.identifier;
        titles += column.title;
    }
    EXPECT_EQ(identifiers, (QStringList{u"name"_s, u"col_0"_s, u"col_1"_s, u"percent_1"_s, u"col_2"_s,
                                        u"percent_2"_s, u"col_3"_s, u"percent_3"_s}));
    EXPECT_EQ(titles, (QStringList{u"Name"_s, u"1.2015"_s, u"2.2015"_s, u"%"_s, u"3.2015"_s, u"%"_s,
                                   u"4.2015"_s, u"%"_s}));
    EXPECT_EQ(view.value(1, u"name"_s), QVariant(u"Spendings"_s));
    EXPECT_EQ(view.value(1, u"col_1"_s), QVariant(150.0));
    EXPECT_EQ(view.value(1, u"percent_1"_s), QVariant(-0.25));
    EXPECT_EQ(view.cellStyle(1, u"percent_1"_s).color, redColor);
    EXPECT_EQ(view.value(0, u"percent_1"_s), QVariant(0.0));
    EXPECT_EQ(view.cellStyle(0, u"percent_1"_s).color, blackColor);
    EXPECT_EQ(view.value(1, u"percent_2"_s), QVariant(-1.0));
    EXPECT_EQ(view.value(1, u"percent_3"_s), QVariant(QString())) << "nothing to measure it by";
    for (const QString& nothing :
         {u"percent_0"_s, u"percent_9"_s, u"col_9"_s, u"col_"_s, u"col_x"_s, u"sum"_s})
        EXPECT_EQ(view.value(1, nothing), QVariant(QString())) << qPrintable(nothing);
    EXPECT_EQ(view.value(4, u"name"_s), QVariant(QString()));
    EXPECT_EQ(view.value(-1, u"name"_s), QVariant(QString()));
    EXPECT_EQ(view.cellStyle(1, u"col_1"_s).alignment, CellAlignment::Right);
}

TEST_F(DynamicsReport, aLossThatTurnsIntoAProfitIsARise)
{
    books.addProducts(DocType::SellProduct, books.moment(2015, 1, 5), {{0, 100}});
    books.addProducts(DocType::SellProduct, books.moment(2015, 2, 5), {{50, 0}});
    report({2015, 1, 1}, {2015, 2, 28});
    EXPECT_EQ(view.value(3, u"percent_1"_s), QVariant(1.5));
}

TEST_F(DynamicsReport, valuesOfAStrangeFileAreRoundedOneByOne)
{
    books.addProducts(DocType::SellProduct, books.moment(2015, 1, 5), {{1, 1}, {1, 1}});
    changeRows([](StrangeRow& row) {
        row.priceCostSum = 0.125;
        row.baseCostSum = 0.135;
    });
    report({2015, 1, 1}, {2015, 1, 31});
    EXPECT_EQ(lines()[2], u"Selling|0.24"_s) << "half to even: 0.12 and 0.12";
    EXPECT_EQ(lines()[3], u"Margin|-0.04"_s) << "0.14 and 0.14 were paid";
}

TEST_F(DynamicsReport, whatIsNoNumberMakesItsFigureNone)
{
    books.addProducts(DocType::SellProduct, books.moment(2015, 1, 5), {{1, 1}, {2, 1}});
    changeRows([](StrangeRow& row) {
        if (row.id == 1)
            row.priceCostSum = std::numeric_limits<double>::quiet_NaN();
    });
    report({2015, 1, 1}, {2015, 1, 31});
    EXPECT_EQ(lines()[2], u"Selling|NaN"_s);
    EXPECT_EQ(controller.graphView.maxValue(), 1);
}

TEST_F(DynamicsReport, manyMonthsTakeAsManyStatementsAsOne)
{
    for (int month = 1; month <= 12; ++month)
        books.addProducts(DocType::SellProduct, books.moment(2014, month, 5), {{2, 1}});
    const auto statementsOf = [&](const DayComponents& from, const DayComponents& to) {
        const qint64 before = books.connection.statementCount();
        report(from, to);
        return books.connection.statementCount() - before;
    };
    statementsOf({2014, 1, 1}, {2014, 1, 31});
    EXPECT_LE(statementsOf({2014, 1, 1}, {2014, 12, 31}), 4);
    EXPECT_EQ(controller.dates().size(), 12U);
}

TEST_F(DynamicsReport, aFailedReadShowsNoHalfOfTheFigures)
{
    books.addProducts(DocType::SellProduct, books.moment(2015, 1, 5), {{2, 1}});
    books.addMoneyOn(DocType::MoneyToExpend, books.moment(2015, 1, 5), 5);
    for (int call = 1; call <= 4; ++call) {
        books.connector->failCall(call, FaultInjectingConnector::Read);
        report({2015, 1, 1}, {2015, 1, 31});
        ASSERT_TRUE(books.connector->hasFailed()) << call;
        EXPECT_TRUE(controller.dates().empty()) << call;
    }
    books.connector->failCall(0);
    report({2015, 1, 1}, {2015, 1, 31});
    EXPECT_EQ(controller.dates().size(), 1U);
}

TEST_F(DynamicsReport, datesTheWrongWayRoundComputeNothing)
{
    books.addMoneyOn(DocType::MoneyToExpend, books.moment(2015, 1, 5), 5);
    report({2015, 1, 20}, {2015, 1, 10});
    EXPECT_EQ(view.numberOfRows(), 0);
    EXPECT_EQ(view.columns().size(), 1U);
    EXPECT_EQ(controller.dateToLabel.color(), redColor);
}

TEST_F(DynamicsReport, aHundredCenturiesAreNoProblem)
{
    books.addMoneyOn(DocType::MoneyToExpend, books.moment(2015, 1, 5), 5);
    report({1000, 1, 1}, {9000, 1, 1});
    EXPECT_EQ(monthTitles(), QStringList{u"1.2015"_s});
}

TEST_F(DynamicsReport, theScaleEndsAtARoundNumberAboveAllThatIsShown)
{
    GraphView& graph = controller.graphView;
    const auto maxOf = [&graph](const std::vector<double>& values) {
        auto row = std::make_shared<DynamicsReportRow>();
        for (const double value : values)
            row->data.push_back(Decimal::fromDouble(value));
        graph.reportRows = {row};
        return graph.maxValue();
    };
    EXPECT_EQ(maxOf({3456}), 4000);
    EXPECT_EQ(maxOf({999}), 1000);
    EXPECT_EQ(maxOf({0}), 1);
    EXPECT_EQ(maxOf({}), 1);
    EXPECT_EQ(maxOf({-5000}), 1);
    EXPECT_EQ(maxOf({1000}), 2000);
    EXPECT_EQ(maxOf({9.99, -3, 9.5}), 10);
    EXPECT_EQ(maxOf({0.99}), 1);
    EXPECT_EQ(maxOf({99'999'999}), 200'000'000) << "in single precision it is 100 millions";
    EXPECT_EQ(maxOf({1e30}), 100'000'000'000'000'000) << "larger ones leave the sheet";
    graph.reportRows.clear();
    EXPECT_EQ(graph.maxValue(), 1);
}

TEST_F(DynamicsReport, aRowsColourIsThatOfItsWell)
{
    GraphView& graph = controller.graphView;
    const auto colorOf = [&graph](const char* name) {
        DynamicsReportRow row;
        row.name = localized(name);
        return graph.colorOf(row);
    };
    EXPECT_EQ(colorOf("Selling"), graph.realizationColor.color());
    EXPECT_EQ(colorOf("Spendings"), graph.expensesColor.color());
    EXPECT_EQ(colorOf("Income"), graph.incomColor.color());
    EXPECT_EQ(colorOf("Margin"), graph.marginColor.color());
    int redraws = 0;
    graph.onRedraw = [&redraws] { ++redraws; };
    graph.marginColor.setColor(blackColor);
    EXPECT_EQ(redraws, 1);
    EXPECT_EQ(colorOf("Margin"), blackColor);
    EXPECT_NE(colorOf("Income"), colorOf("Selling"));
}

namespace {

// The four figures of a month as they are worded: its own queries for each, records and all.
std::vector<Decimal> literalFigures(Connector& connector, const MonthPeriod& month)
{
    Decimal selling;
    Decimal cost;
    for (const auto& row : connector.freeSQL<ProductDocumentRow>(
             "WHERE doc_id IN (SELECT id FROM product_doc WHERE (doc_type_id=? OR doc_type_id=?)"
             " AND date>=? AND date<? AND is_confirmed=1)",
             {DocType::SellProduct, DocType::SellIntangibles, month.first, month.second}, Fill::Nothing)) {
        selling = selling.plus(row->innerPriceCostSum, moneyHandler);
        cost = cost.plus(row->innerBaseCostSum, moneyHandler);
    }
    const auto moneyOf = [&](DocType type) {
        Decimal sum;
        for (const auto& document : connector.freeSQL<MoneyDocument>(
                 "WHERE doc_type_id=? AND is_loans=0 AND date>=? AND date<? AND is_confirmed=1",
                 {type, month.first, month.second}, Fill::Nothing))
            sum = sum.plus(document->innerDocSum, moneyHandler);
        return sum;
    };
    return {moneyOf(DocType::MoneyFromContragent), moneyOf(DocType::MoneyToExpend), selling,
            selling.minus(cost, moneyHandler)};
}

} // namespace

TEST_F(DynamicsReportInNewYork, aGeneratedProjectAgreesFigureByFigureWithTheWording)
{
    std::mt19937 random(42);
    const auto upTo = [&random](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    const qint64 start = books.moment(2013, 1, 1);
    for (int document = 0; document < 800; ++document) {
        const qint64 date = start + upTo(800) * secondsPerDay + upTo(static_cast<int>(secondsPerDay));
        const auto sum = [&] { return static_cast<double>(upTo(10'000'000)) / 100; };
        if (document % 2 == 0)
            books.addProducts(static_cast<DocType>(upTo(7) + 1), date, {{sum(), sum()}, {sum(), sum()}},
                              upTo(8) != 0);
        else
            books.addMoney(upTo(2) == 0 ? DocType::MoneyToExpend : DocType::MoneyFromContragent, sum(),
                           [&](MoneyDocument& money) {
                               money.date = date;
                               money.loans = upTo(6) == 0;
                               money.confirmed = upTo(8) != 0;
                           });
    }
    // A stored value that is in no whole cents.
    changeRows([](StrangeRow& row) { row.priceCostSum += row.id % 3 == 0 ? 0.005 : 0; });
    for (const auto& [from, to] : {std::pair<DayComponents, DayComponents>{{2012, 12, 1}, {2015, 6, 30}},
                                   {{2014, 2, 10}, {2014, 4, 1}}}) {
        report(from, to);
        EXPECT_GE(controller.dates().size(), 3U);
        for (std::size_t month = 0; month < controller.dates().size(); ++month) {
            const auto expected = literalFigures(books.connection, controller.dates()[month]);
            for (std::size_t row = 0; row < 4; ++row)
                EXPECT_EQ(controller.allRows()[row]->data[month], expected[row]) << row << ' ' << month;
        }
    }
}

} // namespace zelvor
