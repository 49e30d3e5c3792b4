// Images that cannot be created.
#include "tests/support/test_memory.h"
#include "tests/unit/image/test_images.h"

namespace {

struct Size {
    std::uint32_t width;
    std::uint32_t height;
    std::uint32_t bpp;
};

// Creation over a valid image fails with a text and leaves nothing of that image.
void expectRefusal(Size size, const char* text) {
    const std::ptrdiff_t blocks = liveBlocks();
    RasterImage image;
    ASSERT_NE(image.Create(5, 3, 8, 0), nullptr);
    EXPECT_EQ(image.Create(size.width, size.height, size.bpp, 0), nullptr);
    EXPECT_STREQ(image.GetLastError(), text);
    EXPECT_FALSE(image.IsValid());
    EXPECT_EQ(image.GetBits(0), nullptr);
    EXPECT_EQ(image.GetPalette(), nullptr);
    EXPECT_EQ(liveBlocks(), blocks);
}

TEST(RasterImageCreate, AWidthOfZeroFailsWithTheSizeText) {
    expectRefusal({0, 10, 8}, sizeText);
}

TEST(RasterImageCreate, AHeightOfZeroFailsWithTheSizeText) {
    expectRefusal({10, 0, 8}, sizeText);
    expectRefusal({0, 0, 1}, sizeText);
}

TEST(RasterImageCreate, MissingMemoryFailsWithTheMemoryText) {
    RasterImage image;
    {
        const NoMemory none;
        EXPECT_EQ(image.Create(5, 3, 8, 0), nullptr);
    }
    EXPECT_STREQ(image.GetLastError(), memoryText);
    EXPECT_FALSE(image.IsValid());
    EXPECT_EQ(image.GetBits(0), nullptr);
    EXPECT_EQ(image.GetPalette(), nullptr);
}

TEST(RasterImageCreate, MissingMemoryFreesTheFormerImage) {
    const std::ptrdiff_t blocks = liveBlocks();
    RasterImage image;
    image.Create(5, 3, 8, 0);
    const NoMemory none;
    EXPECT_EQ(image.Create(5, 3, 8, 0), nullptr);
    EXPECT_FALSE(image.IsValid());
    EXPECT_EQ(liveBlocks(), blocks);
}

TEST(RasterImageCreate, SucceedsAgainAfterAFailure) {
    RasterImage image;
    image.Create(0, 10, 8, 0);
    ASSERT_NE(image.Create(5, 3, 8, 0), nullptr);
    EXPECT_TRUE(image.IsValid());
}

// 0x20000000 pixels of 8 bits are 2^32 bits.
TEST(RasterImageCreate, MoreThan32BitsOfBitsFailsWithTheLimitText) {
    expectRefusal({0x20000000, 1, 8}, limitText);
    expectRefusal({1, 0x20000000, 8}, limitText);
    expectRefusal({0x20000000, 1, 5}, limitText);
    expectRefusal({65536, 8192, 8}, limitText);
    expectRefusal({0x40000000, 1, 4}, limitText);
    expectRefusal({32768, 32768, 4}, limitText);
}

// 178956971 pixels of 24 bits are 8 bits more than 2^32; one pixel less still fits, but there
// need not be memory for it.
TEST(RasterImageCreate, TheLimitOf24BitsLiesAtAThirdOfThatOf8) {
    expectRefusal({178956971, 1, 24}, limitText);
    expectRefusal({178956971, 1, 9}, limitText);
    RasterImage image;
    const NoMemory none;
    EXPECT_EQ(image.Create(178956970, 1, 24, 0), nullptr);
    EXPECT_STREQ(image.GetLastError(), memoryText);
}

TEST(RasterImageCreate, OnePixelBelowTheLimitIsOnlyAMatterOfMemory) {
    RasterImage image;
    const NoMemory none;
    EXPECT_EQ(image.Create(0x1FFFFFFF, 1, 8, 0), nullptr);
    EXPECT_STREQ(image.GetLastError(), memoryText);
    EXPECT_EQ(image.Create(0x3FFFFFFF, 1, 4, 0), nullptr);
    EXPECT_STREQ(image.GetLastError(), memoryText);
}

// The limit looks at the number of bits modulo 2^32, so these pass it; no block can hold them.
TEST(RasterImageCreate, ABitCountThatWrapsToZeroFailsWithTheMemoryText) {
    expectRefusal({65536, 65536, 8}, memoryText);
    expectRefusal({65536, 65536, 24}, memoryText);
    expectRefusal({131072, 131072, 4}, memoryText);
    expectRefusal({262144, 262144, 1}, memoryText);
}

TEST(RasterImageCreate, ABitCountThatWrapsToASmallOneFailsWithTheMemoryText) {
    // 0x80000001 × 2 pixels wrap to 2, 0x10001 × 0x10001 to 0x20001.
    expectRefusal({0x80000001, 2, 8}, memoryText);
    expectRefusal({2, 0x80000001, 1}, memoryText);
    expectRefusal({0x10001, 0x10001, 8}, memoryText);
}

TEST(RasterImageCreate, ASideBeyondTheSignedHeaderFieldsFailsWithTheMemoryText) {
    expectRefusal({1, 0x80000000, 1}, memoryText);
    expectRefusal({0x80000000, 1, 1}, memoryText);
    expectRefusal({0xFFFFFFFF, 1, 1}, memoryText);
    expectRefusal({1, 0xFFFFFFFF, 1}, memoryText);
}

// 4 bytes per row: 2^30 rows make a pixel area of 2^32 bytes.
TEST(RasterImageCreate, ABlockBeyond32BitsFailsWithTheMemoryText) {
    expectRefusal({1, 0x40000000, 1}, memoryText);
    expectRefusal({1, 0x3FFFFFFF, 1}, memoryText);  // only header and palette go beyond
}

}  // namespace
