#include "cli/command.h"
#include "cli/month_closing.h"
#include "cli/output.h"
#include "cli/program.h"

namespace zelvor {

namespace {

int run(const Arguments& arguments)
{
    Program program;
    if (!program.open(arguments.positional().first(), Access::ReadWrite))
        return exitBadUsage;
    const Answer answer = closeLastMonth(program.appDelegate);
    if (answer.isDone())
        return exitDone;
    writeError(answer.text);
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
