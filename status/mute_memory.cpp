#include "status/mute_memory.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <ctime>
#include <string_view>
#include <utility>

namespace status {
namespace {

constexpr std::time_t aDay = 86400;

// FNV-1a, 64 bits (Fowler, Noll, Vo): a device's address may hold a password, and a queue's name
// anything but a slash.
std::uint64_t digest(std::string_view text) {
    std::uint64_t value = 14695981039346656037U;
    for (const char c : text) {
        value = (value ^ static_cast<unsigned char>(c)) * 1099511628211U;
    }
    return value;
}

std::string nameFor(const std::string& queue, const std::string& device) {
    char text[64];
    std::snprintf(text, sizeof text, "tsplstatus-mute-%016llx",
                  static_cast<unsigned long long>(digest(queue + '\n' + device)));
    return text;
}

class Folder {
public:
    explicit Folder(const std::string& path)
        : number_(path.empty() ? -1 : open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {}
    ~Folder() {
        if (number_ >= 0) {
            close(number_);
        }
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    int number() const { return number_; }

    // In a folder that everybody can write to, others could make it seem that a printer is mute.
    bool isSafe() const {
        struct stat details = {};
        return number_ >= 0 && fstat(number_, &details) == 0 && (details.st_mode & S_IWOTH) == 0;
    }

private:
    int number_;
};

bool isOwnFile(const struct stat& details) {
    return S_ISREG(details.st_mode) && details.st_uid == geteuid() && details.st_nlink == 1 &&
           (details.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

}  // namespace

MuteMemory::MuteMemory(std::string folder, const std::string& queue, const std::string& device)
    : folder_(std::move(folder)), name_(nameFor(queue, device)) {}

bool MuteMemory::isMute() const {
    const Folder folder(folder_);
    struct stat details = {};
    if (!folder.isSafe() ||
        fstatat(folder.number(), name_.c_str(), &details, AT_SYMLINK_NOFOLLOW) != 0 ||
        !isOwnFile(details)) {
        return false;
    }
    // A clock that has been set back makes no memory last longer.
    const std::time_t age = std::time(nullptr) - details.st_mtime;
    return age >= 0 && age < aDay;
}

// Made anew, so that its time is now, and never opened when it is there already.
void MuteMemory::remember() const {
    forget();
    const Folder folder(folder_);
    if (!folder.isSafe()) {
        return;
    }
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    const int file = openat(folder.number(), name_.c_str(), flags, S_IRUSR | S_IWUSR);
    if (file >= 0) {
        close(file);
    }
}

void MuteMemory::forget() const {
    const Folder folder(folder_);
    struct stat details = {};
    if (folder.isSafe() &&
        fstatat(folder.number(), name_.c_str(), &details, AT_SYMLINK_NOFOLLOW) == 0 &&
        isOwnFile(details)) {
        unlinkat(folder.number(), name_.c_str(), 0);
    }
}

}  // namespace status
