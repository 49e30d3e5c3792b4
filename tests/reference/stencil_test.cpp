// Checks stencils and pages with them against values worked out by hand.
#include "tests/reference/stencil.h"

#include <gtest/gtest.h>

#include "tests/reference/page_process.h"
#include "tests/reference/stencil_blur.h"
#include "tests/reference/stencil_numeric.h"
#include "tests/reference/stencil_tone.h"
#include "tests/reference/test_pages.h"

namespace reference {
namespace {

PageProperties stencilProperties(int halftoneType) {
    PageProperties properties;
    properties.halftoneType = halftoneType;
    return properties;
}

/// Four columns, black to the left and white to the right.
Page halfBlackPage() {
    Page page = uniformPage(4, 2, 255);
    page.rows = {0, 0, 255, 255, 0, 0, 255, 255};
    return page;
}

TEST(ReferenceStencilNumeric, IterationsThatDoNotSettleGiveNothing) {
    EXPECT_EQ(squareRoot(4.0F), 2.0F);
    EXPECT_FALSE(squareRoot(1e-45F).has_value());
    EXPECT_EQ(logarithm(1.0F), 0.0F);
    EXPECT_FALSE(logarithm(0x1.D80CCAp+22F).has_value());
}

TEST(ReferenceStencilTone, ThresholdsOfSimplePages) {
    EXPECT_EQ(momentThreshold({0, 255}), 255);
    EXPECT_EQ(momentThreshold({0, 128, 255}), 128);
    EXPECT_EQ(momentThreshold({7, 7, 7}), 128);
    EXPECT_EQ(momentThreshold({151, 151, 153, 153}), -1);
}

TEST(ReferenceStencilTone, CurvesKeepTheirEndsAndTheKnee) {
    for (const int knee : {0, 1, 64, 200, 255}) {
        const ToneTable table = gammaTable(knee, 0.5F, 1.5F);
        EXPECT_EQ(table[0], 0);
        EXPECT_EQ(table[static_cast<std::size_t>(knee)], knee);
        EXPECT_EQ(table[255], 255);
    }
}

TEST(ReferenceStencilTone, ColoursAreWeighedByTheirOrder) {
    EXPECT_EQ(greyLevels({255, 0, 0}, 3, ChannelOrder::redFirst), Bytes{76});
    EXPECT_EQ(greyLevels({255, 0, 0, 9}, 4, ChannelOrder::blueFirst), Bytes{29});
}

TEST(ReferenceStencilBlur, EdgesAreRepeated) {
    EXPECT_EQ(filteredRows(3, 1, {0, 100, 200}, {0.25, 0.5, 0.25}), (Bytes{25, 100, 175}));
    EXPECT_EQ(filteredColumns(1, 3, {0, 100, 200}, {0.25, 0.5, 0.25}), (Bytes{25, 100, 175}));
    EXPECT_EQ(weightedDifference({200, 50, 100}, {100, 100, 90}, 3.0F), (Bytes{255, 0, 130}));
}

TEST(ReferenceStencil, ABlackDotHandsItsValueOn) {
    // 100 × 0.505786 = 50.58
    EXPECT_EQ(diffuseStencil(2, 1, {100, 76}, 127), (Bytes{0, 0}));
    EXPECT_EQ(diffuseStencil(2, 1, {100, 77}, 127), (Bytes{0, 255}));
}

TEST(ReferenceStencilPage, IsTracedFromLoadingToTheBuffer) {
    const ProcessedPage result = processPage(uniformPage(5, 2, 255), stencilProperties(8));
    const Lines expected = {
        "DEBUG:PageProcess: QM dithering is enabled",
        "DEBUG:PageProcess: Successfully created RasterImage from array with stride 5",
        "DEBUG:PageProcess: Copied pixels to the output buffer for QM dithering, with stride 5, "
        "EffWidth 8",
        "DEBUG:PageProcess: Applied QM dithering with stride 8, width 5",
        "DEBUG:PageProcess: Successfully created a new RasterImage from QM dithered data",
        "DEBUG:PageProcess: negativePrint_ 0",
        "DEBUG:PageProcess: Filled the output buffer with processed pixels, length: 16"};
    EXPECT_EQ(result.log, expected);
    EXPECT_EQ(result.length, 16);
    EXPECT_EQ(result.finished->bytes,
              (Bytes{255, 255, 255, 255, 255, 0, 0, 0, 255, 255, 255, 255, 255, 0, 0, 0}));
}

TEST(ReferenceStencilPage, KeepsTheGreyPixelsThatTheDotsDoNotReachInTheBuffer) {
    Page page = uniformPage(5, 2, 255);
    page.rows[6] = 200;
    const ProcessedPage result = processPage(page, stencilProperties(9));
    // Rows of grey lie 5 bytes apart, rows of dots 8.
    EXPECT_EQ(result.buffer[6], 200);
    EXPECT_EQ(result.buffer[7], 255);
    EXPECT_EQ(result.buffer[13], 0);
}

TEST(ReferenceStencilPage, HasItsBlackAndWhiteSwappedByNegativePrinting) {
    PageProperties properties = stencilProperties(8);
    EXPECT_EQ(processPage(uniformPage(4, 1, 255), properties).finished->bytes, Bytes(4, 255));
    properties.negative = true;
    const ProcessedPage result = processPage(uniformPage(4, 1, 255), properties);
    EXPECT_EQ(result.finished->bytes, Bytes(4, 0));
    EXPECT_EQ(Bytes(result.buffer.begin(), result.buffer.begin() + 4), Bytes(4, 255));
}

TEST(ReferenceStencilPage, IsMirroredBeforeItIsCut) {
    PageProperties properties = stencilProperties(8);
    properties.mirror = true;
    Page mirrored = halfBlackPage();
    mirrored.rows = {255, 255, 0, 0, 255, 255, 0, 0};
    EXPECT_EQ(processPage(halfBlackPage(), properties).finished->bytes,
              processPage(mirrored, stencilProperties(8)).finished->bytes);
}

TEST(ReferenceStencilPage, IsMisreadWhereRowsAreLongerThanTheWidth) {
    Page page = uniformPage(4, 2, 255);
    page.header.bytesPerLine = 6;
    page.rows = Bytes(12, 255);
    const ProcessedPage result = processPage(page, stencilProperties(8));
    // The buffer holds 255 × 4, 0 × 2, 255 × 4: the second row is read as 0, 0, 255, 255.
    const Bytes misread = {255, 255, 255, 255, 0, 0, 255, 255};
    EXPECT_EQ(result.finished->bytes, stencil(4, 2, misread, false));
}

TEST(ReferenceStencilPage, StandsOnAWhiteCanvasInsideAFrame) {
    Page page = uniformPage(8, 2, 0);
    page.header.pageSizeName = "Tattoo_A6";
    PageProperties properties = stencilProperties(8);
    properties.antiWrinkle = 1;
    const GreyImage finished = *processPage(page, properties).finished;
    EXPECT_EQ(pixelAt(finished, 100, 100), 255);
}

}  // namespace
}  // namespace reference
