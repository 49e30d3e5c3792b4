// Halftoning against the reference.
#include "tests/reference/dither.h"

#include <algorithm>
#include <iterator>

#include "tests/unit/image/test_images.h"

namespace {

using reference::Bytes;

class DitherReference : public testing::TestWithParam<long> {
protected:
    // Halftones `height` rows × `width` columns of levels; only a difference is reported.
    static void expectAsReference(std::uint32_t width, std::uint32_t height, const Bytes& levels) {
        RasterImage image;
        makeGreyImage(image, width, height, levels);
        ASSERT_TRUE(image.Dither(GetParam()));
        const Bytes expected = reference::dither(GetParam(), width, height, levels);
        if (pixelsOf(image) != expected) {
            FAIL() << width << " × " << height << " of " << testing::PrintToString(levels);
        }
    }
    // Halftones every page of a size whose levels are ends of the range or next to the middle.
    static void expectAllPagesAsReference(std::uint32_t width, std::uint32_t height) {
        constexpr std::uint8_t ends[] = {0, 1, 127, 128, 129, 254, 255};
        const std::size_t size = std::size_t{width} * height;
        std::size_t pages = 1;
        for (std::size_t i = 0; i < size; ++i) {
            pages *= std::size(ends);
        }
        for (std::size_t page = 0; page < pages; ++page) {
            Bytes levels(size);
            std::size_t rest = page;
            for (std::uint8_t& level : levels) {
                level = ends[rest % std::size(ends)];
                rest /= std::size(ends);
            }
            expectAsReference(width, height, levels);
        }
    }
};

constexpr std::uint32_t heights[] = {1, 2, 3, 5, 17};

Bytes gradient(std::uint32_t width, std::uint32_t height) {
    Bytes levels;
    for (std::uint32_t y = 0; y < height; ++y) {
        for (std::uint32_t x = 0; x < width; ++x) {
            levels.push_back(static_cast<std::uint8_t>((x * 255 / width + y * 15) % 256));
        }
    }
    return levels;
}

// Levels close to the middle, where small errors decide.
Bytes middleNoise(std::size_t size, std::uint32_t seed) {
    Bytes levels = noise(size, seed);
    for (std::uint8_t& level : levels) {
        level = static_cast<std::uint8_t>(112 + level % 32);
    }
    return levels;
}

TEST_P(DitherReference, IsMetByNoiseOfAllWidths) {
    for (std::uint32_t width = 1; width <= 130; ++width) {
        for (const std::uint32_t height : heights) {
            expectAsReference(width, height, noise(std::size_t{width} * height, width + height));
        }
    }
}

TEST_P(DitherReference, IsMetByNoiseAroundTheMiddleOfAllWidths) {
    for (std::uint32_t width = 1; width <= 130; ++width) {
        expectAsReference(width, 9, middleNoise(std::size_t{width} * 9, width));
    }
}

TEST_P(DitherReference, IsMetByGradientsOfAllWidths) {
    for (std::uint32_t width = 1; width <= 130; ++width) {
        for (const std::uint32_t height : heights) {
            expectAsReference(width, height, gradient(width, height));
        }
    }
}

TEST_P(DitherReference, IsMetByConstantPagesOfAllWidths) {
    for (std::uint32_t width = 1; width <= 130; ++width) {
        for (const std::uint8_t level : Bytes{0, 64, 128, 129, 200, 255}) {
            expectAsReference(width, 5, Bytes(std::size_t{width} * 5, level));
        }
    }
}

// Error diffusion works on eight rows at once, which reach up to three rows further down, and the
// first and last columns of a row are apart from those between them.
TEST_P(DitherReference, IsMetByPagesOfSomeRowsMoreOrLessThanWholeBands) {
    for (const std::uint32_t height : {7U, 8U, 9U, 10U, 11U, 12U, 15U, 16U, 18U, 19U, 20U, 33U}) {
        for (const std::uint32_t width : {1U, 3U, 8U, 9U, 31U, 47U, 48U, 49U, 65U, 67U, 72U, 75U}) {
            expectAsReference(width, height, noise(std::size_t{width} * height, width * height));
        }
    }
}

TEST_P(DitherReference, IsMetByPagesOfThreeBandsOfAllWidths) {
    for (std::uint32_t width = 1; width <= 130; ++width) {
        expectAsReference(width, 27, noise(std::size_t{width} * 27, width));
    }
}

TEST_P(DitherReference, IsMetByLargePages) {
    expectAsReference(1003, 131, noise(std::size_t{1003} * 131, 5));
    expectAsReference(1240, 97, gradient(1240, 97));
    expectAsReference(811, 203, middleNoise(std::size_t{811} * 203, 6));
}

TEST_P(DitherReference, IsMetByEveryConstantLevel) {
    for (int level = 0; level < 256; ++level) {
        expectAsReference(19, 11, Bytes(std::size_t{19} * 11, static_cast<std::uint8_t>(level)));
    }
}

TEST_P(DitherReference, IsMetByEveryRowOf3Pixels) {
    expectAllPagesAsReference(3, 1);
}

TEST_P(DitherReference, IsMetByEveryColumnOf3Pixels) {
    expectAllPagesAsReference(1, 3);
}

TEST_P(DitherReference, IsMetByEveryPageOf2By2Pixels) {
    expectAllPagesAsReference(2, 2);
}

// A light page of 4 bits stays black but for the lowest Bayer threshold: 15 is far from white.
TEST_P(DitherReference, IsMetBy4BitSourcesOfAllWidths) {
    for (std::uint32_t width = 1; width <= 130; ++width) {
        RasterImage image;
        image.Create(width, 5, 4, 0);
        makeImage(image, width, 5, 4, noise(std::size_t{image.GetEffWidth()} * 5, width));
        const Bytes levels = pixelsOf(image);
        ASSERT_LE(*std::max_element(levels.begin(), levels.end()), 15);
        ASSERT_TRUE(image.Dither(GetParam()));
        EXPECT_EQ(pixelsOf(image), reference::dither(GetParam(), width, 5, levels, 15)) << width;
    }
}

// Unused bits at the end of a row would be dots on paper.
TEST_P(DitherReference, LeavesThePaddingOfTheRowsZero) {
    for (std::uint32_t width = 1; width <= 70; ++width) {
        RasterImage image;
        makeGreyImage(image, width, 2, Bytes(std::size_t{width} * 2, 255));
        image.Dither(GetParam());
        Bytes expected(std::size_t{image.GetEffWidth()} * 2, 0);
        for (std::size_t i = 0; i < std::size_t{width} * 2; ++i) {
            std::uint8_t& byte = expected[i / width * image.GetEffWidth() + i % width / 8];
            byte = static_cast<std::uint8_t>(byte | 0x80 >> (i % width % 8));
        }
        EXPECT_EQ(rowsOf(image), expected) << width;
    }
}

INSTANTIATE_TEST_SUITE_P(Methods, DitherReference,
                         testing::Values(0, 1, 2, 3, 4, 5, 6, 7, 8, 100, -1));

}  // namespace
