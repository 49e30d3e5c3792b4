#include <unistd.h>

#include <cstdlib>
#include <exception>
#include <string>

#include "intake/content/raster_job.h"
#include "intake/job_failure.h"

/// Separates the content of raster: reads it from standard input, makes bilevel places of its pages
/// black and white and writes it to standard output. Status 0 when all of it was written, 1 with
/// one line on standard error when not.
int main() {
    try {
        intake::content::separateRaster(STDIN_FILENO, STDOUT_FILENO);
        return EXIT_SUCCESS;
    } catch (const intake::JobFailure& failure) {
        intake::logLine("ERROR", failure.what());
    } catch (const std::exception& problem) {
        intake::logLine("ERROR", std::string("The raster cannot be separated: ") + problem.what());
    }
    return EXIT_FAILURE;
}
