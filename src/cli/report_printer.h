#pragma once

#include "cli/delivery.h"
#include "cli/report.h"
#include "core/calendar.h"

namespace zelvor {

// Each writes a report in one format, piece by piece.

// {"title":...,"columns":[...],"rows":[...]}, row by row.
bool printJson(const ReportTable& table, const Calendar& calendar, const Sink& sink);
// Aligned columns under their titles: amounts as "### ##0.00", moments in local time.
bool printText(const ReportTable& table, const Calendar& calendar, const Sink& sink);
// RFC 4180: a line of column identifiers, then a line for each row; plain figures, local moments.
bool printCsv(const ReportTable& table, const Calendar& calendar, const Sink& sink);
// The bytes of the desktop's export.
bool printXls(const ReportTable& table, const Calendar& calendar, const Sink& sink);

} // namespace zelvor
