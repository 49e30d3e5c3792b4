#include "sizes/command/descriptor.h"

#include <fcntl.h>
#include <unistd.h>

#include <utility>

namespace sizes {

Descriptor::Descriptor(Descriptor&& other) noexcept
    : descriptor_(std::exchange(other.descriptor_, -1)) {}

bool Descriptor::close() {
    const int descriptor = std::exchange(descriptor_, -1);
    return descriptor < 0 || ::close(descriptor) == 0;
}

void fillStandardStreams() {
    int descriptor = open("/dev/null", O_RDONLY);
    while (descriptor >= 0 && descriptor <= STDERR_FILENO) {
        descriptor = open("/dev/null", O_RDONLY);
    }
    ::close(descriptor);
}

}  // namespace sizes
