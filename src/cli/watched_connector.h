#pragma once

#include "store/connector.h"

#include <array>
#include <string>

namespace zelvor {

// Remembers whether a read has failed. A controller takes what it can get, and what it computes from half of
// the documents looks just like a report: a script must be told.
class WatchedConnector final : public Connector {
public:
    bool hasFailedReads() const { return m_failed; }

    std::shared_ptr<TableModel> selectRecord(const TableInfo& table, qint64 id, Fill fill) override
    {
        auto record = Connector::selectRecord(table, id, fill);
        if (!record && id != 0)
            tellMissingFromUnread(table, id);
        return record;
    }
    bool readRecords(const TableInfo& table, std::string_view sql, std::span<const Parameter> params,
                     Fill fill, bool absoluteFree,
                     const std::function<void(std::shared_ptr<TableModel>)>& take) override
    {
        return watch(Connector::readRecords(table, sql, params, fill, absoluteFree, take));
    }
    bool scan(std::string_view sql, std::span<const Parameter> params,
              const std::function<void(const Statement&)>& visit) override
    {
        return watch(Connector::scan(sql, params, visit));
    }

private:
    // A row that is there and did not come is a failure; one that is not there is none.
    void tellMissingFromUnread(const TableInfo& table, qint64 id)
    {
        scan(std::string("SELECT id FROM ") + table.name + " WHERE id=?", std::array<Parameter, 1>{id},
             [this](const Statement&) { m_failed = true; });
    }
    bool watch(bool read)
    {
        m_failed = m_failed || !read;
        return read;
    }

    bool m_failed = false;
};

} // namespace zelvor
