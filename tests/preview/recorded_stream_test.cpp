#include <gtest/gtest.h>

#include "tests/preview/dot_picture.h"
#include "tests/preview/preview_run.h"
#include "tests/system/ppd_writer.h"
#include "tests/system/test_job.h"

namespace {

// The only file of a folder.
std::string onlyFile(const TemporaryFolder& folder) {
    const auto names = folder.names();
    EXPECT_EQ(names.size(), 1U);
    return names.empty() ? "" : folder.path(*names.begin());
}

TEST(RecordedStream, PreviewsAsStandardOutputDoes) {
    const reference::Job job = labelJob({greyPage(96, 40), greyPage(64, 25)});
    const TemporaryFolder folder;
    const TemporaryFolder recordings;
    PpdWriter ppd = ppdFor(job.settings, job.ppdSize);
    ppd.setChoice("RecordPrinterCommands", "1");
    ppd.setAttribute("kestoFilterOutputFile", recordings.path("rec"));
    FilterCall call = callFor(job, folder);
    call.environment = {{"PPD", folder.write("recording.ppd", ppd.text())}};
    const std::string stream = filterStream(call);

    const TemporaryFolder out;
    const FilterResult sent = runPreview(out, {"--list", "-o", "sent"}, stream);
    const FilterResult recorded =
        runPreview(out, {"--list", "-o", "recorded", onlyFile(recordings)});
    EXPECT_EQ(sent.status, 0);
    EXPECT_EQ(recorded.status, 0);
    EXPECT_EQ(sent.standardOutput, recorded.standardOutput);
    const auto expected = picturesOf(job);
    for (const char* prefix : {"sent", "recorded"}) {
        for (std::size_t i = 0; i < expected.size(); ++i) {
            const std::string name = prefix + ("-" + std::to_string(i + 1)) + ".png";
            EXPECT_EQ(differenceOf(expected[i], readPng(out.path(name)).picture), "") << name;
        }
    }
}

}  // namespace
