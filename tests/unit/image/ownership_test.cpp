// Who owns the memory of images, and what goes from one image to another.
#include <cstring>

#include "tests/support/test_memory.h"
#include "tests/unit/image/test_images.h"

namespace {

using reference::Bytes;

bool isZero(const BitmapInfoHeader& header) {
    const BitmapInfoHeader zero = {};
    return std::memcmp(&header, &zero, sizeof zero) == 0;
}

// Gives an image a text by a creation that fails, which leaves it empty.
void giveErrorText(RasterImage& image) {
    image.Create(0, 1, 8, 0);
}

class Transfer : public testing::Test {
protected:
    RasterImage source;
    RasterImage target;

    void SetUp() override {
        giveErrorText(source);
        source.Create(2, 2, 8, 77);
        source.SetGrayPalette();
        source.SetPixelIndex(1, 1, 200);
        source.GetNearestIndex({9, 9, 9, 5});
    }
};

TEST_F(Transfer, HandsOverTheBlockAndTheRecords) {
    const std::uint8_t* bits = source.GetBits(0);
    const tagRGBQUAD* palette = source.GetPalette();
    EXPECT_TRUE(target.Transfer(source));
    EXPECT_TRUE(target.IsValid());
    EXPECT_EQ(target.GetBits(0), bits);
    EXPECT_EQ(target.GetPalette(), palette);
    EXPECT_EQ(target.GetWidth(), 2);
    EXPECT_EQ(target.GetHeight(), 2);
    EXPECT_EQ(target.GetEffWidth(), 4U);
    EXPECT_EQ(target.GetSize(), 40U + 1024 + 8);
    EXPECT_EQ(target.GetInfo().type, 77U);
    EXPECT_STREQ(target.GetLastError(), sizeText);
    EXPECT_EQ(rowsOf(target), (Bytes{0, 0, 0, 0, 0, 200, 0, 0}));
}

TEST_F(Transfer, HandsOverTheNearestColourRecord) {
    target.Transfer(source);
    EXPECT_EQ(target.GetInfo().lastColor, (tagRGBQUAD{9, 9, 9, 5}));
    EXPECT_EQ(target.GetInfo().lastColorIndex, 9U);
    EXPECT_TRUE(target.GetInfo().lastColorValid);
}

TEST_F(Transfer, HandsOverTheNumberOfImportantColours) {
    source.SetClrImportant(3);
    target.Transfer(source);
    EXPECT_EQ(target.GetHeader().biClrImportant, 3U);
}

TEST_F(Transfer, LeavesTheSourceInvalidWithZeroedRecords) {
    target.Transfer(source);
    EXPECT_FALSE(source.IsValid());
    EXPECT_TRUE(isZero(source.GetHeader()));
    const RasterImageInfo& info = source.GetInfo();
    EXPECT_EQ(info.effWidth, 0U);
    EXPECT_EQ(info.bits, nullptr);
    EXPECT_EQ(info.type, 0U);
    EXPECT_STREQ(info.lastError, "");
    EXPECT_EQ(info.lastColor, tagRGBQUAD{});
    EXPECT_EQ(info.lastColorIndex, 0U);
    EXPECT_FALSE(info.lastColorValid);
    EXPECT_EQ(source.GetSize(), 0U);
    EXPECT_EQ(source.GetBits(0), nullptr);
}

TEST_F(Transfer, FreesTheFormerBlockOfTheTarget) {
    target.Create(100, 100, 24, 0);
    const std::ptrdiff_t blocks = liveBlocks();
    target.Transfer(source);
    EXPECT_EQ(liveBlocks(), blocks - 1);
    EXPECT_EQ(target.GetWidth(), 2);
    EXPECT_EQ(target.GetNumColors(), 256U);
}

TEST_F(Transfer, TakesNoNoticeOfTheFlag) {
    EXPECT_TRUE(target.Transfer(source, true));
    EXPECT_TRUE(target.IsValid());
    EXPECT_FALSE(source.IsValid());
}

TEST_F(Transfer, OfAnEmptyImageEmptiesTheTarget) {
    RasterImage empty;
    const std::ptrdiff_t blocks = liveBlocks();
    EXPECT_TRUE(source.Transfer(empty));
    EXPECT_EQ(liveBlocks(), blocks - 1);
    EXPECT_FALSE(source.IsValid());
    EXPECT_TRUE(isZero(source.GetHeader()));
    EXPECT_STREQ(source.GetLastError(), "");
}

TEST_F(Transfer, LetsTheSourceBeCreatedAgain) {
    target.Transfer(source);
    ASSERT_NE(source.Create(3, 1, 1, 0), nullptr);
    source.SetPixelIndex(0, 0, 1);
    EXPECT_EQ(rowsOf(source), (Bytes{0x80, 0, 0, 0}));
    EXPECT_EQ(rowsOf(target), (Bytes{0, 0, 0, 0, 0, 200, 0, 0}));
}

TEST(CopyInfo, CopiesTheInformationRecordIntoAnImageWithoutABlock) {
    RasterImage source;
    giveErrorText(source);
    source.Create(5, 2, 8, 77);
    source.SetGrayPalette();
    source.GetNearestIndex({30, 30, 30, 0});
    RasterImage target;
    target.CopyInfo(source);
    const RasterImageInfo& info = target.GetInfo();
    EXPECT_EQ(info.effWidth, 8U);
    EXPECT_EQ(info.bits, source.GetBits(0));
    EXPECT_EQ(info.type, 77U);
    EXPECT_STREQ(info.lastError, sizeText);
    EXPECT_EQ(info.lastColor, (tagRGBQUAD{30, 30, 30, 0}));
    EXPECT_EQ(info.lastColorIndex, 30U);
    EXPECT_TRUE(info.lastColorValid);
}

TEST(CopyInfo, LeavesHeaderAndBlockOut) {
    RasterImage source;
    source.Create(5, 2, 8, 77);
    RasterImage target;
    target.CopyInfo(source);
    EXPECT_FALSE(target.IsValid());
    EXPECT_TRUE(isZero(target.GetHeader()));
    EXPECT_TRUE(source.IsValid());
}

TEST(CopyInfo, DoesNothingToAnImageWithABlock) {
    RasterImage source;
    giveErrorText(source);
    source.Create(5, 2, 8, 77);
    RasterImage target;
    target.Create(1, 1, 8, 5);
    const std::uint8_t* bits = target.GetBits(0);
    target.CopyInfo(source);
    EXPECT_EQ(target.GetInfo().type, 5U);
    EXPECT_EQ(target.GetEffWidth(), 4U);
    EXPECT_EQ(target.GetBits(0), bits);
    EXPECT_STREQ(target.GetLastError(), "");
}

TEST(Destroy, FreesTheBlockAndKeepsTheRecords) {
    RasterImage image;
    image.Create(5, 2, 8, 77);
    const std::ptrdiff_t blocks = liveBlocks();
    EXPECT_TRUE(image.Destroy());
    EXPECT_EQ(liveBlocks(), blocks - 1);
    EXPECT_FALSE(image.IsValid());
    EXPECT_EQ(image.GetBits(0), nullptr);
    EXPECT_EQ(image.GetWidth(), 5);
    EXPECT_EQ(image.GetNumColors(), 256U);
    EXPECT_EQ(image.GetEffWidth(), 8U);
    EXPECT_EQ(image.GetInfo().type, 77U);
}

TEST(Destroy, IsTrueWithoutAnImage) {
    RasterImage image;
    EXPECT_TRUE(image.Destroy());
    EXPECT_TRUE(image.Destroy());
}

}  // namespace
