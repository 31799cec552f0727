#pragma once

#include "cli/report.h"
#include "core/calendar.h"

#include <QtCore/QByteArray>

#include <functional>

namespace zelvor {

// Takes the next piece of a report; false ends the printing.
using ReportSink = std::function<bool(const QByteArray& piece)>;

// {"title":...,"columns":[...],"rows":[...]}, row by row.
bool printJson(const ReportTable& table, const ReportSink& sink);
// Aligned columns under their titles: amounts as "### ##0.00", moments in local time.
bool printText(const ReportTable& table, const Calendar& calendar, const ReportSink& sink);

} // namespace zelvor
