// The exported tables of the reports.

#include "period/balance_view.h"
#include "print/export/excel_views.h"
#include "reports/dynamics_report_view.h"
#include "reports/expend_report_view.h"
#include "reports/period_sell_report_view.h"

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

QString excelTableOf(const PeriodSellReportView& view, const ExcelTexts& texts)
{
    ExcelTable table(view.columns());
    for (const PeriodSellReportRow* row : view.reportRows())
        table.addRow({row->name(), row->unit(), texts.number(row->innerAmount),
                      texts.number(row->innerPacks()), texts.number(row->innerBaseSum),
                      texts.number(row->innerPriceSum), texts.number(row->innerProfit()),
                      texts.percent(row->percent())});
    return table.take();
}

QString excelTableOf(const BalanceView& view, const ExcelTexts& texts)
{
    ExcelTable table(view.columns());
    for (const std::shared_ptr<BalanceRow>& row : view.rows())
        table.addRow({row->name, texts.number(row->valueForIdentifier(u"debet")),
                      texts.number(row->valueForIdentifier(u"credit"))});
    return table.take();
}

QString excelTableOf(const ExpendReportView& view, const ExcelTexts& texts)
{
    ExcelTable table(view.columns());
    for (const std::shared_ptr<ExpendReportRow>& row : view.rows()) {
        const auto cell = [&](QStringView identifier) { return row->valueForIdentifier(identifier); };
        table.addRow({row->title(), texts.date(cell(u"date")), texts.number(cell(u"constant")),
                      texts.number(cell(u"variable")), texts.number(cell(u"total")),
                      cell(u"comment").toString()});
    }
    return table.take();
}

// The only one whose cells follow the columns, since each month has its own.
QString excelTableOf(const DynamicsReportView& view, const ExcelTexts& texts)
{
    const std::vector<ViewColumn> columns = view.columns();
    ExcelTable table(columns);
    for (int row = 0; row < view.numberOfRows(); ++row) {
        QStringList cells;
        for (const ViewColumn& column : columns) {
            const QVariant cell = view.value(row, column.identifier);
            if (column.kind == CellKind::Percent && cell.typeId() == QMetaType::Double)
                cells << texts.number(Decimal::fromDouble(cell.toDouble()).times(Decimal(100), moneyHandler));
            else
                cells << (column.identifier == u"name" ? cell.toString() : texts.number(cell));
        }
        table.addRow(cells);
    }
    return table.take();
}

} // namespace zelvor
