#pragma once

#include "core/calendar.h"

#include <optional>

namespace zelvor {

// The clock of a replayed history: each operation takes place one second after its date, one without a date
// right after the one before it. Until the first date it is the machine's.
class ReplayClock final : public Clock {
public:
    qint64 now() const override { return m_moment ? *m_moment : m_machine.now(); }
    void goTo(qint64 date) { m_moment = date + 1; }
    void goOn()
    {
        if (m_moment)
            ++*m_moment;
    }

private:
    SystemClock m_machine;
    std::optional<qint64> m_moment;
};

} // namespace zelvor
