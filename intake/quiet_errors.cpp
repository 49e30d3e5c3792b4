#include "intake/quiet_errors.h"

#include <fcntl.h>
#include <unistd.h>

namespace intake {

QuietErrors::QuietErrors() : before_(fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 0)) {
    const Descriptor nothing(open("/dev/null", O_WRONLY | O_CLOEXEC));
    if (before_.number() >= 0 && nothing.number() >= 0) {
        dup2(nothing.number(), STDERR_FILENO);
    }
}

QuietErrors::~QuietErrors() {
    if (before_.number() >= 0) {
        dup2(before_.number(), STDERR_FILENO);
    }
}

}  // namespace intake
