// Outputs that do not take what they are sent.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "tests/system/fault_job.h"
#include "tests/system/ppd_writer.h"
#include "tests/system/running_filter.h"
#include "tests/system/test_job.h"

namespace {

const reference::Lines noSpace = {"ERROR:Unable to write to the printer: No space left on device"};
const reference::Lines brokenPipe = {"ERROR:Unable to write to the printer: Broken pipe"};

class FailingOutput : public testing::Test {
protected:
    const reference::Job job = labelJob({greyPage(320, 40, 1), greyPage(320, 40, 2)});
    const FaultRuns setting{job};
    const FilterCall call = setting.callWith("");
    const std::string raster = rasterStream(job.pages, RasterForm::Plain);
    const std::string whole = reference::runJob(job).standardOutput;

    static bool begins(const RunningFilter& filter, int page) {
        return filter.log().find("DEBUG:PAGE: " + std::to_string(page) + " ") != std::string::npos;
    }
    // Runs the job and expects it to end with status 1 and these complaints behind its first page.
    void expectFailure(int output, const reference::Lines& complaints) const {
        const MemoryFile input(raster);
        RunningFilter filter(call, input.descriptor(), output);
        EXPECT_EQ(filter.status(), 1);
        EXPECT_EQ(complaintsIn(filter.log()), complaints);
        EXPECT_TRUE(begins(filter, 1));
        EXPECT_FALSE(begins(filter, 2));
    }
};

TEST_F(FailingOutput, ThatIsFullEndsTheJobBehindTheFirstPage) {
    const int full = open("/dev/full", O_WRONLY | O_CLOEXEC);
    expectFailure(full, noSpace);
    close(full);
}

TEST_F(FailingOutput, ThatIsFullEndsAJobWithoutPagesToo) {
    const int full = open("/dev/full", O_WRONLY | O_CLOEXEC);
    const MemoryFile input;
    RunningFilter filter(call, input.descriptor(), full);
    EXPECT_EQ(filter.status(), 1);
    reference::Lines complaints = {"ERROR:Unable to read the document: it is no raster"};
    complaints.insert(complaints.end(), noSpace.begin(), noSpace.end());
    EXPECT_EQ(complaintsIn(filter.log()), complaints);
    close(full);
}

TEST_F(FailingOutput, ThatIsClosedEndsTheJob) {
    expectFailure(-1, {"ERROR:Unable to write to the printer: Bad file descriptor"});
}

TEST_F(FailingOutput, ThatNobodyReadsEndsTheJob) {
    Pipe output;
    output.closeReadEnd();
    expectFailure(output.writeEnd(), brokenPipe);
}

// The pipe takes no more than a memory page at a time, so the filter is still writing when the
// reader goes.
TEST_F(FailingOutput, WhoseReaderGoesAfterAnyNumberOfBytesEndsTheJob) {
    constexpr std::size_t room = 4096;
    const reference::Job large = labelJob({greyPage(320, 400, 1), greyPage(320, 400, 2)});
    const MemoryFile input(rasterStream(large.pages, RasterForm::Plain));
    const std::string expected = reference::runJob(large).standardOutput;
    for (std::size_t bytes = 1; bytes + 2 * room < expected.size(); bytes += 411) {
        Pipe output;
        output.makeRoomFor(room);
        lseek(input.descriptor(), 0, SEEK_SET);
        RunningFilter filter(call, input.descriptor(), output.writeEnd());
        output.closeWriteEnd();
        std::string sent;
        while (sent.size() < bytes) {
            sent += output.read(bytes - sent.size());
        }
        output.closeReadEnd();
        EXPECT_EQ(filter.status(), 1) << bytes;
        EXPECT_EQ(complaintsIn(filter.log()), brokenPipe) << bytes;
        EXPECT_TRUE(expected.starts_with(sent)) << bytes;
    }
}

// A queue that records into a folder which every user may write to.
class FailingRecording : public FailingOutput {
protected:
    const TemporaryFolder target;

    FilterCall recordingCall() const {
        std::filesystem::permissions(target.path(""), std::filesystem::perms::all);
        PpdWriter ppd = ppdFor(job.settings, job.ppdSize);
        ppd.setChoice("RecordPrinterCommands", "1");
        ppd.setAttribute("kestoFilterOutputFile", target.path("rec"));
        FilterCall recording = setting.callWith(raster);
        recording.environment.emplace_back("PPD", setting.folder().write("r.ppd", ppd.text()));
        return recording;
    }
    std::string recordingName() const {
        const std::set<std::string> names = target.names();
        return names.empty() ? "" : target.path(*names.begin());
    }
};

TEST_F(FailingRecording, IsReportedOnceAndThePrintGoesOn) {
    constexpr std::size_t most = 1000;
    FilterCall limited = recordingCall();
    limited.fileSize = most;
    const MemoryFile input(raster);
    Pipe output;
    output.makeRoomFor(std::size_t{1} << 20);
    // The log is a file too, and longer than what the recording may hold.
    const Pipe log;
    log.makeRoomFor(std::size_t{1} << 20);
    const pid_t filter =
        startFilter(limited, {input.descriptor(), output.writeEnd(), log.writeEnd()});
    EXPECT_EQ(waitForEnd(filter), 0);
    output.closeWriteEnd();
    EXPECT_TRUE(output.read(2 * whole.size()) == whole);
    EXPECT_EQ(complaintsIn(log.read(std::size_t{1} << 20)),
              reference::Lines{"ERROR:Unable to write the recording file " + recordingName() +
                               ": File too large"});
    EXPECT_TRUE(whole.starts_with(readFile(recordingName())));
}

TEST_F(FailingRecording, IsNotWhatAFailingPrinterMakesOfIt) {
    const int full = open("/dev/full", O_WRONLY | O_CLOEXEC);
    const MemoryFile input(raster);
    RunningFilter filter(recordingCall(), input.descriptor(), full);
    EXPECT_EQ(filter.status(), 1);
    EXPECT_EQ(complaintsIn(filter.log()), noSpace);
    EXPECT_GT(readFile(recordingName()).size(), 1000U);
    close(full);
}

}  // namespace
