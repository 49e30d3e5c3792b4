#include <cstdlib>
#include <iostream>
#include <new>

#include "preview/ending_signals.h"
#include "preview/options.h"
#include "preview/preview_job.h"

/// The previewer: `tsplpreview [options] [file ...]`. Status 0 when all went well, 1 for complaints
/// or failures, 2 for a wrong command line.
int main(int argc, char* argv[]) {
    preview::catchEndingSignals();
    try {
        const auto options = preview::parseOptions(argc, argv);
        if (const int* status = std::get_if<int>(&options)) {
            return *status;
        }
        const int status = preview::runPreview(std::get<preview::Options>(options));
        if (const int signal = preview::notedSignal(); signal != 0) {
            preview::endBySignal(signal);
        }
        return status;
    } catch (const std::bad_alloc&) {
        std::cerr << "tsplpreview: not enough memory\n";
        return EXIT_FAILURE;
    }
}
