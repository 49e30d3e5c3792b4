#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/temporary_folder.h"
#include "tests/system/comparison.h"
#include "tests/system/ppd_writer.h"
#include "tests/system/test_job.h"

namespace {

namespace fs = std::filesystem;

// Runs a job of one page with the given recording switch and base name.
struct RecordedRun {
    RecordedRun(const std::string& switchChoice, const std::string& base,
                const reference::PpdSize& paper = {true, 288, 432, 0, 0, 288, 432}) {
        job.ppdSize = paper;
        PpdWriter ppd = ppdFor(job.settings, job.ppdSize);
        ppd.setChoice("RecordPrinterCommands", switchChoice);
        if (!base.empty()) {
            ppd.setAttribute("kestoFilterOutputFile", base);
        }
        FilterCall call;
        call.arguments = {"1", "user", "title", "1", ""};
        call.environment = {{"PPD", folder.write("queue.ppd", ppd.text())}};
        call.standardInput = rasterStream(job.pages, RasterForm::Plain);
        call.workingFolder = folder.path("");
        result = runFilter(call);
    }

    // The only file in the folder whose name ends as recordings do.
    std::string recordingName() const {
        std::string found;
        for (const auto& entry : fs::directory_iterator(folder.path(""))) {
            if (entry.path().extension() == ".bin") {
                EXPECT_EQ(found, "") << "more than one recording";
                found = entry.path().filename().string();
            }
        }
        return found;
    }

    TemporaryFolder folder;
    reference::Job job = labelJob({greyPage(40, 12), greyPage(13, 3)});
    SpoolFiles files;
    FilterResult result;
};

TEST(Recording, HoldsTheSameBytesAsStandardOutputUnderANameWithTheLocalTime) {
    const TemporaryFolder target;
    const std::string base = target.path("rec");
    RecordedRun run("1", base);
    std::string name;
    for (const auto& entry : fs::directory_iterator(target.path(""))) {
        name = entry.path().string();
    }
    const std::string stamp = name.substr(base.size());
    EXPECT_EQ(run.files.timesSinceStart("-%Y%m%d%H%M%S.bin").count(stamp), 1U) << name;
    expectSameBytes(run.result.standardOutput, readFile(name), "recording");
    run.job.recordingName = name;
    expectOutcome(reference::runJob(run.job), run.result, run.files);
}

TEST(Recording, WithoutABaseNameGoesToTheCurrentFolder) {
    RecordedRun run("2", "");
    run.job.recordingName = run.recordingName();
    EXPECT_EQ(run.files.timesSinceStart("-%Y%m%d%H%M%S.bin").count(run.job.recordingName), 1U);
    expectSameBytes(run.result.standardOutput, readFile(run.folder.path(run.job.recordingName)),
                    "recording");
    expectOutcome(reference::runJob(run.job), run.result, run.files);
}

TEST(Recording, ThatCannotBeOpenedIsReportedOnceAndTheJobPrints) {
    RecordedRun run("1", "/nonexistent/folder/rec");
    std::string& log = run.result.standardError;
    std::set<std::string> lines;
    for (const std::string& stamp : run.files.timesSinceStart("-%Y%m%d%H%M%S.bin")) {
        lines.insert("ERROR:Unable to open the recording file /nonexistent/folder/rec" + stamp +
                     ": No such file or directory\n");
    }
    // Behind the settings, and else the job is one that records nothing.
    const std::size_t start = log.find("ERROR:");
    ASSERT_NE(start, std::string::npos);
    const std::string line = log.substr(start, log.find('\n', start) + 1 - start);
    EXPECT_EQ(lines.count(line), 1U) << line;
    EXPECT_TRUE(log.substr(0, start).ends_with("\nDEBUG:settings->pageHeight:152.409607\n"));
    log.erase(start, line.size());
    expectOutcome(reference::runJob(run.job), run.result, run.files);
}

// The recording begins before the paper is looked at.
TEST(Recording, OfAJobThatEndsAtItsPaperSizeIsEmpty) {
    const TemporaryFolder target;
    const RecordedRun run("1", target.path("rec"), {true, 0, 432, 0, 0, 0, 432});
    EXPECT_EQ(run.result.status, 1);
    EXPECT_EQ(run.result.standardOutput, "");
    ASSERT_EQ(target.names().size(), 1U);
    const std::string name = target.path(*target.names().begin());
    EXPECT_EQ(fs::file_size(name), 0U);
    EXPECT_TRUE(run.result.standardError.ends_with(
        "\nDEBUG:Filter data output to: " + name +
        "\nERROR: Paper size must not less than 1.0 : (0.000000, 152.409607)\n"))
        << run.result.standardError;
}

TEST(Recording, IsOffForZeroAndNegativeSwitches) {
    for (const char* off : {"0", "-1"}) {
        RecordedRun run(off, "");
        EXPECT_EQ(run.recordingName(), "") << off;
        expectOutcome(reference::runJob(run.job), run.result, run.files);
    }
}

}  // namespace
