#pragma once

#include <string>

#include "tests/reference/job.h"
#include "tests/reference/text.h"
#include "tests/support/sanitizers.h"
#include "tests/support/temporary_folder.h"
#include "tests/system/filter_process.h"
#include "tests/system/spool_files.h"
#include "tests/system/swarm.h"

/// Runs many filters with jobs that something is wrong with, as a user who can write no dumps, and
/// holds each against the reference: standard output, status and what it complains of. Each has
/// to end by itself, within some seconds.
class FaultRuns {
public:
    /// All have the settings of this job.
    explicit FaultRuns(const reference::Job& job);

    /// A call of the job with this raster, for a test to change.
    FilterCall callWith(const std::string& raster) const;
    /// Runs the filter on a stream that holds what libcups makes of it. `name` is for messages.
    void expectReference(const std::string& raster, const std::string& name);
    /// Runs a call that is expected to come out like a job of these pages.
    void expectOutcome(const FilterCall& call, const std::vector<reference::Page>& pages,
                       const std::string& name);
    Swarm& swarm() { return swarm_; }
    const TemporaryFolder& folder() const { return folder_; }

private:
    SpoolFiles files_;  // takes the trace of another user away, here and at the end
    TemporaryFolder folder_;
    TemporaryFolder counters_;
    reference::Job job_;
    FilterCall call_;
    Swarm swarm_;
};

/// The lines of a log that are no traces, but for those of dumps that cannot be written.
reference::Lines complaintsIn(const std::string& log);

inline constexpr std::size_t kibibyte = 1024;

/// Least address space in KiB, within 16, with which a call ends with status 0 and this output.
std::size_t leastMemory(FilterCall call, const std::string& whole);

/// An ordinary user: nobody.
uid_t ordinaryUser();

/// Fewer cases where every process takes many times as long.
#ifdef KESTO_ADDRESS_SANITIZER
inline constexpr std::size_t faultStride = 8;
#else
inline constexpr std::size_t faultStride = 1;
#endif
