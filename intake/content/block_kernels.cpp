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

// The kernels go along a row in strips of two blocks, and down the eight lines of each.
constexpr std::size_t stripBlocks = vectorBytes / blockDots;

// The first byte of each half is a block's.
void putBlocks(const ByteVector& bytes, std::size_t block, PerBlock& values) {
    values[block] = bytes[0];
    if (block + 1 < values.size()) {
        values[block + 1] = bytes[vectorBytes / 2];
    }
}

// What countSmoothDots compares the dots of a strip with.
struct SmoothLimits {
    ByteVector least, most, tolerance;
};

// Of one block: none is in the middle where there is no contrast.
std::array<Byte, 3> smoothLimits(const BlockRow& row, std::size_t block) {
    const int range = block < row.blocks ? row.windowMost[block] - row.windowLeast[block] : 0;
    if (range < leastContrast) {
        return {0xFF, 0, 0};
    }
    return {byte(row.windowLeast[block] + range / 4), byte(row.windowMost[block] - range / 4),
            byte(std::max(leastTolerance, range / smoothPart))};
}

SmoothLimits limitsOfStrip(const std::array<Byte, 3>& one, const std::array<Byte, 3>& other) {
    return {halves(one[0], other[0]), halves(one[1], other[1]), halves(one[2], other[2])};
}

// A line of this row or of the next one; of the last row, its last line.
const Byte* lineBelow(const BlockRow& row, std::size_t i, const BlockRow* below) {
    if (i < blockDots) {
        return row.line(i);
    }
    return below != nullptr ? below->line(i - blockDots) : row.line(blockDots - 1);
}

// The lines of a row and the two that follow them.
using Lines = std::array<const Byte*, blockDots + 2>;

Lines linesOf(const BlockRow& row, const BlockRow* below) {
    Lines lines{};
    for (std::size_t i = 0; i < lines.size(); ++i) {
        lines[i] = lineBelow(row, i, below);
    }
    return lines;
}

// How far a dot differs from the two that follow it: two bars of alike shade beside each other,
// which blurring makes, are no smooth place.
ByteVector changeTo(const ByteVector& next, const ByteVector& second, const ByteVector& level) {
    return greater(difference(level, next), difference(level, second));
}

// Minus one for each of its blocks' dots that is smooth.
ByteVector smoothDotsOfStrip(const Lines& lines, std::size_t x, const SmoothLimits& limits) {
    ByteVector counts{};
    for (std::size_t i = 0; i < blockDots; ++i) {
        const ByteVector level = load(lines[i] + x);
        const ByteVector across = changeTo(load(lines[i] + x + 1), load(lines[i] + x + 2), level);
        const ByteVector down = changeTo(load(lines[i + 1] + x), load(lines[i + 2] + x), level);
        const ByteVector isMiddle = isAtMost(limits.least, level) & isAtMost(level, limits.most);
        // Where the first holds, the difference of the second is none below 0.
        const ByteVector isSmooth =
            isAtMost(across, limits.tolerance) & isAtMost(down, limits.tolerance - across);
        counts -= isMiddle & isSmooth;
    }
    return counts;
}

// Dots on the two sides of borders: where they touch.
ByteVector contact(const ByteVector& one, const ByteVector& other) {
    const ByteVector lighter = lesser(one, other);
    const ByteVector darker = greater(one, other);
    const ByteVector areAlike =
        isAtMost(darker - lighter, splat(1)) & isAtMost(splat(paperTouch + 1), lighter);
    const ByteVector areShaded = isAtMost(splat(lightTouch + 1), lighter);
    return (areAlike | areShaded) & ~isAtMost(splat(blackTouch), darker);
}

// On bare paper nothing touches, and most of a label is that.
bool isBare(const BlockRow& row, std::size_t block) {
    return row.most[block] <= paperTouch &&
           (block + 1 >= row.blocks || row.most[block + 1] <= paperTouch);
}

// Within photographs and tints everything touches.
bool isAllShaded(const BlockRow& row, std::size_t block, std::size_t end) {
    bool isShaded = true;
    for (std::size_t i = block; i < std::min(end, row.blocks); ++i) {
        isShaded = isShaded && row.least[i] > lightTouch && row.most[i] < blackTouch;
    }
    return isShaded;
}

