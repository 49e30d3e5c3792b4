#include "filter/process.h"

#include <fcntl.h>
#include <unistd.h>
#if __has_include(<malloc.h>)
#include <malloc.h>
#endif

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <initializer_list>

#include "driver/log.h"

namespace {

// Opened the wrong way round: reading the input and writing the output must go on failing, as
// they do on a closed descriptor. Descriptors are handed out from the lowest.
void occupyStandardStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) == -1) {
            open("/dev/null", stream == STDOUT_FILENO ? O_RDONLY : O_WRONLY);
        }
    }
}

// A line of the log is one write, so that lines of the filters of a job stay whole, and the dots of
// a page go out in few: as many bytes at a time as a pipe takes.
void bufferStandardStreams() {
    static std::array<char, 1U << 12U> logLine;
    static std::array<char, 1U << 16U> output;
    std::setvbuf(stderr, logLine.data(), _IOLBF, logLine.size());
    std::setvbuf(stdout, output.data(), _IOFBF, output.size());
}

// Every page takes and gives back blocks of the same few sizes. Handed back to the system, they
// would come again as zeroed memory, which costs more than what is done on it: freed blocks are
// kept.
void keepFreedMemory() {
#if defined(M_MMAP_MAX) && defined(M_TRIM_THRESHOLD)
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, -1);
#endif
}

// Nothing of the filter throws but an allocation of the C++ library, and only error diffusion's is
// caught. Buffers hold whole commands then: halftoning, which allocates, is over when a bitmap
// begins.
[[noreturn]] void endWithoutMemory() {
    kestoLogCommon(kestoLogCritical, "Out of memory, the job ends");
    std::fflush(nullptr);
    std::_Exit(EXIT_FAILURE);
}

}  // namespace

void prepareProcess() {
    occupyStandardStreams();
    bufferStandardStreams();
    keepFreedMemory();
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    std::set_terminate(endWithoutMemory);
}
