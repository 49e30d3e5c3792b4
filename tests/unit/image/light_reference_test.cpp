// Brightness and contrast against the reference.
#include <numeric>

#include "tests/reference/tone.h"
#include "tests/unit/image/test_images.h"

namespace {

using reference::Bytes;

Bytes lit(std::uint32_t width, std::uint32_t height, const Bytes& levels, int brightness,
          int contrast) {
    RasterImage image;
    makeGreyImage(image, width, height, levels);
    EXPECT_TRUE(image.Light(brightness, contrast));
    return pixelsOf(image);
}

Bytes expected(const Bytes& levels, int brightness, int contrast) {
    const reference::ToneTable table = reference::lightTable(brightness, contrast);
    Bytes result;
    for (const std::uint8_t level : levels) {
        result.push_back(table[level]);
    }
    return result;
}

TEST(LightReference, EveryLevelBecomesThatOfTheReference) {
    Bytes levels(256);
    std::iota(levels.begin(), levels.end(), std::uint8_t{0});
    for (int brightness = -130; brightness <= 130; brightness += 5) {
        for (int contrast = -150; contrast <= 300; contrast += 7) {
            ASSERT_EQ(lit(16, 16, levels, brightness, contrast),
                      expected(levels, brightness, contrast))
                << brightness << ", " << contrast;
        }
    }
}

TEST(LightReference, EveryWidthIsThatOfTheReference) {
    for (std::uint32_t width = 1; width <= 130; ++width) {
        const Bytes levels = noise(std::size_t{width} * 3, width);
        EXPECT_EQ(lit(width, 3, levels, 17, -33), expected(levels, 17, -33)) << width;
    }
}

}  // namespace
