#include <gtest/gtest.h>

#include <cstddef>

#include <cups/raster.h>

#include "tests/system/test_job.h"

namespace {

reference::Page monoPage() {
    reference::Page page;
    page.header.width = 16;
    page.header.height = 2;
    page.header.bytesPerLine = 2;
    page.header.bitsPerPixel = page.header.bitsPerColor = 1;
    page.rows = {0xAA, 0x55, 0xAA, 0x55};
    return page;
}

TEST(Job, AnEmptyRasterStreamYieldsSixtyFourLineFeedsAndStatusZero) {
    expectPrintsAsReference(labelJob({}), std::string());
}

TEST(Job, AStreamOfOnlyTheSyncWordYieldsSixtyFourLineFeedsAndStatusZero) {
    const std::string page = rasterStream({greyPage(8, 1)}, RasterForm::Plain);
    expectPrintsAsReference(labelJob({}), page.substr(0, rasterSyncBytes));
}

TEST(Job, InputThatIsNoRasterYieldsSixtyFourLineFeedsAndStatusZero) {
    expectPrintsAsReference(labelJob({}), std::string(5000, 'x'));
}

class JobInEveryForm : public testing::TestWithParam<RasterForm> {};

TEST_P(JobInEveryForm, PrintsSeveralPagesOfDifferentSizes) {
    reference::Job job = labelJob({greyPage(812, 60, 1), greyPage(16, 300, 2), greyPage(40, 1, 3)});
    job.pages[1].header.copies = 2;
    job.pages[2].header.xDpi = 300;
    job.pages[2].header.yDpi = 600;
    expectPrintsAsReference(job, GetParam());
}

TEST_P(JobInEveryForm, PrintsBlankAndSolidRowsBetweenOthers) {
    reference::Page page = greyPage(64, 40);
    // Rows 4 to 11 blank, rows 20 to 30 solid, at 64 bytes a row.
    std::fill(page.rows.begin() + 256, page.rows.begin() + 768, std::uint8_t{0});
    std::fill(page.rows.begin() + 1280, page.rows.begin() + 1984, std::uint8_t{255});
    expectPrintsAsReference(labelJob({page}), GetParam());
}

TEST_P(JobInEveryForm, SendsTheGoodPageAndFailsAtTheOneBitPageBehindIt) {
    expectPrintsAsReference(labelJob({greyPage(24, 9), monoPage(), greyPage(24, 9)}), GetParam());
}

std::string formName(const testing::TestParamInfo<RasterForm>& form) {
    constexpr const char* names[] = {"Plain", "Compressed", "SwappedPlain", "SwappedCompressed"};
    return names[static_cast<int>(form.param)];
}

INSTANTIATE_TEST_SUITE_P(AllForms, JobInEveryForm, testing::ValuesIn(allRasterForms), formName);

TEST(Job, AOneBitPageAloneFailsAfterThePreamble) {
    expectPrintsAsReference(labelJob({monoPage()}));
}

TEST(Job, APageOfZeroHeightEndsTheJobWithStatusZero) {
    std::string stream = rasterStream({greyPage(24, 9)}, RasterForm::Plain);
    patchFirstHeader(stream, offsetof(cups_page_header2_t, cupsHeight), 0);
    expectPrintsAsReference(labelJob({}), stream);
}

TEST(Job, APageOfZeroBytesPerLineEndsTheJobWithStatusZero) {
    std::string stream = rasterStream({greyPage(24, 9)}, RasterForm::Plain);
    patchFirstHeader(stream, offsetof(cups_page_header2_t, cupsBytesPerLine), 0);
    expectPrintsAsReference(labelJob({}), stream);
}

TEST(Job, EveryWidthFromOneTo130DotsPrintsAsTheReference) {
    for (unsigned width = 1; width <= 130; ++width) {
        SCOPED_TRACE(width);
        expectPrintsAsReference(labelJob({greyPage(width, 7, width)}));
    }
}

TEST(Job, RowsLongerThanTheWidthArePrintedAsTheReference) {
    reference::Page page = greyPage(24, 9);
    page.header.width = 18;
    expectPrintsAsReference(labelJob({page}));
}

TEST(Job, EveryPageHeaderFieldThatIsLoggedShowsItsValue) {
    reference::Page page = greyPage(8, 2);
    page.header.mediaType = 11;
    page.header.compression = 12;
    page.header.rowCount = 13;
    page.header.rowFeed = 14;
    page.header.rowStep = 15;
    page.header.colorSpace = 18;
    page.header.pageSizeName = "A4";
    expectPrintsAsReference(labelJob({page}));
}

TEST(Job, AnA4PageAtThreeHundredDpiPrintsAsTheReference) {
    reference::Page page = greyPage(2480, 3508);
    page.header.xDpi = page.header.yDpi = 300;
    expectPrintsAsReference(labelJob({page}), RasterForm::Compressed);
}

}  // namespace
