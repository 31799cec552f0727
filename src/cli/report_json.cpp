#include "cli/json_writer.h"
#include "cli/report_printer.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr qsizetype pieceSize = 64 * 1024; // bytes

void writeRow(const ReportTable& table, const std::vector<ViewColumn>& columns, int row, JsonWriter& json)
{
    json.beginObject().member(u"kind"_s, table.kind(row));
    for (const ViewColumn& column : columns)
        json.member(column.identifier, table.view.value(row, column.identifier));
    if (table.moreOfRow)
        table.moreOfRow(row, json);
    json.endObject();
}

} // namespace

bool printJson(const ReportTable& table, const Calendar&, const Sink& sink)
{
    const std::vector<ViewColumn> columns = table.view.columns();
    JsonWriter json;
    json.beginObject().member(u"title"_s, table.view.name()).key(u"columns"_s).beginArray();
    for (const ViewColumn& column : columns)
        json.value(column.identifier);
    json.endArray().key(u"rows"_s).beginArray();
    const int count = table.view.numberOfRows();
    for (int row = 0; row < count; ++row) {
        writeRow(table, columns, row, json);
        if (json.size() > pieceSize && !sink(json.take()))
            return false;
    }
    json.endArray();
    if (table.moreOfAnswer)
        table.moreOfAnswer(json);
    json.endObject();
    return sink(json.take() + '\n');
}

} // namespace zelvor
