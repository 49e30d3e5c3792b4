#include "sizes/command/output_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <optional>

#include "sizes/command/descriptor.h"
#include "sizes/command/failure.h"
#include "sizes/command/signal_pause.h"

namespace sizes {
namespace {

constexpr mode_t permissionBits = 0777;
constexpr mode_t newFile = 0666;

// What is there now; nothing where nothing is.
std::optional<struct stat> replacedFile(const std::string& name) {
    struct stat status {};
    if (lstat(name.c_str(), &status) != 0) {
        if (errno != ENOENT) {
            throw FileFailure(name, errno);
        }
        return std::nullopt;
    }
    if (!S_ISREG(status.st_mode)) {
        throw Failure(name + ": is there and is no ordinary file");
    }
    return status;
}

mode_t newPermissions() {
    const mode_t mask = umask(0);
    umask(mask);
    return newFile & ~mask;
}

// A file of no lasting name in the folder of another, gone at the end unless it gets that name.
class TemporaryFile {
public:
    explicit TemporaryFile(const std::string& target)
        : path_(target.substr(0, target.rfind('/') + 1) + ".kesto-tspl-size.XXXXXX"),
          file_(mkostemp(path_.data(), O_CLOEXEC)) {
        if (file_.get() < 0) {
            throw FileFailure(target, errno);
        }
    }
    ~TemporaryFile() {
        if (!path_.empty()) {
            unlink(path_.c_str());
        }
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    int descriptor() const { return file_.get(); }

    // False when the file cannot have the name, or is not on the disk.
    bool becomes(const std::string& name) {
        if (fsync(file_.get()) != 0 || !file_.close() ||
            std::rename(path_.c_str(), name.c_str()) != 0) {
            return false;
        }
        path_.clear();
        return true;
    }

private:
    std::string path_;
    Descriptor file_;
};

// The owner first: giving a file away can take permissions from it.
bool takeAfter(int descriptor, const std::optional<struct stat>& replaced) {
    if (replaced && fchown(descriptor, replaced->st_uid, replaced->st_gid) != 0 && errno != EPERM) {
        return false;
    }
    const mode_t permissions = replaced ? replaced->st_mode & permissionBits : newPermissions();
    return fchmod(descriptor, permissions) == 0;
}

}  // namespace

void writeFile(const std::string& name, std::string_view text) {
    const auto replaced = replacedFile(name);
    const SignalPause pause;
    TemporaryFile file(name);
    if (!writeAll(file.descriptor(), text) || !takeAfter(file.descriptor(), replaced) ||
        !file.becomes(name)) {
        throw FileFailure(name, errno);
    }
}

bool writeAll(int descriptor, std::string_view text) {
    while (!text.empty()) {
        const ssize_t count = write(descriptor, text.data(), text.size());
        if (count < 0 && errno != EINTR) {
            return false;
        }
        text.remove_prefix(count > 0 ? static_cast<std::size_t>(count) : 0);
    }
    return true;
}

void writeToStandardOutput(std::string_view text) {
    if (!writeAll(STDOUT_FILENO, text) || close(STDOUT_FILENO) != 0) {
        throw FileFailure("standard output", errno);
    }
}

}  // namespace sizes
