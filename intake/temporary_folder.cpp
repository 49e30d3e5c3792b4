#include "intake/temporary_folder.h"

#include <sys/statvfs.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "intake/descriptor.h"
#include "intake/job_failure.h"

namespace intake {
namespace {

std::string folderOfTemporaryFiles() {
    const char* folder = std::getenv("TMPDIR");
    return folder == nullptr || *folder == '\0' ? "/tmp" : folder;
}

}  // namespace

TemporaryFolder::TemporaryFolder() : path_(folderOfTemporaryFiles() + "/kesto-XXXXXX") {
    if (mkdtemp(path_.data()) == nullptr) {
        if (errno == ENOSPC) {
            failForWantOfRoom(path_);
        }
        failWithReason("Unable to make a temporary folder in " + folderOfTemporaryFiles());
    }
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::string TemporaryFolder::pathOf(std::string_view name) const {
    return path_ + "/" + std::string(name);
}

std::string TemporaryFolder::write(std::string_view name, std::string_view content) const {
    std::string path = pathOf(name);
    const Descriptor file = makeFile(path);
    while (!content.empty()) {
        const ssize_t written = ::write(file.number(), content.data(), content.size());
        if (written < 0) {
            failForWantOfRoom(path);
        }
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return path;
}

// Programs that found no room have given back what they had by the time they are asked about; what
// counts as full is less than any of them needs.
bool TemporaryFolder::isFull() const {
    constexpr unsigned long fewBytes = 64UL << 10U;
    struct statvfs disk = {};
    return statvfs(path_.c_str(), &disk) == 0 && disk.f_bavail * disk.f_frsize < fewBytes;
}

void failForWantOfRoom(const std::string& path) {
    if (errno == ENOSPC || errno == EDQUOT) {
        throw JobFailure("There is no room for the temporary file " + path);
    }
    failWithReason("Unable to write the temporary file " + path);
}

}  // namespace intake
