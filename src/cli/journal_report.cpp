#include "cli/command.h"
#include "cli/report.h"
#include "cli/report_options.h"
#include "documents/document_journal_view_controller.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr OptionInfo options[] = {{"--from", true}, {"--to", true}, {"--kind", true}, {"--type", true}};

// The kind of the journal that --kind asks for.
QString kindOf(ReportOptions& given)
{
    const QStringList words{u"all"_s, u"product"_s, u"money"_s};
    const QStringList kinds{u"All"_s, u"Product"_s, u"Money"_s};
    return kinds.value(given.choice(u"--kind"_s, words));
}

int run(AppDelegate& appDelegate, const Arguments& arguments, const Report::Print& print)
{
    ReportOptions given(arguments, appDelegate.calendar);
    DocumentJournalViewController journal(appDelegate, kindOf(given));
    journal.initDocTypeSelect();
    journal.setCurrentDate();
    // Read once, when everything is chosen.
    DatePicker from(u"from"_s);
    DatePicker to(u"to"_s);
    from.setMoment(journal.dateFrom.moment());
    to.setMoment(journal.dateTo.moment());
    given.enterPeriod(from, to);
    journal.dateFrom.setMoment(from.moment());
    journal.dateTo.setMoment(to.moment());
    if (const auto name = arguments.value(u"--type"_s)) {
        const std::optional<DocType> type = docTypeFromCase(*name);
        if (!type || !journal.docTypeSelect.selectTag(rawValue(*type)))
            given.fail(u"--type must name a type of document of the kind asked for"_s);
    }
    if (!given.error().isEmpty())
        return badUsage(given.error());
    journal.prepareJournal();
    return print({journal.mainView, [](int) { return u"document"_s; }});
}

} // namespace

const Report journalReport{"journal", "[--from DAY] [--to DAY] [--kind product|money|all] [--type CASE]",
                           options, run};

} // namespace zelvor
