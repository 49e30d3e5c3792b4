// Images made from rows of packed pixels.
#include "tests/support/test_memory.h"
#include "tests/unit/image/test_images.h"

namespace {

using reference::Bytes;

// The rows, padding included, of the image that an array gives.
Bytes rowsFrom(const Bytes& array, std::uint32_t width, std::uint32_t height, std::uint32_t bpp,
               std::uint32_t bytesPerLine, bool flip = false) {
    RasterImage image;
    EXPECT_TRUE(image.CreateFromArray(array.data(), width, height, bpp, bytesPerLine, flip));
    return rowsOf(image);
}

TEST(CreateFromArray, CopiesRowsOf8Bits) {
    EXPECT_EQ(rowsFrom({1, 2, 3, 4, 5, 6}, 3, 2, 8, 3), (Bytes{1, 2, 3, 0, 4, 5, 6, 0}));
}

TEST(CreateFromArray, CopiesRowsOf4Bits) {
    EXPECT_EQ(rowsFrom({0x12, 0x30, 0x45, 0x60}, 3, 2, 4, 2),
              (Bytes{0x12, 0x30, 0, 0, 0x45, 0x60, 0, 0}));
}

TEST(CreateFromArray, CopiesRowsOf1Bit) {
    EXPECT_EQ(rowsFrom({0xA5, 0x80, 0x5A, 0}, 9, 2, 1, 2),
              (Bytes{0xA5, 0x80, 0, 0, 0x5A, 0, 0, 0}));
}

TEST(CreateFromArray, CopiesRowsOf24Bits) {
    EXPECT_EQ(rowsFrom({1, 2, 3, 4, 5, 6}, 1, 2, 24, 3), (Bytes{1, 2, 3, 0, 4, 5, 6, 0}));
}

TEST(CreateFromArray, DropsEveryFourthByteOf32Bits) {
    const Bytes array = {1, 2, 3, 99, 4, 5, 6, 99, 7, 8, 9, 99, 10, 11, 12, 99};
    EXPECT_EQ(rowsFrom(array, 2, 2, 32, 8),
              (Bytes{1, 2, 3, 4, 5, 6, 0, 0, 7, 8, 9, 10, 11, 12, 0, 0}));
}

TEST(CreateFromArray, MakesA24BitImageOf32Bits) {
    RasterImage image;
    const Bytes array = {1, 2, 3, 99};
    ASSERT_TRUE(image.CreateFromArray(array.data(), 1, 1, 32, 4, false));
    EXPECT_EQ(image.GetHeader().biBitCount, 24U);
    EXPECT_EQ(image.GetNumColors(), 0U);
}

TEST(CreateFromArray, FindsRowsOf32BitsBytesPerLineApart) {
    const Bytes array = {1, 2, 3, 99, 50, 51, 4, 5, 6, 99, 52, 53};
    EXPECT_EQ(rowsFrom(array, 1, 2, 32, 6), (Bytes{1, 2, 3, 0, 4, 5, 6, 0}));
}

TEST(CreateFromArray, PutsTheFirstRowLastOnAFlip) {
    EXPECT_EQ(rowsFrom({1, 2, 3, 4, 5, 6}, 2, 3, 8, 2, true),
              (Bytes{5, 6, 0, 0, 3, 4, 0, 0, 1, 2, 0, 0}));
    EXPECT_EQ(rowsFrom({1, 2, 3, 99, 4, 5, 6, 99}, 1, 2, 32, 4, true),
              (Bytes{4, 5, 6, 0, 1, 2, 3, 0}));
}

TEST(CreateFromArray, CopiesOnlyBytesPerLineOfAShorterRow) {
    EXPECT_EQ(rowsFrom({1, 2, 3, 4}, 6, 2, 8, 2),
              (Bytes{1, 2, 0, 0, 0, 0, 0, 0, 3, 4, 0, 0, 0, 0, 0, 0}));
}

TEST(CreateFromArray, CopiesNothingOfRowsWithoutBytes) {
    EXPECT_EQ(rowsFrom({1}, 4, 2, 8, 0), Bytes(8, 0));
}

// The padding takes what follows the pixels in the array.
TEST(CreateFromArray, CopiesAWholeStrideOfALongerRow) {
    EXPECT_EQ(rowsFrom({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}, 3, 2, 8, 6),
              (Bytes{1, 2, 3, 4, 7, 8, 9, 10}));
}

TEST(CreateFromArray, TakesTheTypeZero) {
    RasterImage image;
    image.Create(1, 1, 8, 77);
    const Bytes array = {5};
    ASSERT_TRUE(image.CreateFromArray(array.data(), 1, 1, 8, 1, false));
    EXPECT_EQ(image.GetInfo().type, 0U);
}

TEST(CreateFromArray, GivesAGreyPaletteUpTo8Bits) {
    const Bytes array = {5, 0, 0};
    RasterImage image;
    image.CreateFromArray(array.data(), 1, 1, 1, 1, false);
    EXPECT_EQ(paletteOf(image), (std::vector<tagRGBQUAD>{{0, 0, 0, 0}, {255, 255, 255, 0}}));
    image.CreateFromArray(array.data(), 1, 1, 4, 1, false);
    EXPECT_EQ(image.GetPaletteColor(1), (tagRGBQUAD{17, 17, 17, 0}));
    image.CreateFromArray(array.data(), 1, 1, 8, 1, false);
    EXPECT_EQ(image.GetPaletteColor(77), (tagRGBQUAD{77, 77, 77, 0}));
    image.CreateFromArray(array.data(), 1, 1, 24, 3, false);
    EXPECT_EQ(image.GetPalette(), nullptr);
}

TEST(CreateFromArray, RefusesOtherDepths) {
    const Bytes array(64, 5);
    for (const std::uint32_t bpp : {0U, 2U, 3U, 5U, 7U, 9U, 16U, 31U, 33U, 0xFFFFFFFFU}) {
        RasterImage image;
        EXPECT_FALSE(image.CreateFromArray(array.data(), 1, 1, bpp, 4, false)) << bpp;
        EXPECT_FALSE(image.IsValid()) << bpp;
    }
}

TEST(CreateFromArray, RefusesANullArray) {
    RasterImage image;
    EXPECT_FALSE(image.CreateFromArray(nullptr, 1, 1, 8, 1, false));
    EXPECT_FALSE(image.IsValid());
}

TEST(CreateFromArray, KeepsTheImageWhenItRefusesDepthOrArray) {
    const Bytes array = {5, 6, 7, 8};
    RasterImage image;
    image.CreateFromArray(array.data(), 4, 1, 8, 4, false);
    EXPECT_FALSE(image.CreateFromArray(array.data(), 1, 1, 16, 4, false));
    EXPECT_FALSE(image.CreateFromArray(nullptr, 1, 1, 8, 4, false));
    EXPECT_EQ(rowsOf(image), array);
}

TEST(CreateFromArray, FailsWithTheTextsOfCreate) {
    const Bytes array = {5};
    RasterImage image;
    EXPECT_FALSE(image.CreateFromArray(array.data(), 0, 1, 8, 1, false));
    EXPECT_STREQ(image.GetLastError(), sizeText);
    EXPECT_FALSE(image.CreateFromArray(array.data(), 0x20000000, 1, 8, 1, false));
    EXPECT_STREQ(image.GetLastError(), limitText);
    const NoMemory none;
    EXPECT_FALSE(image.CreateFromArray(array.data(), 1, 1, 8, 1, false));
    EXPECT_STREQ(image.GetLastError(), memoryText);
    EXPECT_FALSE(image.IsValid());
}

TEST(LoadGrey, IsThatOfCreateFromArrayAtAllWidthsAndDistances) {
    const reference::Bytes array = noise(200 * 3, 1);
    RasterImage image;
    for (std::uint32_t width = 1; width <= 130; ++width) {
        for (const std::uint32_t distance : {width, width + 1, width + 5}) {
            RasterImage expected;
            expected.CreateFromArray(array.data(), width, 3, 8, distance, false);
            // Once over the image before, once over one of the same size.
            for (int time = 0; time < 2; ++time) {
                ASSERT_TRUE(image.LoadGrey(array.data(), width, 3, distance));
                EXPECT_EQ(rowsOf(image), rowsOf(expected)) << width << ", " << distance;
                EXPECT_EQ(paletteOf(image), paletteOf(expected));
            }
        }
    }
}

// Once over no image, once over one of the same size, whose block is used on.
TEST(LoadGrey, LeavesZerosWhereAShortRowEnds) {
    const Bytes rows = {1, 2, 3, 4};
    RasterImage image;
    for (int time = 0; time < 2; ++time) {
        ASSERT_TRUE(image.LoadGrey(rows.data(), 6, 2, 2));
        EXPECT_EQ(rowsOf(image), (Bytes{1, 2, 0, 0, 0, 0, 0, 0, 3, 4, 0, 0, 0, 0, 0, 0}));
        ASSERT_TRUE(image.LoadGrey(Bytes(12, 99).data(), 6, 2, 6));
    }
}

TEST(LoadGrey, CopiesNothingAtARowDistanceOfZero) {
    const Bytes row = {1};
    RasterImage image;
    ASSERT_TRUE(image.LoadGrey(Bytes(8, 99).data(), 4, 2, 4));
    ASSERT_TRUE(image.LoadGrey(row.data(), 4, 2, 0));
    EXPECT_EQ(rowsOf(image), Bytes(8, 0));
}

// Success says nothing: the text is that of the last failure, whichever function fills the image.
TEST(LoadGrey, KeepsTheTextOfAnEarlierFailureAsCreateFromArrayDoes) {
    const Bytes row = {1, 2, 3, 4};
    RasterImage loaded;
    RasterImage created;
    for (int time = 0; time < 2; ++time) {
        EXPECT_FALSE(loaded.LoadGrey(row.data(), 0, 1, 4));
        EXPECT_FALSE(created.CreateFromArray(row.data(), 0, 1, 8, 4, false));
        ASSERT_TRUE(loaded.LoadGrey(row.data(), 4, 1, 4));
        ASSERT_TRUE(created.CreateFromArray(row.data(), 4, 1, 8, 4, false));
        EXPECT_STREQ(loaded.GetLastError(), sizeText);
        EXPECT_STREQ(created.GetLastError(), sizeText);
    }
}

TEST(LoadGrey, KeepsTheNearestColourRecordAsCreateFromArrayDoes) {
    const Bytes row = {1, 2, 3, 4};
    RasterImage loaded;
    RasterImage created;
    ASSERT_TRUE(loaded.LoadGrey(row.data(), 4, 1, 4));
    ASSERT_TRUE(created.CreateFromArray(row.data(), 4, 1, 8, 4, false));
    for (RasterImage* image : {&loaded, &created}) {
        image->GetNearestIndex({30, 30, 30, 5});
    }
    ASSERT_TRUE(loaded.LoadGrey(row.data(), 2, 2, 2));
    ASSERT_TRUE(created.CreateFromArray(row.data(), 2, 2, 8, 2, false));
    for (const RasterImage* image : {&loaded, &created}) {
        EXPECT_EQ(image->GetInfo().lastColor, (tagRGBQUAD{30, 30, 30, 5}));
        EXPECT_EQ(image->GetInfo().lastColorIndex, 30U);
        EXPECT_TRUE(image->GetInfo().lastColorValid);
    }
}

TEST(LoadGrey, FailsWithTheTextsOfCreate) {
    const Bytes row = {5};
    RasterImage image;
    EXPECT_FALSE(image.LoadGrey(row.data(), 0, 1, 1));
    EXPECT_STREQ(image.GetLastError(), sizeText);
    EXPECT_FALSE(image.LoadGrey(row.data(), 0x20000000, 1, 1));
    EXPECT_STREQ(image.GetLastError(), limitText);
    const NoMemory none;
    EXPECT_FALSE(image.LoadGrey(row.data(), 1, 1, 1));
    EXPECT_STREQ(image.GetLastError(), memoryText);
    EXPECT_FALSE(image.IsValid());
}

TEST(LoadGrey, LeavesTheFormerImageWhenThereIsNoMemory) {
    const reference::Bytes former = {1, 2, 3, 4};
    RasterImage image;
    image.LoadGrey(former.data(), 4, 1, 4);
    {
        const NoMemory none;
        EXPECT_FALSE(image.LoadGrey(former.data(), 2, 2, 2));
        EXPECT_STREQ(image.GetLastError(), memoryText);
    }
    EXPECT_EQ(rowsOf(image), former);
    EXPECT_EQ(image.GetWidth(), 4);
    EXPECT_FALSE(image.LoadGrey(former.data(), 0, 1, 4));
    EXPECT_STREQ(image.GetLastError(), sizeText);
    EXPECT_FALSE(image.LoadGrey(nullptr, 4, 1, 4));
    EXPECT_EQ(rowsOf(image), former);
}

TEST(LoadGrey, NeedsNoMemoryForAnImageOfTheSameSize) {
    const reference::Bytes former = {1, 2, 3, 4};
    const reference::Bytes next = {5, 6, 7, 8};
    RasterImage image;
    image.LoadGrey(former.data(), 4, 1, 4);
    const NoMemory none;
    EXPECT_TRUE(image.LoadGrey(next.data(), 4, 1, 4));
    EXPECT_EQ(rowsOf(image), next);
}

// 4 × 2 and 3 × 2 pixels both take two rows of four bytes.
TEST(LoadGrey, ClearsTheRowEndsOfABlockThatItUsesAgain) {
    const reference::Bytes former = {1, 2, 3, 4, 5, 6, 7, 8};
    RasterImage image;
    image.LoadGrey(former.data(), 4, 2, 4);
    const NoMemory none;
    EXPECT_TRUE(image.LoadGrey(former.data(), 3, 2, 3));
    EXPECT_EQ(rowsOf(image), (reference::Bytes{1, 2, 3, 0, 4, 5, 6, 0}));
    EXPECT_EQ(image.GetWidth(), 3);
}

TEST(LoadGrey, KeepsOneBlock) {
    const std::ptrdiff_t blocks = liveBlocks();
    const reference::Bytes page = noise(64, 1);
    {
        RasterImage image;
        for (const std::uint32_t width : {8U, 8U, 4U, 8U}) {
            image.LoadGrey(page.data(), width, 8, width);
            EXPECT_EQ(liveBlocks(), blocks + 1);
        }
    }
    EXPECT_EQ(liveBlocks(), blocks);
}

}  // namespace
