// What drawing the anti-wrinkle frame leaves in the log.
#include "tests/unit/driver/test_support.h"

namespace {

using reference::Bytes;

class AntiWrinkleLog : public testing::Test {
protected:
    TestPrinter printer;
    cups_page_header2_t header = {};
    RasterImage image;

    std::string frame(const char* pageSizeName, int level, std::uint32_t width,
                      std::uint32_t height) {
        header = headerNamed(pageSizeName);
        printer.setPageHeader(&header);
        printer.setAntiWrinkle(level);
        const Bytes pixels(std::size_t{width} * height, 1);
        image.CreateFromArray(pixels.data(), width, height, 8, width, false);
        return draw();
    }
    std::string draw() {
        return errorOutputOf([this] { printer.EnableAntiWrink(image); });
    }
};

TEST_F(AntiWrinkleLog, FollowsTheEnlargementOfASmallPage) {
    EXPECT_EQ(frame("A4", 1, 2000, 3000),
              "DEBUG:EnableAntiWrink: AntiWrinkle level: 1, line_v: 12 points, line_h: 12 points.\n"
              "DEBUG:EnableAntiWrink: Page size is A4, CanvasWidth: 2386, CanvasHeight: 3272\n"
              "DEBUG:EnableAntiWrink: Image width is less than canvas width, exPoints: 193\n"
              "DEBUG:EnableAntiWrink: Image height is less than canvas height, eyPoints: 136\n"
              "DEBUG:EnableAntiWrink: Image expanded successfully.\n"
              "DEBUG:EnableAntiWrink: Drawing left line. point(0, 0, 12, 3272)\n"
              "DEBUG:EnableAntiWrink: Drawing top line. point(0, 0, 2386, 12)\n"
              "DEBUG:EnableAntiWrink: Drawing right line. point(2374, 0, 2386, 3272)\n"
              "DEBUG:EnableAntiWrink: Drawing bottom line. point(0, 3260, 2386, 3272)\n");
}

TEST_F(AntiWrinkleLog, FollowsTheCentringOnALargePage) {
    EXPECT_EQ(
        frame("Tattoo_A6", 2, 1500, 1500),
        "DEBUG:EnableAntiWrink: AntiWrinkle level: 2, line_v: 24 points, line_h: 12 points.\n"
        "DEBUG:EnableAntiWrink: Page size is Tattoo_A6, CanvasWidth: 1229, CanvasHeight: 1418\n"
        "DEBUG:EnableAntiWrink: Image width is greater than canvas width, offset.x: 135\n"
        "DEBUG:EnableAntiWrink: Image height is greater than canvas height, offset.y: 41\n"
        "DEBUG:EnableAntiWrink: Drawing left line. point(135, 41, 159, 1459)\n"
        "DEBUG:EnableAntiWrink: Drawing top line. point(135, 41, 1364, 53)\n"
        "DEBUG:EnableAntiWrink: Drawing right line. point(1340, 41, 1364, 1459)\n"
        "DEBUG:EnableAntiWrink: Drawing bottom line. point(135, 1447, 1364, 1459)\n");
}

TEST_F(AntiWrinkleLog, IsShortForAnImageOfTheSizeOfTheCanvas) {
    EXPECT_EQ(frame("Letter", 3, 2550, 3059),
              "DEBUG:EnableAntiWrink: AntiWrinkle level: 3, line_v: 35 points, line_h: 12 points.\n"
              "DEBUG:EnableAntiWrink: Page size is Letter, CanvasWidth: 2550, CanvasHeight: 3059\n"
              "DEBUG:EnableAntiWrink: Drawing left line. point(0, 0, 35, 3059)\n"
              "DEBUG:EnableAntiWrink: Drawing top line. point(0, 0, 2550, 12)\n"
              "DEBUG:EnableAntiWrink: Drawing right line. point(2515, 0, 2550, 3059)\n"
              "DEBUG:EnableAntiWrink: Drawing bottom line. point(0, 3047, 2550, 3059)\n");
}

TEST_F(AntiWrinkleLog, TellsOfAMarginOfHalfADotButNotOfAnEnlargement) {
    EXPECT_EQ(
        frame("Tattoo_A5", 1, 2385, 1418),
        "DEBUG:EnableAntiWrink: AntiWrinkle level: 1, line_v: 12 points, line_h: 12 points.\n"
        "DEBUG:EnableAntiWrink: Page size is Tattoo_A5, CanvasWidth: 2386, CanvasHeight: 1418\n"
        "DEBUG:EnableAntiWrink: Image width is less than canvas width, exPoints: 0\n"
        "DEBUG:EnableAntiWrink: Drawing left line. point(0, 0, 12, 1418)\n"
        "DEBUG:EnableAntiWrink: Drawing top line. point(0, 0, 2386, 12)\n"
        "DEBUG:EnableAntiWrink: Drawing right line. point(2374, 0, 2386, 1418)\n"
        "DEBUG:EnableAntiWrink: Drawing bottom line. point(0, 1406, 2386, 1418)\n");
}

// A bar without rows leaves the column counter as the bar before it did; it starts at 0.
TEST_F(AntiWrinkleLog, StillTellsOfTheBarsOfAnUnknownPageSize) {
    EXPECT_EQ(frame("a4", 1, 100, 60),
              "DEBUG:EnableAntiWrink: AntiWrinkle level: 1, line_v: 12 points, line_h: 12 points.\n"
              "DEBUG:EnableAntiWrink: Image width is greater than canvas width, offset.x: 50\n"
              "DEBUG:EnableAntiWrink: Image height is greater than canvas height, offset.y: 30\n"
              "DEBUG:EnableAntiWrink: Drawing left line. point(50, 30, 0, 30)\n"
              "DEBUG:EnableAntiWrink: Drawing top line. point(50, 30, 50, 42)\n"
              "DEBUG:EnableAntiWrink: Drawing right line. point(38, 30, 50, 30)\n"
              "DEBUG:EnableAntiWrink: Drawing bottom line. point(50, 18, 50, 30)\n");
}

TEST_F(AntiWrinkleLog, EndsWhenTheImageCannotBeEnlarged) {
    // 300000 × 3271 pixels are more bits than an image can have.
    EXPECT_EQ(frame("A4", 1, 300000, 1),
              "DEBUG:EnableAntiWrink: AntiWrinkle level: 1, line_v: 12 points, line_h: 12 points.\n"
              "DEBUG:EnableAntiWrink: Page size is A4, CanvasWidth: 2386, CanvasHeight: 3272\n"
              "DEBUG:EnableAntiWrink: Image height is less than canvas height, eyPoints: 1635\n"
              "DEBUG:EnableAntiWrink: Failed to expand image, returning.\n");
    EXPECT_EQ(image.GetWidth(), 300000);
    EXPECT_EQ(image.GetHeight(), 1);
    EXPECT_EQ(bytesOf(image), Bytes(300000, 1));
}

TEST_F(AntiWrinkleLog, IsOneLineWithoutAnImage) {
    header = headerNamed("A4");
    printer.setPageHeader(&header);
    printer.setAntiWrinkle(1);
    EXPECT_EQ(draw(), "DEBUG:EnableAntiWrink: Image or pageHdr_ is not valid, returning.\n");
}

TEST_F(AntiWrinkleLog, IsOneLineWithoutAPageHeader) {
    printer.setAntiWrinkle(1);
    const Bytes pixels(4, 1);
    image.CreateFromArray(pixels.data(), 4, 1, 8, 4, false);
    EXPECT_EQ(draw(), "DEBUG:EnableAntiWrink: Image or pageHdr_ is not valid, returning.\n");
    EXPECT_EQ(bytesOf(image), pixels);
}

}  // namespace
