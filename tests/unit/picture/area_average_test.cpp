// Scaling by the mean of areas, against the plain account of it.
#include "intake/picture/area_average.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/reference/area_average.h"

namespace intake::picture {
namespace {

using Samples = std::vector<std::uint16_t>;

Samples noise(std::size_t count, unsigned seed) {
    Samples samples(count);
    for (std::uint16_t& sample : samples) {
        seed = seed * 1664525 + 1013904223;
        sample = static_cast<std::uint16_t>(seed >> 16U);
    }
    return samples;
}

Samples scaled(const Samples& samples, const ScaledAxis& across, const ScaledAxis& down,
               unsigned width, unsigned channels = 1) {
    Samples result;
    averageArea(
        across, down, channels,
        [&](unsigned row) {
            return std::span(samples).subspan(std::size_t{row} * width * channels,
                                              width * channels);
        },
        [&](std::span<const std::uint16_t> dots) {
            result.insert(result.end(), dots.begin(), dots.end());
        });
    return result;
}

Samples wholly(const Samples& samples, unsigned width, unsigned height, unsigned scaledWidth,
               unsigned scaledHeight) {
    return scaled(samples, {width, scaledWidth, 0, scaledWidth},
                  {height, scaledHeight, 0, scaledHeight}, width);
}

TEST(AreaAverage, IsThePlainMeanAtAllSmallSizes) {
    for (unsigned width = 1; width <= 9; ++width) {
        for (unsigned height = 1; height <= 9; ++height) {
            const Samples samples = noise(std::size_t{width} * height, width * 16 + height);
            for (unsigned columns = 1; columns <= 11; ++columns) {
                const unsigned rows = 1 + (columns * 7 + width) % 11;
                ASSERT_EQ(wholly(samples, width, height, columns, rows),
                          reference::areaAverage(samples, width, height, columns, rows))
                    << width << " x " << height << " to " << columns << " x " << rows;
            }
        }
    }
}

TEST(AreaAverage, IsThePlainMeanAtWidthsUpTo130) {
    for (unsigned width = 1; width <= 130; ++width) {
        const Samples samples = noise(width * 2U, width);
        for (const unsigned columns : {1U, 7U, 64U, 97U, 130U}) {
            ASSERT_EQ(wholly(samples, width, 2, columns, 3),
                      reference::areaAverage(samples, width, 2, columns, 3))
                << width << " to " << columns;
        }
    }
}

TEST(AreaAverage, RoundsHalvesUpward) {
    EXPECT_EQ(wholly({0, 1}, 2, 1, 1, 1), Samples{1});
    EXPECT_EQ(wholly({0, 0, 0, 1}, 2, 2, 1, 1), Samples{0});
}

TEST(AreaAverage, CountsASampleByItsShareOfTheDot) {
    // Three samples become two dots: the middle one belongs half to each.
    EXPECT_EQ(wholly({300, 600, 0}, 3, 1, 2, 1), (Samples{400, 200}));
}

TEST(AreaAverage, RepeatsSamplesAtAWholeMultiple) {
    EXPECT_EQ(wholly({1, 2}, 2, 1, 4, 2), (Samples{1, 1, 2, 2, 1, 1, 2, 2}));
}

TEST(AreaAverage, KeepsEverySampleOfThePicturesOwnSize) {
    const Samples samples = noise(12, 1);
    EXPECT_EQ(wholly(samples, 4, 3, 4, 3), samples);
}

TEST(AreaAverage, MakesOfAWindowWhatItMakesOfTheWhole) {
    const Samples samples = noise(70, 3);
    for (const unsigned columns : {5U, 7U, 15U}) {
        const Samples all = wholly(samples, 7, 10, columns, 8);
        const Samples part = scaled(samples, {7, columns, 2, 3}, {10, 8, 4, 2}, 7);
        Samples expected;
        for (unsigned row = 4; row < 6; ++row) {
            const auto begin = all.begin() + row * columns + 2;
            expected.insert(expected.end(), begin, begin + 3);
        }
        EXPECT_EQ(part, expected) << columns;
    }
}

TEST(AreaAverage, KeepsChannelsApart) {
    const Samples red = noise(15, 1);
    const Samples green = noise(15, 2);
    const Samples blue = noise(15, 3);
    Samples mixed;
    for (std::size_t index = 0; index < red.size(); ++index) {
        mixed.insert(mixed.end(), {red[index], green[index], blue[index]});
    }
    const Samples result = scaled(mixed, {5, 3, 0, 3}, {3, 4, 0, 4}, 5, 3);
    for (std::size_t channel = 0; channel < 3; ++channel) {
        Samples one;
        for (std::size_t index = channel; index < result.size(); index += 3) {
            one.push_back(result[index]);
        }
        EXPECT_EQ(one, wholly(channel == 0 ? red : (channel == 1 ? green : blue), 5, 3, 3, 4));
    }
}

TEST(AreaAverage, IsWhiteOfWhiteAtTheLargestPictures) {
    constexpr unsigned side = 11585;  // 128 million samples
    const Samples row(side, 65535);
    averageArea(
        {side, 3, 1, 1}, {side, 2, 1, 1}, 1, [&](unsigned) { return std::span(row); },
        [](std::span<const std::uint16_t> dots) { EXPECT_EQ(dots[0], 65535); });
}

}  // namespace
}  // namespace intake::picture
