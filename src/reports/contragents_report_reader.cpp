#include "reports/contragents_report_reader.h"

#include "core/localized.h"
#include "core/text_order.h"
#include "reports/contragent_direction.h"
#include "reports/id_filter.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace zelvor {

namespace {

constexpr RoundingHandler handler = SaldoRow::handler;

// What the documents of the period did to one counterparty.
struct Turnover {
    Decimal debit;
    Decimal credit;
    Decimal balanceBefore; // the first document's
    bool hasDocuments = false;
    int firstKind = 0; // place of the first document's table among the three
    qint64 firstDate = 0;
    qint64 firstID = 0;

    // Documents of one second stand by kind and in the order in which they were made.
    bool beginsWith(int kind, qint64 date, qint64 id) const
    {
        if (!hasDocuments || date != firstDate)
            return !hasDocuments || date < firstDate;
        return kind == firstKind && id < firstID;
    }
    void take(int kind, const Statement& head)
    {
        const qint64 id = head.integer(1);
        const qint64 date = head.integer(2);
        if (beginsWith(kind, date, id)) {
            hasDocuments = true;
            firstKind = kind;
            firstDate = date;
            firstID = id;
            balanceBefore = Decimal::fromDouble(head.real(5), handler);
        }
        const DocType type = typeFromInt(head.integer(3)).value_or(DocType::NilType);
        Decimal& sum = raisesContragentBalance(type) ? credit : debit;
        sum = sum.plus(Decimal::fromDouble(head.real(4), handler), handler);
    }
};

class ContragentsReportReader {
public:
    ContragentsReportReader(Connector& connector, const ContragentsReportQuery& query)
        : m_connector(connector), m_query(query)
    {}

    ContragentsReportRows read()
    {
        if (!readGroups() || !readContragents() || !readTurnovers())
            return {};
        ContragentsReportRow& start = appendFooter(localized("START PERIOD:"));
        ContragentsReportRow& end = appendFooter(localized("END PERIOD:"));
        addTurnovers(start, end);
        placeRows();
        gather();
        m_result.topLevel.insert(m_result.topLevel.begin(), &start);
        m_result.topLevel.push_back(&end);
        return std::move(m_result);
    }

private:
    using RowsByID = std::unordered_map<qint64, ContragentsReportRow*>;

    // Only the columns that a report needs, which is why its rows have their records to look at only.
    template <class Record, class TakeRest>
    bool readRecords(std::string_view sql, const std::vector<qint64>& filter, RowsByID& byID, TakeRest rest)
    {
        const IDFilter passing(filter);
        std::vector<std::shared_ptr<Record>> records;
        const bool isRead = m_connector.scan(sql, {}, [&](const Statement& row) {
            if (!passing.passes(row.integer(0)))
                return;
            auto record = std::make_shared<Record>();
            record->id = row.integer(0);
            record->name = row.text(1);
            record->parentID = row.integer(2);
            rest(*record, row);
            records.push_back(std::move(record));
        });
        std::ranges::stable_sort(records, NameLess{});
        for (auto& record : records) {
            ContragentsReportRow& row = m_result.all.emplace_back();
            row.name = record->name;
            row.groupRow = record->isGroup();
            row.contragent = record;
            byID.emplace(record->id, &row);
        }
        return isRead;
    }

    bool readGroups()
    {
        return readRecords<ContragentGroup>("SELECT id, name, parent_id FROM contragent_group ORDER BY id",
                                            m_query.contragentTypeIDs, m_groups,
                                            [](ContragentGroup&, const Statement&) {});
    }

    bool readContragents()
    {
        return readRecords<Contragent>(
            "SELECT id, name, parent_id, parent_contragent_id, balance FROM contragent ORDER BY id",
            m_query.contragentIDs, m_contragents, [](Contragent& contragent, const Statement& row) {
                contragent.parentContragentID = row.integer(3);
                contragent.setBalance(row.real(4));
            });
    }

    bool readTurnovers()
    {
        m_turnovers.reserve(m_contragents.size());
        for (const auto& [id, row] : m_contragents)
            m_turnovers.emplace(id, Turnover());
        return readHeads(0, "product_doc") && readHeads(1, "property_doc") && readHeads(2, "money_doc");
    }

    bool readHeads(int kind, const char* table)
    {
        const std::string sql =
            std::string("SELECT contragent_id, id, date, doc_type_id, doc_sum, contragent_balance FROM ") +
            table + " WHERE date>? AND date<=? AND is_confirmed=1";
        return m_connector.scan(sql, {m_query.dateFrom, m_query.dateTo}, [&](const Statement& head) {
            const auto turnover = m_turnovers.find(head.integer(0));
            if (turnover != m_turnovers.end())
                turnover->second.take(kind, head);
        });
    }

    ContragentsReportRow& appendFooter(const QString& name)
    {
        ContragentsReportRow& row = m_result.all.emplace_back();
        row.name = name;
        row.footer = true;
        row.groupRow = true;
        return row;
    }

    void addTurnovers(ContragentsReportRow& start, ContragentsReportRow& end)
    {
        for (const auto& [id, row] : m_contragents) {
            const Turnover& turnover = m_turnovers.at(id);
            // Kept: without documents it is today's balance, for a period long past too.
            row->addToStartSaldo(turnover.hasDocuments ? turnover.balanceBefore
                                                       : balanceOf(*row->contragent));
            row->addToDebit(turnover.debit);
            row->addToCredit(turnover.credit);
            start.addToStartSaldo(row->innerStartSaldo());
            end.addSaldo(*row);
        }
    }

    static const Decimal& balanceOf(const ContragentModel& contragent)
    {
        return static_cast<const Contragent&>(contragent).innerBalance;
    }

    // As a parent the counterparty wins over the group here.
    ContragentsReportRow* parentOf(const ContragentsReportRow& row) const
    {
        if (!row.contragent)
            return nullptr;
        const qint64 holderID = row.contragent->leafHolderID();
        const RowsByID& holders = holderID != 0 ? m_contragents : m_groups;
        const auto holder = holders.find(holderID != 0 ? holderID : row.contragent->parentID);
        return holder == holders.end() ? nullptr : holder->second;
    }

    // A row whose parent was filtered out stands at the top. So does one of several that are each other's
    // parents: what they owe must not vanish from the list.
    void placeRows()
    {
        for (ContragentsReportRow& row : m_result.all) {
            ContragentsReportRow* const parent = parentOf(row);
            if (parent && !parent->isBelow(row))
                parent->setChild(row);
            else if (!row.footer)
                m_result.topLevel.push_back(&row);
        }
    }

    void gather()
    {
        for (const auto& [id, row] : m_contragents) {
            for (ContragentsReportRow* above = row->parent; above; above = above->parent) {
                if (above->groupRow)
                    above->addSaldo(*row);
            }
        }
    }

    Connector& m_connector;
    const ContragentsReportQuery& m_query;
    RowsByID m_groups;
    RowsByID m_contragents;
    std::unordered_map<qint64, Turnover> m_turnovers;
    ContragentsReportRows m_result;
};

} // namespace

ContragentsReportRows readContragentsReport(Connector& connector, const ContragentsReportQuery& query)
{
    return ContragentsReportReader(connector, query).read();
}

} // namespace zelvor
