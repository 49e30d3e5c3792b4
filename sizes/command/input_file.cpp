#include "sizes/command/input_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>

#include "sizes/command/descriptor.h"
#include "sizes/command/failure.h"

namespace sizes {
namespace {

ssize_t readSome(int descriptor, char* bytes, std::size_t size) {
    ssize_t count = -1;
    do {
        count = read(descriptor, bytes, size);
    } while (count < 0 && errno == EINTR);
    return count;
}

}  // namespace

std::string readAll(int descriptor, const std::string& name) {
    constexpr std::size_t pieceSize = 65536;
    std::array<char, pieceSize> piece;
    std::string text;
    while (text.size() <= largestDescription) {
        const ssize_t count = readSome(descriptor, piece.data(), piece.size());
        if (count < 0) {
            throw FileFailure(name, errno);
        }
        if (count == 0) {
            return text;
        }
        text.append(piece.data(), static_cast<std::size_t>(count));
    }
    throw Failure(name + ": is too large for a PPD file");
}

std::string readFile(const std::string& name) {
    const Descriptor file(open(name.c_str(), O_RDONLY | O_CLOEXEC));
    if (file.get() < 0) {
        throw FileFailure(name, errno);
    }
    return readAll(file.get(), name);
}

}  // namespace sizes
