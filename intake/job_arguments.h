#pragma once

#include <string>

namespace intake {

/// What CUPS calls a filter with.
struct JobArguments {
    std::string job;
    std::string user;
    std::string title;
    std::string copies;
    std::string options;
    std::string file;  ///< empty: standard input
};

inline constexpr int fewestArguments = 6;

/// Takes `argc` (at least `fewestArguments`) arguments, the first of which is the queue's name.
JobArguments readArguments(int argc, char* argv[]);

/// Writes the command line that is expected to standard error.
void printUsage();

}  // namespace intake
