#include "intake/standard_streams.h"

#include <fcntl.h>
#include <unistd.h>

#include <initializer_list>

namespace intake {

// Opened the wrong way round. Descriptors are handed out from the lowest.
void occupyStandardStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) == -1) {
            open("/dev/null", stream == STDOUT_FILENO ? O_RDONLY : O_WRONLY);
        }
    }
}

}  // namespace intake
