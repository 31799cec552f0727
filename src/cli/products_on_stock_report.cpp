#include "cli/command.h"
#include "cli/json_writer.h"
#include "cli/report.h"
#include "cli/report_options.h"
#include "reports/products_on_stock_report_view_controller.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr OptionInfo options[] = {
    {"--date", true}, {"--product-groups", true}, {"--products", true}, {"--stocks", true}};

// The figures behind the texts of the cells.
void writeFigures(const ReportStockRow& row, JsonWriter& json)
{
    json.key(u"stocks"_s).beginArray();
    for (const StockData& stock : row.stocks) {
        json.beginObject()
            .member(u"name"_s, stock.name)
            .member(u"amount"_s, stock.amount.toDouble())
            .member(u"sum"_s, stock.sum.toDouble())
            .member(u"reserv"_s, stock.reserv.toDouble())
            .endObject();
    }
    json.endArray()
        .member(u"amountTotal"_s, row.amountTotal().toDouble())
        .member(u"sumTotal"_s, row.sumTotal().toDouble());
}

const QStringList stockFigures{u"amount"_s, u"sum"_s, u"reserv"_s};

// "stock_0_amount", "stock_0_sum", "stock_0_reserv" for each warehouse, in place of its one cell.
std::vector<ViewColumn> figureColumns(const ProductsOnStockReportView& view)
{
    std::vector<ViewColumn> columns{{u"name"_s, {}}, {u"units"_s, {}}, {u"cost"_s, {}}};
    for (std::size_t place = 0; place < view.stocks().size(); ++place) {
        for (const QString& figure : stockFigures)
            columns.push_back({u"stock_%1_%2"_s.arg(place).arg(figure), {}});
    }
    columns.push_back({u"amountTotal"_s, {}});
    columns.push_back({u"sumTotal"_s, {}});
    return columns;
}

// The row of titles tells which warehouse it is.
QVariant figureOf(const ReportStockRow& row, const QString& identifier)
{
    if (identifier.endsWith(u"Total")) {
        const Decimal total = identifier == u"sumTotal" ? row.sumTotal() : row.amountTotal();
        return row.isTitle() ? QVariant(QString()) : QVariant(total.toDouble());
    }
    const QStringList parts = identifier.split(u'_');
    if (parts.size() != 3)
        return row.valueForIdentifier(identifier);
    const StockData& stock = row.stocks[parts[1].toULong()];
    if (row.isTitle())
        return stock.name;
    const Decimal* const figures[] = {&stock.amount, &stock.sum, &stock.reserv};
    return figures[stockFigures.indexOf(parts[2])]->toDouble();
}

int run(AppDelegate& appDelegate, const Arguments& arguments, const Report::Print& print)
{
    ProductsOnStockReportViewController report(appDelegate);
    ReportOptions given(arguments, appDelegate.calendar);
    report.prepareData();
    given.enterDate(report.date);
    report.setProductTypeIDs(given.ids(u"--product-groups"_s));
    report.setProductIDs(given.ids(u"--products"_s));
    report.setSelectedStocks(given.ids(u"--stocks"_s));
    if (!given.error().isEmpty())
        return badUsage(given.error());
    report.prepareReport();
    const auto rowAt = [&report](int row) -> const ReportStockRow& {
        return *report.mainView.reportRows()[static_cast<std::size_t>(row)];
    };
    return print({report.mainView,
                  [&](int row) { return rowAt(row).type; },
                  [&](int row, JsonWriter& json) { writeFigures(rowAt(row), json); },
                  {},
                  figureColumns(report.mainView),
                  [&](int row, const QString& identifier) { return figureOf(rowAt(row), identifier); }});
}

} // namespace

const Report productsOnStockReport{
    "products-on-stock",
    "[--date DAY] [--product-groups IDS] [--products IDS] [--stocks IDS]",
    options,
    run,
};

} // namespace zelvor
