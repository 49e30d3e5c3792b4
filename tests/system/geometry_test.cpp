#include <cups/raster.h>
#include <gtest/gtest.h>

#include <cstddef>

#include "tests/system/test_job.h"

namespace {

// A stream whose only page states another geometry than its 24 × 9 pixels have.
void expectRefused(unsigned width, unsigned bytesPerLine, unsigned height) {
    reference::Page page = greyPage(24, 9);
    std::string stream = rasterStream({page}, RasterForm::Plain);
    patchFirstHeader(stream, offsetof(cups_page_header2_t, cupsWidth), width);
    patchFirstHeader(stream, offsetof(cups_page_header2_t, cupsBytesPerLine), bytesPerLine);
    patchFirstHeader(stream, offsetof(cups_page_header2_t, cupsHeight), height);
    page.header.width = width;
    page.header.bytesPerLine = bytesPerLine;
    page.header.height = height;
    expectPrintsAsReference(labelJob({page}), stream);
}

TEST(Geometry, RowsShorterThanThePageIsWideEndTheJob) {
    expectRefused(812, 1, 9);
    expectRefused(25, 24, 9);
    expectRefused(536870913, 812, 9);
}

TEST(Geometry, APageOfFourGibibytesEndsTheJob) {
    expectRefused(65536, 65536, 65536);
    expectRefused(8, 1000000, 4295);
}

TEST(Geometry, PagesWithoutAResolutionAreWarnedOfAndPrinted) {
    reference::Job job = labelJob({greyPage(24, 9), greyPage(24, 9), greyPage(24, 9)});
    job.pages[0].header.xDpi = 0;
    job.pages[1].header.yDpi = 0;
    job.pages[2].header.xDpi = job.pages[2].header.yDpi = 0;
    expectPrintsAsReference(job);
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
