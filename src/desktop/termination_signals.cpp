#include "desktop/termination_signals.h"

#include <QtCore/QSocketNotifier>

#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace zelvor {

namespace {

constexpr int heardSignals[] = {SIGTERM, SIGINT, SIGHUP};

// A handler gets nothing but the signal's number, so the pipe's end has to stand here.
volatile std::sig_atomic_t writeEnd = -1;

extern "C" void passOn(int)
{
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = write(writeEnd, &byte, 1); // a full pipe says enough already
}

void handle(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int number : heardSignals)
        sigaction(number, &action, nullptr);
}

} // namespace

TerminationSignals::TerminationSignals()
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return; // then a signal ends the program as it ends any other
    m_readEnd = ends[0];
    writeEnd = ends[1];
    auto* const notifier = new QSocketNotifier(m_readEnd, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &TerminationSignals::readSignal);
    handle(passOn);
}

TerminationSignals::~TerminationSignals()
{
    if (m_readEnd < 0)
        return;
    handle(SIG_DFL);
    close(writeEnd);
    close(m_readEnd);
    writeEnd = -1;
}

void TerminationSignals::readSignal()
{
    char bytes[16];
    while (read(m_readEnd, bytes, sizeof bytes) > 0) {
    }
    Q_EMIT received();
}

} // namespace zelvor
