#include "driver/own_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace {

// Looked at through the descriptor: nobody can change what it stands for any more.
bool isOwnFile(int file) {
    struct stat status = {};
    if (fstat(file, &status) != 0) {
        return false;
    }
    if (!S_ISREG(status.st_mode) || status.st_uid != geteuid() || status.st_nlink != 1) {
        errno = EEXIST;
        return false;
    }
    return true;
}

// A file from before keeps its permissions when it is opened; it must not keep wider ones.
bool makeEmpty(int file, mode_t permissions) {
    struct stat status = {};
    return fstat(file, &status) == 0 && fchmod(file, status.st_mode & permissions) == 0 &&
           ftruncate(file, 0) == 0;
}

std::FILE* closeAndFail(int file) {
    const int reason = errno;
    close(file);
    errno = reason;
    return nullptr;
}

}  // namespace

std::FILE* openOwnFile(const char* path, mode_t permissions) {
    // Not emptied yet: whose it is shows only once it is open. Without O_NONBLOCK a named pipe
    // would wait for a reader.
    constexpr int flags = O_WRONLY | O_CREAT | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    const int file = open(path, flags, permissions);
    if (file == -1) {
        return nullptr;
    }
    if (!isOwnFile(file) || !makeEmpty(file, permissions)) {
        return closeAndFail(file);
    }
    std::FILE* stream = fdopen(file, "w");
    return stream != nullptr ? stream : closeAndFail(file);
}
