// SIGTERM at any moment.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <random>

#include "tests/system/fault_job.h"
#include "tests/system/running_filter.h"
#include "tests/system/stream_ends.h"
#include "tests/system/test_job.h"

namespace {

constexpr const char* cancelledLine = "\nDEBUG:The job was cancelled\n";

reference::Job threePages(int halftoneType = 0) {
    reference::Job job =
        labelJob({greyPage(320, 400, 1), greyPage(320, 400, 2), greyPage(320, 400, 3)});
    job.settings.halftoneType = halftoneType;
    return job;
}

class Cancel : public testing::Test {
protected:
    const reference::Job job = threePages();
    const std::string raster = rasterStream(job.pages, RasterForm::Plain);
    const std::set<std::string> beginnings = wholeBeginnings(job);
    std::mt19937 random{20260803};

    long upTo(long microseconds) {
        return static_cast<long>(random() % static_cast<unsigned long>(microseconds));
    }

    // The stream holds whole commands only. A process that was not yet ready has sent nothing
    // and may have been ended by the signal itself.
    static void expectOrderlyEnd(const std::set<std::string>& beginnings, const std::string& output,
                                 RunningFilter& filter) {
        EXPECT_EQ(beginnings.count(output), 1U) << output.size() << " bytes";
        EXPECT_TRUE(passesPreviewCheck(output)) << output.size() << " bytes";
        EXPECT_EQ(complaintsIn(filter.log()), reference::Lines());
        const bool early = output.empty() && filter.status() == -SIGTERM;
        EXPECT_TRUE(early || filter.status() == 0) << filter.status();
    }
};

TEST_F(Cancel, EndsAJobThatWaitsForRasterInATenthOfASecond) {
    const FaultRuns setting(job);
    std::vector<double> times;
    for (int run = 0; run < 34; ++run) {
        const Pipe silent;
        silent.makeRoomFor(std::size_t{1} << 20);
        silent.write(raster.substr(0, random() % raster.size()));
        const MemoryFile output;
        RunningFilter filter(setting.callWith(""), silent.readEnd(), output.descriptor());
        sleepMicroseconds(upTo(60000));
        const double start = now();
        filter.cancel();
        filter.status();
        times.push_back(now() - start);
        expectOrderlyEnd(beginnings, output.content(), filter);
    }
    // Not the longest: other processes take their share of the machine.
    std::nth_element(times.begin(), times.begin() + 17, times.end());
    EXPECT_LT(times[17], 0.1);
    RecordProperty("medianMicroseconds", static_cast<int>(times[17] * 1e6));
}

TEST_F(Cancel, SendsNoBitmapOfAPageThatIsStillHalftoned) {
    const reference::Job stencil = threePages(8);
    const std::set<std::string> stencilBeginnings = wholeBeginnings(stencil);
    const FaultRuns setting(stencil);
    const MemoryFile input(raster);
    for (int run = 0; run < 33; ++run) {
        const MemoryFile output;
        lseek(input.descriptor(), 0, SEEK_SET);
        RunningFilter filter(setting.callWith(""), input.descriptor(), output.descriptor());
        sleepMicroseconds(upTo(90000));
        filter.cancel();
        filter.status();
        expectOrderlyEnd(stencilBeginnings, output.content(), filter);
    }
}

TEST_F(Cancel, CompletesTheBitmapUnderWayHoweverSlowlyThePipeIsDrained) {
    const FaultRuns setting(job);
    const MemoryFile input(raster);
    for (int run = 0; run < 33; ++run) {
        Pipe output;
        output.makeRoomFor(4096);
        lseek(input.descriptor(), 0, SEEK_SET);
        RunningFilter filter(setting.callWith(""), input.descriptor(), output.writeEnd());
        output.closeWriteEnd();
        std::string sent = output.read(random() % 40000);
        sleepMicroseconds(upTo(40000));
        filter.cancel();
        for (std::string more = output.read(700); !more.empty(); more = output.read(700)) {
            sent += more;
            sleepMicroseconds(upTo(100));
        }
        expectOrderlyEnd(beginnings, sent, filter);
    }
}

/// A filter in the middle of its first bitmap, which does not fit the pipe that nobody reads.
class CancelInBitmap : public Cancel {
protected:
    const FaultRuns setting{job};
    const MemoryFile input{raster};
    Pipe output;

