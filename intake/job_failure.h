#pragma once

#include <stdexcept>
#include <string>

namespace intake {

/// The job cannot be printed; the text is the line for people that says why.
class JobFailure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The job was cancelled. Says nothing more, and is no failure.
class JobCancelled : public std::exception {};

/// The job cannot be printed, and a child has said why.
class FailureSaid : public std::exception {};

/// JobFailure with the reason of the last system call.
[[noreturn]] void failWithReason(const std::string& text);

/// Writes one line for the spooler's log to standard error: "INFO: text".
void logLine(const char* level, const std::string& text);

}  // namespace intake
