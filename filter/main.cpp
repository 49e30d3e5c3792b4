#include <cstdlib>

#include "filter/cancellation.h"
#include "filter/print_job.h"
#include "filter/process.h"
#include "filter/usage.h"

/// The filter: `rastertokestotspl job_id user title copies options [file]`. Reads CUPS raster,
/// writes TSPL to standard output. Status 0 at the end of the raster and for a job that SIGTERM
/// cancels, 1 for any failure.
int main(int argc, char* argv[]) {
    prepareProcess();
    if (argc < 6) {
        printUsage(argv[0]);
        return EXIT_FAILURE;
    }
    PrintJob job;
    if (!job.openInput(argc > 6 ? argv[6] : nullptr)) {
        return EXIT_FAILURE;
    }
    heedCancellation(job.inputDescriptor());
    job.createPrinter();
    job.readSettings(argv[5]);
    job.startRecording();
    if (!job.hasPaperSize()) {
        return EXIT_FAILURE;
    }
    job.sendPreamble();
    return job.printPages() ? EXIT_SUCCESS : EXIT_FAILURE;
}
