#pragma once

#include <poll.h>
#include <sys/types.h>

#include <span>
#include <string>
#include <vector>

#include "intake/command.h"

namespace intake {

/// What has to be done to end a child.
enum class Role {
    Converter,  ///< it and all that it has started may be killed at any time
    Printing,   ///< it must bring to its end what the printer has begun, however long that takes
};

/// Starts the programs of a job and lets none of them outlive it. Each is in a process group of
/// its own: the scheduler's SIGTERM goes to the whole group of this process, and a second one
/// would kill the printing filter in the middle of a bitmap.
class Supervisor {
public:
    Supervisor();
    /// Ends what still runs: one SIGTERM to each, the printing filter first. Converters that are
    /// there a few seconds later are killed.
    ~Supervisor();
    Supervisor(const Supervisor&) = delete;
    Supervisor& operator=(const Supervisor&) = delete;

    /// Starts a program with these standard streams and this process's standard error. Throws
    /// JobFailure.
    pid_t start(const Command& command, Role role, int input, int output);

    /// Sleeps until a descriptor has something to tell, a child has ended or so many milliseconds
    /// have passed (-1: any number). Throws JobCancelled when the job is to end, JobFailure when
    /// nobody takes the output of this process any more.
    void wait(std::span<pollfd> descriptors, int milliseconds = -1);

    bool isRunning(pid_t child) const;
    bool hasFailed(pid_t child) const;
    /// Whether it is one of ours that writes the reason to the log before it ends with status 1.
    bool hasSaidWhy(pid_t child) const;

    /// Sleeps until the child has ended.
    void waitForEnd(pid_t child);

    /// "gstoraster failed with status 3" or "... was ended by signal 11".
    std::string fateOf(pid_t child) const;

private:
    struct Child {
        pid_t id = 0;
        std::string name;
        Role role = Role::Converter;
        bool isRunning = true;
        int status = 0;
    };

    void collect();
    void noteEnd(pid_t id, int status);
    const Child& childOf(pid_t id) const;
    bool isAnyRunning() const;
    void signalAll(int signal, Role role) const;
    void endAll();
    void reapOrphans() const;

    std::vector<Child> children_;
};

}  // namespace intake
