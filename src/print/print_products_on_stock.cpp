#include "print/print_products_on_stock.h"

#include "core/localized.h"
#include "reports/products_on_stock_report_view.h"

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::size_t ownColumns = 3;   // name, unit, cost
constexpr std::size_t stockColumns = 3; // of one warehouse
constexpr std::size_t totalColumns = 2;
constexpr double figureWidth = 60;
constexpr double unitWidth = 40;

// The name takes what the other columns leave of the sheet.
std::vector<TableForm::Column> columnsFor(std::size_t stocks)
{
    using enum CellKind;
    const double sheet = stocks == 2 ? 750 : 520;
    const double figures = figureWidth * static_cast<double>(1 + stockColumns * stocks + totalColumns);
    std::vector<TableForm::Column> columns{
        {u"name"_s, localized("Name"), sheet - unitWidth - figures},
        {u"units"_s, localized("Unit"), unitWidth},
        {u"cost"_s, localized("Base cost"), figureWidth, Amount},
    };
    for (std::size_t stock = 0; stock < stocks; ++stock) {
        columns.push_back({u"amount"_s, localized("Qty"), figureWidth, Amount});
        columns.push_back({u"sum"_s, localized("Sum"), figureWidth, Amount});
        columns.push_back({u"reserv"_s, localized("Reserve"), figureWidth, Amount});
    }
    columns.push_back({u"amountTotal"_s, localized("Qty"), figureWidth, Amount});
    columns.push_back({u"sumTotal"_s, localized("Sum"), figureWidth, Amount});
    return columns;
}

const ReportStockRow& stockRowOf(const TableView& report, int row)
{
    const auto& rows = static_cast<const ProductsOnStockReportView&>(report).reportRows();
    return *rows[static_cast<std::size_t>(row)];
}

} // namespace

PrintProductsOnStock::PrintProductsOnStock(AppDelegate& owner, QStringList names)
    : TableForm(owner, names.size() == 2 ? landscape : portrait, localized("Products On Warehouses Report"),
                columnsFor(static_cast<std::size_t>(names.size()))),
      stockNames(std::move(names)), many(stockNames.size() == 2)
{}

QString PrintProductsOnStock::heading() const
{
    QStringList quoted;
    for (const QString& name : stockNames)
        quoted.append(u'\'' + name + u'\'');
    return localized("Products On Warehouses: ") + quoted.join(u", "_s) + localized(" on date: ") +
           dateText(date);
}

// The first line of the band names the warehouses, the second one their figures; what has one line only
// stands in the middle of both.
void PrintProductsOnStock::drawTitles(Canvas& canvas, double bandTop) const
{
    const double secondLine = bandTop - lineHeight;
    for (std::size_t column = 0; column < columns.size(); ++column) {
        const double top = column < ownColumns ? bandTop - lineHeight / 2 : secondLine;
        drawTitle(canvas, columns[column].title, axis[column], colWidth[column], top);
    }
    Canvas::Path edges{.lineWidth = 0.5};
    std::size_t column = ownColumns;
    const auto drawOver = [&](const QString& text, std::size_t count) {
        const double left = axis[column] - figureWidth / 2;
        const double width = figureWidth * static_cast<double>(count);
        drawTitle(canvas, text, left + width / 2, width, bandTop);
        edges.add({left, bandTop}, {left, bandTop - bandHeight()});
        edges.add({left, secondLine}, {left + width, secondLine});
        column += count;
    };
    for (const QString& name : stockNames)
        drawOver(name, stockColumns);
    drawOver(localized("Total"), totalColumns);
    canvas.stroke(edges, whiteColor);
}

bool PrintProductsOnStock::isShown(const TableView& report, int row) const
{
    return !stockRowOf(report, row).isTitle();
}

QString PrintProductsOnStock::cellText(const TableView& report, int row, const Column& column) const
{
    const auto place = static_cast<std::size_t>(&column - columns.data());
    if (place < ownColumns)
        return TableForm::cellText(report, row, column);
    const ReportStockRow& line = stockRowOf(report, row);
    if (column.identifier == u"amountTotal")
        return numberText(line.amountTotal());
    if (column.identifier == u"sumTotal")
        return numberText(line.sumTotal());
    const StockData& stock = line.stocks[(place - ownColumns) / stockColumns];
    const Decimal& figure = column.identifier == u"amount" ? stock.amount
                            : column.identifier == u"sum"  ? stock.sum
                                                           : stock.reserv;
    return figure.isZero() ? QString() : numberText(figure);
}

} // namespace zelvor
