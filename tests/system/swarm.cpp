#include "tests/system/swarm.h"

#include <sys/wait.h>

#include <algorithm>
#include <thread>
#include <utility>

Swarm::Swarm() : Swarm(std::max(1U, std::thread::hardware_concurrency())) {}

void Swarm::run(const FilterCall& call, Check check) {
    while (members_.size() >= atATime_) {
        awaitOne();
    }
    Member member = {MemoryFile(call.standardInput), MemoryFile(), MemoryFile(), std::move(check)};
    const pid_t child = startFilter(
        call, {member.input.descriptor(), member.output.descriptor(), member.errors.descriptor()});
    members_.emplace(child, std::move(member));
}

void Swarm::finish() {
    while (!members_.empty()) {
        awaitOne();
    }
}

void Swarm::awaitOne() {
    int status = 0;
    const auto found = members_.find(waitpid(-1, &status, 0));
    if (found != members_.end()) {
        const Member member = std::move(found->second);
        members_.erase(found);
        member.check({member.output.content(), member.errors.content(), statusOf(status)});
    }
}
