#include "cli/command.h"
#include "cli/json_writer.h"
#include "cli/output.h"
#include "cli/program.h"
#include "core/currency_struct.h"
#include "shell/project_tables.h"

#include <QtCore/QFileInfo>

#include <string>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

// False when a table cannot be counted.
bool writeRowCounts(Connector& connector, JsonWriter& json)
{
    json.key(u"tables"_s).beginObject();
    for (const TableInfo* table : projectTables()) {
        qint64 count = -1;
        connector.scan("SELECT count(id) FROM " + std::string(table->name), {},
                       [&](const Statement& row) { count = row.integer(0); });
        if (count < 0)
            return false;
        json.member(QString::fromLatin1(table->name), count);
    }
    json.endObject();
    return true;
}

int run(const Arguments& arguments)
{
    Program program;
    const QString path = arguments.positional().first();
    if (!program.open(path, Access::ReadOnly))
        return exitBadUsage;
    const auto params = program.appDelegate.params();
    if (!params)
        return badUsage(path + u": the project has no settings row"_s);
    const auto currency = currencyFromInt(params->defaultCurrency);
    JsonWriter json;
    json.beginObject();
    json.member(u"name"_s, QFileInfo(path).completeBaseName().replace(u'_', u' '));
    json.member(u"version"_s, params->version);
    json.member(u"currency"_s, currency ? currencyShort(*currency) : QString());
    json.member(u"lastPeriodSaved"_s, params->lastPeriodSaved);
    if (!writeRowCounts(program.appDelegate.connector, json))
        return badUsage(path + u": not all tables of a project can be read"_s);
    json.endObject();
    return writeLine(json) ? exitDone : exitRefused;
}

} // namespace

const Command infoCommand{
    "info",
    "info PROJECT.pdb",
    "prints name, version, default currency, last closed period and the number of rows of each table, as "
    "JSON",
    "",
    {},
    1,
    1,
    run,
};

} // namespace zelvor
