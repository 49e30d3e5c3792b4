// Unchecked access to pixels, and pixels as colours.
#include "tests/unit/image/test_images.h"

namespace {

using reference::Bytes;

TEST(BlindSetPixelIndex, PacksAsTheCheckedAccessorDoes) {
    RasterImage image;
    image.Create(3, 1, 8, 0);
    image.BlindSetPixelIndex(2, 0, 0xF3);
    EXPECT_EQ(rowsOf(image), (Bytes{0, 0, 0xF3, 0}));
    image.Create(3, 1, 4, 0);
    image.Negative();
    image.BlindSetPixelIndex(0, 0, 0xF3);
    image.BlindSetPixelIndex(1, 0, 0xE5);
    EXPECT_EQ(rowsOf(image), (Bytes{0x35, 0xFF, 0xFF, 0xFF}));
    image.Create(9, 1, 1, 0);
    image.BlindSetPixelIndex(6, 0, 255);
    image.BlindSetPixelIndex(8, 0, 1);
    EXPECT_EQ(rowsOf(image), (Bytes{0x02, 0x80, 0, 0}));
}

TEST(BlindSetPixelIndex, ReachesThePaddingOfARow) {
    RasterImage image;
    image.Create(1, 2, 8, 0);
    image.BlindSetPixelIndex(3, 0, 9);
    EXPECT_EQ(rowsOf(image), (Bytes{0, 0, 0, 9, 0, 0, 0, 0}));
    EXPECT_EQ(image.BlindGetPixelIndex(3, 0), 9U);
    EXPECT_EQ(image.GetPixelIndex(3, 0), 0U);
}

TEST(BlindGetPixelIndex, UnpacksAsTheCheckedAccessorDoes) {
    for (const std::uint32_t bpp : {1U, 4U, 8U}) {
        RasterImage image;
        image.Create(33, 5, bpp, 0);
        makeImage(image, 33, 5, bpp, noise(std::size_t{image.GetEffWidth()} * 5));
        for (std::int64_t y = 0; y < 5; ++y) {
            for (std::int64_t x = 0; x < 33; ++x) {
                EXPECT_EQ(image.BlindGetPixelIndex(x, y), image.GetPixelIndex(x, y)) << bpp;
            }
        }
    }
}

TEST(BlindGetPixelColor, TakesBlueGreenRedAt24Bits) {
    RasterImage image;
    makeImage(image, 2, 2, 24, {1, 2, 3, 4, 5, 6, 99, 99, 7, 8, 9, 10, 11, 12, 99, 99});
    EXPECT_EQ(image.BlindGetPixelColor(0, 0), (tagRGBQUAD{1, 2, 3, 0}));
    EXPECT_EQ(image.BlindGetPixelColor(1, 0), (tagRGBQUAD{4, 5, 6, 0}));
    EXPECT_EQ(image.BlindGetPixelColor(0, 1), (tagRGBQUAD{7, 8, 9, 0}));
    EXPECT_EQ(image.BlindGetPixelColor(1, 1, true), (tagRGBQUAD{10, 11, 12, 0}));
}

TEST(BlindGetPixelColor, LooksTheIndexUpInThePalette) {
    RasterImage image;
    makeImage(image, 2, 1, 8, {5, 200, 0, 0});
    image.SetPaletteColor(200, 10, 20, 30, 40);
    EXPECT_EQ(image.BlindGetPixelColor(0, 0), (tagRGBQUAD{5, 5, 5, 0}));
    EXPECT_EQ(image.BlindGetPixelColor(1, 0), (tagRGBQUAD{30, 20, 10, 40}));
    EXPECT_EQ(image.BlindGetPixelColor(1, 0, true), (tagRGBQUAD{30, 20, 10, 40}));
    makeImage(image, 2, 1, 4, {0x3F, 0, 0, 0});
    EXPECT_EQ(image.BlindGetPixelColor(0, 0), (tagRGBQUAD{51, 51, 51, 0}));
    makeImage(image, 2, 1, 1, {0x40, 0, 0, 0});
    EXPECT_EQ(image.BlindGetPixelColor(1, 0), (tagRGBQUAD{255, 255, 255, 0}));
}

TEST(BlindSetPixelColor, WritesBlueGreenRedAt24Bits) {
    RasterImage image;
    makeImage(image, 2, 2, 24, Bytes(16, 99));
    image.BlindSetPixelColor(1, 0, {1, 2, 3, 4});
    image.BlindSetPixelColor(0, 1, {5, 6, 7, 8}, true);
    EXPECT_EQ(rowsOf(image), (Bytes{99, 99, 99, 1, 2, 3, 99, 99,  //
                                    5, 6, 7, 99, 99, 99, 99, 99}));
}

TEST(BlindSetPixelColor, StoresTheNearestIndexOfThePalette) {
    RasterImage image;
    makeImage(image, 3, 1, 8, Bytes(4, 99));
    image.BlindSetPixelColor(1, 0, {60, 60, 60, 0});
    image.BlindSetPixelColor(2, 0, {10, 20, 30, 0}, true);
    EXPECT_EQ(rowsOf(image), (Bytes{99, 60, 20, 99}));
    EXPECT_EQ(image.GetInfo().lastColor, (tagRGBQUAD{10, 20, 30, 0}));
    makeImage(image, 3, 1, 4, Bytes(4, 0));
    image.BlindSetPixelColor(1, 0, {60, 60, 60, 0});
    image.BlindSetPixelColor(2, 0, {255, 255, 255, 0});
    EXPECT_EQ(rowsOf(image), (Bytes{0x04, 0xF0, 0, 0}));
    makeImage(image, 3, 1, 1, Bytes(4, 0));
    image.BlindSetPixelColor(1, 0, {200, 200, 200, 0});
    EXPECT_EQ(rowsOf(image), (Bytes{0x40, 0, 0, 0}));
}

}  // namespace
