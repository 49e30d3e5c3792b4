// Pixel indices at every depth.
#include "tests/unit/image/test_images.h"

namespace {

using reference::Bytes;

struct Position {
    std::int64_t x;
    std::int64_t y;
};

// Places around an image of 9 × 2 pixels, and some whose low 32 bits lie inside it.
constexpr Position outside[] = {{9, 0},
                                {0, 2},
                                {-1, 0},
                                {0, -1},
                                {8, 2},
                                {-1, -1},
                                {9, 2},
                                {std::int64_t{1} << 32, 0},
                                {0, std::int64_t{1} << 32},
                                {INT64_MIN, 0},
                                {0, INT64_MAX}};

TEST(GetPixelIndex, TakesAByteAt8Bits) {
    RasterImage image;
    makeImage(image, 3, 2, 8, {10, 20, 30, 99, 40, 50, 255, 99});
    EXPECT_EQ(image.GetPixelIndex(0, 0), 10U);
    EXPECT_EQ(image.GetPixelIndex(2, 0), 30U);
    EXPECT_EQ(image.GetPixelIndex(0, 1), 40U);
    EXPECT_EQ(image.GetPixelIndex(2, 1), 255U);
    EXPECT_EQ(image.BlindGetPixelIndex(1, 1), 50U);
}

TEST(GetPixelIndex, TakesTheHighNibbleFirstAt4Bits) {
    RasterImage image;
    makeImage(image, 9, 2, 4,
              {0x12, 0x34, 0x56, 0x78, 0x9F, 0, 0, 0, 0xAB, 0, 0, 0, 0xC0, 0, 0, 0});
    EXPECT_EQ(pixelsOf(image), (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 0, 0, 0, 0, 0, 0, 12}));
    EXPECT_EQ(image.GetPixelIndex(0, 1), 10U);
    EXPECT_EQ(image.GetPixelIndex(1, 1), 11U);
    EXPECT_EQ(image.GetPixelIndex(8, 1), 12U);
}

TEST(GetPixelIndex, TakesTheHighestBitFirstAt1Bit) {
    RasterImage image;
    makeImage(image, 10, 2, 1, {0x81, 0x40, 0, 0, 0x0F, 0x80, 0, 0});
    EXPECT_EQ(pixelsOf(image), (Bytes{1, 0, 0, 0, 0, 0, 0, 1, 0, 1, 0, 0, 0, 0, 1, 1, 1, 1, 1, 0}));
    EXPECT_EQ(image.GetPixelIndex(0, 0), 1U);
    EXPECT_EQ(image.GetPixelIndex(9, 0), 1U);
    EXPECT_EQ(image.GetPixelIndex(8, 1), 1U);
    EXPECT_EQ(image.GetPixelIndex(9, 1), 0U);
}

TEST(GetPixelIndex, IsZeroAt24Bits) {
    RasterImage image;
    makeImage(image, 1, 1, 24, {255, 255, 255, 255});
    EXPECT_EQ(image.GetPixelIndex(0, 0), 0U);
    EXPECT_EQ(image.GetPixelIndex(-1, 0), 0U);
    EXPECT_EQ(image.BlindGetPixelIndex(0, 0), 0U);
}

TEST(GetPixelIndex, IsZeroWithoutAnImage) {
    RasterImage image;
    EXPECT_EQ(image.GetPixelIndex(0, 0), 0U);
    image.Create(2, 2, 8, 0);
    image.Destroy();
    EXPECT_EQ(image.GetPixelIndex(0, 0), 0U);
    EXPECT_EQ(image.GetPixelIndex(-1, 0), 0U);
}

TEST(GetPixelIndex, IsTheRawFirstByteOutsideTheImage) {
    for (const std::uint32_t bpp : {1U, 4U, 8U}) {
        RasterImage image;
        image.Create(9, 2, bpp, 0);
        image.GetBits(0)[0] = 0xA7;
        for (const Position& at : outside) {
            EXPECT_EQ(image.GetPixelIndex(at.x, at.y), 0xA7U)
                << bpp << ": " << at.x << ", " << at.y;
        }
    }
}

