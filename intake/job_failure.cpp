#include "intake/job_failure.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace intake {

void failWithReason(const std::string& text) {
    throw JobFailure(text + ": " + std::strerror(errno));
}

// One write, so that lines of a job's filters stay whole.
void logLine(const char* level, const std::string& text) {
    const std::string line = std::string(level) + ": " + text + "\n";
    if (write(STDERR_FILENO, line.data(), line.size()) < 0) {
        return;  // There is nobody to tell.
    }
}

}  // namespace intake
