#pragma once

#include <optional>
#include <string>
#include <vector>

namespace sizes {

/// How a program ended, and what it wrote to standard output.
struct ChildEnd {
    bool isWell = false;  ///< with status 0
    std::string output;
};

/// Runs a program and waits for its end. What it says on standard error is not heard: CUPS's
/// programs tell all they do there.
/// @param command the program's path, or its name for $PATH, then its arguments
/// @param input the text that it reads from standard input
/// @return nothing when there is no such program
/// @throw FileFailure when it cannot be started or read from
std::optional<ChildEnd> runChild(const std::vector<std::string>& command,
                                 std::string_view input = {});

}  // namespace sizes
