// A whole job: from its settings and pages to everything the filter leaves behind.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tests/reference/grey_image.h"
#include "tests/reference/job_log.h"
#include "tests/reference/page.h"

namespace reference {

/// A job. The settings' page size is not read: it comes from `ppdSize` and then from each
/// page. The rows of every page hold its width, and its size in bytes fits 32 bits: what a filter
/// makes of others is its own affair, and so is what it says beyond the lines of its steps.
struct Job {
    Settings settings;
    PpdSize ppdSize;
    std::vector<Page> pages;
    /// Name of the recording file, empty when there is none.
    std::string recordingName;
    /// Whether the folder of the image dumps can be written.
    bool dumpFolderWritable = true;
};

/// What the filter leaves behind.
struct Outcome {
    /// Also the content of the recording file, if there is one.
    std::string standardOutput;
    /// `<address>` stands for numbers that no run can foresee, `<time>` for a date and time.
    std::string standardError;
    /// Exit status of the process.
    int status = 1;
    /// Content of the trace file; none when no page got as far as writing it.
    std::optional<std::string> trace;
    /// Dump files in the order written: raw page, finished page, raw page, ...
    std::vector<Bytes> dumps;
};

/// Runs a job.
Outcome runJob(const Job& job);

}  // namespace reference
