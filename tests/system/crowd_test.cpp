// Many jobs at once.
#include <gtest/gtest.h>

#include <set>

#include "tests/system/comparison.h"
#include "tests/system/fault_job.h"
#include "tests/system/ppd_writer.h"
#include "tests/system/test_job.h"

namespace {

constexpr unsigned jobs = 50;

reference::Job jobNumber(unsigned number) {
    return labelJob({greyPage(40 + 4 * number, 30, number), greyPage(64, 20 + number, number)});
}

TEST(Crowd, OfFiftyJobsPrintsEachAsIfItWereAlone) {
    const FaultRuns setting(jobNumber(0));
    Swarm crowd(jobs);
    unsigned ended = 0;
    for (unsigned number = 0; number < jobs; ++number) {
        const reference::Job job = jobNumber(number);
        crowd.run(setting.callWith(rasterStream(job.pages, RasterForm::Compressed)),
                  [&ended, number,
                   expected = reference::runJob(job).standardOutput](const FilterResult& result) {
                      ++ended;
                      EXPECT_EQ(result.status, 0) << number;
                      EXPECT_EQ(complaintsIn(result.standardError), reference::Lines()) << number;
                      expectSameBytes(expected, result.standardOutput, "standard output");
                  });
    }
    crowd.finish();
    EXPECT_EQ(ended, jobs);
}

// Jobs of a queue that records, run by root, who can write dumps.
class RecordingCrowd : public testing::Test {
protected:
    const SpoolFiles files;
    const TemporaryFolder folder;
    const TemporaryFolder recordings;
    std::multiset<std::string> dumps;
    std::multiset<std::string> streams;

    FilterCall call;

    RecordingCrowd() {
        const reference::Job job = labelJob({});
        PpdWriter ppd = ppdFor(job.settings, job.ppdSize);
        ppd.setChoice("RecordPrinterCommands", "1");
        ppd.setAttribute("kestoFilterOutputFile", recordings.path("rec"));
        call = callFor(job, folder);
        call.environment = {{"PPD", folder.write("recording.ppd", ppd.text())}};
    }
    void expect(const reference::Outcome& outcome) {
        streams.insert(outcome.standardOutput);
        for (const reference::Bytes& dump : outcome.dumps) {
            dumps.insert({dump.begin(), dump.end()});
        }
    }
    std::multiset<std::string> takenDumps() const {
        std::multiset<std::string> contents;
        for (const DumpFile& dump : files.takeDumps()) {
            contents.insert({dump.content.begin(), dump.content.end()});
        }
        return contents;
    }
    std::multiset<std::string> recorded() const {
        std::multiset<std::string> contents;
        for (const std::string& name : recordings.names()) {
            contents.insert(readFile(recordings.path(name)));
        }
        return contents;
    }
};

TEST_F(RecordingCrowd, LosesNoDumpAndNoRecordingHoweverManyHaveTheSameSecond) {
    Swarm crowd(jobs);
    for (unsigned number = 0; number < jobs; ++number) {
        const reference::Job job = jobNumber(number);
        expect(reference::runJob(job));
        call.standardInput = rasterStream(job.pages, RasterForm::Compressed);
        crowd.run(call, [number](const FilterResult& result) {
            EXPECT_EQ(result.status, 0) << number;
            EXPECT_EQ(complaintsIn(result.standardError), reference::Lines()) << number;
        });
    }
    crowd.finish();
    EXPECT_TRUE(takenDumps() == dumps);
    EXPECT_TRUE(recorded() == streams);
}

}  // namespace
