#include "driver/own_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

OwnedFile openNewFile(const char* path, mode_t permissions) {
    const int file = open(path, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, permissions);
    OwnedFile stream(file != -1 ? fdopen(file, "w") : nullptr);
    if (file != -1 && !stream) {
        close(file);
    }
    return stream;
}

OwnedFile replaceOwnFile(const char* path, mode_t permissions) {
    struct stat status = {};
    if (lstat(path, &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == geteuid()) {
        unlink(path);
    }
    return openNewFile(path, permissions);
}
