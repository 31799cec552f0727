// The dynamics report on paper.
#include "print/print_dynamics.h"

#include "core/localized.h"
#include "print/pages.h"
#include "print/print_forms.h"
#include "print/print_job.h"
#include "support/books.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

class DynamicsForm : public testing::Test {
protected:
    // Four rows over that many months from January 2022 on.
    void fill(int months, double step = 1000)
    {
        DynamicsReportView::Rows rows;
        for (const char* name : {"Income", "Spendings", "Selling", "Margin"}) {
            auto row = std::make_shared<DynamicsReportRow>();
            row->name = localized(name);
            for (int month = 0; month < months; ++month)
                row->data.push_back(
                    Decimal::fromDouble(step * ((month * 7 + static_cast<int>(rows.size()) * 3) % 11 + 1) +
                                        static_cast<double>(month) / 100));
            rows.push_back(std::move(row));
        }
        const Calendar& calendar = books.appDelegate.calendar;
        const qint64 from = calendar.startOfDay({2022, 1, 1});
        const qint64 to = calendar.startOfDay({2022 + months / 12, months % 12 + 1, 1});
        report.setPeriod(from, to);
        report.setRows(monthsBetween(calendar, from, to), rows);
    }
    std::unique_ptr<PrintView> form() { return makePrintForm(report, books.appDelegate); }

    Books books;
    GraphView graph{books.appDelegate.calendar};
    DynamicsReportView report{books.appDelegate.calendar, graph};
};

} // namespace

TEST_F(DynamicsForm, aYearFitsOnePage)
{
    ZELVOR_NEEDS_PDF_TOOLS();
    fill(12);
    const auto printed = form();
    ASSERT_TRUE(printed);
    EXPECT_TRUE(printed->isLandscape());
    PrintedPages::keep(*printed, u"dynamics-12"_s);
    const PrintedPages pages(*printed);
    EXPECT_EQ(pages.pages(), 1);
    EXPECT_EQ(pages.info(u"Title"_s), u"Dynamics"_s);
    for (int month = 1; month <= 12; ++month)
        EXPECT_EQ(pages.count(QString::number(month) + u".2022"_s), 1) << month;
    EXPECT_EQ(pages.count(u"Margin"_s), 3) << "the legend and two bands";
    EXPECT_TRUE(pages.text().contains(u"Period From: "_s));
}

TEST_F(DynamicsForm, everyFigureOfThreeYearsIsPrintedOnceAndNoBandIsCut)
{
    ZELVOR_NEEDS_PDF_TOOLS();
    fill(36);
    const auto printed = form();
    PrintedPages::keep(*printed, u"dynamics-36"_s);
    const auto& dynamics = dynamic_cast<const PrintDynamics&>(*printed);
    for (const PrintDynamics::Band& band : dynamics.bands()) {
        const int page = static_cast<int>(band.top / 505);
        EXPECT_EQ(page, static_cast<int>((band.top + 15 + 4 * 16) / 505)) << band.first;
    }
    const PrintedPages pages(*printed);
    EXPECT_GT(pages.pages(), 1);
    const QString text = pages.text();
    for (const auto& row : report.reportRows()) {
        for (const Decimal& value : row->data)
            EXPECT_TRUE(text.contains(PrintView::numberText(value))) << qPrintable(value.toText());
    }
}

TEST_F(DynamicsForm, largeFiguresMakeWiderColumnsAndFewerOfThem)
{
    fill(12);
    const auto printed = form();
    const auto& small = dynamic_cast<const PrintDynamics&>(*printed);
    const std::size_t monthsOfABand = small.bands().front().end;
    fill(12, 1e11);
    const auto wide = form();
    const auto& large = dynamic_cast<const PrintDynamics&>(*wide);
    EXPECT_LT(large.bands().front().end, monthsOfABand);
    PrintedPages::keep(*wide, u"dynamics-large"_s);
    // No word runs into the next one.
    ZELVOR_NEEDS_PDF_TOOLS();
    std::vector<PrintedWord> words = PrintedPages(*wide).words();
    for (const PrintedWord& word : words) {
        EXPECT_LE(word.right, 752) << qPrintable(word.text);
        EXPECT_GE(word.left, 0) << qPrintable(word.text);
    }
}

TEST_F(DynamicsForm, fallingFiguresAreRedAndRisingOnesAreNot)
{
    auto row = std::make_shared<DynamicsReportRow>();
    row->name = localized("Selling");
    row->data = {Decimal(100), Decimal(50), Decimal(75)};
    const Calendar& calendar = books.appDelegate.calendar;
    report.setRows(
        monthsBetween(calendar, calendar.startOfDay({2022, 1, 1}), calendar.startOfDay({2022, 4, 1})), {row});
    const auto printed = form();
    const QImage page = pictures(*printed, 72).front();
    int red = 0;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x)
            red += page.pixelColor(x, y).red() > 220 && page.pixelColor(x, y).green() < 150 ? 1 : 0;
    }
    EXPECT_GT(red, 2);
    EXPECT_LT(red, 200) << "one of the two";
}

TEST_F(DynamicsForm, theGraphHasTheColoursThatTheUserChose)
{
    graph.realizationColor.setColor({0.5, 0, 0.5, 1});
    fill(3);
    const auto printed = form();
    const QImage page = pictures(*printed, 72).front();
    int drawn = 0;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            const QColor color = page.pixelColor(x, y);
            drawn += std::abs(color.red() - 127) < 8 && color.green() < 8 && std::abs(color.blue() - 127) < 8;
        }
    }
    EXPECT_GT(drawn, 50);
}

TEST_F(DynamicsForm, aLossIsNotDrawnOverTheFiguresOfTheTable)
{
    fill(6);
    auto loss = std::make_shared<DynamicsReportRow>();
    loss->name = localized("Margin");
    for (int month = 0; month < 6; ++month)
        loss->data.push_back(Decimal(month % 2 == 0 ? 1000 : -60'000));
    DynamicsReportView::Rows rows = report.reportRows();
    rows.back() = loss;
    report.setRows(report.dates(), rows);
    const auto printed = form();
    const auto& band = dynamic_cast<const PrintDynamics&>(*printed).bands().front();
    const QImage page = pictures(*printed, 72).front();
    const auto amberBetween = [&page](double top, double bottom) {
        int amber = 0;
        for (int y = static_cast<int>(45 + top); y < static_cast<int>(45 + bottom); ++y) {
            for (int x = 0; x < page.width(); ++x) {
                const QColor color = page.pixelColor(x, y);
                amber += color.red() > 200 && std::abs(color.green() - 160) < 40 && color.blue() < 80;
            }
        }
        return amber;
    };
    EXPECT_GT(amberBetween(band.top - 20, band.top), 5) << "it runs down to the table";
    EXPECT_EQ(amberBetween(band.top + 15, band.top + 80), 0);
}

TEST_F(DynamicsForm, nothingToShowIsAPageWithItsTitle)
{
    const auto empty = form();
    EXPECT_EQ(pictures(*empty, 36).size(), 1U);
    fill(3);
    report.setRows(report.dates(), {});
    const auto withoutRows = form();
    EXPECT_EQ(pictures(*withoutRows, 36).size(), 1U);
}

} // namespace zelvor
