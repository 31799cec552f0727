#include "online/quiet_moment.h"

#include <QtCore/QTimer>

#include <chrono>
#include <utility>

namespace zelvor {

using namespace std::chrono_literals;

void QuietMoment::run(std::function<void()> task)
{
    if (m_connector.inTransaction())
        QTimer::singleShot(20ms, &m_context, [this, waiting = std::move(task)] { run(waiting); });
    else
        task();
}

} // namespace zelvor
