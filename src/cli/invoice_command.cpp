#include "cli/command.h"
#include "cli/pages.h"
#include "cli/program.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr OptionInfo options[] = {{"-o", true}};

int run(const Arguments& arguments)
{
    const QString project = arguments.positional()[0];
    bool isNumber = false;
    const qint64 id = arguments.positional()[1].toLongLong(&isNumber);
    if (!isNumber || id <= 0)
        return badUsage(u"invoice: ID must be the id of a product document"_s);
    const std::optional<QString> path = arguments.value(u"-o"_s);
    if (!path)
        return badUsage(u"invoice: -o must say where to"_s);
    if (belongsToProject(*path, project))
        return badUsage(u"invoice: -o must not name the project itself or what belongs to it"_s);
    return printInvoice(project, id, *path);
}

} // namespace

const Command invoiceCommand{
    "invoice",
    "invoice PROJECT.pdb ID -o FILE.pdf",
    "prints the invoice of a selling document",
    "  ID       the id of the product document, as the answer to its operation told it\n"
    "  -o FILE  writes FILE, whole or not at all\n",
    options,
    2,
    2,
    run,
};

} // namespace zelvor
