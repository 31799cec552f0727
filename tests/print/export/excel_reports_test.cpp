#include "period/balance_view_controller.h"
#include "print/export/export_fixture.h"
#include "reports/contragent_report_view_controller.h"
#include "reports/contragents_report_view_controller.h"
#include "reports/dynamics_report_view_controller.h"
#include "reports/expend_report_view_controller.h"
#include "reports/payment_calendar_view_controller.h"
#include "reports/period_sell_report_view_controller.h"
#include "reports/products_on_stock_report_view_controller.h"
#include "support/document_forms.h"

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

TEST_F(ExportOfReports, thePaymentCalendarHasItsSixCells)
{
    const auto acme = books.contragent(u"Acme <b>"_s);
    const auto sale = openDocument<ProductDocument>(books, DocType::SellProduct, *acme, 1500, 86'400);
    openDocument<ProductDocument>(books, DocType::BuyProduct, *acme, 500, -86'400);
    PaymentCalendarViewController controller(books.appDelegate);
    controller.prepareReport();
    const auto name = [&](int row) { return controller.mainView.value(row, u"name"_s).toString(); };
    ASSERT_TRUE(name(0).contains(u"Acme <b>"_s));
    EXPECT_EQ(exported(controller.mainView),
              table({{u"Document"_s, u"Date"_s, u"Pay To"_s, u"Sum"_s, u"We Wait"_s, u"Wait For Us"_s},
                     {name(0), u"14 Nov 2023"_s, u"15 Nov 2023"_s, u"1 500.00"_s, u"1 500.00"_s, {}},
                     {name(1), u"14 Nov 2023"_s, u"13 Nov 2023"_s, u"500.00"_s, {}, u"500.00"_s},
                     {u"TOTAL:"_s, {}, {}, {}, u"1 500.00"_s, u"500.00"_s},
                     {u"SALDO:"_s, {}, {}, {}, u"1 000.00"_s, {}}}));
}

TEST_F(ExportOfReports, theBalancesOfCounterpartiesStandUnderTheirTitles)
{
    books.contragent(u"Acme & <Sons>"_s, 1250.5);
    ContragentsReportViewController report(books.appDelegate);
    report.prepareData();
    report.prepareReport();
    const QStringList figures{u"1 250.50"_s, u"1 250.50"_s, u"0.00"_s, u"0.00"_s};
    EXPECT_EQ(exported(report.mainView), table({{u"Counterparty"_s, u"Start Balance"_s, u"End Balance"_s,
                                                 u"Credit (+)"_s, u"Debit (-)"_s},
                                                QStringList{u"START PERIOD:"_s} + figures,
                                                QStringList{u"Acme & <Sons>"_s} + figures,
                                                QStringList{u"END PERIOD:"_s} + figures}));
}

TEST_F(ExportOfReports, aStatementHasItsDocumentsDaysAndNothingWhereThereIsNoFigure)
{
    const auto acme = books.contragent(u"Acme"_s, 1500);
    openDocument<ProductDocument>(books, DocType::SellProduct, *acme, 1500, 86'400);
    ContragentReportViewController report(books.appDelegate);
    report.prepareData();
    ASSERT_TRUE(report.setContragentFromID(acme->id));
    report.prepareReport();
    ASSERT_EQ(report.mainView.numberOfRows(), 3);
    EXPECT_EQ(exported(report.mainView),
              table({{u"Document"_s, u"Date"_s, u"Balance Before"_s, u"Balance After"_s, u"Credit (+)"_s,
                      u"Debit (-)"_s},
                     {u"START PERIOD:"_s, {}, u"0.00"_s, {}, u"0.00"_s, u"0.00"_s},
                     {report.mainView.value(1, u"name"_s).toString(),
                      u"14 Nov 2023"_s,
                      u"0.00"_s,
                      u"-1 500.00"_s,
                      {},
                      u"1 500.00"_s},
                     {u"END PERIOD:"_s, {}, {}, u"-1 500.00"_s, u"0.00"_s, u"1 500.00"_s}}));
}

class ExportOfSpendings : public Export {
protected:
    void spend(const Expend& expend, double sum, bool variable, const QString& comment, qint64 date)
    {
        MoneyDocument document;
        document.insertDocType(DocType::MoneyToExpend);
        document.date = date;
        document.docNumber = 7;
        document.expendID = expend.id;
        document.setDocSum(sum);
        document.variable = variable;
        document.comment = comment;
        document.confirmed = true;
        books.store(document);
    }
};

TEST_F(ExportOfSpendings, spendingsHaveNamesWithoutIndentAndTheirDocumentsDays)
{
    ExpendType type;
    type.name = u"House"_s;
    Expend expend;
    expend.parentID = books.store(type)->id;
    expend.name = u"Rent & Co"_s;
    const auto rent = books.store(expend);
    spend(*rent, 1000, false, u"<November>"_s, books.clock.now() - 20);
    spend(*rent, 250.5, true, {}, books.clock.now() - 10);
    ExpendReportViewController report(books.appDelegate);
    report.prepareData();
    report.prepareReport();
    const auto name = [&](int row) { return report.mainView.value(row, u"name"_s).toString().trimmed(); };
    ASSERT_EQ(report.mainView.numberOfRows(), 5);
    EXPECT_EQ(exported(report.mainView),
              table({{u"Name"_s, u"Date"_s, u"Constant"_s, u"Variable"_s, u"Total"_s, u"Comment"_s},
                     {u"House"_s, {}, u"1 000.00"_s, u"250.50"_s, u"1 250.50"_s, {}},
                     {u"Rent & Co"_s, {}, u"1 000.00"_s, u"250.50"_s, u"1 250.50"_s, {}},
                     {name(2), u"14 Nov 2023"_s, u"1 000.00"_s, {}, u"1 000.00"_s, u"<November>"_s},
                     {name(3), u"14 Nov 2023"_s, {}, u"250.50"_s, u"250.50"_s, {}},
                     {u"TOTAL FOR PERIOD:"_s, {}, u"1 000.00"_s, u"250.50"_s, u"1 250.50"_s, {}}}));

    report.groupCheck.setOn(true);
    report.groupCheck.userChanged();
    EXPECT_EQ(exported(report.mainView).count(u"<tr>"_s), 4) << "the documents are not seen";
}

TEST_F(ExportOfSpendings, theDynamicsFollowTheirColumnsWithTheChangeAsAFigureOfPercent)
{
    const auto rent = books.expend(u"Rent"_s);
    const qint64 now = books.clock.now();
    spend(*rent, 2000, false, {}, now - 30 * 86'400);
    spend(*rent, 1500, false, {}, now);
    DynamicsReportViewController report(books.appDelegate);
    report.prepareData();
    report.dateFrom.setMoment(now - 30 * 86'400);
    report.dateTo.setMoment(now + 1);
    report.prepareReport();
    for (CheckBox* check : {&report.incomeCheck, &report.realizationCheck, &report.marginCheck})
        check->setOn(false);
    report.expensesCheck.setOn(true);
    report.expensesCheck.userChanged();
    EXPECT_EQ(exported(report.view), table({{u"Name"_s, u"10.2023"_s, u"11.2023"_s, u"%"_s},
                                            {u"Spendings"_s, u"2 000.00"_s, u"1 500.00"_s, u"-25.00"_s}}));
}

const QString stockTitles =
    u"<table><tr><td rowspan=2>Name</td><td rowspan=2>Unit</td><td rowspan=2>Base Cost</td>"_s;
const QString stockTotalTitles = u"<td colspan=2>Total</td></tr><tr>"_s;
const QString stockTotalSubtitles = u"<td>Qty</td><td>Sum</td></tr>"_s;

TEST_F(ExportOfReports, theProductsOnWarehousesHaveTitlesInTwoLines)
{
    const auto shop = books.stock(u"Shop & Co"_s);
    const auto depot = books.stock(u"Depot"_s);
    ProductGroup group;
    group.name = u"Teas"_s;
    Measurement unit;
    unit.shorthand = u"kg"_s;
    Product product;
    product.parentID = books.store(group)->id;
    product.measurementID = books.store(unit)->id;
    product.name = u"Green <tea>"_s;
    product.setBaseCost(2.5);
    const auto tea = books.store(product);
    for (const auto& stock : {shop, depot}) {
        ProductDocument document;
        document.insertDocType(DocType::AddProduct);
        document.date = books.clock.now() - 10;
        document.stockToID = stock->id;
        document.confirmed = true;
        auto row = std::make_shared<ProductDocumentRow>();
        row->productID = tea->id;
        row->setAmount(stock == shop ? 1000 : 2);
        document.documentRows.push_back(std::move(row));
        books.store(document);
    }
    ProductsOnStockReportViewController report(books.appDelegate);
    report.prepareData();
    report.prepareReport();
    const auto cells = [](const QString& name, const QString& unitName, const QString& cost) {
        return line({name, unitName, cost, u"2.00"_s, u"5.00"_s, u"0.00"_s, u"1 000.00"_s, u"2 500.00"_s,
                     u"0.00"_s, u"1 002.00"_s, u"2 505.00"_s});
    };
    const QString subtitles = u"<td>Qty</td><td>Sum</td><td>Reserve</td>"_s;
    EXPECT_EQ(exported(report.mainView),
              stockTitles + u"<td colspan=3>Depot</td><td colspan=3>Shop & Co</td>"_s + stockTotalTitles +
                  subtitles + subtitles + stockTotalSubtitles + cells(u"Teas"_s, {}, u"0.00"_s) +
                  cells(u"Green <tea>"_s, u"kg"_s, u"2.50"_s) + cells(u"TOTAL:"_s, {}, u"0.00"_s) +
                  u"</table>"_s);
}

TEST_F(ExportOfReports, emptyWarehousesLeaveTheTitles)
{
    ProductsOnStockReportViewController report(books.appDelegate);
    report.prepareData();
    report.prepareReport();
    EXPECT_EQ(exported(report.mainView),
              stockTitles + stockTotalTitles + stockTotalSubtitles + u"</table>"_s);
}

} // namespace
} // namespace zelvor
