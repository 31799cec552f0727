#include "cli/command.h"
#include "cli/output.h"
#include "cli/program.h"
#include "period/period_closing.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

int run(const Arguments& arguments)
{
    Program program;
    const QString path = arguments.positional().first();
    if (!program.open(path, Access::ReadWrite))
        return exitBadUsage;
    const auto params = program.appDelegate.params();
    if (!params)
        return badUsage(path + u": the project has no settings row"_s);
    PeriodClosing closing(program.appDelegate);
    if (closing.isPeriodSaved(params->lastPeriodSaved)) {
        writeError(u"the last finished month is closed already"_s);
        return exitRefused;
    }
    const qint64 start = closing.getStartPeriodDateFromDate(program.appDelegate.now(), *params);
    if (closing.closePeriod(start, *params))
        return exitDone;
    writeError(u"Failed to close month"_s);
    return exitRefused;
}

} // namespace

const Command closePeriodCommand{
    "close-period",
    "close-period PROJECT.pdb",
    "closes the last finished month",
    "Once a month is closed, no document of it can be confirmed.\n",
    {},
    1,
    1,
    run,
};

} // namespace zelvor
