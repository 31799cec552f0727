#pragma once

#include <QtCore/QtGlobal>

#include <algorithm>
#include <utility>
#include <vector>

namespace zelvor {

// A filter of ids; without ids everything passes.
class IDFilter {
public:
    explicit IDFilter(std::vector<qint64> ids) : m_ids(std::move(ids)) { std::ranges::sort(m_ids); }
    bool passes(qint64 id) const { return m_ids.empty() || std::ranges::binary_search(m_ids, id); }

private:
    std::vector<qint64> m_ids;
};

} // namespace zelvor
