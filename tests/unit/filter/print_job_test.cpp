// The steps of a job before its pages.
#include "filter/print_job.h"

#include "tests/reference/tspl.h"
#include "tests/unit/filter/test_support.h"

namespace {

TEST(PrintJob, PublishesItsPrinterUntilItsEnd) {
    EXPECT_EQ(sPrinter, nullptr);
    {
        PrintJob job;
        EXPECT_EQ(sPrinter, nullptr);
        job.createPrinter();
        ASSERT_NE(sPrinter, nullptr);
        EXPECT_NE(dynamic_cast<TsplPrinter*>(sPrinter), nullptr);
    }
    EXPECT_EQ(sPrinter, nullptr);
}

TEST(PrintJob, ReadsFromAFile) {
    const TemporaryFolder folder;
    PrintJob job;
    EXPECT_TRUE(job.openInput(folder.write("page.ras", "").c_str()));
    errorOutputOf([&] { EXPECT_FALSE(job.openInput(folder.path("missing").c_str())); });
    EXPECT_TRUE(PrintJob().openInput(nullptr));
}

TEST(PrintJob, OpensItsOutputWith64LineFeeds) {
    PrintJob job;
    job.createPrinter();
    EXPECT_EQ(outputOf([&] { job.sendPreamble(); }), std::string(64, '\n'));
}

class PaperCheck : public testing::Test {
protected:
    bool accepted = false;

    std::string check(const QueueText& queue) {
        const CurrentQueue current(queue);
        PrintJob job;
        job.createPrinter();
        errorOutputOf([&] { job.readSettings(""); });
        return errorOutputOf([&] { accepted = job.hasPaperSize(); });
    }
};

TEST_F(PaperCheck, PassesASizeSilently) {
    EXPECT_EQ(check(QueueText().sizes({{"w288h432", 288, 432}})), "");
    EXPECT_TRUE(accepted);
}

TEST_F(PaperCheck, PassesASizeBelowTheOneThatItsMessageNames) {
    EXPECT_EQ(check(QueueText().sizes({{"tiny", 1, 1}})), "");
    EXPECT_TRUE(accepted);
}

TEST_F(PaperCheck, RefusesAQueueWithoutASize) {
    EXPECT_EQ(check(QueueText()),
              "ERROR: Paper size must not less than 1.0 : (0.000000, 0.000000)\n");
    EXPECT_FALSE(accepted);
}

TEST_F(PaperCheck, RefusesAnEmptyWidth) {
    EXPECT_EQ(check(QueueText().sizes({{"flat", 0, 100}})),
              "ERROR: Paper size must not less than 1.0 : (0.000000, 35.279999)\n");
    EXPECT_FALSE(accepted);
}

TEST_F(PaperCheck, RefusesAnEmptyHeight) {
    EXPECT_EQ(check(QueueText().sizes({{"thin", 100, 0}})),
              "ERROR: Paper size must not less than 1.0 : (35.279999, 0.000000)\n");
    EXPECT_FALSE(accepted);
}

// A job whose queue records into a folder.
class RecordedJob : public testing::Test {
protected:
    TemporaryFolder folder;

    // Runs a job up to the preamble and returns its standard output.
    std::string run(const std::string& base, const char* recording) {
        const CurrentQueue queue(QueueText()
                                     .option("RecordPrinterCommands", {recording})
                                     .attribute("kestoFilterOutputFile", base));
        PrintJob job;
        job.createPrinter();
        errorOutputOf([&] { job.readSettings(""); });
        log = errorOutputOf([&] { job.startRecording(); });
        streams = sPrinter->getOutputStreams()->size();
        return outputOf([&] { job.sendPreamble(); });
    }

    std::string log;
    std::size_t streams = 0;
};

TEST_F(RecordedJob, WritesTheSameBytesToItsFileAndToStandardOutput) {
    EXPECT_EQ(run(folder.path("job"), "1"), reference::preamble());
    ASSERT_EQ(folder.names().size(), 1U);
    const std::string name = folder.path(*folder.names().begin());
    EXPECT_EQ(log, "DEBUG:Filter data output to: " + name + "\n");
    EXPECT_EQ(readFile(name), reference::preamble());
    EXPECT_EQ(streams, 2U);
}

TEST_F(RecordedJob, HasNoFileWhenRecordingIsOff) {
    EXPECT_EQ(run(folder.path("job"), "0"), reference::preamble());
    EXPECT_TRUE(folder.names().empty());
    EXPECT_EQ(log, "");
    EXPECT_EQ(streams, 1U);
}

TEST_F(RecordedJob, PrintsWithoutAFileThatCannotBeMade) {
    EXPECT_EQ(run(folder.path("missing/job"), "1"), reference::preamble());
    EXPECT_EQ(log.find("ERROR:Unable to open the recording file " + folder.path("missing/job-")),
              0U)
        << log;
    EXPECT_EQ(streams, 1U);
}

}  // namespace
