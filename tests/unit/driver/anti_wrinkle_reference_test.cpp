// The anti-wrinkle frame against the reference.
#include "tests/reference/anti_wrinkle.h"

#include "tests/unit/driver/test_support.h"

namespace {

using reference::GreyImage;

struct Paper {
    const char* name;
    std::uint32_t width;
    std::uint32_t height;
};

class FramedPage : public testing::TestWithParam<Paper> {
protected:
    TestPrinter printer;
    cups_page_header2_t header = headerNamed(GetParam().name);

    void SetUp() override { printer.setPageHeader(&header); }

    // A page of noise with the palette of halftoned pages, where index 1 is white.
    void expectAsReference(const GreyImage& page, int level) {
        RasterImage image;
        image.CreateFromArray(page.bytes.data(), static_cast<std::uint32_t>(page.width),
                              static_cast<std::uint32_t>(page.height), 8,
                              static_cast<std::uint32_t>(page.stride), false);
        const std::vector<tagRGBQUAD> black(256);
        image.SetPalette(black.data(), 256);
        image.SetPaletteColor(1, 255, 255, 255, 0);
        printer.setAntiWrinkle(level);
        const std::string log = errorOutputOf([&] { printer.EnableAntiWrink(image); });
        const reference::FramedImage expected =
            reference::antiWrinkleFrame(page, level, GetParam().name, 1);
        EXPECT_EQ(log, reference::joined(expected.log));
        ASSERT_EQ(static_cast<std::size_t>(image.GetWidth()), expected.image.width);
        ASSERT_EQ(static_cast<std::size_t>(image.GetHeight()), expected.image.height);
        EXPECT_TRUE(bytesOf(image) == expected.image.bytes);
    }
};

GreyImage noisyImage(std::size_t width, std::size_t height) {
    return reference::imageFromPacked(noise(width * height), width, height);
}

TEST_P(FramedPage, IsThatOfTheReferenceAtEveryLevel) {
    for (int level = 1; level <= 6; ++level) {
        SCOPED_TRACE(level);
        expectAsReference(noisyImage(GetParam().width, GetParam().height), level);
    }
}

TEST_P(FramedPage, IsThatOfTheReferenceOnSmallAndLongPages) {
    expectAsReference(noisyImage(1, 1), 2);
    expectAsReference(noisyImage(3, 1600), 3);
    expectAsReference(noisyImage(2601, 7), 1);
}

INSTANTIATE_TEST_SUITE_P(Papers, FramedPage,
                         testing::Values(Paper{"A4", 1201, 801}, Paper{"Letter", 2600, 600},
                                         Paper{"Tattoo_A5", 900, 1500},
                                         Paper{"Tattoo_A6", 1301, 1500}, Paper{"A5", 222, 111}));

}  // namespace