ByteVector contactsToTheRight(const BlockRow& row, std::size_t block) {
    // Also with the first block behind the strip.
    if (isAllShaded(row, block, block + stripBlocks + 1)) {
        return splat(0xFF);
    }
    const std::size_t x = block * blockDots;
    ByteVector contacts{};
    for (std::size_t i = 0; i < blockDots; ++i) {
        contacts |= contact(load(row.line(i) + x), load(row.line(i) + x + 1));
    }
    return contacts;
}

// The least or the greatest of three neighbours, of which those outside do not count.
template <typename Operation>
void ofThree(const PerBlock& values, Operation operation, PerBlock& result) {
    const Byte* __restrict from = values.data();
    Byte* __restrict to = result.data();
    const std::size_t last = values.size() - 1;
    to[0] = operation(from[0], from[std::min<std::size_t>(1, last)]);
    for (std::size_t i = 1; i < last; ++i) {
        to[i] = operation(operation(from[i - 1], from[i]), from[i + 1]);
    }
    if (last > 0) {
        to[last] = operation(from[last - 1], from[last]);
    }
}

void spreadToDots(const PerBlock& values, Byte* dots) {
    for (std::size_t i = 0; i < values.size(); ++i) {
        std::memset(dots + i * blockDots, values[i], blockDots);
    }
}

}  // namespace

void narrowTo(const BlockRow& row, PerBlock& least, PerBlock& most) {
    const Byte* __restrict rowLeast = row.least.data();
    const Byte* __restrict rowMost = row.most.data();
    Byte* __restrict bothLeast = least.data();
    Byte* __restrict bothMost = most.data();
    for (std::size_t i = 0; i < least.size(); ++i) {
        bothLeast[i] = std::min(bothLeast[i], rowLeast[i]);
        bothMost[i] = std::max(bothMost[i], rowMost[i]);
    }
}

void findExtremes(BlockRow& row) {
    for (std::size_t block = 0; block < row.blocks; block += stripBlocks) {
        const std::size_t x = block * blockDots;
        ByteVector least = load(row.line(0) + x);
        ByteVector most = least;
        for (std::size_t i = 1; i < blockDots; ++i) {
            least = lesser(least, load(row.line(i) + x));
            most = greater(most, load(row.line(i) + x));
        }
        putBlocks(reduceHalves(least, lesser), block, row.least);
        putBlocks(reduceHalves(most, greater), block, row.most);
    }
}

void findWindowExtremes(const BlockRow* above, BlockRow& row, const BlockRow* below) {
    PerBlock least = row.least;
    PerBlock most = row.most;
    for (const BlockRow* other : {above, below}) {
        if (other != nullptr) {
            narrowTo(*other, least, most);
        }
    }
    ofThree(
        least, [](Byte a, Byte b) { return std::min(a, b); }, row.windowLeast);
    ofThree(
        most, [](Byte a, Byte b) { return std::max(a, b); }, row.windowMost);
}

void countSmoothDots(BlockRow& row, const BlockRow* below) {
    const Lines lines = linesOf(row, below);
    row.hasSmooth = false;
    for (std::size_t block = 0; block < row.blocks; block += stripBlocks) {
        const auto one = smoothLimits(row, block);
        const auto other = smoothLimits(row, block + 1);
        ByteVector counts{};
        if (one[1] != 0 || other[1] != 0) {
            counts = smoothDotsOfStrip(lines, block * blockDots, limitsOfStrip(one, other));
            row.hasSmooth = true;
        }
        putBlocks(reduceHalves(counts, [](ByteVector a, ByteVector b) { return a + b; }), block,
                  row.smooth);
    }
}

void findContacts(BlockRow& row, const BlockRow* below) {
    const Byte* last = row.line(blockDots - 1);
    const Byte* next = lineBelow(row, blockDots, below);
    for (std::size_t block = 0; block < row.blocks; block += stripBlocks) {
        const std::size_t x = block * blockDots;
        ByteVector right{};
        ByteVector down{};
        if (!isBare(row, block)) {
            right = contactsToTheRight(row, block);
            down = contact(load(last + x), load(next + x));
        }
        // The last dot of each block is the one at the border.
        row.touchesRight[block] = right[blockDots - 1];
        if (block + 1 < row.blocks) {
            row.touchesRight[block + 1] = right[vectorBytes - 1];
        }
        putBlocks(reduceHalves(down, [](ByteVector a, ByteVector b) { return a | b; }), block,
                  row.touchesBelow);
    }
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
