// Runs a part of a test in a process of its own, which signals and descriptors may be tried on.
#pragma once

#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

/// Starts a process that does `action` and ends with the status that it returns.
template <typename Action>
pid_t startChild(Action action) {
    const pid_t child = fork();
    if (child == 0) {
        _exit(action());
    }
    return child;
}

/// Waits for the end of a process: its exit status, or minus the signal that ended it.
inline int endOf(pid_t child) {
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

/// How a process ends that does `action`.
template <typename Action>
int endOfChild(Action action) {
    return endOf(startChild(action));
}
