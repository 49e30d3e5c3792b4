#include <cstdarg>

#include "driver/kesto_printer.h"

// Write errors are not looked at: the results say nothing, and one failed stream does not keep
// the others from being served.

bool KestoPrinter::printBytes(const unsigned char* buf, std::size_t size) {
    for (std::FILE* stream : outputStreams_) {
        std::fwrite(buf, size, 1, stream);
    }
    return false;
}

bool KestoPrinter::printStr(const char* s) {
    for (std::FILE* stream : outputStreams_) {
        std::fprintf(stream, "%s", s);
    }
    return false;
}

int KestoPrinter::printFormat(const char* format, ...) {
    int written = 0;
    va_list args;
    va_start(args, format);
    for (std::FILE* stream : outputStreams_) {
        va_list copy;
        va_copy(copy, args);
        written = std::vfprintf(stream, format, copy);
        va_end(copy);
    }
    va_end(args);
    return written;
}
