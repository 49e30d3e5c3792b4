// Look-up tables and negatives.
#include <array>
#include <numeric>

#include "tests/unit/image/test_images.h"

namespace {

using reference::Bytes;
using Table = std::array<std::uint8_t, 256>;

// A table with no fixed point: index i becomes i + 3.
Table shiftTable() {
    Table table;
    std::iota(table.begin(), table.end(), std::uint8_t{3});
    return table;
}

TEST(Lut, IsFalseWithoutAnImageOrATable) {
    RasterImage image;
    EXPECT_FALSE(image.Lut(shiftTable().data()));
    makeImage(image, 3, 1, 8, {10, 20, 30, 40});
    EXPECT_FALSE(image.Lut(nullptr));
    EXPECT_EQ(rowsOf(image), (Bytes{10, 20, 30, 40}));
}

TEST(Lut, ReplacesIndicesButNotThePaddingAt8Bits) {
    RasterImage image;
    makeImage(image, 3, 2, 8, {10, 20, 30, 40, 255, 254, 0, 40});
    EXPECT_TRUE(image.Lut(shiftTable().data()));
    EXPECT_EQ(rowsOf(image), (Bytes{13, 23, 33, 40, 2, 1, 3, 40}));
}

TEST(Lut, StoresTheLowNibbleAt4Bits) {
    RasterImage image;
    makeImage(image, 3, 1, 4, {0x0C, 0xD7, 0x77, 0});
    EXPECT_TRUE(image.Lut(shiftTable().data()));
    EXPECT_EQ(rowsOf(image), (Bytes{0x3F, 0x07, 0x77, 0}));
}

TEST(Lut, StoresTheLowestBitAt1Bit) {
    RasterImage image;
    makeImage(image, 4, 1, 1, {0x5F, 0, 0, 0});
    EXPECT_TRUE(image.Lut(shiftTable().data()));
    EXPECT_EQ(rowsOf(image), (Bytes{0xAF, 0, 0, 0}));
}

TEST(Lut, ChangesNothingAt24Bits) {
    RasterImage image;
    makeImage(image, 1, 1, 24, {1, 2, 3, 4});
    EXPECT_TRUE(image.Lut(shiftTable().data()));
    EXPECT_EQ(rowsOf(image), (Bytes{1, 2, 3, 4}));
}

TEST(Negative, ComplementsEveryByteAtEveryDepth) {
    for (const std::uint32_t bpp : {1U, 4U, 8U, 24U}) {
        RasterImage image;
        makeImage(image, 1, 2, bpp, {0, 1, 2, 3, 0x80, 0xA5, 0xFE, 0xFF});
        image.Negative();
        EXPECT_EQ(rowsOf(image), (Bytes{0xFF, 0xFE, 0xFD, 0xFC, 0x7F, 0x5A, 0x01, 0x00})) << bpp;
    }
}

TEST(Negative, InvertsIndicesAndNotThePalette) {
    RasterImage image;
    makeImage(image, 2, 1, 4, {0x0C, 0, 0, 0});
    const std::vector<tagRGBQUAD> palette = paletteOf(image);
    image.Negative();
    EXPECT_EQ(pixelsOf(image), (Bytes{15, 3}));
    EXPECT_EQ(paletteOf(image), palette);
}

TEST(Negative, TwiceRestoresTheImageAndItsPadding) {
    const Bytes rows = noise(24);
    RasterImage image;
    makeImage(image, 5, 3, 8, rows);
    image.Negative();
    EXPECT_NE(rowsOf(image), rows);
    image.Negative();
    EXPECT_EQ(rowsOf(image), rows);
}

TEST(Negative, DoesNothingWithoutAnImage) {
    RasterImage image;
    image.Create(5, 3, 8, 0);
    image.Destroy();
    image.Negative();
    EXPECT_FALSE(image.IsValid());
}

}  // namespace
