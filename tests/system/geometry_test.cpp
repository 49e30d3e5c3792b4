#include <cups/raster.h>
#include <gtest/gtest.h>

#include <cstddef>

#include "tests/support/temporary_folder.h"
#include "tests/system/comparison.h"
#include "tests/system/test_job.h"

namespace {

// The job of a good page and one that states another geometry than its 24 × 9 pixels have: the
// good one is printed, the job ends behind it, and this is the log's last line.
void expectRefused(unsigned width, unsigned bytesPerLine, unsigned height,
                   const std::string& lastLine) {
    const reference::Page page = greyPage(24, 9);
    std::string bad = rasterStream({page}, RasterForm::Plain);
    patchFirstHeader(bad, offsetof(cups_page_header2_t, cupsWidth), width);
    patchFirstHeader(bad, offsetof(cups_page_header2_t, cupsBytesPerLine), bytesPerLine);
    patchFirstHeader(bad, offsetof(cups_page_header2_t, cupsHeight), height);
    const TemporaryFolder folder;
    FilterCall call = callFor(labelJob({page}), folder);
    call.standardInput += bad.substr(rasterSyncBytes);
    const SpoolFiles files;
    FilterResult result = runFilter(call);
    EXPECT_TRUE(result.standardError.ends_with("\n" + lastLine)) << result.standardError;
    reference::Outcome expected = reference::runJob(labelJob({page}));
    expected.status = 1;
    expectOutcome(expected, result, files);
}

TEST(Geometry, RowsShorterThanThePageIsWideEndTheJob) {
    expectRefused(812, 1, 9,
                  "ERROR:Unsupported page geometry: 812 dots wide, 1 bytes per line, 9 lines!\n");
    expectRefused(25, 24, 9,
                  "ERROR:Unsupported page geometry: 25 dots wide, 24 bytes per line, 9 lines!\n");
    expectRefused(
        536870913, 812, 9,
        "ERROR:Unsupported page geometry: 536870913 dots wide, 812 bytes per line, 9 lines!\n");
}

TEST(Geometry, APageOfFourGibibytesEndsTheJob) {
    expectRefused(
        65536, 65536, 65536,
        "ERROR:Unsupported page geometry: 65536 dots wide, 65536 bytes per line, 65536 lines!\n");
    expectRefused(
        8, 1000000, 4295,
        "ERROR:Unsupported page geometry: 8 dots wide, 1000000 bytes per line, 4295 lines!\n");
}

// 24 and 9 dots at 203 per inch are 3.002956 and 1.126108 mm.
TEST(Geometry, PagesWithoutAResolutionAreWarnedOfAndPrinted) {
    reference::Job job = labelJob({greyPage(24, 9), greyPage(24, 9), greyPage(24, 9)});
    job.pages[0].header.xDpi = 0;
    job.pages[1].header.yDpi = 0;
    job.pages[2].header.xDpi = job.pages[2].header.yDpi = 0;
    const TemporaryFolder folder;
    const SpoolFiles files;
    const FilterResult result = runFilter(callFor(job, folder));
    for (const char* lines : {"\nWARN:Page without a resolution: 0 x 203 dpi!\n"
                              "DEBUG:pageWidth: inf,pageHeight: 1.126108\n",
                              "\nWARN:Page without a resolution: 203 x 0 dpi!\n"
                              "DEBUG:pageWidth: 3.002956,pageHeight: inf\n",
                              "\nWARN:Page without a resolution: 0 x 0 dpi!\n"
                              "DEBUG:pageWidth: inf,pageHeight: inf\n"}) {
        EXPECT_NE(result.standardError.find(lines), std::string::npos) << result.standardError;
    }
    expectOutcome(reference::runJob(job), result, files);
}

TEST(Geometry, APageWithoutDotsIsLoggedAndNotPrinted) {
    reference::Page page = greyPage(24, 9);
    page.header.width = 0;
    expectPrintsAsReference(labelJob({page}));
}

TEST(Geometry, APageWithoutDotsBehindAGoodOnePrintsTheGoodOneAgain) {
    reference::Page empty = greyPage(24, 9);
    empty.header.width = 0;
    empty.header.copies = 2;
    expectPrintsAsReference(labelJob({greyPage(32, 5), empty, greyPage(16, 3)}));
}

}  // namespace