TEST(SetPixelIndex, WritesTheWholeByteAt8Bits) {
    RasterImage image;
    makeImage(image, 3, 2, 8, Bytes(8, 77));
    image.SetPixelIndex(0, 0, 1);
    image.SetPixelIndex(2, 0, 0);
    image.SetPixelIndex(1, 1, 255);
    EXPECT_EQ(rowsOf(image), (Bytes{1, 77, 0, 77, 77, 255, 77, 77}));
}

TEST(SetPixelIndex, WritesItsNibbleOnlyAt4Bits) {
    RasterImage image;
    makeImage(image, 3, 2, 4, {0xFF, 0xFF, 0, 0, 0, 0, 0, 0});
    image.SetPixelIndex(0, 0, 2);
    image.SetPixelIndex(2, 0, 4);
    image.SetPixelIndex(1, 1, 9);
    EXPECT_EQ(rowsOf(image), (Bytes{0x2F, 0x4F, 0, 0, 0x09, 0, 0, 0}));
}

TEST(SetPixelIndex, StoresTheLowNibbleAt4Bits) {
    RasterImage image;
    image.Create(2, 1, 4, 0);
    image.SetPixelIndex(0, 0, 0xF3);
    image.SetPixelIndex(1, 0, 0x2C);
    EXPECT_EQ(rowsOf(image), (Bytes{0x3C, 0, 0, 0}));
}

TEST(SetPixelIndex, WritesItsBitOnlyAt1Bit) {
    RasterImage image;
    makeImage(image, 10, 2, 1, {0xFF, 0xFF, 0, 0, 0, 0, 0, 0});
    image.SetPixelIndex(0, 0, 0);
    image.SetPixelIndex(9, 0, 0);
    image.SetPixelIndex(7, 1, 1);
    image.SetPixelIndex(8, 1, 1);
    EXPECT_EQ(rowsOf(image), (Bytes{0x7F, 0xBF, 0, 0, 0x01, 0x80, 0, 0}));
}

TEST(SetPixelIndex, StoresTheLowestBitAt1Bit) {
    RasterImage image;
    image.Create(8, 1, 1, 0);
    image.SetPixelIndex(1, 0, 255);
    image.SetPixelIndex(3, 0, 3);
    image.SetPixelIndex(5, 0, 254);
    EXPECT_EQ(rowsOf(image), (Bytes{0x50, 0, 0, 0}));
}

TEST(SetPixelIndex, ReachesEveryPixelOfA1BitImageOfWidth33) {
    for (std::int64_t x = 0; x < 33; ++x) {
        RasterImage image;
        image.Create(33, 1, 1, 0);
        image.SetPixelIndex(x, 0, 1);
        Bytes expected(8, 0);
        expected[static_cast<std::size_t>(x / 8)] = static_cast<std::uint8_t>(0x80 >> (x % 8));
        EXPECT_EQ(rowsOf(image), expected) << x;
    }
}

TEST(SetPixelIndex, ChangesNothingOutsideTheImage) {
    for (const std::uint32_t bpp : {1U, 4U, 8U}) {
        RasterImage image;
        image.Create(9, 2, bpp, 0);
        for (const Position& at : outside) {
            image.SetPixelIndex(at.x, at.y, 255);
        }
        EXPECT_EQ(rowsOf(image), Bytes(rowsOf(image).size(), 0)) << bpp;
    }
}

TEST(SetPixelIndex, ChangesNothingAt24Bits) {
    RasterImage image;
    makeImage(image, 1, 1, 24, {1, 2, 3, 4});
    image.SetPixelIndex(0, 0, 255);
    image.BlindSetPixelIndex(0, 0, 255);
    EXPECT_EQ(rowsOf(image), (Bytes{1, 2, 3, 4}));
}

TEST(SetPixelIndex, DoesNothingWithoutAnImage) {
    RasterImage image;
    image.Create(2, 2, 8, 0);
    image.Destroy();
    image.SetPixelIndex(0, 0, 255);
    EXPECT_FALSE(image.IsValid());
}

}  // namespace
