#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

/// A file in memory, under a name by which this process can open it. Ends the process when the
/// system has none to give.
class MemoryFile {
public:
    MemoryFile() : descriptor_(memfd_create("input", MFD_CLOEXEC)) {
        if (descriptor_ == -1) {
            std::abort();
        }
        path_ = "/proc/self/fd/" + std::to_string(descriptor_);
    }
    ~MemoryFile() { close(descriptor_); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    const std::string& path() const { return path_; }

    /// Puts `content` in the place of what the file held.
    void fill(const std::string& content) {
        if (ftruncate(descriptor_, 0) != 0 || pwrite(descriptor_, content.data(), content.size(),
                                                     0) != static_cast<ssize_t>(content.size())) {
            std::abort();
        }
    }

private:
    int descriptor_;
    std::string path_;
};
