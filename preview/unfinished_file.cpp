#include "preview/unfinished_file.h"

#include <cerrno>
#include <cstring>

namespace preview {

UnfinishedFile::~UnfinishedFile() {
    file_.reset();
    if (removal_) {
        std::remove(part_.c_str());
    }
}

std::string UnfinishedFile::open() {
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
