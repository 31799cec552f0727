// The exported tables of the reports.

#include "period/balance_view.h"
#include "print/export/excel_views.h"
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

} // namespace zelvor
