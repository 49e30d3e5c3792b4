// The steps from the grey page to the finished image, each on a page worked out by hand.
#include "tests/unit/driver/test_support.h"

namespace {

using reference::Bytes;

// A page of 4 × 2 white pixels with a black one at the top left.
const Bytes cornerPage = {0, 255, 255, 255, 255, 255, 255, 255};

class PageProcess : public testing::Test {
protected:
    TestPrinter printer;
    std::string log;
    std::int64_t length = -1;

    Bytes process(const Bytes& page, int stride, int width, int height) {
        Bytes out(2 * page.size(), 77);
        log = errorOutputOf([&] {
            length = printer.PageProcess(printer.getHalftoneType(), page.data(), stride, width,
                                         height, out);
        });
        return out;
    }
    Bytes finishedCorner() {
        process(cornerPage, 4, 4, 2);
        return bytesOf(*printer.pimage_);
    }
    // The finished pixel of a page of one level.
    int finishedLevel(std::uint8_t level) {
        process({level}, 1, 1, 1);
        return printer.pimage_->GetPixelIndex(0, 0);
    }
    bool logHolds(const std::string& line) const {
        return log.find("DEBUG:PageProcess: " + line + "\n") != std::string::npos;
    }
};

TEST_F(PageProcess, OfAPlainPageIsTracedInFiveLines) {
    process(Bytes(10, 200), 5, 5, 2);
    EXPECT_EQ(log,
              "DEBUG:PageProcess: QM dithering is disabled\n"
              "DEBUG:PageProcess: Successfully created RasterImage from array with stride 5\n"
              "DEBUG:PageProcess: Applied default dithering and increased bit depth\n"
              "DEBUG:PageProcess: negativePrint_ 0\n"
              "DEBUG:PageProcess: Filled the output buffer with processed pixels, length: 16\n");
}

TEST_F(PageProcess, WithEveryPropertySetIsTracedInTheOrderOfItsSteps) {
    setProperties(printer, {.brightness = -3,
                            .contrast = 10,
                            .halftoneType = 2,
                            .mirror = true,
                            .negative = true,
                            .rotate180 = true});
    process(cornerPage, 4, 4, 2);
    EXPECT_EQ(log,
              "DEBUG:PageProcess: QM dithering is disabled\n"
              "DEBUG:PageProcess: Successfully created RasterImage from array with stride 4\n"
              "DEBUG:PageProcess: Adjusted brightness to -15 and contrast to 20\n"
              "DEBUG:PageProcess: Rotated the image 180 degrees\n"
              "DEBUG:PageProcess: Mirrored the image\n"
              "DEBUG:PageProcess: Applied default dithering and increased bit depth\n"
              "DEBUG:PageProcess: negativePrint_ 1\n"
              "DEBUG:PageProcess: Inverting the image for negative print\n"
              "DEBUG:PageProcess: Filled the output buffer with processed pixels, length: 8\n");
}

TEST_F(PageProcess, LeavesTheFinishedPageInTheWorkingImage) {
    EXPECT_EQ(finishedCorner(), (Bytes{0, 1, 1, 1, 1, 1, 1, 1}));
    EXPECT_EQ(printer.pimage_, &printer.image_);
}

TEST_F(PageProcess, LeavesAnImageOfOneBytePerPixelWithABlackAndAWhiteEntry) {
    finishedCorner();
    EXPECT_EQ(printer.pimage_->GetHeader().biBitCount, 8);
    EXPECT_EQ(printer.pimage_->GetPaletteColor(0), (tagRGBQUAD{0, 0, 0, 0}));
    EXPECT_EQ(printer.pimage_->GetPaletteColor(1), (tagRGBQUAD{255, 255, 255, 0}));
}

TEST_F(PageProcess, KeepsTheFirstRowFirst) {
    process({0, 0, 255, 255}, 2, 2, 2);
    EXPECT_EQ(printer.pimage_->GetPixelIndex(0, 0), 0);
    EXPECT_EQ(printer.pimage_->GetPixelIndex(0, 1), 1);
}

TEST_F(PageProcess, TakesRowsAStrideApart) {
    process({0, 255, 9, 9, 9, 255, 0, 9, 9, 9}, 5, 2, 2);
    EXPECT_EQ(bytesOf(*printer.pimage_), (Bytes{0, 1, 0, 0, 1, 0, 0, 0}));
}

TEST_F(PageProcess, ReturnsTheHeightTimesThePaddedRow) {
    process(Bytes(15, 0), 5, 5, 3);
    EXPECT_EQ(length, 3 * 8);
    process(Bytes(12, 0), 4, 4, 3);
    EXPECT_EQ(length, 3 * 4);
}

TEST_F(PageProcess, ThresholdsAt128ByDefault) {
    EXPECT_EQ(finishedLevel(128), 0);
    EXPECT_EQ(finishedLevel(129), 1);
}

TEST_F(PageProcess, LeavesTheToneAloneWithoutBrightnessAndContrast) {
    finishedCorner();
    EXPECT_EQ(log.find("Adjusted"), std::string::npos);
}

TEST_F(PageProcess, AddsFiveLevelsForEachStepOfBrightness) {
    printer.setBrightness(1);
    EXPECT_EQ(finishedLevel(123), 0);
    EXPECT_EQ(finishedLevel(124), 1);
    EXPECT_TRUE(logHolds("Adjusted brightness to 5 and contrast to 0"));
    printer.setBrightness(-1);
    EXPECT_EQ(finishedLevel(133), 0);
    EXPECT_EQ(finishedLevel(134), 1);
}

TEST_F(PageProcess, MakesAnyLevelWhiteOrBlackAtTheEndsOfTheBrightness) {
    printer.setBrightness(100);
    EXPECT_EQ(finishedLevel(0), 1);
    EXPECT_TRUE(logHolds("Adjusted brightness to 500 and contrast to 0"));
    printer.setBrightness(-100);
    EXPECT_EQ(finishedLevel(255), 0);
    EXPECT_TRUE(logHolds("Adjusted brightness to -500 and contrast to 0"));
}

TEST_F(PageProcess, AdjustsTheToneForContrastAlone) {
    printer.setContrast(10);
    finishedLevel(128);
    EXPECT_TRUE(logHolds("Adjusted brightness to 0 and contrast to 20"));
}

// Brightness 7 adds 35 levels and contrast 50 scales by 2: level 110 becomes
// (110 − 128) × 2 + 128 + 35 = 127, and level 111 becomes 129.
TEST_F(PageProcess, ScalesLevelsAroundTheMiddleByTwiceTheContrast) {
    setProperties(printer, {.brightness = 7, .contrast = 50});
    EXPECT_EQ(finishedLevel(110), 0);
    EXPECT_EQ(finishedLevel(111), 1);
}

TEST_F(PageProcess, MakesAllLevelsTheMiddleOneAtContrastMinus50) {
    printer.setContrast(-50);
    EXPECT_EQ(finishedLevel(255), 0);
    EXPECT_TRUE(logHolds("Adjusted brightness to 0 and contrast to -100"));
}

TEST_F(PageProcess, RotatesBy180Degrees) {
    printer.setRotate180Print(true);
    EXPECT_EQ(finishedCorner(), (Bytes{1, 1, 1, 1, 1, 1, 1, 0}));
    EXPECT_TRUE(logHolds("Rotated the image 180 degrees"));
}

TEST_F(PageProcess, MirrorsLeftToRight) {
    printer.setMirrorPrint(true);
    EXPECT_EQ(finishedCorner(), (Bytes{1, 1, 1, 0, 1, 1, 1, 1}));
    EXPECT_TRUE(logHolds("Mirrored the image"));
}

TEST_F(PageProcess, FlipsThePageUpsideDownByRotatingAndMirroring) {
    setProperties(printer, {.mirror = true, .rotate180 = true});
    EXPECT_EQ(finishedCorner(), (Bytes{1, 1, 1, 1, 0, 1, 1, 1}));
}

// Floyd and Steinberg's method gives the turned row 0, 0, 129, 129 as black, black, white and,
// less 126 × 7 / 16 = 55, black. Turned after halftoning the white dot would come last.
TEST_F(PageProcess, TurnsThePageBeforeHalftoning) {
    printer.setHalftoneType(static_cast<DitherType>(10));
    printer.setMirrorPrint(true);
    process({129, 129, 0, 0}, 4, 4, 1);
    EXPECT_EQ(bytesOf(*printer.pimage_), (Bytes{0, 0, 1, 0}));
}

TEST_F(PageProcess, LeavesNoPixelOfValueZeroOnNegativePrinting) {
    printer.setNegativePrint(true);
    EXPECT_EQ(finishedCorner(), (Bytes{255, 254, 254, 254, 254, 254, 254, 254}));
}

TEST_F(PageProcess, InvertsTheRowPaddingToo) {
    printer.setNegativePrint(true);
    process({255, 0}, 2, 2, 1);
    EXPECT_EQ(bytesOf(*printer.pimage_), (Bytes{254, 255, 255, 255}));
}

TEST_F(PageProcess, ForgetsThePageBefore) {
    printer.setNegativePrint(true);
    process(Bytes(12, 0), 6, 6, 2);
    printer.setNegativePrint(false);
    EXPECT_EQ(finishedCorner(), (Bytes{0, 1, 1, 1, 1, 1, 1, 1}));
}

TEST_F(PageProcess, GivesTheSameImageEveryTime) {
    printer.setHalftoneType(DitherType::Ordered);
    const Bytes page = noise(1200);
    process(page, 40, 37, 30);
    const Bytes once = bytesOf(*printer.pimage_);
    process(page, 40, 37, 30);
    EXPECT_EQ(bytesOf(*printer.pimage_), once);
}

TEST_F(PageProcess, OnlyReadsThePage) {
    Bytes page = noise(64);
    setProperties(printer, {.brightness = 20, .halftoneType = 3, .negative = true});
    process(page, 8, 8, 8);
    EXPECT_EQ(page, noise(64));
}

}  // namespace
