#include "cli/report_printer.h"
#include "print/export/excel_export.h"

namespace zelvor {

bool printXls(const ReportTable& table, const Calendar& calendar, const Sink& sink)
{
    // Every report is a list, and every list has an export.
    return sink(excelFile(*excelTable(table.view, calendar)));
}

} // namespace zelvor
