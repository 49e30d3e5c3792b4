#include "intake/content/block_kernels.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "intake/content/byte_vector.h"
#include "intake/content/limits.h"

namespace intake::content {
namespace {

using Byte = std::uint8_t;

constexpr Byte byte(int value) {
    return static_cast<Byte>(value);
}

void spreadToDots(const PerBlock& values, Byte* dots) {
    for (std::size_t i = 0; i < values.size(); ++i) {
        std::memset(dots + i * blockDots, values[i], blockDots);
    }
}

std::vector<Byte> spreadToDots(const PerBlock& values, std::size_t dots) {
    std::vector<Byte> spread(dots);
    spreadToDots(values, spread.data());
    return spread;
}

// A line of this row or of the next one; of the last row, its last line.
const Byte* lineBelow(const BlockRow& row, std::size_t i, const BlockRow* below) {
    if (i < blockDots) {
        return row.line(i);
    }
    return below != nullptr ? below->line(i - blockDots) : row.line(blockDots - 1);
}

bool hasAnyContrast(const BlockRow& row) {
    const auto most = std::max_element(row.windowMost.begin(), row.windowMost.end());
    const auto least = std::min_element(row.windowLeast.begin(), row.windowLeast.end());
    return *most - *least >= leastContrast;
}

// What countSmoothDots compares with: a level from `least` to `most`, within `tolerance`.
struct SmoothLimits {
    PerBlock least, most, tolerance;
};

SmoothLimits smoothLimits(const BlockRow& row) {
    SmoothLimits limits{PerBlock(row.blocks, 0xFF), PerBlock(row.blocks), PerBlock(row.blocks)};
    for (std::size_t i = 0; i < row.blocks; ++i) {
        const int range = row.windowMost[i] - row.windowLeast[i];
        if (range >= leastContrast) {
            limits.least[i] = byte(row.windowLeast[i] + range / 4);
            limits.most[i] = byte(row.windowMost[i] - range / 4);
            limits.tolerance[i] = byte(std::max(leastTolerance, range / smoothPart));
        }
    }
    return limits;
}

// How far a dot differs from the two that follow it: two bars of alike shade beside each other,
// which blurring makes, are no smooth place.
ByteVector changeTo(const ByteVector& next, const ByteVector& second, const ByteVector& level) {
    return greater(difference(level, next), difference(level, second));
}

// One line's part of the count, a byte per dot.
void addSmoothDots(const Byte* line, const std::array<const Byte*, 2>& below, std::size_t dots,
                   const Byte* least, const Byte* most, const Byte* tolerance, Byte* counts) {
    for (std::size_t x = 0; x < dots; x += vectorBytes) {
        const ByteVector level = load(line + x);
        const ByteVector across = changeTo(load(line + x + 1), load(line + x + 2), level);
        const ByteVector down = changeTo(load(below[0] + x), load(below[1] + x), level);
        const ByteVector limit = load(tolerance + x);
        const ByteVector isMiddle =
            isAtMost(load(least + x), level) & isAtMost(level, load(most + x));
        // Where the first holds, the difference of the second is none below 0.
        const ByteVector isSmooth = isAtMost(across, limit) & isAtMost(down, limit - across);
        store(load(counts + x) - (isMiddle & isSmooth), counts + x);
    }
}

// Dots on the two sides of borders: marks where they touch.
void addContacts(const Byte* one, const Byte* other, std::size_t dots, Byte* contacts) {
    for (std::size_t x = 0; x < dots; x += vectorBytes) {
        const ByteVector lighter = lesser(load(one + x), load(other + x));
        const ByteVector darker = greater(load(one + x), load(other + x));
        const ByteVector areAlike =
            isAtMost(darker - lighter, splat(1)) & isAtMost(splat(paperTouch + 1), lighter);
        const ByteVector areShaded = isAtMost(splat(lightTouch + 1), lighter);
        const ByteVector isBlack = isAtMost(splat(blackTouch), darker);
        store(load(contacts + x) | ((areAlike | areShaded) & ~isBlack), contacts + x);
    }
}

void narrow(const Byte* line, std::size_t dots, Byte* least, Byte* most) {
    for (std::size_t x = 0; x < dots; x += vectorBytes) {
        store(lesser(load(least + x), load(line + x)), least + x);
        store(greater(load(most + x), load(line + x)), most + x);
    }
}

// Two dots together: half as many.
template <typename Operation>
void halve(const Byte* __restrict dots, std::size_t half, Operation operation,
           Byte* __restrict result) {
    for (std::size_t i = 0; i < half; ++i) {
        result[i] = operation(dots[2 * i], dots[2 * i + 1]);
    }
}

// A block's dots together.
template <typename Operation>
void reduceBlocks(std::vector<Byte>& dots, Operation operation, PerBlock& result) {
    std::vector<Byte> halves(dots.size() / 2);
    halve(dots.data(), dots.size() / 2, operation, halves.data());
    halve(halves.data(), dots.size() / 4, operation, dots.data());
    halve(dots.data(), result.size(), operation, result.data());
}

constexpr auto leastOf = [](Byte a, Byte b) { return std::min(a, b); };
constexpr auto mostOf = [](Byte a, Byte b) { return std::max(a, b); };
constexpr auto sumOf = [](Byte a, Byte b) { return byte(a + b); };
constexpr auto eitherOf = [](Byte a, Byte b) { return byte(a | b); };

}  // namespace

void findExtremes(BlockRow& row) {
    std::vector<Byte> least(row.line(0), row.line(0) + row.stride);
    std::vector<Byte> most = least;
    for (std::size_t i = 1; i < blockDots; ++i) {
        narrow(row.line(i), row.stride, least.data(), most.data());
    }
    reduceBlocks(least, leastOf, row.least);
    reduceBlocks(most, mostOf, row.most);
}

void findWindowExtremes(const BlockRow* above, BlockRow& row, const BlockRow* below) {
    PerBlock least = row.least;
    PerBlock most = row.most;
    for (const BlockRow* other : {above, below}) {
        for (std::size_t i = 0; other != nullptr && i < row.blocks; ++i) {
            least[i] = std::min(least[i], other->least[i]);
            most[i] = std::max(most[i], other->most[i]);
        }
    }
    for (std::size_t i = 0; i < row.blocks; ++i) {
        const std::size_t left = i == 0 ? 0 : i - 1;
        const std::size_t right = std::min(i + 1, row.blocks - 1);
        row.windowLeast[i] = std::min({least[left], least[i], least[right]});
        row.windowMost[i] = std::max({most[left], most[i], most[right]});
    }
}

void countSmoothDots(BlockRow& row, const BlockRow* below) {
    if (!hasAnyContrast(row)) {
        std::fill(row.smooth.begin(), row.smooth.end(), Byte{0});
        return;
    }
    const SmoothLimits limits = smoothLimits(row);
    const std::vector<Byte> least = spreadToDots(limits.least, row.stride);
    const std::vector<Byte> most = spreadToDots(limits.most, row.stride);
    const std::vector<Byte> tolerance = spreadToDots(limits.tolerance, row.stride);
    std::vector<Byte> counts(row.stride);
    for (std::size_t i = 0; i < blockDots; ++i) {
        const std::array<const Byte*, 2> next{lineBelow(row, i + 1, below),
                                              lineBelow(row, i + 2, below)};
        addSmoothDots(row.line(i), next, row.stride, least.data(), most.data(), tolerance.data(),
                      counts.data());
    }
    reduceBlocks(counts, sumOf, row.smooth);
}

void findContacts(BlockRow& row, const BlockRow* below) {
    std::vector<Byte> contacts(row.stride);
    // On bare paper nothing touches, and most of a label is that.
    const bool isBare = *std::max_element(row.most.begin(), row.most.end()) <= paperTouch;
    for (std::size_t i = 0; !isBare && i < blockDots; ++i) {
        addContacts(row.line(i), row.line(i) + 1, row.stride, contacts.data());
    }
    for (std::size_t i = 0; i < row.blocks; ++i) {
        row.touchesRight[i] = contacts[i * blockDots + blockDots - 1];
    }
    std::fill(contacts.begin(), contacts.end(), Byte{0});
    if (below != nullptr) {
        addContacts(row.line(blockDots - 1), below->line(0), row.stride, contacts.data());
    }
    reduceBlocks(contacts, eitherOf, row.touchesBelow);
}

void Treatments::spreadToDots(std::size_t dots) {
    for (std::vector<Byte>* of : {&keptOfDots_, &thresholdOfDots_, &blackenedOfDots_}) {
        of->resize(dots);
    }
    intake::content::spreadToDots(kept, keptOfDots_.data());
    intake::content::spreadToDots(threshold, thresholdOfDots_.data());
    intake::content::spreadToDots(blackened, blackenedOfDots_.data());
}

void Treatments::treat(const Byte* line, Byte* result) const {
    for (std::size_t x = 0; x < keptOfDots_.size(); x += vectorBytes) {
        const ByteVector level = load(line + x);
        const ByteVector isDark = isAtMost(load(thresholdOfDots_.data() + x), level);
        store((level & load(keptOfDots_.data() + x)) | (isDark & load(blackenedOfDots_.data() + x)),
              result + x);
    }
}

}  // namespace intake::content
