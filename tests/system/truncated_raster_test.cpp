// Streams that end anywhere.
#include <gtest/gtest.h>

#include "tests/system/fault_job.h"
#include "tests/system/test_job.h"

namespace {

TEST(TruncatedRaster, OfSmallPagesKeepsThePagesThatAreWholeWhereverItEnds) {
    const reference::Job job =
        labelJob({greyPage(16, 6, 1), greyPage(16, 6, 2), greyPage(16, 6, 3)});
    const std::string whole = rasterStream(job.pages, RasterForm::Plain);
    const std::size_t pageBytes = rasterHeaderBytes + std::size_t{16} * 6;
    const std::size_t start = rasterSyncBytes + pageBytes;
    FaultRuns runs(job);
    for (std::size_t kept = start; kept <= start + pageBytes; kept += faultStride) {
        runs.expectReference(whole.substr(0, kept), std::to_string(kept));
    }
}

TEST(TruncatedRaster, OfSmallCompressedPagesKeepsThePagesThatAreWhole) {
    const reference::Job job =
        labelJob({greyPage(16, 6, 1), greyPage(16, 6, 2), greyPage(16, 6, 3)});
    const std::string whole = rasterStream(job.pages, RasterForm::Compressed);
    FaultRuns runs(job);
    for (std::size_t kept = whole.size() - 150; kept <= whole.size(); ++kept) {
        runs.expectReference(whole.substr(0, kept), std::to_string(kept));
    }
}

TEST(TruncatedRaster, OfLargePagesKeepsThePagesThatAreWholeAt200Places) {
    const reference::Job job =
        labelJob({greyPage(640, 300, 1), greyPage(640, 300, 2), greyPage(640, 300, 3)});
    const std::string whole = rasterStream(job.pages, RasterForm::Compressed);
    FaultRuns runs(job);
    for (std::size_t place = 0; place < 200; place += faultStride) {
        const std::size_t kept = whole.size() * place / 200 + place;
        runs.expectReference(whole.substr(0, kept), std::to_string(kept));
    }
}

}  // namespace
