#include "filter/process.h"

#include <fcntl.h>
#include <unistd.h>

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

// Nothing of the filter throws but an allocation of the C++ library, and nothing catches it.
// Buffers hold whole commands then: halftoning, which allocates, is over when a bitmap begins.
[[noreturn]] void endWithoutMemory() {
    kestoLogCommon(kestoLogCritical, "Out of memory, the job ends");
    std::fflush(nullptr);
    std::_Exit(EXIT_FAILURE);
}

}  // namespace

void prepareProcess() {
    occupyStandardStreams();
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    std::set_terminate(endWithoutMemory);
}
