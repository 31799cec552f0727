#include "store/link_filler.h"

#include "store/record_io.h"

#include <algorithm>
#include <charconv>
#include <string>

namespace zelvor {

namespace {

// Document, row, product, measurement is the longest chain of the books; a class that links to itself ends
// here.
constexpr int maxDepth = 6;
// Reading past an unwanted record of a range costs about a tenth of looking a wanted one up.
constexpr std::uint64_t rangePerWanted = 8;

// Whether a chain of links leads from `table` back to `target`.
bool leadsTo(const TableInfo& table, const TableInfo& target, int depth)
{
    if (depth == maxDepth)
        return false;
    return std::ranges::any_of(table.links, [&](const LinkInfo& link) {
        const TableInfo& next = link.table();
        return &next == &target || leadsTo(next, target, depth + 1);
    });
}

std::string jsonList(const std::vector<qint64>& ids)
{
    std::string list = "[";
    char digits[24];
    for (const qint64 id : ids) {
        const auto end = std::to_chars(std::begin(digits), std::end(digits), id).ptr;
        list.append(list.size() == 1 ? "" : ",").append(digits, end);
    }
    return list + "]";
}

// One of three statements, by how many ids there are and how close together they stand.
struct IDSet {
    explicit IDSet(const std::vector<qint64>& ids)
    {
        const auto [low, high] = std::ranges::minmax(ids);
        first = low;
        last = high;
        const std::uint64_t span = static_cast<std::uint64_t>(high) - static_cast<std::uint64_t>(low);
        if (span == 0)
            return;
        if (span / rangePerWanted < ids.size()) {
            form = 1;
        } else {
            form = 2;
            list = jsonList(ids);
        }
    }
    void bind(Query& query) const
    {
        if (form == 2) {
            query.bindBytes(1, list);
            return;
        }
        query.statement().bindInteger(1, first);
        if (form == 1)
            query.statement().bindInteger(2, last);
    }

    int form = 0; // the place of the operation among one, range, listed
    qint64 first = 0;
    qint64 last = 0;
    std::string list;
};

} // namespace

bool LinkFiller::isNeeded(const TableInfo& table, Fill fill)
{
    return fill != Fill::Nothing && (!table.links.empty() || (table.rows && fill == Fill::Everything));
}

bool LinkFiller::fill(const TableInfo& table, std::span<const std::shared_ptr<TableModel>> records)
{
    std::vector<Batch> batches(1, Batch{&table, {}});
    batches.front().records.reserve(records.size());
    for (const auto& record : records)
        batches.front().records.push_back(record.get());
    for (m_depth = 0; !batches.empty() && m_depth < maxDepth; ++m_depth) {
        std::vector<Batch> found;
        if (!fillStep(batches, found))
            return false;
        batches = std::move(found);
    }
    return true;
}

bool LinkFiller::fillStep(std::vector<Batch>& batches, std::vector<Batch>& found)
{
    std::vector<Wanted> wanted;
    std::vector<Filling> fillings;
    // Rows first: what they link to is asked for together with what the heads link to.
    for (std::size_t index = 0, heads = batches.size(); m_fill == Fill::Everything && index < heads;
         ++index) {
        if (!batches[index].table->rows)
            continue;
        Batch rows{&batches[index].table->rows->table(), {}};
        if (!readRows(batches[index], rows))
            return false;
        batches.push_back(std::move(rows));
    }
    for (const Batch& batch : batches)
        collect(batch, wanted, fillings);
    for (const Wanted& request : wanted) {
        if (request.ids.empty())
            continue;
        Batch linked{request.table, {}};
        if (!readLinked(request, linked))
            return false;
        if (!linked.records.empty() && isNeeded(*request.table, m_fill))
            found.push_back(std::move(linked));
    }
    for (const Filling& filling : fillings)
        if (*filling.slot)
            filling.link->set(*filling.record, *filling.slot);
    return true;
}

// Appends each head's rows in id order.
bool LinkFiller::readRows(const Batch& heads, Batch& rows)
{
    const RowListInfo& info = *heads.table->rows;
    std::unordered_map<qint64, TableModel*> byID;
    std::vector<qint64> ids;
    for (TableModel* head : heads.records)
        if (head->id != 0 && byID.emplace(head->id, head).second)
            ids.push_back(head->id);
    if (ids.empty())
        return true;
    constexpr Operation operations[] = {Operation::RowsOfOne, Operation::RowsOfRange, Operation::RowsListed};
    const IDSet set(ids);
    Query query = m_statements.query(operations[set.form], rows.table, info.column);
    if (!query.isValid())
        return true;
    set.bind(query);
    const int headColumn = static_cast<int>(rows.table->columns.size()) + 1;
    while (query.next()) {
        const auto head = byID.find(query.statement().integer(headColumn));
        if (head == byID.end())
            continue;
        std::shared_ptr<TableModel> row = loadRecord(*rows.table, query.statement());
        info.append(*head->second, row);
        rows.records.push_back(row.get());
    }
    return !query.failed();
}

// Notes which linked records are missing, and where each is to be put.
void LinkFiller::collect(const Batch& batch, std::vector<Wanted>& wanted, std::vector<Filling>& fillings)
{
    for (const LinkInfo& link : batch.table->links) {
        Wanted& request = wantedOf(link.table(), wanted);
        for (TableModel* record : batch.records) {
            const qint64 id = link.id(*record);
            if (id == 0)
                continue;
            const auto [slot, isNew] = request.slots->try_emplace(id);
            if (isNew)
                request.ids.push_back(id);
            fillings.push_back({&link, record, &slot->second});
        }
    }
}

LinkFiller::Wanted& LinkFiller::wantedOf(const TableInfo& table, std::vector<Wanted>& wanted)
{
    for (Wanted& request : wanted)
        if (request.table == &table)
            return request;
    auto [slots, isNew] = m_slots.try_emplace(&table);
    // Where links lead round in a circle each step of the chain has records of its own: shared ones
    // would hold each other for ever.
    if (!isNew && leadsTo(table, table, 0))
        slots->second.clear();
    wanted.push_back({&table, &slots->second, {}});
    return wanted.back();
}

bool LinkFiller::readLinked(const Wanted& wanted, Batch& found)
{
    constexpr Operation operations[] = {Operation::SelectOne, Operation::SelectRange,
                                        Operation::SelectListed};
    const IDSet set(wanted.ids);
    Query query = m_statements.query(operations[set.form], wanted.table);
    if (!query.isValid())
        return true;
    set.bind(query);
    while (query.next()) {
        const auto slot = wanted.slots->find(query.statement().integer(0));
        if (slot == wanted.slots->end() || slot->second)
            continue;
        slot->second = loadRecord(*wanted.table, query.statement());
        found.records.push_back(slot->second.get());
    }
    return !query.failed();
}

} // namespace zelvor
