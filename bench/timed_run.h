// Runs of other programs, with what they cost.
#pragma once

#include <string>
#include <vector>

/// Where a program's standard output goes.
enum class Output { File, Pipe };

struct Command {
    std::vector<std::string> arguments;  ///< the program's path first
    std::string ppd;                     ///< the environment's PPD; none when empty
};

struct Cost {
    double seconds;        ///< processor time, user and system
    double peakMegabytes;  ///< largest resident memory, in units of 1,000,000 bytes
};

/// Runs a command with its output into `outputPath` or a pipe that is read to its end, and its
/// messages into nothing. Ends this program when the other one fails.
Cost timedRun(const Command& command, Output output, const std::string& outputPath);
