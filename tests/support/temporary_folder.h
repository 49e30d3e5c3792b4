#pragma once

#include <filesystem>
#include <set>
#include <string>

#include "tests/reference/grey_image.h"

/// A folder of its own for one test, which every user may enter; removed with its content.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string path(const std::string& name) const { return (folder_ / name).string(); }
    /// Writes a file and returns its path.
    std::string write(const std::string& name, const std::string& content) const;
    /// Names of the files in it.
    std::set<std::string> names() const;

private:
    std::filesystem::path folder_;
};

/// The whole content of a file; empty when it cannot be read.
std::string readFile(const std::string& path);
reference::Bytes readBytes(const std::string& path);
