#include "preview/input_stream.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace preview {
namespace {

constexpr std::size_t sPieceBytes = 65536;
constexpr int sMoment = 200;  // milliseconds

}  // namespace

InputStream::InputStream() : piece_(sPieceBytes) {}

InputStream::~InputStream() {
    close();
}

void InputStream::close() {
    if (descriptor_ > STDIN_FILENO) {
        ::close(descriptor_);
    }
}

std::string InputStream::open(const std::string& name) {
    close();
    name_ = name;
    position_ = 0;
    descriptor_ = ::open(name.c_str(), O_RDONLY | O_CLOEXEC);
    return descriptor_ < 0 ? std::strerror(errno) : "";
}

std::optional<struct stat> InputStream::fileStatus() const {
    struct stat status {};
    if (fstat(descriptor_, &status) != 0 || !S_ISREG(status.st_mode)) {
        return std::nullopt;
    }
    return status;
}

std::uint64_t InputStream::bytes() const {
    const auto status = fileStatus();
    return status ? static_cast<std::uint64_t>(status->st_size) : 0;
}

std::span<const std::uint8_t> InputStream::read() {
    ssize_t count = 0;
    do {
        count = ::read(descriptor_, piece_.data(), piece_.size());
    } while (count < 0 && errno == EINTR);
    if (count < 0) {
        error_ = std::strerror(errno);
        return {};
    }
    position_ += static_cast<std::uint64_t>(count);
    return std::span(piece_).first(static_cast<std::size_t>(count));
}

bool InputStream::hasShrunk() const {
    return mayGrow() && bytes() < position_;
}

bool InputStream::isReplaced() const {
    const auto mine = fileStatus();
    struct stat named {};
    // A name that nobody has may be on its way from one file to the next.
    return mine && !name_.empty() && stat(name_.c_str(), &named) == 0 &&
           (named.st_ino != mine->st_ino || named.st_dev != mine->st_dev);
}

void InputStream::rewind() {
    lseek(descriptor_, 0, SEEK_SET);
    position_ = 0;
}

void InputStream::await() const {
    // A file is always ready to be read, also at its end.
    pollfd waiting = {mayGrow() ? -1 : descriptor_, POLLIN, 0};
    poll(&waiting, 1, sMoment);
}

bool InputStream::isReady() const {
    pollfd ready = {descriptor_, POLLIN, 0};
    return poll(&ready, 1, 0) != 0;
}

}  // namespace preview
