#include <gtest/gtest.h>

#include <algorithm>

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
