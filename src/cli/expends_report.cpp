#include "cli/command.h"
#include "cli/report.h"
#include "cli/report_options.h"
#include "reports/expend_report_view_controller.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr OptionInfo options[] = {
    {"--from", true}, {"--to", true}, {"--expend-types", true}, {"--expends", true}, {"--grouped", false},
};

QString kindOf(const ExpendReportRow& row)
{
    if (row.footer)
        return u"footer"_s;
    return row.groupRow ? u"group"_s : u"document"_s;
}

int run(AppDelegate& appDelegate, const Arguments& arguments, const Report::Print& print)
{
    ExpendReportViewController report(appDelegate);
    ReportOptions given(arguments, appDelegate.calendar);
    report.prepareData();
    given.enterPeriod(report.dateFrom, report.dateTo);
    report.setExpendTypeIDs(given.ids(u"--expend-types"_s));
    report.setExpendIDs(given.ids(u"--expends"_s));
    report.groupCheck.setOn(arguments.has(u"--grouped"_s));
    if (!given.error().isEmpty())
        return badUsage(given.error());
    // A period that ends before it begins is computed by nobody, and still asked for under its own dates.
    report.mainView.setName(report.getNameForTabView());
    report.prepareReport();
    const auto& rows = report.mainView.rows();
    return print({report.mainView, [&](int row) { return kindOf(*rows[static_cast<std::size_t>(row)]); }});
}

} // namespace

const Report expendsReport{
    "expends",
    "[--from DAY] [--to DAY] [--expend-types IDS] [--expends IDS] [--grouped]",
    options,
    run,
};

} // namespace zelvor
