#include "cli/command.h"
#include "cli/json_writer.h"
#include "cli/report.h"
#include "cli/report_options.h"
#include "reports/dynamics_report_view_controller.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr OptionInfo options[] = {{"--from", true}, {"--to", true}, {"--rows", true}};

// Without the option all four rows are shown.
void enterRows(ReportOptions& given, const Arguments& arguments, DynamicsReportViewController& report)
{
    if (!arguments.has(u"--rows"_s))
        return;
    const QStringList known{u"income"_s, u"spendings"_s, u"selling"_s, u"margin"_s};
    CheckBox* const boxes[] = {&report.incomeCheck, &report.expensesCheck, &report.realizationCheck,
                               &report.marginCheck};
    const QStringList words = given.words(u"--rows"_s, known);
    for (qsizetype place = 0; place < known.size(); ++place)
        boxes[place]->setOn(words.contains(known[place]));
}

void writeData(const DynamicsReportRow& row, JsonWriter& json)
{
    json.key(u"data"_s).beginArray();
    for (const Decimal& value : row.data)
        json.value(value.toDouble());
    json.endArray();
}

void writePeriods(const std::vector<MonthPeriod>& months, JsonWriter& json)
{
    json.key(u"periods"_s).beginArray();
    for (const MonthPeriod& month : months)
        json.beginArray().value(month.first).value(month.second).endArray();
    json.endArray();
}

int run(AppDelegate& appDelegate, const Arguments& arguments, const Report::Print& print)
{
    DynamicsReportViewController report(appDelegate);
    ReportOptions given(arguments, appDelegate.calendar);
    report.prepareData();
    given.enterPeriod(report.dateFrom, report.dateTo);
    enterRows(given, arguments, report);
    if (!given.error().isEmpty())
        return badUsage(given.error());
    report.prepareReport();
    const auto& rows = report.reportRows();
    return print({
        .view = report.view,
        .kind = [](int) { return u"item"_s; },
        .moreOfRow = [&](int row,
                         JsonWriter& json) { writeData(*rows[static_cast<std::size_t>(row)], json); },
        .moreOfAnswer = [&](JsonWriter& json) { writePeriods(report.dates(), json); },
    });
}

} // namespace

const Report dynamicsReport{
    "dynamics",
    "[--from DAY] [--to DAY] [--rows income,spendings,selling,margin]",
    options,
    run,
};

} // namespace zelvor
