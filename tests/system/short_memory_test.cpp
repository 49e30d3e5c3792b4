// Memory that ends anywhere, and memory that is not taken.
#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "tests/support/sanitizers.h"
#include "tests/system/fault_job.h"
#include "tests/system/stream_ends.h"
#include "tests/system/test_job.h"

namespace {

#ifndef KESTO_ADDRESS_SANITIZER

constexpr int notLoaded = 127;  // what the loader says of a program that it has no memory for

class ShortMemory : public testing::TestWithParam<int> {
protected:
    ShortMemory() { job_.settings.halftoneType = GetParam(); }

    static reference::Job threePages() {
        return labelJob({greyPage(320, 200, 1), greyPage(320, 200, 2), greyPage(320, 200, 3)});
    }

    reference::Job job_ = threePages();
};

struct Endings {
    std::size_t failed = 0;    // status 1
    std::size_t complete = 0;  // all pages
    std::size_t partly = 0;    // status 0, but not all pages
};

// Pages may be missing or stand for one that could not be loaded, but each is whole.
void expectWholePages(const FilterResult& result, std::size_t limit) {
    EXPECT_TRUE(passesPreviewCheck(result.standardOutput)) << limit << " KiB";
    const bool early = result.standardOutput.size() <= 64;
    EXPECT_TRUE(early || result.standardOutput.ends_with("\r\n")) << limit << " KiB";
}

TEST_P(ShortMemory, EndsTheJobOrLeavesPagesOutButNeverCutsOne) {
    FaultRuns setting(job_);
    const std::string raster = rasterStream(job_.pages, RasterForm::Plain);
    FilterCall call = setting.callWith(raster);
    const std::string whole = reference::runJob(job_).standardOutput;
    const std::size_t least = leastMemory(call, whole);
    // Below it the program has just been loaded, with all of its libraries.
    constexpr std::size_t range = 3200;
    Endings endings;
    for (std::size_t limit = least - range; limit < least + 200; limit += 12) {
        call.addressSpace = limit * kibibyte;
        setting.swarm().run(call, [&, limit](const FilterResult& result) {
            if (result.status == notLoaded) {
                EXPECT_EQ(result.standardOutput, "") << limit << " KiB";
                return;
            }
            EXPECT_TRUE(result.status == 0 || result.status == 1)
                << limit << " KiB: " << result.status;
            expectWholePages(result, limit);
            ++(result.status == 1               ? endings.failed
               : result.standardOutput == whole ? endings.complete
                                                : endings.partly);
        });
    }
    setting.swarm().finish();
    EXPECT_GT(endings.failed, 5U);
    EXPECT_GT(endings.complete, 5U);
    if (GetParam() == 0) {
        EXPECT_GT(endings.partly, 5U);
    }
}

std::string halftoneName(const testing::TestParamInfo<int>& halftone) {
    return halftone.param == 8 ? "OfAStencil" : "OfAThreshold";
}

INSTANTIATE_TEST_SUITE_P(BothPaths, ShortMemory, testing::Values(0, 8), halftoneName);

// Whatever step of a stencil finds no memory: the job ends in order, says why, and what was printed
// before stays printed.
TEST(StencilWithoutMemory, IsSaidAndKeepsThePagesBefore) {
    reference::Job job = labelJob({greyPage(320, 40, 1), greyPage(800, 1200, 2)});
    job.settings.halftoneType = 8;
    const FaultRuns setting(job);
    FilterCall call = setting.callWith(rasterStream(job.pages, RasterForm::Plain));
    reference::Job first = job;
    first.pages.pop_back();
    const std::string printed = reference::runJob(first).standardOutput;
    const std::string whole = reference::runJob(job).standardOutput;
    const std::size_t least = leastMemory(call, whole);
    std::size_t kept = 0;
    for (std::size_t less = 16; less < 4000; less += 50) {
        call.addressSpace = (least - less) * kibibyte;
        const FilterResult result = runFilter(call);
        EXPECT_TRUE(result.status == 0 || result.status == 1) << less << ": " << result.status;
        EXPECT_NE(result.standardOutput, whole) << less;
        if (result.standardOutput.starts_with(printed)) {
            ++kept;
            EXPECT_TRUE(result.status == 1 || !complaintsIn(result.standardError).empty()) << less;
        }
    }
    EXPECT_GT(kept, 20U);
}

std::size_t leastMemoryFor(const reference::Job& job) {
    const FaultRuns setting(job);
    return leastMemory(setting.callWith(rasterStream(job.pages, RasterForm::Compressed)),
                       reference::runJob(job).standardOutput);
}

// The buffers and images of the first page serve the others: three differ, and all fit where one
// does.
TEST(ShortMemoryForOnePage, IsEnoughForAnyNumberOfTheSameSize) {
    for (const int halftone : {0, 8}) {
        reference::Job three =
            labelJob({greyPage(800, 1000, 1), greyPage(800, 1000, 2), greyPage(800, 1000, 3)});
        three.settings.halftoneType = halftone;
        reference::Job one = three;
        one.pages.resize(1);
        EXPECT_LT(leastMemoryFor(three), leastMemoryFor(one) + 64) << halftone;
    }
}

// Beyond what it takes for itself and its libraries, and for any number of pages.
TEST(TakenMemory, IsTheDocumentedMultipleOfThePageAtMost) {
    constexpr std::size_t pageKibibytes = std::size_t{800} * 1000 / kibibyte;
    for (const auto& [halftone, multiple] : {std::pair(0, 7U), std::pair(8, 11U)}) {
        reference::Job job = labelJob(std::vector<reference::Page>(4, greyPage(800, 1000)));
        reference::Job tiny = labelJob({greyPage(8, 1)});
        job.settings.halftoneType = tiny.settings.halftoneType = halftone;
        const std::size_t taken = leastMemoryFor(job) - leastMemoryFor(tiny);
        EXPECT_LT(taken, multiple * pageKibibytes) << halftone;
    }
}

#endif

}  // namespace
