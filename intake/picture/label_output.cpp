#include "intake/picture/label_output.h"

#include <unistd.h>

#include <cerrno>

#include "intake/job_failure.h"

namespace intake::picture {

void writeAll(int descriptor, std::span<const char> bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(descriptor, bytes.data(), bytes.size());
        if (written >= 0) {
            bytes = bytes.subspan(static_cast<std::size_t>(written));
        } else if (errno != EINTR) {
            failWithReason("Unable to write the picture's page");
        }
    }
}

}  // namespace intake::picture
