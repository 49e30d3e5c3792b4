// Palettes: setting, reading and the nearest colour.
#include "tests/unit/image/test_images.h"

namespace {

using Palette = std::vector<tagRGBQUAD>;

constexpr tagRGBQUAD noColour = {0, 0, 0, 0};

TEST(Palette, HasAsManyEntriesAsTheDepthHasIndices) {
    RasterImage image;
    image.Create(1, 1, 1, 0);
    EXPECT_EQ(image.GetPaletteSize(), 8U);
    image.Create(1, 1, 4, 0);
    EXPECT_EQ(image.GetPaletteSize(), 64U);
    image.Create(1, 1, 8, 0);
    EXPECT_EQ(image.GetPaletteSize(), 1024U);
}

TEST(Palette, IsMissingIn24BitImages) {
    RasterImage image;
    image.Create(2, 1, 24, 0);
    EXPECT_EQ(image.GetPalette(), nullptr);
    EXPECT_EQ(image.GetPaletteSize(), 0U);
    image.SetGrayPalette();
    image.SetPaletteColor(0, 1, 2, 3, 4);
    const tagRGBQUAD colour = {1, 2, 3, 4};
    image.SetPalette(&colour, 1);
    EXPECT_EQ(rowsOf(image), reference::Bytes(8, 0));
    EXPECT_EQ(image.GetPaletteColor(0), noColour);
}

TEST(Palette, IsMissingWithoutAnImage) {
    RasterImage image;
    image.Create(2, 1, 8, 0);
    image.Destroy();
    EXPECT_EQ(image.GetPalette(), nullptr);
    EXPECT_EQ(image.GetPaletteSize(), 0U);
    image.SetGrayPalette();
    image.SetPaletteColor(0, 1, 2, 3, 4);
    const tagRGBQUAD colour = {1, 2, 3, 4};
    image.SetPalette(&colour, 1);
    EXPECT_EQ(image.GetPaletteColor(0), noColour);
}

TEST(SetPalette, CopiesTheGivenEntriesAndKeepsTheOthers) {
    RasterImage image;
    image.Create(1, 1, 4, 0);
    image.SetPaletteColor(2, 30, 20, 10, 40);
    const Palette two = {{1, 2, 3, 4}, {5, 6, 7, 8}};
    image.SetPalette(two.data(), 2);
    Palette expected(16);
    expected[0] = {1, 2, 3, 4};
    expected[1] = {5, 6, 7, 8};
    expected[2] = {10, 20, 30, 40};
    EXPECT_EQ(paletteOf(image), expected);
}

TEST(SetPalette, CopiesNoMoreEntriesThanThePaletteHas) {
    RasterImage image;
    image.Create(1, 1, 1, 0);
    const Palette three = {{1, 2, 3, 4}, {5, 6, 7, 8}, {255, 255, 255, 255}};
    image.SetPalette(three.data(), 3);
    EXPECT_EQ(paletteOf(image), (Palette{{1, 2, 3, 4}, {5, 6, 7, 8}}));
    EXPECT_EQ(rowsOf(image), reference::Bytes(4, 0));
}

TEST(SetPalette, TakesNullAndZeroEntriesForNothing) {
    RasterImage image;
    image.Create(1, 1, 1, 0);
    image.SetPaletteColor(0, 9, 9, 9, 9);
    const Palette two = {{1, 2, 3, 4}, {5, 6, 7, 8}};
    image.SetPalette(nullptr, 2);
    image.SetPalette(two.data(), 0);
    EXPECT_EQ(paletteOf(image), (Palette{{9, 9, 9, 9}, {0, 0, 0, 0}}));
}

void expectGreyRamp(std::uint32_t bpp, unsigned step) {
    RasterImage image;
    image.Create(1, 1, bpp, 0);
    image.SetGrayPalette();
    for (unsigned i = 0; i < image.GetNumColors(); ++i) {
        const auto level = static_cast<std::uint8_t>(i * step);
        EXPECT_EQ(image.GetPalette()[i], (tagRGBQUAD{level, level, level, 0})) << i;
    }
}

TEST(SetGrayPalette, GivesBlackAndWhiteAt1Bit) {
    expectGreyRamp(1, 255);
}

TEST(SetGrayPalette, GivesStepsOf17At4Bits) {
    expectGreyRamp(4, 17);
}

TEST(SetGrayPalette, GivesEveryLevelAt8Bits) {
    expectGreyRamp(8, 1);
}

TEST(SetGrayPalette, LeavesTheReservedBytes) {
    RasterImage image;
    image.Create(1, 1, 4, 0);
    image.SetPaletteColor(2, 7, 7, 7, 99);
    image.SetGrayPalette();
    EXPECT_EQ(image.GetPaletteColor(2), (tagRGBQUAD{34, 34, 34, 99}));
}

TEST(SetPaletteColor, WritesBlueGreenRedReserved) {
    RasterImage image;
    image.Create(1, 1, 8, 0);
    image.SetPaletteColor(255, 10, 20, 30, 40);
    const std::uint8_t* entry = image.GetBits(0) - 4;  // the last one lies before the pixels
    EXPECT_EQ((reference::Bytes{entry, entry + 4}), (reference::Bytes{30, 20, 10, 40}));
    EXPECT_EQ(image.GetPaletteColor(255), (tagRGBQUAD{30, 20, 10, 40}));
}

TEST(SetPaletteColor, DropsEntriesBeyondThePalette) {
    for (const std::uint32_t bpp : {1U, 4U}) {
        RasterImage image;
        image.Create(8, 9, bpp, 0);
        for (unsigned i = image.GetNumColors(); i < 256; ++i) {
            image.SetPaletteColor(static_cast<std::uint8_t>(i), 1, 2, 3, 4);
        }
        EXPECT_EQ(paletteOf(image), Palette(image.GetNumColors())) << bpp;
        EXPECT_EQ(rowsOf(image), reference::Bytes(36, 0)) << bpp;
    }
}

// Behind the palette lie the pixels, which must not show.
TEST(GetPaletteColor, IsZeroBeyondThePalette) {
    RasterImage image;
    image.Create(8, 1, 4, 0);
    image.Negative();
    EXPECT_EQ(image.GetPaletteColor(16), noColour);
    EXPECT_EQ(image.GetPaletteColor(255), noColour);
    image.Create(8, 1, 1, 0);
    image.Negative();
    EXPECT_EQ(image.GetPaletteColor(2), noColour);
}

TEST(GetPaletteColor, GivesTheWholeEntry) {
    RasterImage image;
    image.Create(1, 1, 1, 0);
    const Palette two = {{1, 2, 3, 4}, {5, 6, 7, 8}};
    image.SetPalette(two.data(), 2);
    EXPECT_EQ(image.GetPaletteColor(0), (tagRGBQUAD{1, 2, 3, 4}));
    EXPECT_EQ(image.GetPaletteColor(1), (tagRGBQUAD{5, 6, 7, 8}));
}

}  // namespace
