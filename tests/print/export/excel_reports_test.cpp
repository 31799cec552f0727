#include "period/balance_view_controller.h"
#include "print/export/export_fixture.h"
#include "reports/period_sell_report_view_controller.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

using ExportOfReports = Export;

const QStringList sellTitles{u"Name"_s,     u"Unit"_s,      u"Amount"_s, u"Packs"_s,
                             u"Base Sum"_s, u"Price Sum"_s, u"Profit"_s, u"Percent"_s};

class ExportOfSales : public Export {
protected:
    // One group with one product in packs of 6, and one product without a pack beside it.
    ExportOfSales()
    {
        Measurement unit;
        unit.shorthand = u"pc"_s;
        const auto piece = books.store(unit);
        ProductGroup group;
        group.name = u"Wine <red>"_s;
        Product product;
        product.parentID = books.store(group)->id;
        product.measurementID = piece->id;
        product.name = u"  Chianti & Co"_s; // the blanks are its own
        product.setPackAmount(6);
        const auto chianti = books.store(product);
        product = Product();
        product.name = u"Basket"_s;
        const auto basket = books.store(product);
        sell(*chianti, 1500, 7500, 12'345.678);
        sell(*basket, 1, 0, 10);
        report.prepareData();
    }
    void sell(const Product& product, double amount, double baseSum, double priceSum)
    {
        ProductDocument document;
        document.insertDocType(DocType::SellProduct);
        document.date = books.clock.now() - 10;
        document.confirmed = true;
        auto row = std::make_shared<ProductDocumentRow>();
        row->productID = product.id;
        row->setAmount(amount);
        row->setBaseCostSum(baseSum);
        row->setPriceCostSum(priceSum);
        document.documentRows.push_back(std::move(row));
        books.store(document);
    }

    PeriodSellReportViewController report{books.appDelegate};
    PeriodSellReportView& view = report.mainView;
};

TEST_F(ExportOfSales, aReportWithoutRowsIsTheHeaderAndTheClosingTag)
{
    EXPECT_EQ(exported(view),
              u"<table><tr><td>Name</td><td>Unit</td><td>Amount</td><td>Packs</td><td>Base Sum</td>"
              "<td>Price Sum</td><td>Profit</td><td>Percent</td></tr></table>"_s);
}

TEST_F(ExportOfSales, everyCellIsThereWithoutIndentAndWithItsPacks)
{
    report.prepareReport();
    EXPECT_EQ(exported(view),
              table({sellTitles,
                     {u"Wine <red>"_s,
                      {},
                      u"1 500.00"_s,
                      u"250.00"_s,
                      u"7 500.00"_s,
                      u"12 345.68"_s,
                      u"4 845.68"_s,
                      u"64.61%"_s},
                     {u"  Chianti & Co"_s, u"pc"_s, u"1 500.00"_s, u"250.00"_s, u"7 500.00"_s, u"12 345.68"_s,
                      u"4 845.68"_s, u"64.61%"_s},
                     {u"Basket"_s, {}, u"1.00"_s, u"0.00"_s, u"0.00"_s, u"10.00"_s, u"10.00"_s, u"100.00%"_s},
                     {u"TOTAL"_s,
                      {},
                      u"1 501.00"_s,
                      u"0.00"_s,
                      u"7 500.00"_s,
                      u"12 355.68"_s,
                      u"4 855.68"_s,
                      u"64.74%"_s}}));
}

TEST_F(ExportOfSales, aCollapsedReportWritesTheRowsThatAreSeenInTheirOrder)
{
    report.prepareReport();
    view.productsGroupCheck.setOn(true);
    view.productsGroupCheck.userChanged();
    view.sort(u"amount"_s, true);
    const QString text = exported(view);
    EXPECT_FALSE(text.contains(u"Chianti"_s));
    EXPECT_LT(text.indexOf(u"Basket"_s), text.indexOf(u"Wine <red>"_s));
    EXPECT_LT(text.indexOf(u"Wine <red>"_s), text.indexOf(u"TOTAL"_s));
}

TEST_F(ExportOfSales, theDecimalSeparatorIsTheLocales)
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    report.prepareReport();
    EXPECT_TRUE(exported(view).contains(u"<td>12 345,68</td><td>4 845,68</td><td>64,61%</td>"_s))
        << qPrintable(exported(view));
}

TEST_F(ExportOfReports, theBalanceHasNamesWithoutIndentAndEmptyCellsForNothing)
{
    books.account(u"Till"_s, 1234.5);
    books.contragent(u"Acme"_s, 50);
    BalanceViewController controller(books.appDelegate);
    controller.prepareData();
    EXPECT_EQ(exported(controller.view), table({{u"Name"_s, u"Debit"_s, u"Credit"_s},
                                                {u"Cash"_s, u"1 234.50"_s, {}},
                                                {u"Till"_s, u"1 234.50"_s, {}},
                                                {u"Customers / Suppliers"_s, {}, u"50.00"_s},
                                                {u"Acme"_s, {}, u"50.00"_s},
                                                {u"TOTAL:"_s, u"1 234.50"_s, u"50.00"_s},
                                                {u"BALANCE:"_s, u"1 184.50"_s, {}}}));
}

} // namespace
} // namespace zelvor
