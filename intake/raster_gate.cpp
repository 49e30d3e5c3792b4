#include "intake/raster_gate.h"

#include <sys/ioctl.h>

namespace intake {
namespace {

// A sync word and the header of raster versions 2 and 3. All converters write one of these.
constexpr int sPageBeginning = 4 + 1796;

int waitingBytes(int pipe) {
    int count = 0;
    return ioctl(pipe, FIONREAD, &count) == 0 ? count : 0;
}

}  // namespace

bool waitForPage(int pipe, Supervisor& supervisor) {
    for (;;) {
        // Looked at before the bytes are counted: what is there at the end stays there.
        pollfd raster{pipe, POLLIN, 0};
        const int before = waitingBytes(pipe);
        // Some bytes are there already, and a sleep for more would not be one.
        constexpr int aMoment = 2;
        supervisor.wait(before == 0 ? std::span(&raster, 1) : std::span<pollfd>(),
                        before == 0 ? -1 : aMoment);
        if (waitingBytes(pipe) >= sPageBeginning) {
            return true;
        }
        pollfd end{pipe, 0, 0};
        supervisor.wait({&end, 1}, 0);
        if ((end.revents & POLLHUP) != 0) {
            return waitingBytes(pipe) >= sPageBeginning;
        }
    }
}

}  // namespace intake
