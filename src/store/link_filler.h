#pragma once

#include "store/connector.h"
#include "store/statement_cache.h"

#include <memory>
#include <span>
#include <unordered_map>
#include <vector>

namespace zelvor {

// Fills the links and rows of the records of one read, and of what they link to, with one statement for
// each linked table and step of the chain, however many records there are. Equal ids share one record.
class LinkFiller {
public:
    LinkFiller(StatementCache& statements, Fill fill) : m_statements(statements), m_fill(fill) {}

    // True when records of the class hold others.
    static bool isNeeded(const TableInfo& table, Fill fill);
    // False when a statement broke off; a table that the file lacks leaves its links empty.
    bool fill(const TableInfo& table, std::span<const std::shared_ptr<TableModel>> records);

private:
    using Slots = std::unordered_map<qint64, std::shared_ptr<TableModel>>;
    struct Batch {
        const TableInfo* table;
        std::vector<TableModel*> records;
    };
    struct Wanted {
        const TableInfo* table;
        Slots* slots;
        std::vector<qint64> ids;
    };
    struct Filling {
        const LinkInfo* link;
        TableModel* record;
        const std::shared_ptr<TableModel>* slot;
    };

    bool fillStep(std::vector<Batch>& batches, std::vector<Batch>& found);
    bool readRows(const Batch& heads, Batch& rows);
    void collect(const Batch& batch, std::vector<Wanted>& wanted, std::vector<Filling>& fillings);
    bool readLinked(const Wanted& wanted, Batch& found);
    Wanted& wantedOf(const TableInfo& table, std::vector<Wanted>& wanted);

    StatementCache& m_statements;
    Fill m_fill;
    int m_depth = 0;
    std::unordered_map<const TableInfo*, Slots> m_slots;
};

} // namespace zelvor
