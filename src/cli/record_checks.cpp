#include "cli/findings.h"

#include "cli/link_columns.h"
#include "shell/project_tables.h"
#include "store/connector.h"

#include <string>
#include <unordered_map>
#include <unordered_set>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

QString tableName(const TableInfo& table)
{
    return QString::fromLatin1(table.name);
}

void checkSettings(Connector& connector, Findings& findings)
{
    qint64 count = 0;
    bool hasFirst = false;
    connector.scan("SELECT id FROM params", {}, [&](const Statement& row) {
        ++count;
        hasFirst = hasFirst || row.integer(0) == 1;
    });
    if (count != 1 || !hasFirst)
        findings.add(u"settings"_s, u"params"_s, 0,
                     u"there must be one settings row, with the id 1; there are %1"_s.arg(count));
}

// What makes a column's value no number that the program would have stored.
std::string badNumber(const ColumnInfo& column)
{
    const std::string name = column.name;
    if (column.kind == ColumnKind::Real)
        return "(typeof(" + name + ") NOT IN ('real','integer') OR abs(" + name + ")>1e13)";
    return "(typeof(" + name + ")!='integer')";
}

void checkNumbers(Connector& connector, const TableInfo& table, Findings& findings)
{
    std::vector<const ColumnInfo*> columns;
    std::string shown = "SELECT id";
    std::string condition;
    for (const ColumnInfo& column : table.columns) {
        if (column.kind == ColumnKind::Text)
            continue;
        columns.push_back(&column);
        shown.append(",").append(badNumber(column));
        condition.append(condition.empty() ? " WHERE " : " OR ").append(badNumber(column));
    }
    if (columns.empty())
        return;
    connector.scan(shown + " FROM " + table.name + condition, {}, [&](const Statement& row) {
        for (std::size_t i = 0; i < columns.size(); ++i) {
            if (row.integer(static_cast<int>(i) + 1) != 0)
                findings.add(u"number"_s, tableName(table), row.integer(0),
                             u"'%1' holds no number, or one that is too large"_s.arg(
                                 QLatin1StringView(columns[i]->name)));
        }
    });
}

// All links of a table in one pass over it.
void checkLinks(Connector& connector, const TableInfo& table, Findings& findings)
{
    std::vector<const LinkColumn*> links;
    std::string shown = "SELECT id";
    std::string condition;
    for (const LinkColumn& link : linkColumns()) {
        if (&link.table() != &table)
            continue;
        const std::string column = link.column;
        const std::string broken =
            "(" + column + "!=0 AND " + column + " NOT IN (SELECT id FROM " + link.target().name + "))";
        links.push_back(&link);
        shown += "," + broken + "," + column;
        condition += (condition.empty() ? " WHERE " : " OR ") + broken;
    }
    if (links.empty())
        return;
    connector.scan(shown + " FROM " + table.name + condition, {}, [&](const Statement& row) {
        for (std::size_t i = 0; i < links.size(); ++i) {
            const int place = static_cast<int>(2 * i) + 1;
            if (row.integer(place) != 0)
                findings.add(u"link"_s, tableName(table), row.integer(0),
                             u"'%1' names a record of %2 that does not exist: %3"_s.arg(
                                 QLatin1StringView(links[i]->column), tableName(links[i]->target()),
                                 row.text(place + 1)));
        }
    });
}

void checkHolders(Connector& connector, const LinkColumn& link, Findings& findings)
{
    std::unordered_map<qint64, qint64> holders;
    const std::string sql = std::string("SELECT id,") + link.column + " FROM " + link.table().name;
    connector.scan(sql, {}, [&](const Statement& row) { holders[row.integer(0)] = row.integer(1); });
    std::unordered_set<qint64> sound; // known to end at the top
    for (const auto& [id, holder] : holders) {
        std::unordered_set<qint64> path{id};
        qint64 above = holder;
        while (holders.contains(above) && !sound.contains(above) && path.insert(above).second)
            above = holders[above];
        if (above == id)
            findings.add(u"circle"_s, tableName(link.table()), id,
                         u"the record holds itself through '%1'"_s.arg(QLatin1StringView(link.column)));
        else if (!path.contains(above))
            sound.insert(path.begin(), path.end());
    }
}

} // namespace

bool checkFile(Connector& connector, Findings& findings)
{
    for (const QString& finding : connector.integrityFindings())
        findings.add(u"file"_s, {}, 0, finding);
    if (!hasAllTables(connector)) {
        findings.add(u"file"_s, {}, 0, u"the file lacks tables or columns of a project"_s);
        return false;
    }
    checkSettings(connector, findings);
    return true;
}

void checkRecords(Connector& connector, Findings& findings)
{
    for (const TableInfo* table : projectTables()) {
        checkNumbers(connector, *table, findings);
        checkLinks(connector, *table, findings);
    }
    for (const LinkColumn& link : linkColumns()) {
        if (link.isHolder)
            checkHolders(connector, link, findings);
    }
}

} // namespace zelvor
