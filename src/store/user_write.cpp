#include "store/user_write.h"

namespace zelvor {

UserWrite::UserWrite(Connector& connector) : m_connector(connector)
{
    m_failed = !m_connector.execute("BEGIN");
}

UserWrite::~UserWrite()
{
    if (m_finished)
        return;
    fail();
    finish();
}

bool UserWrite::step(int result)
{
    if (result != 1)
        fail();
    return result == 1;
}

bool UserWrite::finish(const std::function<void()>& announce)
{
    m_finished = true;
    if (m_failed)
        m_connector.execute("ROLLBACK");
    else if (announce)
        announce();
    const bool durable = m_connector.execute("COMMIT");
    return durable && !m_failed;
}

} // namespace zelvor
