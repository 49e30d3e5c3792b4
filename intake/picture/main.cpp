#include <unistd.h>

#include <cstdlib>
#include <exception>

#include "intake/job_failure.h"
#include "intake/memory_bound.h"
#include "intake/picture/command_line.h"
#include "intake/picture/decoder.h"
#include "intake/picture/picture_job.h"

/// Places a picture on labels: `picturetokestolabel --dots WIDTHxHEIGHT --dpi N ... FILE`. Writes
/// them to standard output. Status 0 when all were written, 1 with one line on standard error when
/// not.
int main(int argc, char* argv[]) {
    using namespace intake;
    const auto line = picture::readCommandLine(argc, argv);
    if (!line) {
        return EXIT_FAILURE;
    }
    try {
        boundMemory();
        picture::startDecoder();
        picture::printPictures(*line, STDOUT_FILENO);
        return EXIT_SUCCESS;
    } catch (const JobFailure& failure) {
        logLine("ERROR", failure.what());
    } catch (const std::exception& problem) {
        logLine("ERROR", std::string("The picture cannot be printed: ") + problem.what());
    }
    return EXIT_FAILURE;
}
