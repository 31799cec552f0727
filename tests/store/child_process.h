#pragma once

#include <QtCore/QtGlobal>

#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace zelvor {

// Runs the body in a process of its own. Waits for it and answers its exit code, or minus its signal.
inline int runInChild(const std::function<int()>& body)
{
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(body());
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

} // namespace zelvor
