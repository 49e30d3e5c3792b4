// The search for the palette entry nearest to a colour.
#include "tests/unit/image/test_images.h"

namespace {

using Palette = std::vector<tagRGBQUAD>;

class NearestIndex : public testing::Test {
protected:
    RasterImage image;

    // A 4-bit image with these entries first and far-off ones (white) behind.
    void usePalette(const Palette& entries) {
        image.Create(1, 1, 4, 0);
        const Palette white(16, {255, 255, 255, 0});
        image.SetPalette(white.data(), 16);
        image.SetPalette(entries.data(), static_cast<std::uint32_t>(entries.size()));
    }
    int nearest(tagRGBQUAD colour) { return image.GetNearestIndex(colour); }
};

TEST_F(NearestIndex, IsTheLevelItselfOnAGreyPalette) {
    image.Create(1, 1, 8, 0);
    image.SetGrayPalette();
    for (int level = 0; level < 256; ++level) {
        const auto grey = static_cast<std::uint8_t>(level);
        EXPECT_EQ(nearest({grey, grey, grey, 0}), level);
    }
}

TEST_F(NearestIndex, SplitsBlackAndWhiteInTheMiddle) {
    image.Create(1, 1, 1, 0);
    image.SetGrayPalette();
    EXPECT_EQ(nearest({127, 127, 127, 0}), 0);
    EXPECT_EQ(nearest({128, 128, 128, 0}), 1);
}

TEST_F(NearestIndex, MeasuresSquaredDistances) {
    // From black: 3 × 10² = 300 against 18² = 324 and 17² = 289.
    usePalette({{10, 10, 10, 0}, {18, 0, 0, 0}});
    EXPECT_EQ(nearest({0, 0, 0, 0}), 0);
    usePalette({{10, 10, 10, 0}, {17, 0, 0, 0}});
    EXPECT_EQ(nearest({0, 0, 0, 0}), 1);
    usePalette({{10, 10, 10, 0}, {0, 17, 0, 0}});
    EXPECT_EQ(nearest({0, 0, 0, 0}), 1);
    usePalette({{10, 10, 10, 0}, {0, 0, 17, 0}});
    EXPECT_EQ(nearest({0, 0, 0, 0}), 1);
}

TEST_F(NearestIndex, IgnoresTheReservedBytes) {
    usePalette({{1, 1, 1, 0}, {0, 0, 0, 255}});
    EXPECT_EQ(nearest({0, 0, 0, 0}), 1);
    usePalette({{0, 0, 0, 255}, {1, 1, 1, 0}});
    EXPECT_EQ(nearest({0, 0, 0, 0}), 0);
}

TEST_F(NearestIndex, IsTheLowestOfSeveralAtTheSameDistance) {
    usePalette({{90, 90, 90, 0}, {10, 20, 20, 0}, {30, 20, 20, 0}, {20, 10, 20, 0}});
    EXPECT_EQ(nearest({20, 20, 20, 0}), 1);
}

TEST_F(NearestIndex, EndsAtTheFirstEntryWithoutDistance) {
    usePalette({{9, 9, 9, 0}, {20, 20, 20, 0}, {21, 20, 20, 0}, {20, 20, 20, 0}});
    EXPECT_EQ(nearest({20, 20, 20, 0}), 1);
}

TEST_F(NearestIndex, FindsEvenTheFarthestColour) {
    // 3 × 255² = 195075 is the largest distance there is.
    usePalette(Palette(16, {255, 255, 255, 0}));
    EXPECT_EQ(nearest({0, 0, 0, 0}), 0);
    usePalette(Palette(16, {0, 0, 0, 0}));
    image.SetPaletteColor(9, 1, 0, 0, 0);
    EXPECT_EQ(nearest({255, 255, 255, 0}), 9);
}

TEST_F(NearestIndex, FollowsAChangeOfThePalette) {
    const tagRGBQUAD colour = {50, 60, 70, 0};
    usePalette({{0, 0, 0, 0}, {50, 60, 70, 0}});
    EXPECT_EQ(nearest(colour), 1);
    image.SetPaletteColor(7, 70, 60, 50, 0);
    image.SetPaletteColor(1, 0, 0, 0, 0);
    EXPECT_EQ(nearest(colour), 7);
    const Palette first = {{50, 60, 70, 0}};
    image.SetPalette(first.data(), 1);
    EXPECT_EQ(nearest(colour), 0);
    image.SetGrayPalette();
    EXPECT_EQ(nearest(colour), 4);  // grey 68: 324 + 64 + 4, grey 51: 1 + 81 + 361
}

TEST_F(NearestIndex, FollowsAChangeThroughThePalettePointer) {
    usePalette({{0, 0, 0, 0}, {5, 5, 5, 0}});
    EXPECT_EQ(nearest({5, 5, 5, 0}), 1);
    image.GetPalette()[3] = {5, 5, 5, 0};
    image.GetPalette()[1] = {99, 99, 99, 0};
    EXPECT_EQ(nearest({5, 5, 5, 0}), 3);
}

TEST_F(NearestIndex, FollowsTheNextImage) {
    usePalette({{0, 0, 0, 0}, {5, 5, 5, 0}});
    EXPECT_EQ(nearest({5, 5, 5, 0}), 1);
    image.Create(1, 1, 8, 0);
    image.SetGrayPalette();
    EXPECT_EQ(nearest({5, 5, 5, 0}), 5);
}

TEST_F(NearestIndex, LooksOnlyAtTheImportantColours) {
    usePalette({{0, 0, 0, 0}, {10, 10, 10, 0}, {20, 20, 20, 0}});
    image.SetClrImportant(2);
    EXPECT_EQ(nearest({20, 20, 20, 0}), 1);
    image.SetClrImportant(1);
    EXPECT_EQ(nearest({20, 20, 20, 0}), 0);
    image.SetClrImportant(3);
    EXPECT_EQ(nearest({20, 20, 20, 0}), 2);
}

TEST_F(NearestIndex, LooksAtAllColoursForZeroImportantOnes) {
    usePalette({{0, 0, 0, 0}, {10, 10, 10, 0}});
    image.SetPaletteColor(15, 20, 20, 20, 0);
    image.SetClrImportant(1);
    image.SetClrImportant(0);
    EXPECT_EQ(nearest({20, 20, 20, 0}), 15);
}

// Behind the palette lie the pixels, which must not be taken for colours.
TEST_F(NearestIndex, NeverLooksBeyondThePalette) {
    image.Create(64, 1, 1, 0);
    image.SetPaletteColor(1, 9, 9, 9, 0);
    image.Negative();
    image.SetClrImportant(4);
    EXPECT_EQ(nearest({255, 255, 255, 0}), 1);
}

TEST_F(NearestIndex, RecordsColourAndAnswer) {
    usePalette({{0, 0, 0, 0}, {10, 10, 10, 0}});
    EXPECT_FALSE(image.GetInfo().lastColorValid);
    nearest({9, 10, 11, 12});
    EXPECT_TRUE(image.GetInfo().lastColorValid);
    EXPECT_EQ(image.GetInfo().lastColor, (tagRGBQUAD{9, 10, 11, 12}));
    EXPECT_EQ(image.GetInfo().lastColorIndex, 1U);
}

TEST_F(NearestIndex, IsZeroWithoutAPaletteAndRecordsNothing) {
    EXPECT_EQ(nearest({9, 10, 11, 12}), 0);
    image.Create(1, 1, 24, 0);
    EXPECT_EQ(nearest({9, 10, 11, 12}), 0);
    EXPECT_FALSE(image.GetInfo().lastColorValid);
    EXPECT_EQ(image.GetInfo().lastColor, tagRGBQUAD{});
}

}  // namespace
