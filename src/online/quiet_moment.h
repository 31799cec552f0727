#pragma once

#include "store/connector.h"

#include <QtCore/QObject>

#include <functional>

namespace zelvor {

// What comes from outside waits here until no transaction is open: it neither writes into another's nor asks
// the user in the middle of one. A task that still waits when this goes is dropped.
class QuietMoment {
public:
    explicit QuietMoment(const Connector& connector) : m_connector(connector) {}
    // At once when nothing is open.
    void run(std::function<void()> task);

private:
    const Connector& m_connector;
    QObject m_context;
};

} // namespace zelvor
