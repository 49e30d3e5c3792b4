#pragma once

#include <string>

/// A nameless file in memory, for a process to read from or to write to.
class MemoryFile {
public:
    /// Holds `content`, to be read from its start.
    explicit MemoryFile(const std::string& content = "");
    ~MemoryFile();
    MemoryFile(MemoryFile&& other) noexcept;
    MemoryFile& operator=(MemoryFile&&) = delete;
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    int descriptor() const { return descriptor_; }
    /// Everything in it, wherever it was read or written last.
    std::string content() const;

private:
    int descriptor_;
};
