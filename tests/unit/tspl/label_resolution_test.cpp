// A page of any width, whose SIZE is printed with one decimal of a millimetre, is found again.
#include <cstdio>

#include "tests/unit/tspl/test_support.h"
#include "tspl/label.h"

namespace tspl {
namespace {

Length oneDecimal(std::int64_t dots, int dpi) {
    char text[32];
    std::snprintf(text, sizeof text, "%.1f mm", static_cast<double>(dots) * 25.4 / dpi);
    return parseLength(text).value();
}

LabelDots foundAgain(std::int64_t width, std::int64_t height, int dpi) {
    Label label(std::nullopt, std::uint64_t{1} << 30U);
    EXPECT_TRUE(label.setSize({oneDecimal(width, dpi), oneDecimal(height, dpi)}));
    label.noteBitmap({{},
                      0,
                      0,
                      static_cast<std::int32_t>((width + 7) / 8),
                      static_cast<std::int32_t>(height),
                      0},
                     0, 0);
    const LabelDots dots = label.dots();
    EXPECT_FALSE(label.widestOverhang(dots)) << width << " x " << height << " at " << dpi;
    EXPECT_FALSE(label.highestOverhang(dots)) << width << " x " << height << " at " << dpi;
    return dots;
}

class PageAtResolution : public testing::TestWithParam<int> {};

TEST_P(PageAtResolution, OfWholeBytesIsFoundToTheDot) {
    for (std::int64_t width = 8; width <= 2400; width += 8) {
        const LabelDots dots = foundAgain(width, 1218, GetParam());
        EXPECT_EQ(dots.dpi, GetParam()) << width;
        EXPECT_EQ(dots.width, width);
        EXPECT_EQ(dots.height, 1218) << width;
    }
}

TEST_P(PageAtResolution, OfAnyHeightIsFoundToTheDot) {
    for (std::int64_t height = 1; height <= 2400; ++height) {
        const LabelDots dots = foundAgain(808, height, GetParam());
        EXPECT_EQ(dots.dpi, GetParam()) << height;
        EXPECT_EQ(dots.width, 808) << height;
        EXPECT_EQ(dots.height, height);
    }
}

INSTANTIATE_TEST_SUITE_P(, PageAtResolution, testing::Values(203, 300, 600));

// The bitmap of such a page ends up to seven dots behind the page's last column.
void expectEveryColumn(int dpi, std::int64_t narrowest) {
    for (std::int64_t width = narrowest; width <= 2400; ++width) {
        const LabelDots dots = foundAgain(width, 1218, dpi);
        EXPECT_EQ(dots.dpi, dpi) << width;
        EXPECT_GE(dots.width, width);
    }
}

TEST(PageOfAnyWidth, LosesNoColumnAt203Dpi) {
    expectEveryColumn(203, 33);
}

TEST(PageOfAnyWidth, LosesNoColumnAt300And600Dpi) {
    expectEveryColumn(300, 33);
    expectEveryColumn(600, 33);
}

}  // namespace
}  // namespace tspl
