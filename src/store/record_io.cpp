#include "store/record_io.h"

namespace zelvor {

std::shared_ptr<TableModel> loadRecord(const TableInfo& table, const Statement& statement)
{
    std::shared_ptr<TableModel> record = table.make();
    record->id = statement.integer(0);
    int column = 0;
    for (const ColumnInfo& info : table.columns)
        info.load(*record, statement, ++column);
    return record;
}

void bindRecord(const TableInfo& table, const TableModel& record, Statement& statement)
{
    int mark = 0;
    for (const ColumnInfo& info : table.columns)
        info.bind(record, statement, ++mark);
}

} // namespace zelvor
