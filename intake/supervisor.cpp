#include "intake/supervisor.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <initializer_list>

#include "intake/job_failure.h"
#include "intake/signals.h"

namespace intake {
namespace {

using Clock = std::chrono::steady_clock;
constexpr std::chrono::seconds sGrace{3};

/// What posix_spawn is told: streams, group and signals.
class Start {
public:
    Start(int input, int output) {
        posix_spawn_file_actions_init(&actions_);
        posix_spawn_file_actions_adddup2(&actions_, input, STDIN_FILENO);
        posix_spawn_file_actions_adddup2(&actions_, output, STDOUT_FILENO);
        posix_spawnattr_init(&attributes_);
        posix_spawnattr_setpgroup(&attributes_, 0);
        posix_spawnattr_setsigmask(&attributes_, noSignals());
        sigset_t defaults;
        sigemptyset(&defaults);
        for (const int signal : {SIGPIPE, SIGXFSZ, SIGTERM, SIGINT, SIGHUP, SIGCHLD}) {
            sigaddset(&defaults, signal);
        }
        posix_spawnattr_setsigdefault(&attributes_, &defaults);
        constexpr int flags =
            POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF;
        posix_spawnattr_setflags(&attributes_, flags);
    }
    ~Start() {
        posix_spawn_file_actions_destroy(&actions_);
        posix_spawnattr_destroy(&attributes_);
    }
    Start(const Start&) = delete;
    Start& operator=(const Start&) = delete;

    // 0 and the child's id, or the reason.
    int run(const Command& command, pid_t& id) const {
        const auto environment = environmentWith(command.variables);
        return posix_spawn(&id, command.path.c_str(), &actions_, &attributes_,
                           pointersTo(command.arguments).data(), pointersTo(environment).data());
    }

private:
    posix_spawn_file_actions_t actions_;
    posix_spawnattr_t attributes_;
};

bool isWell(int status) {
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

pollfd watchOfOutput() {
    return {STDOUT_FILENO, 0, 0};
}

}  // namespace

// What a child leaves running when it ends, Ghostscript for one, becomes a child of this process.
Supervisor::Supervisor() {
    prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0);
}

Supervisor::~Supervisor() {
    endAll();
    reapOrphans();
}

pid_t Supervisor::start(const Command& command, Role role, int input, int output) {
    Child child{0, command.name(), role, true, 0};
    // Known before it runs, so that nothing can come between.
    children_.reserve(children_.size() + 1);
    if (const int reason = Start(input, output).run(command, child.id); reason != 0) {
        throw JobFailure("Unable to start " + command.path + ": " + std::strerror(reason));
    }
    children_.push_back(std::move(child));
    return children_.back().id;
}

void Supervisor::wait(std::span<pollfd> descriptors, int milliseconds) {
    std::vector<pollfd> all(descriptors.begin(), descriptors.end());
    all.push_back(watchOfOutput());
    waitFor(all, milliseconds);
    std::copy(all.begin(), all.end() - 1, descriptors.begin());
    collect();
    if (isCancelled()) {
        throw JobCancelled();
    }
    if ((all.back().revents & (POLLERR | POLLHUP)) != 0) {
        throw JobFailure("Nobody takes the printer's data any more");
    }
}

// A child that has ended stays known to the system until it is waited for: only so long its id,
// which is also its group's, is surely its own. What is left of the group has lost its master.
void Supervisor::collect() {
    for (;;) {
        siginfo_t end = {};
        if (waitid(P_ALL, 0, &end, WEXITED | WNOHANG | WNOWAIT) != 0 || end.si_pid == 0) {
            return;
        }
        if (isRunning(end.si_pid)) {
            kill(-end.si_pid, SIGKILL);
        }
        int status = 0;
        waitpid(end.si_pid, &status, 0);
        noteEnd(end.si_pid, status);
    }
}

void Supervisor::noteEnd(pid_t id, int status) {
    for (Child& child : children_) {
        if (child.id == id && child.isRunning) {
            child.isRunning = false;
            child.status = status;
        }
    }
}

// Ids may come again: the youngest one is meant.
const Supervisor::Child& Supervisor::childOf(pid_t id) const {
    static const Child none{0, "", Role::Converter, false, 0};
    const auto found = std::find_if(children_.rbegin(), children_.rend(),
                                    [id](const Child& child) { return child.id == id; });
    return found == children_.rend() ? none : *found;
}

bool Supervisor::isRunning(pid_t child) const {
    return childOf(child).isRunning;
}

bool Supervisor::hasFailed(pid_t child) const {
    return !isRunning(child) && !isWell(childOf(child).status);
}

void Supervisor::waitForEnd(pid_t child) {
    while (isRunning(child)) {
        wait({});
    }
}

bool Supervisor::hasSaidWhy(pid_t child) const {
    const Child& ended = childOf(child);
    const bool isOurs = ended.name == "picturetokestolabel" || ended.name == "pdftokestolabels";
    return isOurs && WIFEXITED(ended.status) && WEXITSTATUS(ended.status) == EXIT_FAILURE;
}

std::string Supervisor::fateOf(pid_t child) const {
    const Child& ended = childOf(child);
    if (WIFSIGNALED(ended.status)) {
        return ended.name + " was ended by signal " + std::to_string(WTERMSIG(ended.status));
    }
    return ended.name + " failed with status " + std::to_string(WEXITSTATUS(ended.status));
}

bool Supervisor::isAnyRunning() const {
    return std::any_of(children_.begin(), children_.end(),
                       [](const Child& child) { return child.isRunning; });
}

// The printing filter alone takes its signal: whatever is in its group besides is not known to be
// there, and it must get only one.
void Supervisor::signalAll(int signal, Role role) const {
    for (const Child& child : children_) {
        if (child.isRunning && child.role == role) {
            kill(role == Role::Printing ? child.id : -child.id, signal);
        }
    }
}

void Supervisor::endAll() {
    collect();
    signalAll(SIGTERM, Role::Printing);
    signalAll(SIGTERM, Role::Converter);
    const auto until = Clock::now() + sGrace;
    bool isKilled = false;
    while (isAnyRunning()) {
        constexpr int aMoment = 100;
        waitFor({}, isKilled ? -1 : aMoment);
        collect();
        if (!isKilled && Clock::now() > until) {
            signalAll(SIGKILL, Role::Converter);
            isKilled = true;
        }
    }
}

// All groups are killed, so these are about to end; one that has left its group may not be.
void Supervisor::reapOrphans() const {
    const auto until = Clock::now() + sGrace;
    while (waitpid(-1, nullptr, WNOHANG) >= 0 && Clock::now() < until) {
        constexpr int aMoment = 5;
        waitFor({}, aMoment);
    }
}

}  // namespace intake
