#include <csignal>
#include <cstdlib>
#include <iostream>
#include <new>

#include "sizes/command/command_line.h"
#include "sizes/command/descriptor.h"
#include "sizes/command/failure.h"
#include "sizes/command/size_command.h"

namespace {

int fail(const char* reason) {
    std::cerr << "kesto-tspl-size: " << reason << '\n';
    return EXIT_FAILURE;
}

}  // namespace

/// Makes queue descriptions for sizes of the user's own: `kesto-tspl-size [options] size...`.
/// Status 0 when it is written, 1 when it cannot be made, 2 for a wrong command line.
int main(int argc, char* argv[]) {
    try {
        sizes::fillStandardStreams();
        // Whoever started this may not want to hear of children, but it has to.
        std::signal(SIGCHLD, SIG_DFL);
        const auto options = sizes::parseCommandLine(argc, argv);
        if (const int* status = std::get_if<int>(&options)) {
            return *status;
        }
        sizes::runSizeCommand(std::get<sizes::Options>(options));
        return EXIT_SUCCESS;
    } catch (const sizes::Failure& failure) {
        return fail(failure.what());
    } catch (const std::bad_alloc&) {
        return fail("not enough memory");
    }
}
