#pragma once

#include "store/connector.h"

#include <functional>

namespace zelvor {

// One write of a user: one transaction. Sends BEGIN when it is made, remembers whether a step failed, sends
// ROLLBACK after a failure and COMMIT on every path. The three words stand here and nowhere else.
class UserWrite {
public:
    explicit UserWrite(Connector& connector);
    ~UserWrite(); // an unfinished write is taken back
    UserWrite(const UserWrite&) = delete;
    UserWrite& operator=(const UserWrite&) = delete;

    // Takes the result of insert, update or remove; anything but 1 is a failure. Answers whether it was 1.
    bool step(int result);
    void fail() { m_failed = true; }
    bool failed() const { return m_failed; }
    // Ends the transaction. `announce` runs before the COMMIT, and only when no step failed: who hears it
    // reads the transaction's own data. True when all steps went well and the commit held.
    bool finish(const std::function<void()>& announce = {});

private:
    Connector& m_connector;
    bool m_failed = false;
    bool m_finished = false;
};

} // namespace zelvor
