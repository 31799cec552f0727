// The products on warehouses report on paper: its columns follow the warehouses.

#include "print/print_products_on_stock.h"

#include "print/print_forms.h"
#include "print/table_reader.h"
#include "reports/products_on_stock_report_view.h"
#include "support/books.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr qint64 march15 = 1426377600; // 2015

std::shared_ptr<ReportStockRow> rowOf(const QString& type, qint64 id, const QString& name,
                                      const std::vector<double>& amounts, const QStringList& stocks)
{
    auto row = std::make_shared<ReportStockRow>();
    row->type = type;
    row->folder = type == u"group";
    row->id = id;
    row->name = name;
    row->unit = row->folder ? QString() : u"pcs"_s;
    row->setCost(row->folder ? 0 : 2);
    for (qsizetype stock = 0; stock < stocks.size(); ++stock) {
        const Decimal amount =
            row->folder ? Decimal() : Decimal::fromDouble(amounts[static_cast<std::size_t>(stock)]);
        row->stocks.push_back({stocks[stock], amount, amount.times(Decimal(2), moneyHandler), Decimal()});
    }
    return row;
}

} // namespace

class PrintOfStock : public ::testing::Test {
protected:
    // A group with a brush, and a comb outside of it.
    void fill(const QStringList& stocks)
    {
        const std::vector<double> brushes{5, 1250.5, 3};
        const std::vector<double> combs{2, 0, 1};
        auto brush = rowOf(u"product"_s, 7, u"Brush"_s, brushes, stocks);
        brush->parentID = 3;
        view.setPeriod(0, march15);
        view.setRows({rowOf(u"group"_s, 3, u"Hair"_s, {}, stocks), brush,
                      rowOf(u"product"_s, 8, u"Comb"_s, combs, stocks)});
    }
    std::unique_ptr<PrintProductsOnStock> form()
    {
        auto made = makePrintForm(view, books.appDelegate);
        EXPECT_TRUE(dynamic_cast<PrintProductsOnStock*>(made.get()));
        return std::unique_ptr<PrintProductsOnStock>(static_cast<PrintProductsOnStock*>(made.release()));
    }
    static double tableTop(const TableForm& form) { return form.frame().height() - form.delta - 75; }

    Books books;
    ProductsOnStockReportView view;
};

TEST_F(PrintOfStock, TwoWarehousesStandOnTheLongSideOfTheSheet)
{
    fill({u"Depot"_s, u"Shop"_s});
    const auto printed = form();
    EXPECT_TRUE(printed->isLandscape());
    EXPECT_TRUE(printed->many);
    EXPECT_EQ(printed->frame().width(), 752);
    EXPECT_EQ(printed->axis, (std::vector<double>{86, 191, 241, 301, 361, 421, 481, 541, 601, 661, 721}));
    EXPECT_EQ(printed->colWidth, (std::vector<double>{170, 40, 60, 60, 60, 60, 60, 60, 60, 60, 60}));
}

TEST_F(PrintOfStock, OneWarehouseStandsOnTheShortSideOfTheSheet)
{
    fill({u"Depot"_s});
    const auto printed = form();
    EXPECT_FALSE(printed->isLandscape());
    EXPECT_FALSE(printed->many);
    EXPECT_EQ(printed->frame().width(), 523);
    EXPECT_EQ(printed->axis, (std::vector<double>{61, 141, 191, 251, 311, 371, 431, 491}));
    EXPECT_EQ(printed->axis.back() + 30, 521);
}

TEST_F(PrintOfStock, ThreeWarehousesAreRefusedAndToldSo)
{
    fill({u"Depot"_s, u"Shop"_s, u"Van"_s});
    EXPECT_FALSE(makePrintForm(view, books.appDelegate));
    ASSERT_EQ(books.dialogs.alerts.size(), 1);
    EXPECT_EQ(books.dialogs.alerts.front().messageText, u"Print Operation Warning"_s);
    EXPECT_EQ(books.dialogs.alerts.front().informativeText,
              u"Can't print more than 2 Warehouses at one time!"_s);
}

TEST_F(PrintOfStock, AnEmptyReportIsRefusedWithTheSameWords)
{
    EXPECT_FALSE(makePrintForm(view, books.appDelegate));
    ASSERT_EQ(books.dialogs.alerts.size(), 1);
    EXPECT_EQ(books.dialogs.alerts.front().informativeText,
              u"Can't print more than 2 Warehouses at one time!"_s);
}

