#include "filter/output_check.h"

#include <cerrno>

int flushStream(std::FILE* stream) {
    errno = 0;
    const bool flushed = std::fflush(stream) == 0;
    if (flushed && std::ferror(stream) == 0) {
        return 0;
    }
    // What was lost earlier has left its mark on the stream, but no reason.
    return !flushed && errno != 0 ? errno : EIO;
}
