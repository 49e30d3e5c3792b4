#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// A folder of its own for one test, which every user may enter; removed with its content.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::filesystem::path path(std::string_view name) const { return folder_ / name; }
    /// Writes a file and returns its path.
    std::string write(std::string_view name, std::string_view content) const;

private:
    std::filesystem::path folder_;
};

/// The whole content of a file; empty when it cannot be read.
std::string readFile(const std::filesystem::path& path);
