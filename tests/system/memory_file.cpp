#include "tests/system/memory_file.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

MemoryFile::MemoryFile(const std::string& content)
    : descriptor_(memfd_create("kesto-test", MFD_CLOEXEC)) {
    const auto size = static_cast<ssize_t>(content.size());
    if (descriptor_ == -1 || pwrite(descriptor_, content.data(), content.size(), 0) != size) {
        throw std::runtime_error("no file in memory");
    }
}

MemoryFile::~MemoryFile() {
    if (descriptor_ != -1) {
        close(descriptor_);
    }
}

MemoryFile::MemoryFile(MemoryFile&& other) noexcept
    : descriptor_(std::exchange(other.descriptor_, -1)) {}

std::string MemoryFile::content() const {
    std::string content(static_cast<std::size_t>(lseek(descriptor_, 0, SEEK_END)), '\0');
    content.resize(static_cast<std::size_t>(
        std::max(ssize_t{0}, pread(descriptor_, content.data(), content.size(), 0))));
    return content;
}
