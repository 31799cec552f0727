#include "cli/catalog_writer.h"
#include "cli/command.h"
#include "cli/csv_reader.h"
#include "cli/json_writer.h"
#include "cli/link_columns.h"
#include "cli/output.h"
#include "cli/program.h"

#include <QtCore/QFile>
#include <QtCore/QHash>

#include <string>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

const CatalogKind* groupKindOf(const CatalogKind& kind)
{
    const QLatin1StringView name(kind.name);
    if (name == "Product"_L1 || name == "ProductGroup"_L1)
        return catalogKind(u"ProductGroup"_s);
    if (name == "Contragent"_L1 || name == "ContragentGroup"_L1)
        return catalogKind(u"ContragentGroup"_s);
    if (name == "Expend"_L1 || name == "ExpendType"_L1)
        return catalogKind(u"ExpendType"_s);
    return nullptr;
}

// The column of a record that names its group.
const ColumnInfo* groupColumnOf(const CatalogKind& kind)
{
    const ColumnInfo* column = columnNamed(kind.table(), u"group_id"_s);
    return column ? column : columnNamed(kind.table(), u"parent_id"_s);
}

// One file of records on its way into a catalog. Every function answers why it failed, or nothing.
class Import {
public:
    Import(AppDelegate& appDelegate, const CatalogKind& kind)
        : m_connector(appDelegate.connector), m_writer(appDelegate), m_kind(kind),
          m_groupKind(groupKindOf(kind))
    {}

    QString takeHeader(const QStringList& names)
    {
        for (const QString& name : names) {
            const bool isParent = name == u"parent";
            const ColumnInfo* column =
                isParent && m_groupKind ? groupColumnOf(m_kind) : columnNamed(m_kind.table(), name);
            if (!column)
                return u"a %1 has no column '%2'"_s.arg(QLatin1StringView(m_kind.name), name);
            for (const Column& other : m_columns) {
                if (other.info == column)
                    return u"the column '%1' is given twice"_s.arg(name);
            }
            m_columns.push_back({column, isParent});
        }
        return readGroups();
    }

    QString takeRecord(const QStringList& cells)
    {
        if (std::ssize(m_columns) != cells.size())
            return u"%1 fields where the header has %2"_s.arg(cells.size()).arg(m_columns.size());
        ColumnValues values;
        for (qsizetype i = 0; i < cells.size(); ++i) {
            QString problem;
            const Column& column = m_columns[static_cast<std::size_t>(i)];
            takeCell(column, cells[i], values, problem);
            if (!problem.isEmpty())
                return problem;
        }
        const Answer answer = m_writer.write(m_kind, 0, values);
        if (!answer.isDone())
            return answer.text;
        ++m_count;
        if (m_groupKind == &m_kind)
            rememberGroup(values, answer.id);
        return {};
    }

    qint64 count() const { return m_count; }

private:
    struct Column {
        const ColumnInfo* info;
        bool isParent;
    };

    // Where two groups have one name the older one is meant.
    QString readGroups()
    {
        m_groups.clear();
        if (!m_groupKind)
            return {};
        const bool read = m_connector.scan(
            std::string("SELECT id,name FROM ") + m_groupKind->table().name + " ORDER BY id DESC", {},
            [this](const Statement& row) { m_groups[row.text(1)] = row.integer(0); });
        return read ? QString() : u"the groups cannot be read"_s;
    }

    // A group may hold those that follow.
    void rememberGroup(const ColumnValues& values, qint64 id)
    {
        for (const ColumnValue& value : values) {
            const QString* name = std::get_if<QString>(&value.value.value());
            if (name && value.column == columnNamed(m_kind.table(), u"name"_s) && !m_groups.contains(*name))
                m_groups[*name] = id;
        }
    }

