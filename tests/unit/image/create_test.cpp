// Creation of images: depths, strides, header fields, memory and refusals.
#include <cstring>

#include "tests/support/test_memory.h"
#include "tests/unit/image/test_images.h"

namespace {

using reference::Bytes;

struct Shape {
    std::uint32_t width;
    std::uint32_t bpp;
    std::uint32_t stride;
};

void expectDepth(std::uint32_t wanted, unsigned depth, std::uint32_t colours) {
    RasterImage image;
    ASSERT_NE(image.Create(5, 3, wanted, 0), nullptr) << wanted;
    EXPECT_EQ(image.GetHeader().biBitCount, depth) << wanted;
    EXPECT_EQ(image.GetNumColors(), colours) << wanted;
}

TEST(RasterImageConstructor, MakesAnEmptyImageWithoutMemory) {
    const std::ptrdiff_t blocks = liveBlocks();
    RasterImage image;
    EXPECT_EQ(liveBlocks(), blocks);
    EXPECT_FALSE(image.IsValid());
    EXPECT_STREQ(image.GetLastError(), "");
    const BitmapInfoHeader zeroHeader = {};
    EXPECT_EQ(std::memcmp(&image.GetHeader(), &zeroHeader, sizeof zeroHeader), 0);
    EXPECT_EQ(image.GetInfo().bits, nullptr);
    EXPECT_EQ(image.GetInfo().type, 0U);
    EXPECT_FALSE(image.GetInfo().lastColorValid);
    EXPECT_EQ(image.GetEffWidth(), 0U);
    EXPECT_EQ(image.GetSize(), 0U);
    EXPECT_EQ(image.GetBits(0), nullptr);
}

TEST(RasterImageCreate, OneBitAndLessGivesTwoColours) {
    expectDepth(0, 1, 2);
    expectDepth(1, 1, 2);
}

TEST(RasterImageCreate, TwoToFourBitsGiveSixteenColours) {
    expectDepth(2, 4, 16);
    expectDepth(3, 4, 16);
    expectDepth(4, 4, 16);
}

TEST(RasterImageCreate, FiveToEightBitsGive256Colours) {
    expectDepth(5, 8, 256);
    expectDepth(7, 8, 256);
    expectDepth(8, 8, 256);
}

TEST(RasterImageCreate, MoreThanEightBitsGive24WithoutAPalette) {
    expectDepth(9, 24, 0);
    expectDepth(16, 24, 0);
    expectDepth(24, 24, 0);
    expectDepth(32, 24, 0);
    expectDepth(0xFFFFFFFF, 24, 0);
}

TEST(RasterImageCreate, PadsRowsToFourBytes) {
    const Shape shapes[] = {{1, 1, 4},  {32, 1, 4}, {33, 1, 8},  {64, 1, 8}, {65, 1, 12}, {1, 4, 4},
                            {5, 4, 4},  {8, 4, 4},  {9, 4, 8},   {1, 8, 4},  {4, 8, 4},   {5, 8, 8},
                            {1, 24, 4}, {2, 24, 8}, {4, 24, 12}, {5, 24, 16}};
    for (const Shape& shape : shapes) {
        RasterImage image;
        ASSERT_NE(image.Create(shape.width, 3, shape.bpp, 0), nullptr);
        EXPECT_EQ(image.GetEffWidth(), shape.stride) << shape.width << " × " << shape.bpp;
        EXPECT_EQ(image.GetHeader().biSizeImage, shape.stride * 3);
    }
}

TEST(RasterImageCreate, FillsTheHeaderAndTheType) {
    RasterImage image;
    ASSERT_NE(image.Create(5, 3, 2, 77), nullptr);
    const BitmapInfoHeader& header = image.GetHeader();
    EXPECT_EQ(header.biSize, 40U);
    EXPECT_EQ(header.biWidth, 5);
    EXPECT_EQ(header.biHeight, 3);
    EXPECT_EQ(header.biPlanes, 1U);
    EXPECT_EQ(header.biBitCount, 4U);
    EXPECT_EQ(header.biCompression, 0U);
    EXPECT_EQ(header.biSizeImage, 12U);
    EXPECT_EQ(header.biXPelsPerMeter, 0);
    EXPECT_EQ(header.biYPelsPerMeter, 0);
    EXPECT_EQ(header.biClrUsed, 16U);
    EXPECT_EQ(header.biClrImportant, 0U);
    EXPECT_EQ(image.GetInfo().type, 77U);
}

TEST(RasterImageCreate, GivesTheSizesThroughConstAndPlainAccessors) {
    RasterImage image;
    image.Create(5, 3, 8, 0);
    const RasterImage& constImage = image;
    EXPECT_EQ(image.GetWidth(), 5);
    EXPECT_EQ(image.GetHeight(), 3);
    EXPECT_EQ(constImage.GetWidth(), 5);
    EXPECT_EQ(constImage.GetHeight(), 3);
    EXPECT_EQ(constImage.GetBits(1), image.GetBits(1));
}

TEST(RasterImageCreate, ReturnsABlockOfHeaderPaletteAndRows) {
    RasterImage image;
    auto* block = static_cast<std::uint8_t*>(image.Create(5, 3, 4, 0));
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(std::memcmp(block, &image.GetHeader(), 40), 0);
    EXPECT_EQ(reinterpret_cast<std::uint8_t*>(image.GetPalette()), block + 40);
    EXPECT_EQ(image.GetBits(0), block + 40 + 64);
    EXPECT_EQ(image.GetInfo().bits, block + 40 + 64);
}

TEST(RasterImageCreate, PutsTheRowsOfA24BitImageBehindTheHeader) {
    RasterImage image;
    auto* block = static_cast<std::uint8_t*>(image.Create(5, 3, 24, 0));
    EXPECT_EQ(image.GetBits(0), block + 40);
}

TEST(RasterImageCreate, ZeroesThePaletteAndTheRowsWithTheirPadding) {
    for (const std::uint32_t bpp : {1U, 4U, 8U, 24U}) {
        {
            RasterImage old;  // leaves bytes other than 0 in the freed memory
            old.Create(101, 50, bpp, 0);
            std::memset(old.GetBits(), 0xA5, old.GetHeader().biSizeImage);
        }
        RasterImage image;
        image.Create(101, 50, bpp, 0);
        const Bytes zeroes(std::size_t{image.GetEffWidth()} * 50, 0);
        EXPECT_EQ(rowsOf(image), zeroes) << bpp;
        EXPECT_EQ(paletteOf(image), std::vector<tagRGBQUAD>(image.GetNumColors())) << bpp;
    }
}

TEST(RasterImageCreate, ReplacesTheFormerImage) {
    const std::ptrdiff_t blocks = liveBlocks();
    RasterImage image;
    image.Create(5, 3, 8, 0);
    image.Create(9, 2, 1, 0);
    EXPECT_EQ(liveBlocks(), blocks + 1);
    EXPECT_EQ(image.GetWidth(), 9);
    EXPECT_EQ(image.GetNumColors(), 2U);
}

TEST(RasterImageBits, AreNullBeyondTheLastRow) {
    RasterImage image;
    image.Create(5, 3, 8, 0);
    EXPECT_EQ(image.GetBits(), image.GetBits(0));
    EXPECT_EQ(image.GetBits(1), image.GetBits(0) + 8);
    EXPECT_EQ(image.GetBits(2), image.GetBits(0) + 16);
    EXPECT_EQ(image.GetBits(3), nullptr);
    EXPECT_EQ(image.GetBits(0xFFFFFFFF), nullptr);
}

TEST(RasterImageSize, IsThatOfHeaderPaletteAndRows) {
    const auto sizeAt = [](std::uint32_t bpp) {
        RasterImage image;
        image.Create(5, 3, bpp, 0);
        return image.GetSize();
    };
    EXPECT_EQ(sizeAt(1), 40U + 2 * 4 + 3 * 4);
    EXPECT_EQ(sizeAt(4), 40U + 16 * 4 + 3 * 4);
    EXPECT_EQ(sizeAt(8), 40U + 256 * 4 + 3 * 8);
    EXPECT_EQ(sizeAt(24), 40U + 3 * 16);
}

}  // namespace
