#pragma once

#include <string>
#include <string_view>

namespace intake {

/// A folder below $TMPDIR that nobody else can look into, with all temporary files of the job, of
/// this program and of those that it starts. Goes with everything in it.
class TemporaryFolder {
public:
    /// Throws JobFailure.
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& path() const { return path_; }
    std::string pathOf(std::string_view name) const;

    /// Writes a whole file and returns its path. Throws JobFailure.
    std::string write(std::string_view name, std::string_view content) const;

    /// Whether its disk is full.
    bool isFull() const;

private:
    std::string path_;
};

/// A write into a temporary file failed: throws JobFailure with the reason.
[[noreturn]] void failForWantOfRoom(const std::string& path);

}  // namespace intake
