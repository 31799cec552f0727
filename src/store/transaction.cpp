#include "store/transaction.h"

#include <sqlite3.h>

namespace zelvor {

bool Transaction::isActive() const
{
    return m_database && !sqlite3_get_autocommit(m_database);
}

bool Transaction::takesWrites() const
{
    // A bulk load that SQLite has ended must not go on as single writes.
    if (m_bulk && !isActive())
        return false;
    return m_state == State::None || m_state == State::Open;
}

bool Transaction::begin()
{
    Q_ASSERT_X(m_state == State::None, "Transaction", "a write began inside another one");
    if (m_state != State::None) {
        spoil();
        return false;
    }
    bool begun = false;
    if (m_bulk)
        begun = isActive() && m_statements.control("SAVEPOINT user_write");
    else
        begun = m_statements.control("BEGIN IMMEDIATE");
    m_state = begun ? State::Open : State::NeverBegun;
    return begun;
}

Transaction::Commit Transaction::commit()
{
    const State state = m_state;
    if (state == State::None)
        return Commit::Nothing;
    checkAlive();
    const bool durable =
        m_state == State::Open && m_statements.control(m_bulk ? "RELEASE user_write" : "COMMIT");
    if (!durable && m_state == State::Open)
        noteReason();
    if (!durable)
        takeBack();
    m_state = State::None;
    if (durable)
        return Commit::Durable;
    return state == State::NeverBegun ? Commit::NeverBegun : Commit::Failed;
}

void Transaction::rollback()
{
    takeBack();
    m_state = State::None;
}

void Transaction::takeBack()
{
    if (m_state == State::None || m_state == State::NeverBegun || !isActive())
        return;
    if (!m_bulk) {
        m_statements.control("ROLLBACK");
        return;
    }
    m_statements.control("ROLLBACK TO user_write");
    m_statements.control("RELEASE user_write");
}

bool Transaction::beginBulk()
{
    if (m_bulk || isOpen() || !m_statements.control("BEGIN IMMEDIATE"))
        return false;
    m_bulk = true;
    return true;
}

bool Transaction::endBulk()
{
    if (!m_bulk || isOpen())
        return false;
    m_bulk = false;
    // Lost on the way, or refused now: nothing of the load is kept.
    if (isActive() && m_statements.control("COMMIT"))
        return true;
    noteReason();
    if (isActive())
        m_statements.control("ROLLBACK");
    return false;
}

void Transaction::abandon()
{
    if (isActive())
        m_statements.control("ROLLBACK");
    m_state = State::None;
    m_bulk = false;
}

void Transaction::checkAlive()
{
    if (m_state == State::Open && !isActive())
        spoil();
}

void Transaction::spoil()
{
    if (m_state != State::Open)
        return;
    noteReason();
    m_state = State::Lost;
}

void Transaction::noteReason()
{
    m_reason = QString::fromUtf8(sqlite3_errmsg(m_database));
}

void Transaction::refuse()
{
    takeBack();
    m_state = State::NeverBegun;
}

} // namespace zelvor
