// The exported table of the products on warehouses, whose titles take two lines.

#include "core/localized.h"
#include "print/export/excel_views.h"
#include "reports/products_on_stock_report_view.h"

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

void addTitles(ExcelTable& table, const QStringList& stockNames)
{
    const QString next = u"</td><td>"_s;
    const QString nextOfBoth = u"</td><td rowspan=2>"_s;
    table.add(u"<tr><td rowspan=2>"_s + localized("Name") + nextOfBoth + localized("Unit") + nextOfBoth +
              localized("Base Cost") + u"</td>"_s);
    for (const QString& name : stockNames)
        table.add(u"<td colspan=3>"_s + name + u"</td>"_s);
    table.add(u"<td colspan=2>"_s + localized("Total") + u"</td></tr><tr>"_s);
    for (qsizetype i = 0; i < stockNames.size(); ++i)
        table.add(u"<td>"_s + localized("Qty") + next + localized("Sum") + next + localized("Reserve") +
                  u"</td>"_s);
    table.add(u"<td>"_s + localized("Qty") + next + localized("Sum") + u"</td></tr>"_s);
}

} // namespace

QString excelTableOf(const ProductsOnStockReportView& view, const ExcelTexts& texts)
{
    ExcelTable table;
    addTitles(table, view.stockNames());
    for (const std::shared_ptr<ReportStockRow>& row : view.reportRows()) {
        if (row->isTitle())
            continue;
        QStringList cells{row->name, row->unit, texts.number(row->innerCost)};
        for (const StockData& stock : row->stocks)
            cells << texts.number(stock.amount) << texts.number(stock.sum) << texts.number(stock.reserv);
        cells << texts.number(row->amountTotal()) << texts.number(row->sumTotal());
        table.addRow(cells);
    }
    return table.take();
}

} // namespace zelvor
