#pragma once

#include "store/statement_cache.h"

#include <QtCore/QString>

namespace zelvor {

// Where the connection stands between BEGIN and COMMIT. Knows what SQLite does by itself: a transaction
// that it has ended, or that could not begin, takes no writes until the caller ends it too.
class Transaction {
public:
    explicit Transaction(StatementCache& statements) : m_statements(statements) {}

    enum class Commit { Durable, Nothing, Failed, NeverBegun };

    void attach(sqlite3* database) { m_database = database; }
    bool begin();
    Commit commit();
    void rollback();
    bool beginBulk();
    bool endBulk();
    // Ends whatever is open without keeping it.
    void abandon();

    // Between BEGIN and its COMMIT or ROLLBACK.
    bool isOpen() const { return m_state != State::None; }
    bool isBulk() const { return m_bulk; }
    // SQLite has a transaction at work, of a user's write or of a bulk load.
    bool isActive() const;
    bool takesWrites() const;
    // After a failed call: notices whether SQLite has ended the transaction.
    void checkAlive();
    // Nothing of the open transaction will be kept: a read failed, so what was decided on it is void.
    void spoil();
    // As if BEGIN had failed.
    void refuse();
    // SQLite's words for what made the last transaction fail.
    const QString& reason() const { return m_reason; }

private:
    enum class State { None, Open, NeverBegun, Lost };
    // Takes back what was written since BEGIN.
    void takeBack();
    void noteReason();

    StatementCache& m_statements;
    sqlite3* m_database = nullptr;
    State m_state = State::None;
    bool m_bulk = false;
    QString m_reason;
};

} // namespace zelvor
