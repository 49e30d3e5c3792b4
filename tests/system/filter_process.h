#pragma once

#include <sys/types.h>

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// What a process finds SIGTERM set to when it starts.
enum class Termination { AsUsual, Ignored, Blocked };

/// The filter of this build, or the copy of it that KESTO_FILTER_COPY names.
std::string testedFilter();

/// How to start the filter, or another program.
struct FilterCall {
    std::string program = testedFilter();
    std::vector<std::string> arguments;  ///< behind the program's name
    std::string standardInput;           ///< all that it can read there
    std::vector<std::pair<std::string, std::string>> environment;
    std::string workingFolder;                ///< empty for the current one
    std::optional<uid_t> userId;              ///< user and group to run as; needs root
    std::optional<std::size_t> addressSpace;  ///< most bytes of memory that it may map
    std::optional<std::size_t> fileSize;      ///< most bytes that it may write to a file
    Termination termination = Termination::AsUsual;
    unsigned longestRun = 60;  ///< seconds after which it is killed
};

/// What a finished filter process left behind on its standard streams.
struct FilterResult {
    std::string standardOutput;
    std::string standardError;
    int status = -1;  ///< exit status, or minus the signal that ended it
};

/// Descriptors that become the standard streams of a process; -1 for a closed one.
struct Streams {
    int input;
    int output;
    int errors;
};

/// Starts the filter with these streams; what the call says of its input is not read.
pid_t startFilter(const FilterCall& call, const Streams& streams);

/// Waits for the end of a process. Its exit status, or minus the signal that ended it.
int waitForEnd(pid_t process);

/// As `FilterResult` has it, out of what `waitpid` says.
int statusOf(int waitStatus);

/// Runs the filter to its end.
FilterResult runFilter(const FilterCall& call);
