#include "cli/balance_chain.h"

#include <algorithm>

namespace zelvor {

void BalanceChain::add(qint64 date, const Decimal& before, const Decimal& change)
{
    if (date != m_date)
        closeSecond();
    m_date = date;
    m_second.push_back({before, before.plus(change, moneyHandler)});
}

Decimal BalanceChain::balance()
{
    closeSecond();
    return m_balance;
}

void BalanceChain::closeSecond()
{
    if (m_second.empty())
        return;
    if (!m_begun)
        m_balance = m_second.front().before;
    m_begun = true;
    // Every document of the second found what was there at its start or what another one left.
    const auto isLinked = [this](const Move& move) {
        return move.before == m_balance ||
               std::ranges::any_of(m_second, [&](const Move& other) { return other.after == move.before; });
    };
    if (std::ranges::all_of(m_second, isLinked)) {
        for (const Move& move : m_second)
            m_balance = m_balance.plus(move.after.minus(move.before, moneyHandler), moneyHandler);
    } else {
        m_balance = m_second.back().after;
    }
    m_second.clear();
}

} // namespace zelvor