    CancelInBitmap() { output.makeRoomFor(4096); }

    void waitUntilFull() {
        output.closeWriteEnd();
        for (int i = 0; i < 5000 && output.waiting() < 4096; ++i) {
            sleepMicroseconds(1000);
        }
        ASSERT_EQ(output.waiting(), 4096U);
    }
    std::string rest() const {
        std::string sent;
        for (std::string more = output.read(4096); !more.empty(); more = output.read(4096)) {
            sent += more;
        }
        return sent;
    }
};

TEST_F(CancelInBitmap, SendsTheRestOfItAndNoPrintAndEndsWithStatusZero) {
    RunningFilter filter(setting.callWith(""), input.descriptor(), output.writeEnd());
    waitUntilFull();
    filter.cancel();
    sleepMicroseconds(30000);
    EXPECT_TRUE(filter.isRunning());
    const std::string sent = rest();
    EXPECT_TRUE(sent == cancelledInBitmap(job, 0)) << sent.size();
    EXPECT_EQ(filter.status(), 0);
    EXPECT_NE(filter.log().find(cancelledLine), std::string::npos);
    expectOrderlyEnd(beginnings, sent, filter);
}

TEST_F(CancelInBitmap, EndsAtOnceWhenAskedASecondTime) {
    RunningFilter filter(setting.callWith(""), input.descriptor(), output.writeEnd());
    waitUntilFull();
    filter.cancel();
    sleepMicroseconds(30000);
    EXPECT_TRUE(filter.isRunning());
    filter.cancel();
    EXPECT_EQ(filter.status(), -SIGTERM);
}

TEST_F(CancelInBitmap, DoesNotComplainOfAReaderWhoHasGone) {
    RunningFilter filter(setting.callWith(""), input.descriptor(), output.writeEnd());
    waitUntilFull();
    filter.cancel();
    output.closeReadEnd();
    EXPECT_EQ(filter.status(), 0);
    EXPECT_EQ(complaintsIn(filter.log()), reference::Lines());
}

class CancelWhateverIsInherited : public Cancel, public testing::WithParamInterface<Termination> {};

TEST_P(CancelWhateverIsInherited, EndsAJobThatWaitsForRaster) {
    const FaultRuns setting(job);
    const Pipe silent;
    const Pipe output;
    FilterCall call = setting.callWith("");
    call.termination = GetParam();
    RunningFilter filter(call, silent.readEnd(), output.writeEnd());
    sleepMicroseconds(200000);
    filter.cancel();
    EXPECT_EQ(filter.status(), 0);
    EXPECT_NE(filter.log().find(cancelledLine), std::string::npos);
}

std::string dispositionName(const testing::TestParamInfo<Termination>& row) {
    constexpr const char* names[] = {"AsUsual", "Ignored", "Blocked"};
    return names[static_cast<int>(row.param)];
}

INSTANTIATE_TEST_SUITE_P(AllDispositions, CancelWhateverIsInherited,
                         testing::Values(Termination::AsUsual, Termination::Ignored,
                                         Termination::Blocked),
                         dispositionName);

TEST_F(Cancel, EndsAJobThatWaitsForANamedInput) {
    const FaultRuns setting(job);
    const std::string path = setting.folder().path("input");
    ASSERT_EQ(mkfifo(path.c_str(), 0644), 0);
    const int both = open(path.c_str(), O_RDWR | O_CLOEXEC);
    const MemoryFile output;
    FilterCall call = setting.callWith("");
    call.arguments.push_back(path);
    RunningFilter filter(call, -1, output.descriptor());
    sleepMicroseconds(200000);
    const double start = now();
    filter.cancel();
    EXPECT_EQ(filter.status(), 0);
    EXPECT_LT(now() - start, 1);
    EXPECT_EQ(output.content(), std::string(64, '\n'));
    close(both);
}

}  // namespace
