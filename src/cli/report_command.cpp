#include "cli/command.h"
#include "cli/output.h"
#include "cli/program.h"
#include "cli/report.h"
#include "cli/report_printer.h"

#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

std::span<const Report* const> reports()
{
    static constexpr std::array all{&balanceReport, &periodSellReport, &journalReport};
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
};
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

int printTo(const ReportSink& sink, const ReportTable& table, bool asText, const Calendar& calendar)
{
    const bool printed = asText ? printText(table, calendar, sink) : printJson(table, sink);
    return printed ? exitDone : exitRefused;
}

// Whole or not at all. The finished file takes the place of the old one, so a device must not stand there.
int printToFile(const QString& path, const ReportTable& table, bool asText, const Calendar& calendar)
{
    if (const QFileInfo old(path); old.exists() && !old.isFile() && !old.isDir())
        return badUsage(u"cannot write "_s + path + u": it is not a regular file"_s);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return badUsage(u"cannot write "_s + path + u": "_s + file.errorString());
    const auto sink = [&](const QByteArray& piece) { return file.write(piece) == piece.size(); };
    if (printTo(sink, table, asText, calendar) == exitDone && file.commit())
        return exitDone;
    writeError(u"cannot write "_s + path + u": "_s + file.errorString());
    return exitRefused;
}

QByteArray listReports()
{
    QByteArray text = "Reports and their options:\n";
    for (const Report* report : reports())
        text += "  " + QByteArray(report->name).leftJustified(13) + report->details + '\n';
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
    const QString format = arguments.value(u"--format"_s).value_or(u"json"_s);
    if (format != u"json" && format != u"text")
        return badUsage(u"report: --format must be json or text"_s);
    const std::optional<QString> path = arguments.value(u"-o"_s);
    if (path && isSameFile(*path, project))
        return badUsage(u"report: -o must not name the project itself"_s);

    Program program;
    if (!program.open(project, Access::ReadOnly))
        return exitBadUsage;
    const Calendar& calendar = program.appDelegate.calendar;
    return report->run(program.appDelegate, arguments, [&](const ReportTable& table) {
        const bool asText = format == u"text";
        return path ? printToFile(*path, table, asText, calendar)
                    : printTo(writeOutput, table, asText, calendar);
    });
}

} // namespace

const Command reportCommand{
    "report",
    "report NAME PROJECT.pdb [--format json|text] [-o FILE] [options of the report]",
    "computes a report",
    "  --format F  json (the default) or text\n"
    "  -o FILE     writes FILE, whole or not at all, instead of standard output\n"
    "DAY is 2026-10-05, or @ and seconds since 1970; IDS are ids like 1,2,3.\n",
    options,
    2,
    2,
    run,
    listReports,
};

} // namespace zelvor
