#include "store/file_signals.h"

#include <csignal>

namespace zelvor {

void ignoreFileSizeSignals()
{
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
}

} // namespace zelvor