    // An empty cell leaves what a new record has; a text is taken as it stands.
    void takeCell(const Column& column, const QString& cell, ColumnValues& values, QString& problem)
    {
        if (column.isParent) {
            if (const qint64 groupID = cell.isEmpty() ? 0 : groupNamed(cell, problem))
                values.push_back({column.info, groupID});
            return;
        }
        if (cell.isEmpty() && column.info->kind != ColumnKind::Text)
            return;
        const std::optional<Parameter> value = parameterFromText(m_kind.table(), *column.info, cell);
        if (value)
            values.push_back({column.info, *value});
        else
            problem = u"'%1' is no value for the column '%2'"_s.arg(cell.left(40),
                                                                    QLatin1StringView(column.info->name));
    }

    qint64 groupNamed(const QString& name, QString& problem)
    {
        if (const auto found = m_groups.find(name); found != m_groups.end())
            return *found;
        const ColumnInfo* nameColumn = columnNamed(m_groupKind->table(), u"name"_s);
        const Answer answer = m_writer.write(*m_groupKind, 0, {{nameColumn, Parameter(name)}});
        if (!answer.isDone())
            problem = answer.text;
        else
            m_groups[name] = answer.id;
        return answer.id;
    }

    Connector& m_connector;
    CatalogWriter m_writer;
    const CatalogKind& m_kind;
    const CatalogKind* m_groupKind;
    std::vector<Column> m_columns;
    QHash<QString, qint64> m_groups; // by name
    qint64 m_count = 0;
};

// Where and why the file was refused, or nothing.
QString importFile(Import& import, CsvReader& csv)
{
    QStringList fields;
    bool hasHeader = false;
    while (csv.next(fields)) {
        const QString problem = hasHeader ? import.takeRecord(fields) : import.takeHeader(fields);
        hasHeader = true;
        if (!problem.isEmpty())
            return u"line %1: %2"_s.arg(QString::number(csv.lineNumber()), problem);
    }
    if (!csv.error().isEmpty())
        return u"line %1: %2"_s.arg(QString::number(csv.lineNumber()), csv.error());
    return hasHeader ? QString() : u"line 1: the header with the names of the columns is missing"_s;
}

int importInto(Program& program, const CatalogKind& kind, QFile& file)
{
    Connector& connector = program.appDelegate.connector;
    if (!connector.beginBulk()) {
        writeError(u"the project cannot be written now"_s);
        return exitRefused;
    }
    Import import(program.appDelegate, kind);
    CsvReader csv(file.handle());
    QString problem = importFile(import, csv);
    if (problem.isEmpty() && !connector.endBulk())
        problem = u"the project could not be written"_s;
    if (!problem.isEmpty()) {
        connector.close(); // takes back what was written so far
        writeError(file.fileName() + u": "_s + problem + u"; nothing of the file was kept"_s);
        return exitRefused;
    }
    JsonWriter json;
    json.beginObject().member(u"ok"_s, true).member(u"count"_s, import.count()).endObject();
    return writeLine(json) ? exitDone : exitRefused;
}

int run(const Arguments& arguments)
{
    const QStringList& words = arguments.positional();
    const CatalogKind* kind = catalogKind(words[1]);
    if (!kind || !kind->canAdd)
        return badUsage(u"import: records of the name '"_s + words[1] + u"' cannot be added"_s);
    if (isSameFile(words[0], words[2]))
        return badUsage(u"import: the records cannot come from the project itself"_s);
    QFile file(words[2]);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return badUsage(u"cannot open "_s + words[2] + u": "_s + file.errorString());
    Program program;
    if (!program.open(words[0], Access::ReadWrite))
        return exitBadUsage;
    return importInto(program, *kind, file);
}

} // namespace

const Command importCommand{
    "import",
    "import PROJECT.pdb RECORD FILE.csv",
    "adds the records of a CSV file to a catalog",
    "RECORD is Product, Contragent, Manager, ... FILE.csv is UTF-8; its first line names the columns. A "
    "column\n"
    "'parent' names a group, which is made if missing. A bad line is reported with its number, and nothing "
    "of\n"
    "the file is kept.\n",
    {},
    3,
    3,
    run,
};

} // namespace zelvor
