#include "preview/unfinished_file.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <set>
#include <utility>

namespace preview {
namespace {

namespace fs = std::filesystem;

// What a name stands for that is a link, also one to a file that is not there yet: the link stays.
std::string behindLinks(const std::string& name) {
    constexpr int mostLinks = 40;
    fs::path path = name;
    std::error_code none;
    for (int i = 0; i < mostLinks && fs::is_symlink(fs::symlink_status(path, none)); ++i) {
        path = path.parent_path() / fs::read_symlink(path, none);
    }
    return path.string();
}

std::set<std::pair<dev_t, ino_t>> sKept;

bool isKept(const std::string& name) {
    struct stat status {};
    return stat(name.c_str(), &status) == 0 && sKept.contains({status.st_dev, status.st_ino});
}

// A file that is complete takes the place of what has its name, which must be a file, too.
std::string whyNotReplaced(const std::string& name) {
    std::error_code none;
    const fs::file_status status = fs::status(name, none);
    if (!fs::exists(status) || fs::is_regular_file(status)) {
        return "";
    }
    return fs::is_directory(status) ? std::strerror(EISDIR) : "is no regular file";
}

}  // namespace

void keepFile(const struct stat& status) {
    sKept.emplace(status.st_dev, status.st_ino);
}

UnfinishedFile::UnfinishedFile(const std::string& name)
    : given_(name), name_(behindLinks(name)), part_(name_ + ".part") {}

UnfinishedFile::~UnfinishedFile() {
    file_.reset();
    if (removal_) {
        std::remove(part_.c_str());
    }
}

std::string UnfinishedFile::open() {
    // A link of the system to a pipe leads to what has no name.
    if (std::string why = whyNotReplaced(given_); !why.empty()) {
        return why;
    }
    if (isKept(name_) || isKept(part_)) {
        return "would take the place of a stream that is read";
    }
    // Before there is a file, so that no signal comes in between.
    removal_.emplace(part_.c_str());
    file_.reset(std::fopen(part_.c_str(), "wb"));
    if (!file_) {
        const int error = errno;
        removal_.reset();
        return std::strerror(error);
    }
    return "";
}

std::string UnfinishedFile::complete() {
    if (std::fclose(file_.release()) != 0 || std::rename(part_.c_str(), name_.c_str()) != 0) {
        return std::strerror(errno);
    }
    removal_.reset();
    return "";
}

}  // namespace preview
