// Checks the way of one page through the printer against values worked out by hand.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/reference/page_print.h"
#include "tests/reference/page_process.h"
#include "tests/reference/test_pages.h"

namespace reference {
namespace {

TEST(ReferencePageProcess, APlainPageIsTracedFromLoadingToTheBuffer) {
    const ProcessedPage result = processPage(uniformPage(5, 2, 200), {});
    const Lines expected = {
        "DEBUG:PageProcess: QM dithering is disabled",
        "DEBUG:PageProcess: Successfully created RasterImage from array with stride 5",
        "DEBUG:PageProcess: Applied default dithering and increased bit depth",
        "DEBUG:PageProcess: negativePrint_ 0",
        "DEBUG:PageProcess: Filled the output buffer with processed pixels, length: 16"};
    EXPECT_EQ(result.log, expected);
    EXPECT_EQ(result.length, 16);
    EXPECT_EQ(result.finished->bytes, (Bytes{1, 1, 1, 1, 1, 0, 0, 0, 1, 1, 1, 1, 1, 0, 0, 0}));
    EXPECT_EQ(result.buffer.size(), 20U);
    EXPECT_EQ(result.buffer[12], 255);
    EXPECT_EQ(result.buffer[13], 0);
}

TEST(ReferencePageProcess, ANegativePageHasNoPixelOfValue0) {
    Page page = uniformPage(4, 1, 255);
    page.rows[0] = 0;
    PageProperties properties;
    properties.negative = true;
    const ProcessedPage result = processPage(page, properties);
    EXPECT_EQ(result.finished->bytes, (Bytes{255, 254, 254, 254}));
    EXPECT_EQ(Bytes(result.buffer.begin(), result.buffer.begin() + 4), (Bytes{0, 1, 1, 1}));
    EXPECT_EQ(result.log[3], "DEBUG:PageProcess: negativePrint_ 1");
    EXPECT_EQ(result.log[4], "DEBUG:PageProcess: Inverting the image for negative print");
}

TEST(ReferencePageProcess, TheBufferShowsIndex1AsWhiteOrComplemented) {
    EXPECT_EQ(processingBuffer(rowImage({0, 1}), false, 2), (Bytes{0, 255}));
    EXPECT_EQ(processingBuffer(rowImage({0, 1}), true, 2), (Bytes{255, 0}));
}

TEST(ReferencePageProcess, RotationAndMirroringFlipThePageUpsideDown) {
    Page page = uniformPage(4, 2, 255);
    page.rows[0] = 0;
    PageProperties properties;
    properties.rotate180 = true;
    properties.mirror = true;
    const ProcessedPage result = processPage(page, properties);
    EXPECT_EQ(result.finished->bytes, (Bytes{1, 1, 1, 1, 0, 1, 1, 1}));
    EXPECT_EQ(result.log[2], "DEBUG:PageProcess: Rotated the image 180 degrees");
    EXPECT_EQ(result.log[3], "DEBUG:PageProcess: Mirrored the image");
}

TEST(ReferencePageProcess, ContrastIsDoubledAndBrightnessTakenFiveTimes) {
    PageProperties properties;
    properties.brightness = -3;
    properties.contrast = 10;
    EXPECT_EQ(processPage(uniformPage(4, 1, 255), properties).log[2],
              "DEBUG:PageProcess: Adjusted brightness to -15 and contrast to 20");
}

TEST(ReferencePageProcess, BrightnessMovesLevelsAcrossTheThreshold) {
    PageProperties properties;
    properties.brightness = 1;
    EXPECT_EQ(processPage(uniformPage(4, 1, 124), properties).finished->bytes, Bytes(4, 1));
    EXPECT_EQ(processPage(uniformPage(4, 1, 123), properties).finished->bytes, Bytes(4, 0));
}

TEST(ReferencePageProcess, APageWithoutColumnsCannotBeLoaded) {
    Page page = uniformPage(4, 1, 0);
    page.header.width = 0;
    const ProcessedPage result = processPage(page, {});
    EXPECT_FALSE(result.finished.has_value());
    EXPECT_EQ(result.length, 0);
    EXPECT_EQ(result.log.back(), "CRIT:rasterimage.CreateFromArray with grey failed!");
}

TEST(ReferencePageProcess, AFrameOutgrowsTheBufferButNotTheReportedLength) {
    Page page = uniformPage(8, 2, 255);
    page.header.pageSizeName = "Tattoo_A6";
    PageProperties properties;
    properties.antiWrinkle = 1;
    const ProcessedPage result = processPage(page, properties);
    // 1181 + 2 × 12 columns less the odd dot, rows of 1204 bytes.
    EXPECT_EQ(result.finished->stride, 1204U);
    EXPECT_EQ(result.length, 2 * 1204);
    EXPECT_EQ(result.buffer, Bytes(32, 255));
}

TEST(ReferencePageProcess, BrightnessOfTheSettingsIsClamped) {
    Settings settings;
    settings.brightness = 101;
    EXPECT_EQ(propertiesOf(settings).brightness, 100);
    settings.brightness = -101;
    EXPECT_EQ(propertiesOf(settings).brightness, -100);
    settings.mirrorImage = -1;
    EXPECT_TRUE(propertiesOf(settings).mirror);
}

TEST(ReferencePagePrint, BlankEdgesAreMeasuredAtTheBottomFirst) {
    PageProperties properties;
    properties.removeBlankEdges = 10;
    PrinterState printer;
    const PrintedPage result = printPage(uniformPage(4, 3, 9), properties, printer);
    EXPECT_EQ(result.log[2],
              "DEBUG:printImage: Removal of bottom blank edges detected, number of bottom blank "
              "lines: 3");
    EXPECT_EQ(result.log[3],
              "DEBUG:printImage: Removal of top blank edges detected, number of top blank lines: "
              "0");
    EXPECT_NE(std::find(result.log.begin(), result.log.end(),
                        "DEBUG:printImage: Adjusted image height to 3, pointer offset by 0 bytes"),
              result.log.end());
}

}  // namespace
}  // namespace reference
