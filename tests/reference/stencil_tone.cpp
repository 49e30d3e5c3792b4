#include "tests/reference/stencil_tone.h"

#include <cmath>
#include <cstdint>
#include <vector>

#include "tests/reference/stencil_numeric.h"

namespace reference {

namespace {

std::uint8_t lowByte(int value) {
    return static_cast<std::uint8_t>(static_cast<unsigned>(value) % 256U);
}

/// The grey level of one pixel by its first three channels.
std::uint8_t greyLevel(const std::uint8_t* channel, ChannelOrder order) {
    const bool blueFirst = order == ChannelOrder::blueFirst;
    const float firstShare = (blueFirst ? 0.114F : 0.299F) * static_cast<float>(channel[0]);
    const float secondShare = 0.587F * static_cast<float>(channel[1]);
    const float thirdShare = (blueFirst ? 0.299F : 0.114F) * static_cast<float>(channel[2]);
    const float firstTwo = firstShare + secondShare;
    const float all = thirdShare + firstTwo;
    return lowByte(roundedHalfAway(all));
}

using Shares = std::vector<float>;

/// The share that each of the 256 levels has in the pixels.
Shares sharesOf(const Bytes& grey) {
    std::vector<int> counts(256, 0);
    for (const std::uint8_t level : grey) {
        counts[level] = counts[level] + 1;
    }
    Shares shares;
    for (const int count : counts) {
        shares.push_back(static_cast<float>(count) / static_cast<float>(grey.size()));
    }
    return shares;
}

/// The mean of the levels' powers by the exponent 1, 2 or 3.
float moment(const Shares& shares, int exponent) {
    float sum = 0.0F;
    for (int level = 0; level < 256; ++level) {
        int raised = 1;
        for (int factor = 0; factor < exponent; ++factor) {
            raised = raised * level;
        }
        const float addend = static_cast<float>(raised) * shares[static_cast<std::size_t>(level)];
        sum = sum + addend;
    }
    return sum;
}

/// The coefficients of z² + c1 z + c0, whose roots are the two levels of the result.
struct Quadratic {
    float c0;
    float c1;
};

Quadratic quadraticOf(float m1, float m2, float m3) {
    const float m0 = 1.0F;
    const float spreadMean = m0 * m2;
    const float squareOfMean = m1 * m1;
    const float divisor = spreadMean - squareOfMean;
    const float minusSquare = -m2 * m2;
    const float outer = m1 * m3;
    const float c0 = (minusSquare + outer) / divisor;
    const float minusThird = m0 * -m3;
    const float inner = m2 * m1;
    const float c1 = (minusThird + inner) / divisor;
    return {c0, c1};
}

float discriminantOf(const Quadratic& quadratic) {
    const float square = quadratic.c1 * quadratic.c1;
    const double four = static_cast<double>(quadratic.c0) * -4.0;
    return static_cast<float>(static_cast<double>(square) + four);
}

/// The share of black: where the mean lies between the two roots.
float blackShare(const Quadratic& quadratic, float root, float m1) {
    const float low = -quadratic.c1 - root;
    const float high = -quadratic.c1 + root;
    const float z0 = 0.5F * low;
    const float z1 = 0.5F * high;
    const float aboveMean = z1 - m1;
    const float distance = z1 - z0;
    return aboveMean / distance;
}

int firstLevelBeyond(const Shares& shares, float share) {
    float sum = 0.0F;
    for (int level = 0; level < 256; ++level) {
        sum = sum + shares[static_cast<std::size_t>(level)];
        if (sum > share) {
            return level;
        }
    }
    return -1;
}

/// `length` levels of a power curve, whole levels above its start.
float curveValue(int level, int length, float gamma) {
    const float place = static_cast<float>(level) / static_cast<float>(length);
    const float raised = power(place, gamma).value();
    return raised * static_cast<float>(length);
}

std::uint8_t gammaLevel(int level, int knee, float gammaLow, float gammaHigh) {
    if (level < knee) {
        return lowByte(static_cast<int>(curveValue(level, knee, gammaLow)));
    }
    if (knee == 255) {
        return 255;  // the upper curve has no length
    }
    const float above = curveValue(level - knee, 255 - knee, gammaHigh);
    const float value = above + static_cast<float>(knee);
    return lowByte(static_cast<int>(value));
}

}  // namespace

Bytes greyLevels(const Bytes& pixels, std::size_t channels, ChannelOrder order) {
    Bytes grey;
    for (std::size_t i = 0; i < pixels.size(); i += channels) {
        grey.push_back(greyLevel(&pixels[i], order));
    }
    return grey;
}

std::optional<int> momentThreshold(const Bytes& grey) {
    const Shares shares = sharesOf(grey);
    const float m1 = moment(shares, 1);
    const Quadratic quadratic = quadraticOf(m1, moment(shares, 2), moment(shares, 3));
    const float discriminant = discriminantOf(quadratic);
    if (!std::isfinite(discriminant) || discriminant < 0.0F) {
        return 128;
    }
    const std::optional<float> root = squareRoot(discriminant);
    if (!root) {
        return std::nullopt;
    }
    return firstLevelBeyond(shares, blackShare(quadratic, *root, m1));
}

ToneTable gammaTable(int knee, float gammaLow, float gammaHigh) {
    ToneTable table{};
    for (int level = 0; level < 256; ++level) {
        table[static_cast<std::size_t>(level)] = gammaLevel(level, knee, gammaLow, gammaHigh);
    }
    return table;
}

Bytes withTones(const Bytes& grey, const ToneTable& table) {
    Bytes bent;
    for (const std::uint8_t level : grey) {
        bent.push_back(table[level]);
    }
    return bent;
}

}  // namespace reference
