#pragma once

#include <functional>
#include <map>

#include "tests/system/filter_process.h"
#include "tests/system/memory_file.h"

/// Runs filters, some at a time, and looks at each when it has ended.
class Swarm {
public:
    using Check = std::function<void(const FilterResult&)>;

    /// As many at a time as this machine has processors.
    Swarm();
    explicit Swarm(std::size_t atATime) : atATime_(atATime) {}
    ~Swarm() { finish(); }
    Swarm(const Swarm&) = delete;
    Swarm& operator=(const Swarm&) = delete;

    /// Starts a filter as soon as there is room for it.
    void run(const FilterCall& call, Check check);
    /// Waits for all.
    void finish();

private:
    struct Member {
        MemoryFile input;
        MemoryFile output;
        MemoryFile errors;
        Check check;
    };

    void awaitOne();

    std::size_t atATime_;
    std::map<pid_t, Member> members_;
};
