#include "tests/system/fault_job.h"

#include <gtest/gtest.h>
#include <pwd.h>

#include <filesystem>
#include <sstream>
#include <stdexcept>

#include "tests/support/raster_reader.h"
#include "tests/system/remarks.h"
#include "tests/system/test_job.h"

namespace {

constexpr unsigned longestRun = 20;

void compare(const reference::Outcome& expected, const FilterResult& actual,
             const std::string& name) {
    EXPECT_EQ(expected.status, actual.status) << name;
    EXPECT_TRUE(expected.standardOutput == actual.standardOutput) << name << ": standard output";
    EXPECT_EQ(complaintsIn(expected.standardError),
              complaintsIn(withoutRemarks(actual.standardError)))
        << name;
}

// A page that contradicts itself, the last one then, ends the job in failure.
reference::Outcome outcomeOf(reference::Job job, const std::vector<reference::Page>& pages) {
    const bool refused = !pages.empty() && contradictsItself(pages.back().header);
    job.pages.assign(pages.begin(), pages.end() - (refused ? 1 : 0));
    reference::Outcome outcome = reference::runJob(job);
    outcome.status = refused ? 1 : outcome.status;
    return outcome;
}

}  // namespace

uid_t ordinaryUser() {
    const passwd* nobody = getpwnam("nobody");
    if (nobody == nullptr) {
        throw std::runtime_error("no user nobody");
    }
    return nobody->pw_uid;
}

reference::Lines complaintsIn(const std::string& log) {
    reference::Lines lines;
    std::istringstream text(log);
    for (std::string line; std::getline(text, line);) {
        const bool dump = line.starts_with("KestoPrinter::saveImage: unable to open the file ");
        if (!line.empty() && !line.starts_with("DEBUG:") && !dump) {
            lines.push_back(line);
        }
    }
    return lines;
}

std::size_t leastMemory(FilterCall call, const std::string& whole) {
    std::size_t tooLittle = 0;
    std::size_t enough = std::size_t{1} << 20;
    while (enough - tooLittle > 16) {
        const std::size_t middle = (enough + tooLittle) / 2;
        call.addressSpace = middle * kibibyte;
        const FilterResult result = runFilter(call);
        const bool complete = result.status == 0 && result.standardOutput == whole;
        (complete ? enough : tooLittle) = middle;
    }
    return enough;
}

FaultRuns::FaultRuns(const reference::Job& job) : job_(job), call_(callFor(job, folder_)) {
    call_.userId = ordinaryUser();
    call_.longestRun = longestRun;
    // A filter that counts its coverage must find a place for the counters, or it complains.
    std::filesystem::permissions(counters_.path(""), std::filesystem::perms::all);
    call_.environment.emplace_back("GCOV_PREFIX", counters_.path(""));
    job_.dumpFolderWritable = false;
}

FilterCall FaultRuns::callWith(const std::string& raster) const {
    FilterCall call = call_;
    call.standardInput = raster;
    return call;
}

void FaultRuns::expectReference(const std::string& raster, const std::string& name) {
    expectOutcome(callWith(raster), pagesIn(raster, raster.size()), name);
}

void FaultRuns::expectOutcome(const FilterCall& call, const std::vector<reference::Page>& pages,
                              const std::string& name) {
    const Remarks remarks = remarksOn(pages);
    const reference::Outcome expected = outcomeOf(job_, pages);
    swarm_.run(call, [remarks, expected, name](const FilterResult& actual) {
        compare(expected, actual, name);
        EXPECT_TRUE(remarksIn(actual.standardError) == remarks) << name;
    });
}
