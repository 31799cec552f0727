#pragma once

#include "cli/command.h"
#include "cli/report.h"
#include "cli/report_options.h"
#include "reports/report_view_controller.h"
#include "reports/statement_view.h"

namespace zelvor {

// What the statements of account have in common: a period, and the one record that --id names.
inline constexpr OptionInfo statementOptions[] = {{"--from", true}, {"--to", true}, {"--id", true}};
inline constexpr const char* statementDetails = "--id N [--from DAY] [--to DAY]";

// `choose(id)` is false when there is no such record; `what` tells the user what was looked for.
template <class Controller, class Choose>
int runStatement(Controller& report, const Arguments& arguments, const Report::Print& print,
                 const QString& what, Choose choose)
{
    ReportOptions given(arguments, report.appDelegate.calendar);
    report.prepareData();
    given.enterPeriod(report.dateFrom, report.dateTo);
    const qint64 id = given.id();
    if (given.error().isEmpty() && !choose(id))
        given.fail(QStringLiteral("there is no %1 with the id %2").arg(what).arg(id));
    if (!given.error().isEmpty())
        return badUsage(given.error());
    // A period that ends before it begins is computed by nobody, and still asked for under its own dates.
    report.mainView.setName(report.getNameForTabView());
    report.prepareReport();
    const auto& rows = report.mainView.rows();
    return print({report.mainView, [&](int row) {
                      const bool isTitle = rows[static_cast<std::size_t>(row)].titleRow();
                      return isTitle ? QStringLiteral("title") : QStringLiteral("document");
                  }});
}

} // namespace zelvor
