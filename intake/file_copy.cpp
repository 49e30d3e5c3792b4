#include "intake/file_copy.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>

#include "intake/descriptor.h"
#include "intake/job_failure.h"
#include "intake/temporary_folder.h"

namespace intake {
namespace {

constexpr std::size_t sPiece = 1U << 16U;

void writeAll(int file, const char* data, std::size_t size, const std::string& path) {
    while (size > 0) {
        const ssize_t written = write(file, data, size);
        if (written < 0) {
            failForWantOfRoom(path);
        }
        data += written;
        size -= static_cast<std::size_t>(written);
    }
}

// False at the end.
bool copyPiece(int input, int file, const std::string& path) {
    std::array<char, sPiece> buffer;
    const ssize_t got = read(input, buffer.data(), buffer.size());
    if (got < 0) {
        failWithReason("Unable to read the document");
    }
    writeAll(file, buffer.data(), static_cast<std::size_t>(got), path);
    return got > 0;
}

}  // namespace

void copyToFile(int input, const std::string& path, Supervisor& supervisor) {
    const Descriptor file = makeFile(path);
    for (;;) {
        pollfd source{input, POLLIN, 0};
        supervisor.wait({&source, 1});
        if (source.revents == 0) {
            continue;
        }
        if (!copyPiece(input, file.number(), path)) {
            return;
        }
    }
}

}  // namespace intake
