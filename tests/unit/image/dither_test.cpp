// Halftoning: conditions, the result image and the methods that decide each pixel on its own.
#include <algorithm>

#include "tests/support/test_memory.h"
#include "tests/unit/image/test_images.h"

namespace {

using reference::Bytes;

constexpr long allMethods[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 100, -1};

// The values, 0 black or 1 white, of a page of levels under a method.
Bytes dithered(long method, std::uint32_t width, const Bytes& levels) {
    RasterImage image;
    makeGreyImage(image, width, static_cast<std::uint32_t>(levels.size()) / width, levels);
    EXPECT_TRUE(image.Dither(method));
    return pixelsOf(image);
}

TEST(Dither, IsFalseWithoutAnImage) {
    for (const long method : allMethods) {
        RasterImage image;
        EXPECT_FALSE(image.Dither(method));
        EXPECT_FALSE(image.IsValid());
    }
}

TEST(Dither, LeavesA1BitImageAndItsPaletteAlone) {
    for (const long method : allMethods) {
        RasterImage image;
        makeImage(image, 9, 2, 1, {0xA5, 0xFF, 1, 2, 0x3C, 0, 3, 4});
        image.SetPaletteColor(0, 10, 20, 30, 40);
        const std::uint8_t* bits = image.GetBits(0);
        EXPECT_TRUE(image.Dither(method));
        EXPECT_EQ(image.GetBits(0), bits);
        EXPECT_EQ(rowsOf(image), (Bytes{0xA5, 0xFF, 1, 2, 0x3C, 0, 3, 4}));
        EXPECT_EQ(paletteOf(image),
                  (std::vector<tagRGBQUAD>{{30, 20, 10, 40}, {255, 255, 255, 0}}));
    }
}

TEST(Dither, MakesA1BitImageOfTheSameSizeAndType) {
    for (const long method : allMethods) {
        RasterImage image;
        image.Create(33, 3, 8, 77);
        ASSERT_TRUE(image.Dither(method));
        EXPECT_EQ(image.GetHeader().biBitCount, 1U);
        EXPECT_EQ(image.GetWidth(), 33);
        EXPECT_EQ(image.GetHeight(), 3);
        EXPECT_EQ(image.GetEffWidth(), 8U);
        EXPECT_EQ(image.GetInfo().type, 77U);
    }
}

TEST(Dither, GivesIndexZeroBlackAndIndexOneWhite) {
    RasterImage image;
    makeGreyImage(image, 2, 1, {0, 255});
    image.SetPaletteColor(0, 1, 2, 3, 4);
    image.Dither(0);
    EXPECT_EQ(paletteOf(image), (std::vector<tagRGBQUAD>{{0, 0, 0, 0}, {255, 255, 255, 0}}));
    EXPECT_EQ(rowsOf(image), (Bytes{0x40, 0, 0, 0}));
}

TEST(Dither, LeavesTheSourceWithATextWhenMemoryIsShort) {
    RasterImage image;
    makeGreyImage(image, 4, 1, {0, 90, 160, 255});
    {
        const NoMemory none;
        EXPECT_FALSE(image.Dither(8));
    }
    EXPECT_STREQ(image.GetLastError(), memoryText);
    EXPECT_EQ(image.GetHeader().biBitCount, 8U);
    EXPECT_EQ(rowsOf(image), (Bytes{0, 90, 160, 255}));
}

TEST(Dither, KeepsNoMemoryButTheImage) {
    const std::ptrdiff_t blocks = liveBlocks();
    for (const long method : allMethods) {
        RasterImage image;
        image.Create(5, 5, 8, 0);
        image.Dither(method);
        EXPECT_EQ(liveBlocks(), blocks + 1) << method;
    }
}

TEST(Dither, LeavesAWhitePageWhiteAndABlackPageBlack) {
    for (const long method : allMethods) {
        EXPECT_EQ(dithered(method, 9, Bytes(63, 255)), Bytes(63, 1)) << method;
        EXPECT_EQ(dithered(method, 9, Bytes(63, 0)), Bytes(63, 0)) << method;
    }
}

TEST(Dither, LooksAtIndicesAndNotAtColours) {
    RasterImage image;
    makeGreyImage(image, 2, 1, {0, 255});
    image.SetPaletteColor(0, 255, 255, 255, 0);
    image.SetPaletteColor(255, 0, 0, 0, 0);
    image.Dither(0);
    EXPECT_EQ(pixelsOf(image), (Bytes{0, 1}));
}

TEST(Dither, MakesA24BitImageAllBlack) {
    for (const long method : allMethods) {
        RasterImage image;
        makeImage(image, 5, 3, 24, Bytes(48, 255));
        ASSERT_TRUE(image.Dither(method));
        EXPECT_EQ(rowsOf(image), Bytes(12, 0)) << method;
        EXPECT_EQ(image.GetHeader().biBitCount, 1U);
    }
}

TEST(Dither, MethodZeroIsWhiteAboveLevel128) {
    EXPECT_EQ(dithered(0, 7, {0, 1, 127, 128, 129, 254, 255}), (Bytes{0, 0, 0, 0, 1, 1, 1}));
}

// The lowest white level of each cell: 16 × (matrix value + 1), but 255 for the value 15.
TEST(Dither, MethodOneIsTheOrderedMatrix) {
    const int firstWhite[4][4] = {
        {16, 144, 48, 176}, {208, 80, 240, 112}, {64, 192, 32, 160}, {255, 128, 224, 96}};
    for (int level = 0; level < 256; ++level) {
        const Bytes values = dithered(1, 9, Bytes(81, static_cast<std::uint8_t>(level)));
        for (std::size_t i = 0; i < 81; ++i) {
            EXPECT_EQ(values[i], level >= firstWhite[i / 9 % 4][i % 9 % 4] ? 1 : 0)
                << "level " << level << " pixel " << i;
        }
    }
}

TEST(Dither, MethodOneWhitensHalfOfACellAtLevel128) {
    const Bytes expected = {1, 0, 1, 0, 0, 1, 0, 1, 1, 0, 1, 0, 0, 1, 0, 1};
    EXPECT_EQ(dithered(1, 4, Bytes(16, 128)), expected);
}

TEST(Dither, MethodSevenIsTheBayerMatrix) {
    const int threshold[4][4] = {
        {0, 192, 48, 240}, {128, 64, 176, 112}, {32, 224, 16, 208}, {160, 96, 144, 80}};
    for (int level = 0; level < 256; ++level) {
        const Bytes values = dithered(7, 9, Bytes(81, static_cast<std::uint8_t>(level)));
        for (std::size_t i = 0; i < 81; ++i) {
            EXPECT_EQ(values[i], level > threshold[i / 9 % 4][i % 9 % 4] ? 1 : 0)
                << "level " << level << " pixel " << i;
        }
    }
}

TEST(Dither, MethodSevenWhitensHalfOfACellAtLevel128) {
    const Bytes values = dithered(7, 4, Bytes(16, 128));
    EXPECT_EQ(std::count(values.begin(), values.end(), 1), 8);
    EXPECT_EQ(values[4], 0);  // threshold 128 itself
}

TEST(Dither, Reads4BitImagesAsLevelsUpTo15) {
    const auto valuesAt = [](long method, const Bytes& rows) {
        RasterImage image;
        makeImage(image, 4, 1, 4, rows);
        EXPECT_TRUE(image.Dither(method));
        return pixelsOf(image);
    };
    EXPECT_EQ(valuesAt(0, {0xFF, 0xFF, 0, 0}), Bytes(4, 0));
    EXPECT_EQ(valuesAt(1, {0xFF, 0xFF, 0, 0}), Bytes(4, 0));
    EXPECT_EQ(valuesAt(7, {0x1F, 0xFF, 0, 0}), (Bytes{1, 0, 0, 0}));
    EXPECT_EQ(valuesAt(8, {0xFF, 0xFF, 0, 0}), Bytes(4, 0));
}

}  // namespace
