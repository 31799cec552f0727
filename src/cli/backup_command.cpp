#include "cli/command.h"
#include "cli/output.h"
#include "cli/program.h"

namespace zelvor {

namespace {

int run(const Arguments& arguments)
{
    Program program;
    if (!program.open(arguments.positional().first(), Access::ReadOnly))
        return exitBadUsage;
    const QString error = program.appDelegate.connector.backup(arguments.positional().last());
    return error.isEmpty() ? exitDone : badUsage(error);
}

} // namespace

const Command backupCommand{
    "backup",
    "backup PROJECT.pdb DEST",
    "makes a consistent copy of a project, also while it is in use",
    "An existing file is never overwritten.\n",
    {},
    2,
    2,
    run,
};

} // namespace zelvor
