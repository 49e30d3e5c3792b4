// What an image keeps of its information record when a whole-image operation replaces it.
#include "tests/unit/image/test_images.h"

namespace {

class InheritedRecords : public testing::TestWithParam<std::uint32_t> {
protected:
    // An image of the type 77 after a failure and a search for a colour.
    void SetUp() override {
        image.Create(0, 1, 8, 0);
        image.Create(3, 2, GetParam(), 77);
        image.SetGrayPalette();
        index = image.GetNearestIndex({250, 251, 252, 7});
        ASSERT_STREQ(image.GetLastError(), sizeText);
        ASSERT_NE(index, 0U);
    }

    void expectRecords(const RasterImage& result) const {
        const RasterImageInfo& info = result.GetInfo();
        EXPECT_STREQ(info.lastError, sizeText);
        EXPECT_EQ(info.lastColor, (tagRGBQUAD{250, 251, 252, 7}));
        EXPECT_EQ(info.lastColorIndex, index);
        EXPECT_TRUE(info.lastColorValid);
        EXPECT_EQ(info.type, 77U);
    }

    RasterImage image;
    std::uint8_t index = 0;
};

TEST_P(InheritedRecords, OutliveEveryHalftone) {
    for (long method = 0; method <= 8; ++method) {
        SetUp();
        ASSERT_TRUE(image.Dither(method));
        SCOPED_TRACE(method);
        ASSERT_EQ(image.GetHeader().biBitCount, 1U);
        expectRecords(image);
    }
}

TEST_P(InheritedRecords, OutliveARotationInPlace) {
    ASSERT_TRUE(image.Rotate180());
    expectRecords(image);
}

TEST_P(InheritedRecords, ReachTheDestinationOfARotationAndStayWithItsSource) {
    RasterImage destination;
    destination.Create(5, 0x20000000, 8, 5);
    ASSERT_STREQ(destination.GetLastError(), limitText);
    ASSERT_TRUE(image.Rotate180(&destination));
    expectRecords(destination);
    expectRecords(image);
}

INSTANTIATE_TEST_SUITE_P(Depths, InheritedRecords, testing::Values(1U, 4U, 8U));

}  // namespace
