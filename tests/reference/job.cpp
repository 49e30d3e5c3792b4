#include "tests/reference/job.h"

#include "tests/reference/page_print.h"
#include "tests/reference/trace.h"
#include "tests/reference/tspl.h"

namespace reference {

namespace {

/// A job while it runs.
struct Run {
    Outcome outcome;
    Lines log;
    PrinterState printer;
    int pageNumber = 0;
};

/// Whether the job goes on after a step.
enum class Next { kGoOn, kEnd };

Next endJob(Run& run, int status) {
    run.outcome.status = status;
    return Next::kEnd;
}

Next failJob(Run& run, const std::string& line) {
    run.log.push_back(line);
    return endJob(run, 1);
}

bool isTooSmall(float millimetres) {
    return 0.000001 >= static_cast<double>(millimetres);
}

Next checkPage(Run& run, const PageHeader& header) {
    if (header.bitsPerPixel != 8) {
        return failJob(run, depthLine(header));
    }
    if (header.height == 0 || header.bytesPerLine == 0) {
        return endJob(run, 0);
    }
    return Next::kGoOn;
}

void beginPage(Run& run, const Settings& jobSettings, const PageHeader& header) {
    run.outcome.trace = traceText(header);
    const Settings settings = withPageSize(jobSettings, header);
    ++run.pageNumber;
    append(run.log, pageStartLog(settings, header, run.pageNumber));
    run.outcome.standardOutput += setUpBlock(settings) + clearCommand();
}

void printPixels(Run& run, const Settings& settings, const Page& page) {
    const PrintedPage printed = printPage(page, propertiesOf(settings), run.printer);
    append(run.log, printed.log);
    run.outcome.standardOutput += printed.output;
    for (const Bytes& dump : printed.dumps) {
        run.outcome.dumps.push_back(dump);
    }
}

Next runPage(Run& run, const Settings& settings, const Page& page) {
    if (checkPage(run, page.header) == Next::kEnd) {
        return Next::kEnd;
    }
    beginPage(run, settings, page.header);
    if (page.readable) {
        printPixels(run, settings, page);
    }
    return Next::kGoOn;
}

Next startJob(Run& run, const Job& job, const Settings& settings) {
    run.printer.dumpFolderWritable = job.dumpFolderWritable;
    append(run.log, settingsLog(settings, job.ppdSize));
    if (!job.recordingName.empty()) {
        run.log.push_back(recordingLine(job.recordingName));
    }
    if (isTooSmall(settings.pageWidth) || isTooSmall(settings.pageHeight)) {
        return failJob(run, paperSizeLine(settings));
    }
    run.outcome.standardOutput = preamble();
    return Next::kGoOn;
}

void runSteps(Run& run, const Job& job) {
    const Settings settings = withPpdSize(job.settings, job.ppdSize);
    if (startJob(run, job, settings) == Next::kEnd) {
        return;
    }
    for (const Page& page : job.pages) {
        if (runPage(run, settings, page) == Next::kEnd) {
            return;
        }
    }
    endJob(run, 0);
}

}  // namespace

Outcome runJob(const Job& job) {
    Run run;
    runSteps(run, job);
    run.outcome.standardError = joined(run.log);
    return run.outcome;
}

}  // namespace reference