TEST_F(PrintOfStock, TheFirstLineOfTheBandNamesTheWarehousesAndTheSecondTheirFigures)
{
    ZELVOR_NEEDS_PDF_TOOLS();
    fill({u"Depot"_s, u"Shop"_s});
    const auto printed = form();
    PrintedPages::keep(*printed, u"stock-two"_s);
    const TableReader reader(*printed);
    const double band = tableTop(*printed);
    const auto upper = [&](double left, double right) {
        return reader.between(band + 15, band + 30, left, right);
    };
    EXPECT_EQ(upper(271, 451).text, u"Depot"_s);
    EXPECT_NEAR(upper(271, 451).centre(), 361, 0.5);
    EXPECT_EQ(upper(451, 631).text, u"Shop"_s);
    EXPECT_NEAR(upper(451, 631).centre(), 541, 0.5);
    EXPECT_EQ(upper(631, 751).text, u"Total"_s);
    EXPECT_NEAR(upper(631, 751).centre(), 691, 0.5);
    EXPECT_EQ(reader.between(band, band + 15, 271, 752).text, u"Qty Sum Reserve Qty Sum Reserve Qty Sum"_s);
    EXPECT_EQ(reader.between(band, band + 30, 0, 271).text, u"Name Unit Base cost"_s);
}

TEST_F(PrintOfStock, TheLineBelowTheTitleNamesTheWarehousesAndTheDay)
{
    ZELVOR_NEEDS_PDF_TOOLS();
    fill({u"Depot"_s, u"Shop"_s});
    const auto printed = form();
    const double top = printed->frame().height() - printed->delta;
    const TableReader reader(*printed);
    EXPECT_EQ(reader.line(top - 30, top).text, u"Products On Warehouses Report"_s);
    EXPECT_EQ(reader.line(top - 40, top - 30).text,
              u"Products On Warehouses: 'Depot', 'Shop' on date: 3/15/15"_s);
    EXPECT_EQ(reader.line(tableTop(*printed) + 30, top - 40).text, u""_s);
}

TEST_F(PrintOfStock, RowsHaveTheFiguresOfTheirWarehousesAndTheirSumAndNothingForZero)
{
    fill({u"Depot"_s, u"Shop"_s});
    const auto printed = form();
    ASSERT_EQ(printed->rows().size(), 4); // the row of titles is the band
    using Cells = std::vector<QString>;
    EXPECT_EQ(printed->rows()[0].cells,
              (Cells{u"Hair"_s, u""_s, u""_s, u"5.00"_s, u"10.00"_s, u""_s, u"1 250.50"_s, u"2 501.00"_s,
                     u""_s, u"1 255.50"_s, u"2 511.00"_s}));
    EXPECT_EQ(printed->rows()[1].cells[0].trimmed(), u"Brush"_s);
    EXPECT_EQ(printed->rows()[1].cells[1], u"pcs"_s);
    EXPECT_EQ(printed->rows()[1].cells[2], u"2.00"_s);
    EXPECT_EQ(printed->rows()[2].cells, (Cells{u"Comb"_s, u"pcs"_s, u"2.00"_s, u"2.00"_s, u"4.00"_s, u""_s,
                                               u""_s, u""_s, u""_s, u"2.00"_s, u"4.00"_s}));
    EXPECT_EQ(printed->rows()[3].cells[0], u"TOTAL:"_s);
    EXPECT_TRUE(printed->rows()[0].isGathering);
    EXPECT_FALSE(printed->rows()[1].isGathering);
    EXPECT_TRUE(printed->rows()[3].isGathering);
}

TEST_F(PrintOfStock, LosesNoneOf300RowsAtTheEdgesOfItsPages)
{
    ZELVOR_NEEDS_PDF_TOOLS();
    for (const QStringList& stocks : {QStringList{u"Depot"_s}, QStringList{u"Depot"_s, u"Shop"_s}}) {
        ProductsOnStockReportView::Rows rows;
        for (int row = 100; row < 400; ++row) {
            const QString name =
                u"Row%1"_s.arg(row) +
                (row % 9 == 0 ? u" with a name that takes more than one line of its cell"_s : QString());
            rows.push_back(rowOf(u"product"_s, row, name, {1.5, 2}, stocks));
        }
        view.setRows(rows);
        const auto printed = form();
        PrintedPages::keep(*printed, u"stock-"_s + QString::number(stocks.size()));
        const TableReader reader(*printed);
        const double pageHeight = pageLayout(*printed).paintRect(QPageLayout::Point).height();
        EXPECT_EQ(reader.pages().pages(), printed->knowsPageRange(static_cast<float>(pageHeight)));
        for (int row = 100; row < 400; ++row) {
            const double top = tableTop(*printed) - printed->rows()[static_cast<std::size_t>(row - 100)].top;
            const QString first = reader.cell(*printed, 0, top - 15, top).text;
            EXPECT_TRUE(first.startsWith(u"Row%1"_s.arg(row))) << row << ": " << first.toStdString();
        }
        EXPECT_EQ(printed->calculateTableHeight() + 40 + printed->delta, printed->frame().height());
        const TableForm::Row& last = printed->rows().back();
        EXPECT_GE(tableTop(*printed) - last.top - last.lines * 15, 0);
    }
}

} // namespace zelvor
