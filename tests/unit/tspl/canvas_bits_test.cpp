// Bits drawn on the canvas, byte by byte.
#include "tests/unit/tspl/plain_canvas.h"
#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr DrawMode sModes[] = {DrawMode::Overwrite, DrawMode::Or, DrawMode::ExclusiveOr};

// One row that holds "####....", and these bits on it at x.
Texts onHalfARow(std::int64_t x, const Bytes& bits, DrawMode mode) {
    DotCanvas canvas(8, 1);
    canvas.fill({0, 0, 4, 1});
    canvas.drawBits(x, 0, bits, mode);
    return rowsOf(canvas);
}

TEST(DrawBits, StartsAtTheMostSignificantBit) {
    DotCanvas canvas(16, 2);
    canvas.drawBits(0, 1, Bytes{0x81, 0x70}, DrawMode::Or);
    EXPECT_EQ(rowsOf(canvas), (Texts{"................", "#......#.###...."}));
}

TEST(DrawBits, OverwritesBurntAndBareDots) {
    EXPECT_EQ(onHalfARow(0, {0x33}, DrawMode::Overwrite), Texts{"..##..##"});
}

TEST(DrawBits, AddsBurntDotsByOr) {
    EXPECT_EQ(onHalfARow(0, {0x33}, DrawMode::Or), Texts{"####..##"});
}

TEST(DrawBits, SwapsDotsByExclusiveOr) {
    EXPECT_EQ(onHalfARow(0, {0x33}, DrawMode::ExclusiveOr), Texts{"##....##"});
}

TEST(DrawBits, LeavesTheDotsBesideThemAlone) {
    EXPECT_EQ(onHalfARow(2, {0x00}, DrawMode::Overwrite), Texts{"##......"});
    EXPECT_EQ(onHalfARow(-6, {0x00}, DrawMode::Overwrite), Texts{"..##...."});
    EXPECT_EQ(onHalfARow(6, {0xFF}, DrawMode::Overwrite), Texts{"####..##"});
}

TEST(DrawBits, CountsThoseThatLieOutside) {
    DotCanvas canvas(10, 2);
    canvas.drawBits(-3, 0, Bytes{0xFF, 0xFF}, DrawMode::Or);
    EXPECT_EQ(rowsOf(canvas), (Texts{"##########", ".........."}));
    EXPECT_EQ(canvas.dotsOutside(), 6U);
    canvas.drawBits(0, 2, Bytes{0x07}, DrawMode::Or);
    canvas.drawBits(0, -1, Bytes{0x01}, DrawMode::ExclusiveOr);
    EXPECT_EQ(canvas.dotsOutside(), 10U);
    canvas.drawBits(10, 0, Bytes{0xF0}, DrawMode::Overwrite);
    canvas.drawBits(-8, 0, Bytes{0xF0}, DrawMode::Overwrite);
    EXPECT_EQ(canvas.dotsOutside(), 18U);
}

TEST(DrawBits, CountsNoBareBitsOutside) {
    DotCanvas canvas(10, 2);
    canvas.drawBits(50, 0, Bytes{0, 0}, DrawMode::Overwrite);
    canvas.drawBits(0, 50, Bytes{0, 0}, DrawMode::Overwrite);
    EXPECT_EQ(canvas.dotsOutside(), 0U);
}

TEST(DrawBits, TakesPlacesOfTheLargestNumbers) {
    constexpr std::int64_t huge = std::int64_t{1} << 60;
    DotCanvas canvas(10, 2);
    for (const std::int64_t x : {-huge, huge}) {
        for (const std::int64_t y : {-huge, std::int64_t{0}, huge}) {
            canvas.drawBits(x, y, Bytes{0xFF, 0x01}, DrawMode::Or);
        }
    }
    EXPECT_EQ(canvas.burntDots(), 0U);
    EXPECT_EQ(canvas.dotsOutside(), 54U);
}

TEST(DrawBits, OfNothingDrawNothing) {
    DotCanvas canvas(10, 2);
    canvas.drawBits(0, 0, {}, DrawMode::Overwrite);
    EXPECT_EQ(canvas.burntDots(), 0U);
}

TEST(DrawBits, MeetThePlainCanvasAtEveryPlaceAndWidthInEveryMode) {
    const Bytes ground = {0xCA, 0x53, 0xF0};
    const Bytes bits = {0xA6, 0x3D};
    for (std::int64_t width = 1; width <= 24; ++width) {
        for (std::int64_t x = -18; x <= width + 2; ++x) {
            for (const DrawMode mode : sModes) {
                DotCanvas canvas(width, 2);
                PlainCanvas plain(width, 2);
                canvas.drawBits(0, 1, ground, DrawMode::Overwrite);
                plain.drawBits(0, 1, ground, DrawMode::Overwrite);
                canvas.drawBits(x, 1, bits, mode);
                plain.drawBits(x, 1, bits, mode);
                expectSame(canvas, plain);
            }
        }
    }
}

}  // namespace
}  // namespace tspl
