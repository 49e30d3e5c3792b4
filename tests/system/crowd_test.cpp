// Many jobs at once.
#include <gtest/gtest.h>

#include "tests/system/comparison.h"
#include "tests/system/fault_job.h"
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

}  // namespace
