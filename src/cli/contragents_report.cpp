#include "cli/command.h"
#include "cli/report.h"
#include "cli/report_options.h"
#include "reports/contragents_report_view_controller.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr OptionInfo options[] = {
    {"--from", true},        {"--to", true},       {"--contragent-groups", true},
    {"--contragents", true}, {"--grouped", false},
};

QString kindOf(const ContragentsReportRow& row)
{
    if (row.footer)
        return u"footer"_s;
    return row.groupRow ? u"group"_s : u"item"_s;
}

int run(AppDelegate& appDelegate, const Arguments& arguments, const Report::Print& print)
{
    ContragentsReportViewController report(appDelegate);
    ContragentsReportView& view = report.mainView;
    ReportOptions given(arguments, appDelegate.calendar);
    report.prepareData();
    given.enterPeriod(report.dateFrom, report.dateTo);
    report.setContragentTypeIDs(given.ids(u"--contragent-groups"_s));
    report.setContragentIDs(given.ids(u"--contragents"_s));
    report.setStringPredicates();
    report.groupCheck.setOn(arguments.has(u"--grouped"_s));
    if (!given.error().isEmpty())
        return badUsage(given.error());
    // A period that ends before it begins is computed by nobody, and still asked for under its own dates.
    view.setName(report.getNameForTabView());
    report.prepareReport();
    const auto& rows = view.rows();
    return print({view, [&](int row) { return kindOf(*rows[static_cast<std::size_t>(row)]); }});
}

} // namespace

const Report contragentsReport{
    "contragents",
    "[--from DAY] [--to DAY] [--contragent-groups IDS] [--contragents IDS]\n"
    "[--grouped]",
    options,
    run,
};

} // namespace zelvor
