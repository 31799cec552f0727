#pragma once

#include "core/decimal.h"

#include <QtCore/QtGlobal>

#include <vector>

namespace zelvor {

// The balance of one account, counterparty or employee as its documents tell it. Each document keeps the
// balance that it found; where that is not what the one before left, somebody changed the balance by hand in
// between, and the chain starts anew. Documents of one second may come in any order.
class BalanceChain {
public:
    // A document that found `before` and changed it by `change`; dates must not go back.
    void add(qint64 date, const Decimal& before, const Decimal& change);
    // What the documents left.
    Decimal balance();

private:
    struct Move {
        Decimal before;
        Decimal after;
    };
    void closeSecond();

    Decimal m_balance;
    bool m_begun = false;
    qint64 m_date = 0;
    std::vector<Move> m_second; // the documents of m_date
};

} // namespace zelvor
