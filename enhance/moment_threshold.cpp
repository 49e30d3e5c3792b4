#include "enhance/moment_threshold.h"

#include <array>
#include <cmath>

#include "enhance/numeric.h"
#include "lanes/byte_words.h"

namespace {

using Probabilities = std::array<float, 256>;

constexpr int noPairOfLevels = 128;
constexpr int noLevelReached = -1;

Probabilities levelProbabilities(const LevelCounts& counts) {
    Probabilities p{};
    for (std::size_t level = 0; level < p.size(); ++level) {
        p[level] = static_cast<float>(counts.of(level)) / static_cast<float>(counts.pixels());
    }
    return p;
}

struct Moments {
    float m0 = 1.0F;
    float m1 = 0.0F;
    float m2 = 0.0F;
    float m3 = 0.0F;
};

Moments momentsOf(const Probabilities& p) {
    Moments m;
    for (int i = 0; i < 256; ++i) {
        const float share = p[static_cast<std::size_t>(i)];
        m.m1 = m.m1 + static_cast<float>(i) * share;
        m.m2 = m.m2 + static_cast<float>(i * i) * share;
        m.m3 = m.m3 + static_cast<float>(i * i * i) * share;
    }
    return m;
}

int firstLevelAbove(const Probabilities& p, float share) {
    float sum = 0.0F;
    for (int i = 0; i < 256; ++i) {
        sum = sum + p[static_cast<std::size_t>(i)];
        if (sum > share) {
            return i;
        }
    }
    return noLevelReached;
}

}  // namespace

// Neighbours often have the same level: one that counts in another table need not wait for it.
void LevelCounts::add(const unsigned char* row, std::size_t width) {
    std::size_t x = 0;
    for (; x + 8 <= width; x += 8) {
        ByteWord levels = loadWord(row + x);
        for (std::size_t i = 0; i < 8; ++i, levels >>= 8) {
            ++counts_[i % counts_.size()][levels & 0xFF];
        }
    }
    for (; x < width; ++x) {
        ++counts_.front()[row[x]];
    }
    pixels_ += width;
}

int LevelCounts::of(std::size_t level) const {
    int sum = 0;
    for (const auto& counts : counts_) {
        sum += counts[level];
    }
    return sum;
}

int thresh_global_moments(const QMImage& img) {
    LevelCounts counts;
    counts.add(img.data,
               static_cast<std::size_t>(img.width) * static_cast<std::size_t>(img.height));
    return momentThreshold(counts);
}

int momentThreshold(const LevelCounts& counts) {
    const Probabilities p = levelProbabilities(counts);
    const Moments m = momentsOf(p);
    const float cd = m.m0 * m.m2 - m.m1 * m.m1;
    const float c0 = ((-m.m2) * m.m2 + m.m1 * m.m3) / cd;
    const float c1 = (m.m0 * (-m.m3) + m.m2 * m.m1) / cd;
    const auto discriminant =
        static_cast<float>(static_cast<double>(c1 * c1) + static_cast<double>(c0) * -4.0);
    // On a page of one level, and on an almost blank one, cd vanishes in single precision.
    if (0.0F > discriminant || !std::isfinite(discriminant)) {
        return noPairOfLevels;
    }
    const float root = my_sqrt(discriminant);
    const float z0 = 0.5F * (-c1 - root);
    const float z1 = 0.5F * (-c1 + root);
    return firstLevelAbove(p, (z1 - m.m1) / (z1 - z0));
}
