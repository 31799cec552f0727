#include "cli/command.h"
#include "cli/output.h"
#include "cli/program.h"
#include "core/currency_struct.h"
#include "shell/project_creation.h"
#include "shell/project_select_window_controller.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr OptionInfo options[] = {{"--currency", true}, {"--register", false}};

// A currency by its code or its raw value; 0 when it is neither.
int currencyOf(const QString& text)
{
    if (const auto currency = currencyFromShort(text))
        return rawValue(*currency);
    bool isNumber = false;
    const qint64 raw = text.toLongLong(&isNumber);
    return isNumber && currencyFromInt(raw) ? static_cast<int>(raw) : 0;
}

int run(const Arguments& arguments)
{
    const QString path = arguments.positional().first();
    int currency = 0;
    if (const auto code = arguments.value(u"--currency"_s)) {
        currency = currencyOf(*code);
        if (currency == 0)
            return badUsage(u"create: unknown currency '"_s + *code + u'\'');
    }
    Program program;
    if (!createProject(program.appDelegate.connector, path, currency)) {
        const QString& reason = program.appDelegate.connector.openError();
        return badUsage(reason.isEmpty() ? path + u": the project could not be written"_s : reason);
    }
    if (arguments.has(u"--register"_s)) {
        ProjectSelectWindowController projects(program.appDelegate);
        projects.registerProject(path);
        if (!program.appDelegate.defaults.synchronize()) {
            writeError(u"the project was created, but the list of known projects could not be written"_s);
            return exitRefused;
        }
    }
    return exitDone;
}

} // namespace

const Command createCommand{
    "create",
    "create PROJECT.pdb [--currency CODE] [--register]",
    "makes a new project",
    "  --currency CODE  the default currency: EUR, USD, ... or its number 1 to 13\n"
    "  --register       also puts the project among the known ones of the desktop\n"
    "An existing file is never overwritten.\n",
    options,
    1,
    1,
    run,
};

} // namespace zelvor
