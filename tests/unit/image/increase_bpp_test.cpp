// Widening of the bit depth, for every pair of depths.
#include "tests/support/test_memory.h"
#include "tests/unit/image/test_images.h"

namespace {

using reference::Bytes;
using Palette = std::vector<tagRGBQUAD>;

constexpr std::uint32_t depths[] = {1, 4, 8, 24};

TEST(IncreaseBpp, IsFalseWithoutAnImage) {
    for (const std::uint32_t nbit : depths) {
        RasterImage image;
        EXPECT_FALSE(image.IncreaseBpp(nbit)) << nbit;
    }
}

void expectRefusal(std::uint32_t depth, std::uint32_t nbit) {
    const Bytes rows = {0xA5, 1, 2, 3};
    RasterImage image;
    makeImage(image, 1, 1, depth, rows);
    EXPECT_FALSE(image.IncreaseBpp(nbit)) << depth << " to " << nbit;
    EXPECT_EQ(image.GetHeader().biBitCount, depth);
    EXPECT_EQ(rowsOf(image), rows);
}

TEST(IncreaseBpp, RefusesDepthsOtherThan4And8And24) {
    for (const std::uint32_t depth : depths) {
        for (const std::uint32_t nbit : {0U, 1U, 2U, 3U, 5U, 7U, 9U, 16U, 32U, 0xFFFFFFFFU}) {
            expectRefusal(depth, nbit);
        }
    }
}

TEST(IncreaseBpp, RefusesSmallerDepths) {
    expectRefusal(8, 4);
    expectRefusal(24, 4);
    expectRefusal(24, 8);
}

TEST(IncreaseBpp, ChangesNothingAtTheSameDepth) {
    for (const std::uint32_t depth : {4U, 8U, 24U}) {
        const Bytes rows = {0xA5, 1, 2, 3};
        RasterImage image;
        makeImage(image, 1, 1, depth, rows);
        const Palette palette = paletteOf(image);
        const std::uint8_t* bits = image.GetBits(0);
        EXPECT_TRUE(image.IncreaseBpp(depth)) << depth;
        EXPECT_EQ(image.GetBits(0), bits) << depth;
        EXPECT_EQ(rowsOf(image), rows) << depth;
        EXPECT_EQ(paletteOf(image), palette) << depth;
    }
}

class Widened : public testing::Test {
protected:
    RasterImage image;

