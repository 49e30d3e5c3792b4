#pragma once

#include <sys/types.h>

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// How to start the filter.
struct FilterCall {
    std::string program = KESTO_FILTER;
    std::vector<std::string> arguments;  ///< behind the program's name
    std::string standardInput;           ///< all that it can read there
    std::vector<std::pair<std::string, std::string>> environment;
    std::string workingFolder;                ///< empty for the current one
    std::optional<uid_t> userId;              ///< user and group to run as; needs root
    std::optional<std::size_t> addressSpace;  ///< most bytes of memory that it may map
};

/// What a finished filter process left behind on its standard streams.
struct FilterResult {
    std::string standardOutput;
    std::string standardError;
    int status = -1;  ///< exit status, or minus the signal that ended it
};

/// Runs the filter to its end. A process that does not end within a minute is killed.
FilterResult runFilter(const FilterCall& call);
