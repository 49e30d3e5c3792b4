// Centring in wider rows.
#include <climits>

#include "tests/support/test_memory.h"
#include "tests/unit/image/test_images.h"

namespace {

using reference::Bytes;

// The rows of an 8-bit image after centring.
Bytes centred(std::uint32_t width, const Bytes& rows, int newWidth) {
    RasterImage image;
    const auto height = static_cast<std::uint32_t>(rows.size() / reference::strideOf(width));
    makeImage(image, width, height, 8, rows);
    image.MakeCenter(newWidth);
    return rowsOf(image);
}

TEST(MakeCenter, PutsTheImageInTheMiddle) {
    EXPECT_EQ(centred(3, {1, 2, 3, 99, 4, 5, 6, 99}, 7),
              (Bytes{0, 0, 1, 2, 3, 0, 0, 0, 0, 0, 4, 5, 6, 0, 0, 0}));
}

TEST(MakeCenter, LeavesTheOddColumnOnTheRight) {
    EXPECT_EQ(centred(3, {1, 2, 3, 99}, 4), (Bytes{1, 2, 3, 0}));
    EXPECT_EQ(centred(3, {1, 2, 3, 99}, 6), (Bytes{0, 1, 2, 3, 0, 0, 0, 0}));
}

TEST(MakeCenter, DoesNothingUnlessTheNewWidthIsLarger) {
    for (const int newWidth : {3, 2, 1, 0, -1, -8, INT_MIN}) {
        EXPECT_EQ(centred(3, {1, 2, 3, 99}, newWidth), (Bytes{1, 2, 3, 99})) << newWidth;
    }
}

TEST(MakeCenter, KeepsPaletteTypeAndHeight) {
    RasterImage image;
    image.Create(2, 3, 8, 77);
    image.SetGrayPalette();
    image.SetPaletteColor(9, 1, 2, 3, 4);
    const std::vector<tagRGBQUAD> palette = paletteOf(image);
    image.MakeCenter(9);
    EXPECT_EQ(paletteOf(image), palette);
    EXPECT_EQ(image.GetInfo().type, 77U);
    EXPECT_EQ(image.GetWidth(), 9);
    EXPECT_EQ(image.GetHeight(), 3);
}

TEST(MakeCenter, MakesAn8BitImageOfFewerBits) {
    RasterImage image;
    makeImage(image, 3, 1, 4, {0x12, 0x30, 0, 0});
    image.MakeCenter(5);
    EXPECT_EQ(image.GetHeader().biBitCount, 8U);
    EXPECT_EQ(rowsOf(image), (Bytes{0, 1, 2, 3, 0, 0, 0, 0}));
    EXPECT_EQ(image.GetPaletteColor(15), (tagRGBQUAD{255, 255, 255, 0}));
    EXPECT_EQ(image.GetPaletteColor(16), tagRGBQUAD{});
    makeImage(image, 3, 1, 1, {0xA0, 0, 0, 0});
    image.MakeCenter(5);
    EXPECT_EQ(rowsOf(image), (Bytes{0, 1, 0, 1, 0, 0, 0, 0}));
}

TEST(MakeCenter, DoesNothingWithoutAnImage) {
    RasterImage image;
    image.MakeCenter(9);
    EXPECT_FALSE(image.IsValid());
}

TEST(MakeCenter, LeavesNoImageWhenTheNewOneCannotBeMade) {
    RasterImage image;
    makeImage(image, 3, 1, 8, {1, 2, 3, 99});
    image.MakeCenter(INT_MAX);
    EXPECT_FALSE(image.IsValid());
    EXPECT_STREQ(image.GetLastError(), limitText);
    makeImage(image, 3, 1, 8, {1, 2, 3, 99});
    const NoMemory none;
    image.MakeCenter(5);
    EXPECT_FALSE(image.IsValid());
    EXPECT_STREQ(image.GetLastError(), memoryText);
}

}  // namespace
