// Text that is turned about its corner: 3 dots along the line and 2 rows down from it, an area of
// 10 by 4 dots.
#include "tspl/text_frame.h"

#include <gtest/gtest.h>

#include <array>

namespace tspl {
namespace {

std::array<std::int64_t, 4> turnedBy(int rotation) {
    const Area area = TextFrame{100, 50, rotation}.onLabel({3, 2, 10, 4});
    return {area.x, area.y, area.width, area.height};
}

TEST(TextFrame, LaysAreasBesideAndUnderItsCorner) {
    EXPECT_EQ(turnedBy(0), (std::array<std::int64_t, 4>{103, 52, 10, 4}));
}

TEST(TextFrame, TurnsClockwiseAboutItsCorner) {
    EXPECT_EQ(turnedBy(90), (std::array<std::int64_t, 4>{94, 53, 4, 10}));
    EXPECT_EQ(turnedBy(180), (std::array<std::int64_t, 4>{87, 44, 10, 4}));
    EXPECT_EQ(turnedBy(270), (std::array<std::int64_t, 4>{102, 37, 4, 10}));
}

}  // namespace
}  // namespace tspl
