#include <cstdlib>
#include <exception>

#include "intake/job_arguments.h"
#include "intake/job_failure.h"
#include "intake/print_job.h"
#include "intake/signals.h"
#include "intake/standard_streams.h"

namespace {

void printJob(intake::JobArguments arguments) {
    intake::PrintJob job(std::move(arguments));
    job.takeDocument();
    job.readQueue();
    job.findPrograms();
    job.chooseLabel();
    job.print();
}

}  // namespace

/// The first filter of a queue: `documenttokestotspl job_id user title copies options [file]`.
/// Reads a PDF file, a picture or raster, chooses the label, runs CUPS's converters and
/// rastertokestotspl, which writes TSPL to standard output. Status 0 when all was printed and for
/// a job that was cancelled: that is no fault of the queue, and rastertokestotspl does the same.
/// 1 for any failure.
int main(int argc, char* argv[]) {
    intake::occupyStandardStreams();
    if (argc < intake::fewestArguments) {
        intake::printUsage();
        return EXIT_FAILURE;
    }
    intake::takeSignals();
    try {
        printJob(intake::readArguments(argc, argv));
        return EXIT_SUCCESS;
    } catch (const intake::JobCancelled&) {
        return EXIT_SUCCESS;
    } catch (const intake::FailureSaid&) {
        return EXIT_FAILURE;
    } catch (const intake::JobFailure& failure) {
        intake::logLine("ERROR", failure.what());
    } catch (const std::exception& problem) {
        intake::logLine("ERROR", std::string("The job ends: ") + problem.what());
    }
    return EXIT_FAILURE;
}
