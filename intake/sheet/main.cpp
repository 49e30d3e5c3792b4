#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>

#include "intake/job_failure.h"
#include "intake/memory_bound.h"
#include "intake/sheet/command_line.h"
#include "intake/sheet/sheet_job.h"

/// Cuts labels out of the pages that they come on: `pdftokestolabels --label WIDTHxHEIGHT FILE`.
/// Writes them to standard output. Status 0 when all were written, 1 with one line on standard
/// error when not.
int main(int argc, char* argv[]) {
    using namespace intake;
    const auto line = sheet::readCommandLine(argc, argv);
    if (!line) {
        return EXIT_FAILURE;
    }
    try {
        boundMemory();
        sheet::cutLabels(*line, stdout);
        return EXIT_SUCCESS;
    } catch (const JobFailure& failure) {
        logLine("ERROR", failure.what());
    } catch (const std::exception& problem) {
        logLine("ERROR", std::string("No labels can be cut out: ") + problem.what());
    }
    return EXIT_FAILURE;
}
