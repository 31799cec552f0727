#pragma once

#include "store/connector.h"

#include <optional>

namespace zelvor {

// A connector whose call number k fails as it would on a refusing disk. Counts from 1, only the kinds of
// call that are watched; the file is not touched by the failing call.
class FaultInjectingConnector : public Connector {
public:
    enum Kind : unsigned {
        Begin = 1,
        Commit = 2,
        Insert = 4,
        Update = 8,
        Remove = 16,
        Writes = Insert | Update | Remove,
        Select = 32,
        Read = 64, // freeSQL and scan
        Any = 128,
        Reads = Select | Read | Any,
        All = 255,
    };

    // Starts to count anew and fails the call with that number; 0 only counts.
    void failCall(int number, unsigned kinds = All)
    {
        m_failing = number;
        m_kinds = kinds;
        m_calls = 0;
        m_hasFailed = false;
    }
    // How many watched calls there were since failCall.
    int calls() const { return m_calls; }
    bool hasFailed() const { return m_hasFailed; }

    bool execute(std::string_view text) override
    {
        if (text == "BEGIN" && fails(Begin)) {
            refuseTransaction();
            return false;
        }
        if (text == "COMMIT" && inTransaction() && fails(Commit))
            loseTransaction();
        return Connector::execute(text);
    }
    std::shared_ptr<TableModel> selectRecord(const TableInfo& table, qint64 id, Fill fill) override
    {
        return readFails(Select) ? nullptr : Connector::selectRecord(table, id, fill);
    }
    int insertRecord(const TableInfo& table, TableModel& record) override
    {
        return fails(Insert) ? 0 : Connector::insertRecord(table, record);
    }
    int updateRecord(const TableInfo& table, TableModel& record) override
    {
        return fails(Update) ? 0 : Connector::updateRecord(table, record);
    }
    int removeRecord(const TableInfo& table, TableModel& record) override
    {
        return fails(Remove) ? 0 : Connector::removeRecord(table, record);
    }
    bool readRecords(const TableInfo& table, std::string_view sql, std::span<const Parameter> params,
                     Fill fill, bool absoluteFree,
                     const std::function<void(std::shared_ptr<TableModel>)>& take) override
    {
        return readFails(Read) ? false : Connector::readRecords(table, sql, params, fill, absoluteFree, take);
    }
    bool anyRecord(const TableInfo& table, std::string_view tail, std::span<const Parameter> params) override
    {
        return readFails(Any) ? false : Connector::anyRecord(table, tail, params);
    }
    using Connector::scan;
    bool scan(std::string_view sql, std::span<const Parameter> params,
              const std::function<void(const Statement&)>& visit) override
    {
        return readFails(Read) ? false : Connector::scan(sql, params, visit);
    }

private:
    bool fails(unsigned kind)
    {
        if ((m_kinds & kind) == 0 || ++m_calls != m_failing)
            return false;
        m_hasFailed = true;
        return true;
    }
    // A read that breaks off inside a write takes the write with it.
    bool readFails(unsigned kind)
    {
        if (!fails(kind))
            return false;
        loseTransaction();
        return true;
    }

    int m_failing = 0;
    unsigned m_kinds = All;
    int m_calls = 0;
    bool m_hasFailed = false;
};

} // namespace zelvor