    void widen(std::uint32_t nbit) {
        EXPECT_TRUE(image.IncreaseBpp(nbit));
        EXPECT_EQ(image.GetHeader().biBitCount, nbit);
    }
    // The palette has become `entries` and zeroes behind.
    void expectPalette(Palette entries) const {
        entries.resize(image.GetNumColors());
        EXPECT_EQ(paletteOf(image), entries);
    }
};

TEST_F(Widened, From1To4BitsKeepsIndicesAndPalette) {
    makeImage(image, 10, 2, 1, {0xB0, 0x40, 0, 0, 0x01, 0x80, 0, 0});
    image.SetPaletteColor(1, 10, 20, 30, 40);
    widen(4);
    EXPECT_EQ(rowsOf(image), (Bytes{0x10, 0x11, 0, 0, 0x01, 0, 0, 0,  //
                                    0, 0, 0, 0x01, 0x10, 0, 0, 0}));
    expectPalette({{0, 0, 0, 0}, {30, 20, 10, 40}});
}

TEST_F(Widened, From1To8BitsKeepsIndicesAndPalette) {
    makeImage(image, 10, 2, 1, {0xB0, 0x40, 0, 0, 0x01, 0x80, 0, 0});
    image.SetPaletteColor(1, 10, 20, 30, 40);
    widen(8);
    EXPECT_EQ(rowsOf(image), (Bytes{1, 0, 1, 1, 0, 0, 0, 0, 0, 1, 0, 0,  //
                                    0, 0, 0, 0, 0, 0, 0, 1, 1, 0, 0, 0}));
    expectPalette({{0, 0, 0, 0}, {30, 20, 10, 40}});
}

TEST_F(Widened, From4To8BitsKeepsIndicesAndPalette) {
    makeImage(image, 3, 2, 4, {0x12, 0x30, 0, 0, 0xFE, 0xD0, 0, 0});
    image.SetPaletteColor(15, 10, 20, 30, 40);
    Palette palette = paletteOf(image);
    widen(8);
    EXPECT_EQ(rowsOf(image), (Bytes{1, 2, 3, 0, 15, 14, 13, 0}));
    expectPalette(palette);
}

TEST_F(Widened, From1To24BitsTakesTheColours) {
    makeImage(image, 2, 2, 1, {0x40, 0, 0, 0, 0x80, 0, 0, 0});
    image.SetPaletteColor(1, 10, 20, 30, 40);
    widen(24);
    EXPECT_EQ(rowsOf(image), (Bytes{0, 0, 0, 30, 20, 10, 0, 0, 30, 20, 10, 0, 0, 0, 0, 0}));
    EXPECT_EQ(image.GetNumColors(), 0U);
}

TEST_F(Widened, From4To24BitsTakesTheColours) {
    makeImage(image, 2, 1, 4, {0x3F, 0, 0, 0});
    image.SetPaletteColor(15, 10, 20, 30, 40);
    widen(24);
    EXPECT_EQ(rowsOf(image), (Bytes{51, 51, 51, 30, 20, 10, 0, 0}));
}

TEST_F(Widened, From8To24BitsTakesTheColours) {
    makeImage(image, 2, 1, 8, {77, 200, 0, 0});
    image.SetPaletteColor(200, 10, 20, 30, 40);
    widen(24);
    EXPECT_EQ(rowsOf(image), (Bytes{77, 77, 77, 30, 20, 10, 0, 0}));
}

TEST_F(Widened, KeepsSizeAndType) {
    for (const std::uint32_t nbit : {4U, 8U, 24U}) {
        image.Create(33, 3, 1, 77);
        widen(nbit);
        EXPECT_EQ(image.GetWidth(), 33);
        EXPECT_EQ(image.GetHeight(), 3);
        EXPECT_EQ(image.GetInfo().type, 77U);
    }
}

TEST_F(Widened, AHalftonedPageHasZeroForBlackAndOneForWhite) {
    makeGreyImage(image, 3, 1, {0, 255, 0});
    image.Dither(0);
    widen(8);
    EXPECT_EQ(rowsOf(image), (Bytes{0, 1, 0, 0}));
    expectPalette({{0, 0, 0, 0}, {255, 255, 255, 0}});
}

TEST(IncreaseBpp, LeavesTheImageWithATextWhenMemoryIsShort) {
    for (const std::uint32_t nbit : {4U, 8U, 24U}) {
        RasterImage image;
        makeImage(image, 9, 1, 1, {0xB0, 0x80, 0, 0});
        const NoMemory none;
        EXPECT_FALSE(image.IncreaseBpp(nbit));
        EXPECT_STREQ(image.GetLastError(), memoryText);
        EXPECT_EQ(image.GetHeader().biBitCount, 1U);
        EXPECT_EQ(rowsOf(image), (Bytes{0xB0, 0x80, 0, 0}));
    }
}

// 21 MiB of single bits; 24 times as many do not fit 32 bits.
TEST(IncreaseBpp, LeavesTheImageWithATextBeyondTheLimit) {
    RasterImage image;
    ASSERT_NE(image.Create(178956971, 1, 1, 0), nullptr);
    image.SetPixelIndex(178956970, 0, 1);
    EXPECT_FALSE(image.IncreaseBpp(24));
    EXPECT_STREQ(image.GetLastError(), limitText);
    EXPECT_EQ(image.GetHeader().biBitCount, 1U);
    EXPECT_EQ(image.GetPixelIndex(178956970, 0), 1U);
}

}  // namespace
