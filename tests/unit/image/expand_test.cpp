// Borders around an image.
#include <climits>

#include "tests/support/test_memory.h"
#include "tests/unit/image/test_images.h"

namespace {

using reference::Bytes;

constexpr tagRGBQUAD white = {255, 255, 255, 0};
constexpr tagRGBQUAD grey = {60, 60, 60, 0};

TEST(Expand, IsFalseWithoutAnImage) {
    RasterImage image;
    EXPECT_FALSE(image.Expand(1, 1, 1, 1, white));
    EXPECT_FALSE(image.IsValid());
}

TEST(Expand, GivesAnIdenticalCopyForNoBorders) {
    RasterImage image;
    makeImage(image, 4, 2, 8, {1, 2, 3, 4, 5, 6, 7, 8});
    const std::vector<tagRGBQUAD> palette = paletteOf(image);
    EXPECT_TRUE(image.Expand(0, 0, 0, 0, white));
    EXPECT_EQ(rowsOf(image), (Bytes{1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(paletteOf(image), palette);
    EXPECT_EQ(image.GetWidth(), 4);
    EXPECT_EQ(image.GetHeight(), 2);
}

TEST(Expand, PutsTheBottomBorderFirstInTheBufferAndTheTopBorderLast) {
    RasterImage image;
    makeImage(image, 4, 1, 8, {1, 2, 3, 4});
    ASSERT_TRUE(image.Expand(0, 1, 0, 2, white));
    EXPECT_EQ(rowsOf(image), (Bytes{255, 255, 255, 255, 255, 255, 255, 255,  //
                                    1, 2, 3, 4, 255, 255, 255, 255}));
    EXPECT_EQ(image.GetHeight(), 4);
}

TEST(Expand, PutsTheLeftBorderFirstInTheRow) {
    RasterImage image;
    makeImage(image, 1, 2, 8, {1, 9, 9, 9, 2, 9, 9, 9});
    ASSERT_TRUE(image.Expand(1, 0, 2, 0, grey));
    EXPECT_EQ(rowsOf(image), (Bytes{60, 1, 60, 60, 60, 2, 60, 60}));
    EXPECT_EQ(image.GetWidth(), 4);
}

TEST(Expand, FillsThePaddingToo) {
    RasterImage image;
    makeImage(image, 1, 1, 8, {1, 9, 9, 9});
    ASSERT_TRUE(image.Expand(1, 0, 0, 0, grey));
    EXPECT_EQ(rowsOf(image), (Bytes{60, 1, 60, 60}));
}

TEST(Expand, Adds4BitBordersOfTheNearestIndex) {
    RasterImage image;
    makeImage(image, 3, 1, 4, {0x12, 0x3F, 0xFF, 0xFF});
    ASSERT_TRUE(image.Expand(1, 1, 2, 2, grey));  // grey 60 is nearest to index 4, grey 68
    EXPECT_EQ(image.GetHeader().biBitCount, 4U);
    EXPECT_EQ(rowsOf(image), (Bytes{0x44, 0x44, 0x44, 0, 0x44, 0x44, 0x44, 0,  //
                                    0x41, 0x23, 0x44, 0, 0x44, 0x44, 0x44, 0}));
}

TEST(Expand, Adds1BitBordersOfTheNearestIndex) {
    RasterImage image;
    makeImage(image, 9, 1, 1, {0x55, 0x00, 0xFF, 0xFF});
    ASSERT_TRUE(image.Expand(2, 1, 1, 1, white));
    EXPECT_EQ(image.GetHeader().biBitCount, 1U);
    EXPECT_EQ(rowsOf(image), (Bytes{0xFF, 0xF0, 0, 0, 0xD5, 0x50, 0, 0, 0xFF, 0xF0, 0, 0}));
    makeImage(image, 9, 1, 1, {0x55, 0x00, 0, 0});
    ASSERT_TRUE(image.Expand(2, 1, 1, 1, grey));
    EXPECT_EQ(rowsOf(image), (Bytes{0, 0, 0, 0, 0x15, 0x40, 0, 0, 0, 0, 0, 0}));
}

TEST(Expand, Adds24BitBordersOfTheColourAndLeavesThePadding) {
    RasterImage image;
    makeImage(image, 1, 1, 24, {1, 2, 3, 99});
    ASSERT_TRUE(image.Expand(1, 1, 1, 0, {7, 8, 9, 55}));
    EXPECT_EQ(image.GetHeader().biBitCount, 24U);
    EXPECT_EQ(rowsOf(image), (Bytes{7, 8, 9, 1, 2, 3, 7, 8, 9, 0, 0, 0,  //
                                    7, 8, 9, 7, 8, 9, 7, 8, 9, 0, 0, 0}));
}

TEST(Expand, KeepsPaletteAndType) {
    RasterImage image;
    image.Create(2, 1, 8, 77);
    image.SetGrayPalette();
    image.SetPaletteColor(9, 1, 2, 3, 4);
    const std::vector<tagRGBQUAD> palette = paletteOf(image);
    ASSERT_TRUE(image.Expand(1, 1, 1, 1, white));
    EXPECT_EQ(paletteOf(image), palette);
    EXPECT_EQ(image.GetInfo().type, 77U);
}

TEST(Expand, RecordsTheNearestColourSearch) {
    RasterImage image;
    makeImage(image, 1, 1, 8, {1, 9, 9, 9});
    image.Expand(1, 0, 0, 0, grey);
    EXPECT_EQ(image.GetInfo().lastColor, grey);
    EXPECT_EQ(image.GetInfo().lastColorIndex, 60U);
    EXPECT_TRUE(image.GetInfo().lastColorValid);
}

// The new image searches its whole palette, whatever the source's limit was.
TEST(Expand, TakesNoNoticeOfTheImportantColours) {
    RasterImage image;
    makeImage(image, 1, 1, 8, {1, 9, 9, 9});
    image.SetClrImportant(2);
    image.Expand(1, 0, 0, 0, grey);
    EXPECT_EQ(image.GetPixelIndex(0, 0), 60U);
    EXPECT_EQ(image.GetHeader().biClrImportant, 0U);
}

void expectFailure(long left, long top, long right, long bottom, const char* text) {
    for (const std::uint32_t bpp : {1U, 4U, 8U, 24U}) {
        RasterImage image;
        makeImage(image, 1, 1, bpp, {0xA5, 1, 2, 3});
        EXPECT_FALSE(image.Expand(left, top, right, bottom, white));
        EXPECT_STREQ(image.GetLastError(), text) << bpp;
        EXPECT_EQ(rowsOf(image), (Bytes{0xA5, 1, 2, 3})) << bpp;
        EXPECT_EQ(image.GetWidth(), 1);
    }
}

TEST(Expand, RefusesNegativeBorders) {
    for (const long border : {-1L, LONG_MIN}) {
        expectFailure(border, 0, 0, 0, "");
        expectFailure(0, border, 0, 0, "");
        expectFailure(0, 0, border, 0, "");
        expectFailure(0, 0, 0, border, "");
    }
}

TEST(Expand, LeavesTheImageWithATextWhenMemoryIsShort) {
    RasterImage image;
    makeImage(image, 1, 1, 8, {1, 2, 3, 4});
    const NoMemory none;
    EXPECT_FALSE(image.Expand(1, 1, 1, 1, white));
    EXPECT_STREQ(image.GetLastError(), memoryText);
    EXPECT_EQ(rowsOf(image), (Bytes{1, 2, 3, 4}));
}

TEST(Expand, LeavesTheImageWithATextBeyondTheLimit) {
    RasterImage image;
    makeImage(image, 1, 1, 8, {1, 2, 3, 4});
    EXPECT_FALSE(image.Expand(0x1FFFFFFF, 0, 0, 0, white));
    EXPECT_STREQ(image.GetLastError(), limitText);
    EXPECT_FALSE(image.Expand(0, 0, 0, 0x1FFFFFFF, white));
    EXPECT_EQ(rowsOf(image), (Bytes{1, 2, 3, 4}));
}

// Sides that wrap around in 32 bits are among them where a long is longer.
std::vector<long> hugeBorders() {
    std::vector<long> borders = {LONG_MAX, LONG_MAX / 2 + 1};
    for (const std::int64_t border : {0xFFFFFFFFLL, 0x100000000LL}) {
        if (border <= LONG_MAX) {
            borders.push_back(static_cast<long>(border));
        }
    }
    return borders;
}

// Sums of borders that wrap around would give a small image.
TEST(Expand, FailsForHugeBorders) {
    const auto fails = [](long left, long top, long right, long bottom) {
        RasterImage image;
        makeImage(image, 1, 1, 8, {1, 2, 3, 4});
        const bool expanded = image.Expand(left, top, right, bottom, white);
        return !expanded && rowsOf(image) == Bytes{1, 2, 3, 4} && *image.GetLastError() != '\0';
    };
    for (const long border : hugeBorders()) {
        EXPECT_TRUE(fails(border, 0, 0, 0)) << border;
        EXPECT_TRUE(fails(0, border, 0, 0)) << border;
        EXPECT_TRUE(fails(0, 0, border, 0)) << border;
        EXPECT_TRUE(fails(0, 0, 0, border)) << border;
        EXPECT_TRUE(fails(border, 0, border, 0)) << border;
        EXPECT_TRUE(fails(0, border, 0, border)) << border;
        EXPECT_TRUE(fails(border, 0, 5, 0)) << border;
        EXPECT_TRUE(fails(0, 5, 0, border)) << border;
        EXPECT_TRUE(fails(border, border, border, border)) << border;
    }
}

}  // namespace
