#include <gtest/gtest.h>

#include "tests/system/test_job.h"

namespace {

constexpr unsigned width = 16;
constexpr unsigned height = 6;
constexpr std::size_t pageBytes = rasterHeaderBytes + std::size_t{width} * height;

reference::Job twoPages() {
    return labelJob({greyPage(width, height, 1), greyPage(width, height, 2)});
}

// What a stream of two plain pages is worth when only its first `kept` bytes arrive.
reference::Job cutJob(std::size_t kept) {
    reference::Job job = twoPages();
    for (std::size_t i = 0; i < job.pages.size(); ++i) {
        const std::size_t start = rasterSyncBytes + i * pageBytes;
        if (kept < start + rasterHeaderBytes) {
            job.pages.resize(i);
            break;
        }
        job.pages[i].readable = kept >= start + pageBytes;
    }
    return job;
}

TEST(DamagedRaster, ACutPlainStreamKeepsThePagesThatAreWhole) {
    const std::string whole = rasterStream(twoPages().pages, RasterForm::Plain);
    ASSERT_EQ(whole.size(), rasterSyncBytes + 2 * pageBytes);
    for (const std::size_t kept :
         {std::size_t{0}, std::size_t{1}, std::size_t{3}, rasterSyncBytes, rasterSyncBytes + 1,
          rasterSyncBytes + 900, rasterSyncBytes + rasterHeaderBytes - 1,
          rasterSyncBytes + rasterHeaderBytes, rasterSyncBytes + rasterHeaderBytes + 1,
          rasterSyncBytes + rasterHeaderBytes + width, rasterSyncBytes + pageBytes - 1,
          rasterSyncBytes + pageBytes, rasterSyncBytes + pageBytes + 1,
          rasterSyncBytes + pageBytes + rasterHeaderBytes - 1,
          rasterSyncBytes + pageBytes + rasterHeaderBytes, whole.size() - 1, whole.size()}) {
        SCOPED_TRACE(kept);
        expectPrintsAsReference(cutJob(kept), whole.substr(0, kept));
    }
}

TEST(DamagedRaster, ACutCompressedStreamKeepsThePagesThatAreWhole) {
    const reference::Job job = twoPages();
    const std::string first = rasterStream({job.pages[0]}, RasterForm::Compressed);
    const std::string whole = rasterStream(job.pages, RasterForm::Compressed);
    reference::Job cut = job;
    cut.pages[1].readable = false;
    expectPrintsAsReference(cut, whole.substr(0, whole.size() - 1));
    expectPrintsAsReference(cut, whole.substr(0, first.size() + rasterHeaderBytes));
    cut.pages.resize(1);
    expectPrintsAsReference(cut, whole.substr(0, first.size()));
    cut.pages[0].readable = false;
    expectPrintsAsReference(cut, whole.substr(0, first.size() - 1));
}

TEST(DamagedRaster, BytesBehindTheLastPageAreNoPage) {
    const reference::Job job = twoPages();
    expectPrintsAsReference(job, rasterStream(job.pages, RasterForm::Plain) + "some more bytes");
}

}  // namespace
