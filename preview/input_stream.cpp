#include "preview/input_stream.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <vector>

namespace preview {

InputStream::~InputStream() {
    if (descriptor_ > STDIN_FILENO) {
        close(descriptor_);
    }
}

std::string InputStream::open(const std::string& name) {
    descriptor_ = ::open(name.c_str(), O_RDONLY | O_CLOEXEC);
    return descriptor_ < 0 ? std::strerror(errno) : "";
}

std::uint64_t InputStream::bytes() const {
    struct stat status {};
    if (fstat(descriptor_, &status) != 0 || !S_ISREG(status.st_mode)) {
        return 0;
    }
    return static_cast<std::uint64_t>(status.st_size);
}

std::string InputStream::readAll(const Take& take) const {
    constexpr std::size_t pieceBytes = 65536;
    std::vector<std::uint8_t> piece(pieceBytes);
    for (;;) {
        const ssize_t count = read(descriptor_, piece.data(), piece.size());
        if (count > 0) {
            if (!take(std::span(piece).first(static_cast<std::size_t>(count)))) {
                return "";
            }
        } else if (count == 0) {
            return "";
        } else if (errno != EINTR) {
            return std::strerror(errno);
        }
    }
}

}  // namespace preview
