// Rotation, and mirroring of 8-bit images.
#include "tests/support/test_memory.h"
#include "tests/unit/image/test_images.h"

namespace {

using reference::Bytes;
using Palette = std::vector<tagRGBQUAD>;

// The 256 entries that an 8-bit image gets from a smaller palette.
Palette widened(const Palette& entries) {
    Palette palette = entries;
    palette.resize(256);
    return palette;
}

TEST(Rotate180, IsFalseWithoutAnImage) {
    RasterImage image;
    RasterImage target;
    EXPECT_FALSE(image.Rotate180());
    EXPECT_FALSE(image.Rotate180(&target));
    EXPECT_FALSE(target.IsValid());
}

TEST(Rotate180, TurnsTheImageItself) {
    RasterImage image;
    makeImage(image, 3, 2, 8, {1, 2, 3, 99, 4, 5, 6, 99});
    EXPECT_TRUE(image.Rotate180(nullptr));
    EXPECT_EQ(rowsOf(image), (Bytes{6, 5, 4, 0, 3, 2, 1, 0}));
    EXPECT_EQ(image.GetWidth(), 3);
    EXPECT_EQ(image.GetHeight(), 2);
}

TEST(Rotate180, KeepsThePaletteAndTheType) {
    RasterImage image;
    image.Create(2, 1, 8, 77);
    image.SetGrayPalette();
    image.SetPaletteColor(9, 1, 2, 3, 4);
    const Palette palette = paletteOf(image);
    image.Rotate180();
    EXPECT_EQ(paletteOf(image), palette);
    EXPECT_EQ(image.GetInfo().type, 77U);
}

TEST(Rotate180, OfAnImageOfOnePixelGivesThatPixel) {
    RasterImage image;
    makeImage(image, 1, 1, 8, {123, 9, 9, 9});
    EXPECT_TRUE(image.Rotate180());
    EXPECT_EQ(pixelsOf(image), Bytes{123});
}

TEST(Rotate180, IntoAnotherImageKeepsTheSource) {
    RasterImage image;
    RasterImage target;
    makeImage(image, 3, 1, 8, {1, 2, 3, 99});
    target.Create(50, 50, 24, 5);
    EXPECT_TRUE(image.Rotate180(&target));
    EXPECT_EQ(rowsOf(image), (Bytes{1, 2, 3, 99}));
    EXPECT_EQ(rowsOf(target), (Bytes{3, 2, 1, 0}));
    EXPECT_EQ(paletteOf(target), paletteOf(image));
}

TEST(Rotate180, IntoItselfTurnsTheImage) {
    RasterImage image;
    makeImage(image, 3, 1, 8, {1, 2, 3, 99});
    EXPECT_TRUE(image.Rotate180(&image));
    EXPECT_EQ(rowsOf(image), (Bytes{3, 2, 1, 0}));
}

TEST(Rotate180, MakesAn8BitImageOfA4BitOne) {
    RasterImage image;
    makeImage(image, 3, 2, 4, {0x12, 0x30, 0, 0, 0x45, 0x60, 0, 0});
    const Palette palette = paletteOf(image);
    EXPECT_TRUE(image.Rotate180());
    EXPECT_EQ(image.GetHeader().biBitCount, 8U);
    EXPECT_EQ(rowsOf(image), (Bytes{6, 5, 4, 0, 3, 2, 1, 0}));
    EXPECT_EQ(paletteOf(image), widened(palette));
}

TEST(Rotate180, MakesAn8BitImageOfA1BitOne) {
    RasterImage image;
    makeImage(image, 10, 1, 1, {0xB0, 0x40, 0, 0});
    EXPECT_TRUE(image.Rotate180());
    EXPECT_EQ(image.GetHeader().biBitCount, 8U);
    EXPECT_EQ(rowsOf(image), (Bytes{1, 0, 0, 0, 0, 0, 1, 1, 0, 1, 0, 0}));
    EXPECT_EQ(paletteOf(image), widened({{0, 0, 0, 0}, {255, 255, 255, 0}}));
}

TEST(Rotate180, MakesAn8BitImageOfZeroesOfA24BitOne) {
    RasterImage image;
    makeImage(image, 2, 1, 24, Bytes(8, 99));
    EXPECT_TRUE(image.Rotate180());
    EXPECT_EQ(rowsOf(image), Bytes(4, 0));
    EXPECT_EQ(paletteOf(image), Palette(256));
}

TEST(Rotate180, IsTrueButLeavesNoImageWhenMemoryIsShort) {
    const std::ptrdiff_t blocks = liveBlocks();
    RasterImage image;
    makeImage(image, 3, 1, 8, {1, 2, 3, 99});
    const NoMemory none;
    EXPECT_TRUE(image.Rotate180());
    EXPECT_FALSE(image.IsValid());
    EXPECT_STREQ(image.GetLastError(), memoryText);
    EXPECT_EQ(liveBlocks(), blocks);
}

TEST(Mirror, ExchangesLeftAndRightAt8Bits) {
    RasterImage image;
    makeImage(image, 3, 2, 8, {1, 2, 3, 99, 4, 5, 6, 99});
    const Palette palette = paletteOf(image);
    image.Mirror();
    EXPECT_EQ(rowsOf(image), (Bytes{3, 2, 1, 0, 6, 5, 4, 0}));
    EXPECT_EQ(paletteOf(image), palette);
    EXPECT_EQ(image.GetWidth(), 3);
    EXPECT_EQ(image.GetHeight(), 2);
}

TEST(Mirror, KeepsTheType) {
    RasterImage image;
    image.Create(2, 1, 8, 77);
    image.Mirror();
    EXPECT_EQ(image.GetInfo().type, 77U);
}

TEST(Mirror, KeepsAnImageOfOneColumn) {
    RasterImage image;
    makeImage(image, 1, 3, 8, {1, 0, 0, 0, 2, 0, 0, 0, 3, 0, 0, 0});
    image.Mirror();
    EXPECT_EQ(rowsOf(image), (Bytes{1, 0, 0, 0, 2, 0, 0, 0, 3, 0, 0, 0}));
}

TEST(Mirror, DoesNothingWithoutAnImage) {
    RasterImage image;
    image.Mirror();
    EXPECT_FALSE(image.IsValid());
}

TEST(Mirror, LeavesNoImageWhenMemoryIsShort) {
    RasterImage image;
    makeImage(image, 3, 1, 8, {1, 2, 3, 99});
    const NoMemory none;
    image.Mirror();
    EXPECT_FALSE(image.IsValid());
    EXPECT_STREQ(image.GetLastError(), memoryText);
}

}  // namespace
