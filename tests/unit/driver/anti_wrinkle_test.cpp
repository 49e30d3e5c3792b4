// The anti-wrinkle frame at sizes worked out by hand.
#include "tests/unit/driver/test_support.h"

namespace {

using reference::Bytes;

// Makes `image` a finished page without a black dot: index 1, which its palette shows white.
void makeWhitePage(RasterImage& image, std::uint32_t width, std::uint32_t height) {
    const Bytes pixels(std::size_t{width} * height, 255);
    image.CreateFromArray(pixels.data(), width, height, 8, width, false);
    image.Dither(0);
    image.IncreaseBpp(8);
}

class AntiWrinkle : public testing::Test {
protected:
    TestPrinter printer;
    cups_page_header2_t header = {};
    RasterImage image;

    void frame(const char* pageSizeName, int level, std::uint32_t width, std::uint32_t height) {
        header = headerNamed(pageSizeName);
        printer.setPageHeader(&header);
        printer.setAntiWrinkle(level);
        makeWhitePage(image, width, height);
        errorOutputOf([this] { printer.EnableAntiWrink(image); });
    }
    int at(std::int64_t x, std::int64_t y) const { return image.GetPixelIndex(x, y); }
    void expectSize(int width, int height) const {
        EXPECT_EQ(image.GetWidth(), width);
        EXPECT_EQ(image.GetHeight(), height);
    }
    // Number of pixels of the image that belong to bars.
    std::int64_t barPixels() const {
        std::int64_t count = 0;
        for (std::int64_t y = 0; y < image.GetHeight(); ++y) {
            for (std::int64_t x = 0; x < image.GetWidth(); ++x) {
                count += at(x, y) == 255 ? 1 : 0;
            }
        }
        return count;
    }
    // The four bars of a frame of `width` × `height` whose corner is at x, y cover its edge
    // and nothing else.
    void expectFrame(std::int64_t x, std::int64_t y, std::int64_t width, std::int64_t height,
                     std::int64_t sideBar, std::int64_t endBar) const {
        const std::int64_t inside = (width - 2 * sideBar) * (height - 2 * endBar);
        EXPECT_EQ(barPixels(), width * height - inside);
        for (const std::int64_t column : {x, x + width - 1}) {
            EXPECT_EQ(at(column, y), 255);
            EXPECT_EQ(at(column, y + height / 2), 255);
            EXPECT_EQ(at(column, y + height - 1), 255);
        }
        EXPECT_EQ(at(x + sideBar - 1, y + height / 2), 255);
        EXPECT_EQ(at(x + sideBar, y + height / 2), 1);
        EXPECT_EQ(at(x + width - sideBar - 1, y + height / 2), 1);
        EXPECT_EQ(at(x + width - sideBar, y + height / 2), 255);
        EXPECT_EQ(at(x + width / 2, y + endBar - 1), 255);
        EXPECT_EQ(at(x + width / 2, y + endBar), 1);
        EXPECT_EQ(at(x + width / 2, y + height - endBar - 1), 1);
        EXPECT_EQ(at(x + width / 2, y + height - endBar), 255);
    }
};

TEST_F(AntiWrinkle, EnlargesASmallA4PageToTheCanvasAndFramesIt) {
    frame("A4", 1, 2000, 3000);
    expectSize(2386, 3272);
    expectFrame(0, 0, 2386, 3272, 12, 12);
}

TEST_F(AntiWrinkle, CentresTheFrameOnALargerPage) {
    frame("Tattoo_A6", 2, 1500, 1500);
    expectSize(1500, 1500);
    expectFrame(135, 41, 1229, 1418, 24, 12);
    EXPECT_EQ(at(134, 700), 1);
    EXPECT_EQ(at(700, 40), 1);
}

TEST_F(AntiWrinkle, FramesALetterPage) {
    frame("Letter", 1, 2504, 3059);
    expectSize(2504, 3059);
    expectFrame(0, 0, 2504, 3059, 12, 12);
}

TEST_F(AntiWrinkle, FramesASmallStencilPage) {
    frame("Tattoo_A5", 1, 2386, 1418);
    expectSize(2386, 1418);
    expectFrame(0, 0, 2386, 1418, 12, 12);
}

struct SideBar {
    int level;
    int dots;
};

class AntiWrinkleLevel : public AntiWrinkle, public testing::WithParamInterface<SideBar> {};

TEST_P(AntiWrinkleLevel, IsTheThicknessOfTheSideBarsInMillimetres) {
    const int dots = GetParam().dots;
    frame("Tattoo_A6", GetParam().level, 1600, 1418);
    expectFrame((1600 - 1181 - 2 * dots) / 2, 0, 1181 + 2 * dots, 1418, dots, 12);
}

INSTANTIATE_TEST_SUITE_P(Levels, AntiWrinkleLevel,
                         testing::Values(SideBar{1, 12}, SideBar{2, 24}, SideBar{3, 35},
                                         SideBar{4, 47}, SideBar{5, 59}, SideBar{13, 154}));

TEST_F(AntiWrinkle, LeavesAnImageOfTheSizeOfTheCanvasAsLarge) {
    frame("Tattoo_A6", 1, 1205, 1418);
    expectSize(1205, 1418);
    expectFrame(0, 0, 1205, 1418, 12, 12);
}

TEST_F(AntiWrinkle, LosesOneDotWhereTheDifferenceIsOdd) {
    frame("A4", 1, 1999, 3272);
    expectSize(2385, 3272);
    EXPECT_EQ(at(2373, 1600), 1);
    EXPECT_EQ(at(2374, 1600), 255);
    EXPECT_EQ(at(2384, 1600), 255);
    EXPECT_EQ(at(0, 1600), 255);
    EXPECT_EQ(at(12, 1600), 1);
    // The frame less its last column: two side bars of 12 and 11 columns, two end bars.
    EXPECT_EQ(barPixels(), 3272 * (12 + 11) + 2 * 12 * (2385 - 23));
}

TEST_F(AntiWrinkle, LeavesAnImageOneDotSmallerThanTheCanvas) {
    frame("Tattoo_A6", 1, 1204, 1417);
    expectSize(1204, 1417);
    EXPECT_EQ(at(1203, 1416), 255);
}

TEST_F(AntiWrinkle, PutsThePageInTheMiddleOfAWhiteMargin) {
    header = headerNamed("Tattoo_A6");
    printer.setPageHeader(&header);
    printer.setAntiWrinkle(1);
    const Bytes black(5 * 8, 0);
    image.CreateFromArray(black.data(), 5, 8, 8, 5, false);
    image.Dither(0);
    image.IncreaseBpp(8);
    errorOutputOf([this] { printer.EnableAntiWrink(image); });
    // 600 columns left and right of 5, 705 rows above and below 8.
    expectSize(1205, 1418);
    EXPECT_EQ(at(600, 705), 0);
    EXPECT_EQ(at(604, 712), 0);
    EXPECT_EQ(at(599, 708), 1);
    EXPECT_EQ(at(605, 708), 1);
    EXPECT_EQ(at(602, 704), 1);
    EXPECT_EQ(at(602, 713), 1);
}

class UnframedSize : public AntiWrinkle, public testing::WithParamInterface<const char*> {};

TEST_P(UnframedSize, DrawsNothing) {
    frame(GetParam(), 3, 100, 60);
    expectSize(100, 60);
    EXPECT_EQ(bytesOf(image), Bytes(6000, 1));
}

INSTANTIATE_TEST_SUITE_P(Names, UnframedSize,
                         testing::Values("", "a4", "A4 ", "LETTER", "A5", "Tattoo_A4", "tattoo_A6",
                                         "Tattoo_A55", "Custom.10x10"));

TEST_F(AntiWrinkle, IsNotDrawnOnAPageOfLevelZero) {
    header = headerNamed("A4");
    printer.setPageHeader(&header);
    const Bytes page(16, 255);
    Bytes out(32);
    const std::string log =
        errorOutputOf([&] { printer.PageProcess(DitherType::None, page.data(), 4, 4, 4, out); });
    EXPECT_EQ(log.find("EnableAntiWrink"), std::string::npos);
    EXPECT_EQ(bytesOf(*printer.pimage_), Bytes(16, 1));
}

TEST_F(AntiWrinkle, IsDrawnAfterTheInversionOfANegativePage) {
    header = headerNamed("Tattoo_A6");
    setProperties(printer, {.negative = true, .antiWrinkle = 1});
    printer.setPageHeader(&header);
    const Bytes page(5 * 8, 255);
    Bytes out(80);
    errorOutputOf([&] { printer.PageProcess(DitherType::None, page.data(), 5, 5, 8, out); });
    const RasterImage& finished = *printer.pimage_;
    EXPECT_EQ(finished.GetPixelIndex(0, 0), 255);
    EXPECT_EQ(finished.GetPixelIndex(300, 300), 1);
    EXPECT_EQ(finished.GetPixelIndex(602, 708), 254);
}

}  // namespace
