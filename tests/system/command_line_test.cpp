#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "tests/reference/job_log.h"
#include "tests/reference/tspl.h"
#include "tests/support/temporary_folder.h"
#include "tests/system/comparison.h"
#include "tests/system/ppd_writer.h"
#include "tests/system/test_job.h"

namespace {

const std::string noPaper = "ERROR: Paper size must not less than 1.0 : (0.000000, 0.000000)\n";

FilterCall callWith(std::vector<std::string> arguments) {
    FilterCall call;
    call.arguments = std::move(arguments);
    return call;
}

TEST(CommandLine, FiveArgumentsGiveTheUsageTextAndStatusOne) {
    const FilterResult result = runFilter(callWith({"1", "user", "title", "1"}));
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.standardOutput, "");
    EXPECT_EQ(result.standardError,
              "rastertokestotspl v3.13.32\n\nUsage:\n\n"
              "    rastertokestotspl job_id user title copyies options [file]\n\n");
}

TEST(CommandLine, NoArgumentsGiveTheUsageText) {
    const FilterResult result = runFilter(callWith({}));
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.standardError, reference::usageText("rastertokestotspl"));
}

TEST(CommandLine, SixArgumentsReadTheRasterFromStandardInput) {
    expectPrintsAsReference(labelJob({greyPage(16, 5)}));
}

TEST(CommandLine, SevenArgumentsReadTheRasterFromTheNamedFile) {
    const TemporaryFolder folder;
    const reference::Job job = labelJob({greyPage(16, 5)});
    FilterCall call = callFor(job, folder);
    call.arguments.push_back(folder.write("page.ras", call.standardInput));
    call.standardInput = "not a raster";
    const SpoolFiles files;
    expectOutcome(reference::runJob(job), runFilter(call), files);
}

TEST(CommandLine, AMissingRasterFileEndsWithItsUnfinishedMessage) {
    const FilterResult result =
        runFilter(callWith({"1", "user", "title", "1", "", "/nonexistent/page.ras"}));
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.standardOutput, "");
    EXPECT_EQ(result.standardError, "ERROR: Unable to open raster file - ");
}

TEST(CommandLine, WithoutAPpdThePaperCheckEndsTheJobBeforeAnyOutput) {
    FilterCall call = callWith({"1", "user", "title", "1", ""});
    call.environment = {{"PPD", "/nonexistent/queue.ppd"}};
    const FilterResult result = runFilter(call);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.standardOutput, "");
    reference::Settings empty;
    EXPECT_EQ(result.standardError,
              reference::joined(reference::settingsLog(empty, {.found = false})) + noPaper);
}

TEST(CommandLine, APageSizeThatThePpdDoesNotKnowEndsTheJob) {
    reference::Job job = labelJob({greyPage(8, 1)});
    job.settings.pageSize = "";
    job.ppdSize = {.found = false};
    expectPrintsAsReference(job);
}

TEST(CommandLine, APaperWidthOfZeroEndsTheJobWithBothLengthsInTheMessage) {
    reference::Job job = labelJob({greyPage(8, 1)});
    job.ppdSize = {true, 0, 432, 0, 0, 0, 432};
    expectPrintsAsReference(job);
}

// 0.0000028 × 0.3528 mm are 0.00000098784, 0.000003 × 0.3528 mm are 0.0000010584: the limit of
// 0.000001 lies between them. Both look the same in the log.
TEST(CommandLine, APaperOfLessThanAMillionthOfAMillimetreEndsTheJob) {
    const TemporaryFolder folder;
    reference::Job job = labelJob({greyPage(8, 1)});
    for (const auto& [width, length] : {std::pair(0.0000028F, 432.0F), {288.0F, 0.0000028F}}) {
        job.ppdSize = {true, width, length, 0, 0, width, length};
        const FilterResult result = runFilter(callFor(job, folder));
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.standardOutput, "");
        const std::string line =
            width < 1 ? "(0.000001, 152.409607)\n" : "(101.606400, 0.000001)\n";
        EXPECT_TRUE(
            result.standardError.ends_with("\nERROR: Paper size must not less than 1.0 : " + line))
            << result.standardError;
    }
}

TEST(CommandLine, APaperOfAMillionthOfAMillimetreIsPrintedOn) {
    reference::Job job = labelJob({greyPage(8, 1)});
    job.ppdSize = {true, 0.000003F, 0.000003F, 0, 0, 0.000003F, 0.000003F};
    const TemporaryFolder folder;
    const SpoolFiles files;
    const FilterResult result = runFilter(callFor(job, folder));
    files.takeDumps();
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.standardOutput.ends_with("\r\nPRINT 1,1\r\n"));
}

TEST(CommandLine, TheCopiesArgumentHasNoEffectButTheRasterHeaderHas) {
    const TemporaryFolder folder;
    reference::Job job = labelJob({greyPage(16, 5)});
    job.pages[0].header.copies = 3;
    FilterCall call = callFor(job, folder);
    call.arguments[3] = "7";
    const SpoolFiles files;
    const FilterResult result = runFilter(call);
    EXPECT_NE(result.standardOutput.find("\r\nPRINT 1,3\r\n"), std::string::npos);
    expectOutcome(reference::runJob(job), result, files);
}

}  // namespace
