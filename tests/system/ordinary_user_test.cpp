#include <gtest/gtest.h>
#include <pwd.h>

#include <filesystem>
#include <regex>

#include "tests/support/temporary_folder.h"
#include "tests/system/comparison.h"
#include "tests/system/ppd_writer.h"
#include "tests/system/test_job.h"

namespace {

// The times in the names of dumps that could not be written, as the reference has them.
std::string withoutTimes(const std::string& log) {
    static const std::regex pattern("(origin|dithered)_\\d+-\\d+-\\d+_\\d+_\\d+_\\d+_(\\d+)");
    return std::regex_replace(log, pattern, "$1_<time>_$2");
}

// Needs a user who cannot write to the dump folder: the tests run as root and start the filter
// as nobody.
TEST(OrdinaryUser, WithoutADumpFolderEachPageLogsTwoLinesAndPrints) {
    const passwd* nobody = getpwnam("nobody");
    ASSERT_NE(nobody, nullptr);
    const TemporaryFolder folder;
    reference::Job job = labelJob({greyPage(40, 12), greyPage(13, 3)});
    job.dumpFolderWritable = false;
    FilterCall call = callFor(job, folder);
    call.userId = nobody->pw_uid;
    // A filter that counts its coverage must find a place for the counters, or it complains.
    const TemporaryFolder counters;
    std::filesystem::permissions(counters.path(""), std::filesystem::perms::all);
    call.environment.emplace_back("GCOV_PREFIX", counters.path(""));
    const SpoolFiles files;
    FilterResult result = runFilter(call);
    result.standardError = withoutTimes(result.standardError);
    expectOutcome(reference::runJob(job), result, files);
}

TEST(OrdinaryUser, ATraceFileThatCannotBeOpenedIsIgnored) {
    const TemporaryFolder folder;
    const reference::Job job = labelJob({greyPage(16, 3)});
    FilterCall call = callFor(job, folder);
    const SpoolFiles files;
    // A folder of the trace file's name cannot be opened for writing, not even by root.
    ASSERT_TRUE(std::filesystem::create_directory("/tmp/xxxxx.log"));
    const FilterResult result = runFilter(call);
    std::filesystem::remove("/tmp/xxxxx.log");
    reference::Outcome expected = reference::runJob(job);
    expected.trace.reset();
    expectOutcome(expected, result, files);
}

}  // namespace
