#include "cli/command.h"
#include "cli/findings.h"
#include "cli/program.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

void Findings::add(const QString& check, const QString& table, qint64 id, const QString& text)
{
    if (m_count++ == 0)
        m_json.beginArray();
    m_json.beginObject().member(u"check"_s, check);
    if (!table.isEmpty())
        m_json.member(u"table"_s, table);
    if (id != 0)
        m_json.member(u"id"_s, id);
    m_json.member(u"text"_s, text).endObject();
    m_failed = m_failed || !writeOutput(m_json.take());
}

bool Findings::finish()
{
    if (m_count == 0)
        m_json.beginArray();
    m_json.endArray();
    return writeLine(m_json) && !m_failed;
}

namespace {

int run(const Arguments& arguments)
{
    Program program;
    if (!program.open(arguments.positional().first(), Access::ReadOnly))
        return exitBadUsage;
    Connector& connector = program.appDelegate.connector;
    Findings findings;
    if (checkFile(connector, findings)) {
        checkRecords(connector, findings);
        checkDocuments(connector, findings);
        checkBalances(connector, findings);
    }
    return findings.finish() && findings.isEmpty() ? exitDone : exitRefused;
}

} // namespace

const Command checkCommand{
    "check",
    "check PROJECT.pdb",
    "examines the file and the books; prints the findings as a JSON list",
    "Exit code 1 when there is a finding.\n",
    {},
    1,
    1,
    run,
};

} // namespace zelvor
