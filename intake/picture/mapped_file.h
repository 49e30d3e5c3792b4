#pragma once

#include <cstddef>
#include <span>
#include <string>

namespace intake::picture {

/// A whole file as memory, read as it is looked at.
class MappedFile {
public:
    /// Throws JobFailure.
    explicit MappedFile(const std::string& path);
    ~MappedFile();
    MappedFile(const MappedFile&) = delete;
    MappedFile& operator=(const MappedFile&) = delete;

    std::span<const unsigned char> bytes() const { return bytes_; }

private:
    std::span<const unsigned char> bytes_;
};

}  // namespace intake::picture
