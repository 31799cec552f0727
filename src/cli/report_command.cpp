#include "cli/command.h"
#include "cli/pages.h"
#include "cli/program.h"
#include "cli/report.h"
#include "cli/report_printer.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

std::span<const Report* const> reports()
{
    // clang-format off
    static constexpr std::array all{
        &balanceReport,
        &periodSellReport,
        &journalReport,
        &expendsReport,
        &dynamicsReport,
        &paymentCalendarReport,
        &productsOnStockReport,
        &fixedAssetsReport,
        &unitsReport,
        &contragentsReport,
        &contragentReport,
        &accountReport,
        &employeeReport,
    };
    // clang-format on
    return all;
}

namespace {

// The options of every report; which of them a report takes is looked at when its name is known.
constexpr OptionInfo options[] = {
    {"--format", true},
    {"-o", true},
    {"--grouped", false},
    {"--from", true},
    {"--to", true},
    {"--by", true},
    {"--collapse", true},
    {"--sort", true},
    {"--product-groups", true},
    {"--products", true},
    {"--contragents", true},
    {"--contragent-groups", true},
    {"--managers", true},
    {"--kind", true},
    {"--type", true},
    {"--id", true},
    {"--date", true},
    {"--stocks", true},
    {"--expend-types", true},
    {"--expends", true},
    {"--rows", true},
};

struct ReportFormat {
    const char* name;
    // None for the format that is drawn on pages.
    bool (*print)(const ReportTable& table, const Calendar& calendar, const Sink& sink);
};

// The first one is the one that is written unless another is asked for.
constexpr ReportFormat formats[] = {
    {"json", printJson}, {"text", printText}, {"csv", printCsv}, {"xls", printXls}, {"pdf", nullptr},
};

const ReportFormat* formatNamed(const QString& name)
{
    const auto* const found = std::ranges::find_if(
        formats, [&](const ReportFormat& format) { return name == QLatin1StringView(format.name); });
    return found == std::end(formats) ? nullptr : found;
}

QString unknownFormat()
{
    QStringList names;
    for (const ReportFormat& format : formats)
        names.append(QString::fromLatin1(format.name));
    return u"report: --format must be one of "_s + names.join(u", "_s);
}

const Report* reportNamed(const QString& name)
{
    const auto found = std::ranges::find_if(
        reports(), [&](const Report* report) { return name == QLatin1StringView(report->name); });
    return found == reports().end() ? nullptr : *found;
}

QString unknownReport(const QString& name)
{
    QStringList names;
    for (const Report* report : reports())
        names.append(QString::fromLatin1(report->name));
    return u"report: there is no report '%1'; there are %2"_s.arg(name, names.join(u", "_s));
}

// The first option that the report does not take, or none.
QString strayOption(const Report& report, const Arguments& arguments)
{
    for (const QString& option : arguments.options()) {
        const bool isOwn = std::ranges::any_of(
            report.options, [&](const OptionInfo& info) { return option == QLatin1StringView(info.name); });
        if (!isOwn && option != u"--format" && option != u"-o")
            return option;
    }
    return {};
}

QByteArray listReports()
{
    constexpr qsizetype width = 19; // of the names
    const auto indented = [](QByteArray lines) {
        return lines.replace("\n", "\n" + QByteArray(width + 2, ' '));
    };
    QByteArray text = "Reports and their options:\n";
    for (const Report* report : reports())
        text += "  " + (QByteArray(report->name).leftJustified(width) + indented(report->details)).trimmed() +
                '\n';
    return text;
}

int run(const Arguments& arguments)
{
    const QString name = arguments.positional()[0];
    const QString project = arguments.positional()[1];
    const Report* report = reportNamed(name);
    if (!report)
        return badUsage(unknownReport(name));
    if (const QString stray = strayOption(*report, arguments); !stray.isEmpty())
        return badUsage(u"report: "_s + name + u" takes no "_s + stray);
    const ReportFormat* format = formatNamed(arguments.value(u"--format"_s).value_or(u"json"_s));
    if (!format)
        return badUsage(unknownFormat());
    const std::optional<QString> path = arguments.value(u"-o"_s);
    if (path && belongsToProject(*path, project))
        return badUsage(u"report: -o must not name the project itself or what belongs to it"_s);
    if (!format->print)
        return printReportForm(*report, arguments);

    Program program;
    if (!program.open(project, Access::ReadOnly))
        return exitBadUsage;
    const Calendar& calendar = program.appDelegate.calendar;
    return report->run(program.appDelegate, arguments, [&](const ReportTable& table) {
        // What was computed from half of the documents looks just like a report.
        if (!program.hasReadAll())
            return static_cast<int>(exitBadUsage);
        return deliver(path, [&](const Sink& sink) { return format->print(table, calendar, sink); });
    });
}

} // namespace

const Command reportCommand{
    "report",
    "report NAME PROJECT.pdb [--format json|text|csv|xls|pdf] [-o FILE] [options of the report]",
    "computes a report",
    "  --format F  json (the default)\n"
    "              text: aligned columns under their titles\n"
    "              csv: RFC 4180, a line of column identifiers, plain figures, local times\n"
    "              xls: an HTML table for spreadsheet programs, as the desktop exports it\n"
    "              pdf: the print form on A4\n"
    "  -o FILE     writes FILE, whole or not at all, instead of standard output\n"
    "DAY is 2026-10-05, or @ and seconds since 1970; IDS are ids like 1,2,3.\n",
    options,
    2,
    2,
    run,
    listReports,
};

} // namespace zelvor
