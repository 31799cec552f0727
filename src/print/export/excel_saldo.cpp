// The exported tables of the reports that follow a balance through a period.

#include "print/export/excel_views.h"
#include "reports/contragents_report_view.h"
#include "reports/statement_view.h"

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

// These views show their figures in another order, so the titles are put above the cells they belong to.
const QStringList saldoFigures{u"startSaldo"_s, u"finishSaldo"_s, u"credit"_s, u"debit"_s};

} // namespace

QString excelTableOf(const ContragentsReportView& view, const ExcelTexts& texts)
{
    ExcelTable table(view.columns(), QStringList{u"name"_s} + saldoFigures);
    for (const ContragentsReportRow* row : view.rows()) {
        QStringList cells{row->contragent ? row->contragent->name : row->name};
        for (const QString& figure : saldoFigures)
            cells << texts.number(row->valueForIdentifier(figure));
        table.addRow(cells);
    }
    return table.take();
}

QString excelTableOf(const StatementView& view, const ExcelTexts& texts)
{
    ExcelTable table(view.columns(), QStringList{u"name"_s, u"date"_s} + saldoFigures);
    for (int row = 0; row < view.numberOfRows(); ++row) {
        QStringList cells{view.value(row, u"name"_s).toString(), texts.date(view.value(row, u"date"_s))};
        for (const QString& figure : saldoFigures)
            cells << texts.number(view.value(row, figure));
        table.addRow(cells);
    }
    return table.take();
}

} // namespace zelvor
