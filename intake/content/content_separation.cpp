#include "intake/content/content_separation.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "intake/content/limits.h"

namespace intake::content {
namespace {

constexpr double millimetresPerInch = 25.4;

std::size_t blocksOfTint(unsigned dpi) {
    constexpr double fewest = 2;
    const double blocks = tintEdge * dpi / millimetresPerInch / blockDots;
    return static_cast<std::size_t>(std::max(fewest, std::round(blocks)));
}

bool hasAny(const PerBlock& values) {
    return std::any_of(values.begin(), values.end(), [](std::uint8_t value) { return value != 0; });
}

// Along a row, as far as blocks touch.
void spreadAlong(const PerBlock& touchesRight, PerBlock& isContinuous) {
    if (!hasAny(isContinuous)) {
        return;
    }
    std::uint8_t before = 0;
    for (std::size_t i = 0; i < isContinuous.size(); ++i) {
        before = isContinuous[i] = static_cast<std::uint8_t>(isContinuous[i] | before);
        before &= touchesRight[i];
    }
    before = 0;
    for (std::size_t i = isContinuous.size(); i-- > 0;) {
        before &= touchesRight[i];
        before = isContinuous[i] = static_cast<std::uint8_t>(isContinuous[i] | before);
    }
}

// What is continuous in another row, where the two touch.
void spreadOver(const PerBlock& other, const PerBlock& touches, PerBlock& isContinuous) {
    const std::uint8_t* __restrict from = other.data();
    const std::uint8_t* __restrict contact = touches.data();
    std::uint8_t* __restrict to = isContinuous.data();
    for (std::size_t i = 0; i < isContinuous.size(); ++i) {
        to[i] |= from[i] & contact[i];
    }
}

void add(const PerBlock& marks, PerBlock& to) {
    const std::uint8_t* __restrict from = marks.data();
    std::uint8_t* __restrict sum = to.data();
    for (std::size_t i = 0; i < to.size(); ++i) {
        sum[i] |= from[i];
    }
}

bool hasContrast(const BlockRow& row, std::size_t i) {
    return row.windowMost[i] - row.windowLeast[i] >= leastContrast;
}

bool isLightPart(const BlockRow& row, std::size_t i) {
    return row.most[i] > paperMost && row.most[i] < lightMost;
}

bool isDarkPart(const BlockRow& row, std::size_t i) {
    return row.least[i] < darkestPart && row.least[i] > darkLeast;
}

bool isTint(int least, int most) {
    return (most - least < tintRange && least > lightestTint) ||
           (most - least <= evenRange && least > lightestEvenTint);
}

bool hasAnyTint(const PerBlock& least, const PerBlock& most) {
    for (std::size_t i = 0; i < least.size(); ++i) {
        if (isTint(least[i], most[i])) {
            return true;
        }
    }
    return false;
}

// Of squares, from the levels of their columns.
void markTints(const PerBlock& least, const PerBlock& most, std::size_t edge, PerBlock& isInTint) {
    std::size_t flat = 0;  // columns up to here, each by itself
    for (std::size_t i = 0; i < least.size(); ++i) {
        flat = isTint(least[i], most[i]) ? flat + 1 : 0;
        if (flat >= edge) {
            const auto first = static_cast<std::ptrdiff_t>(i + 1 - edge);
            const auto end = static_cast<std::ptrdiff_t>(i + 1);
            if (isTint(*std::min_element(least.begin() + first, least.begin() + end),
                       *std::max_element(most.begin() + first, most.begin() + end))) {
                std::fill(isInTint.begin() + first, isInTint.begin() + end, std::uint8_t{1});
            }
        }
    }
}

}  // namespace

ContentSeparation::ContentSeparation(const PageShape& page, RowSink sink)
    : page_(page),
      sink_(std::move(sink)),
      blockRows_(static_cast<Index>((page.rows + blockDots - 1) / blockDots)),
      tintBlocks_(blocksOfTint(page.dpi)),
      seedDelay_(std::max<Index>(2, static_cast<Index>(tintBlocks_) - 1)),
      delay_(seedDelay_ + static_cast<Index>(spreads) + 2),
      ring_(static_cast<std::size_t>(delay_) + 2, BlockRow(page.columns)),
      columnSums_(ring_.front().blocks + 2),
      sums_(ring_.front().blocks),
      treatments_(ring_.front().blocks),
      result_(ring_.front().stride) {}

// Null outside the page.
BlockRow* ContentSeparation::at(Index i) {
    return i < 0 || i >= blockRows_ ? nullptr : &ring_[static_cast<std::size_t>(i) % ring_.size()];
}

void ContentSeparation::push(std::span<const std::uint8_t> row) {
    BlockRow& blocks = *at(current_);
    std::uint8_t* line = blocks.line(blocks.lines++);
    std::copy(row.begin(), row.end(), line);
    std::fill(line + page_.columns, line + blocks.pitch(), row.back());
    const bool isLast = static_cast<std::size_t>(current_) * blockDots + blocks.lines == page_.rows;
    if (blocks.lines == blockDots || isLast) {
        endBlockRow();
    }
}

void ContentSeparation::endBlockRow() {
    BlockRow& blocks = *at(current_);
    for (std::size_t i = blocks.lines; i < blockDots; ++i) {
        std::copy_n(blocks.line(blocks.lines - 1), blocks.pitch(), blocks.line(i));
    }
    step(current_++);
    if (current_ < blockRows_) {
        at(current_)->lines = 0;
        return;
    }
    for (Index i = 0; i < delay_; ++i) {
        step(current_ + i);
    }
}

// Everything that can be known once the newest row of blocks is there.
void ContentSeparation::step(Index newest) {
    if (BlockRow* row = at(newest)) {
        findExtremes(*row);
    }
    if (BlockRow* row = at(newest - 1)) {
        findWindowExtremes(at(newest - 2), *row, at(newest));
        countSmoothDots(*row, at(newest));
        findContacts(*row, at(newest));
    }
    findTints(newest - static_cast<Index>(tintBlocks_) + 1);
    Index ready = newest - seedDelay_;
    findSeeds(ready);
    for (std::size_t i = 0; i < spreads; ++i) {
        spread(--ready, i);
    }
    decide(--ready);
    putOut(--ready);
}

// Marks the blocks of all squares of one level whose first row this is.
void ContentSeparation::findTints(Index i) {
    BlockRow* row = at(i);
    if (row == nullptr) {
        return;
    }
    std::fill(row->isInTint.begin(), row->isInTint.end(), std::uint8_t{0});
    const auto edge = static_cast<Index>(tintBlocks_);
    if (at(i + edge - 1) == nullptr || !hasAnyTint(row->least, row->most)) {
        return;
    }
    PerBlock least = row->least;
    PerBlock most = row->most;
    for (Index other = i + 1; other < i + edge; ++other) {
        narrowTo(*at(other), least, most);
    }
    markTints(least, most, tintBlocks_, row->isInTint);
}

void ContentSeparation::findSeeds(Index i) {
    BlockRow* row = at(i);
    if (row == nullptr) {
        return;
    }
    PerBlock& seeds = row->isContinuous.front();
    std::fill(seeds.begin(), seeds.end(), std::uint8_t{0});
    for (Index first = i - static_cast<Index>(tintBlocks_) + 1; first <= i; ++first) {
        if (const BlockRow* tints = at(first)) {
            add(tints->isInTint, seeds);
        }
    }
    if (isAnyAround(i, [](const BlockRow& other) { return other.hasSmooth; })) {
        sumAround(i, [](const BlockRow& other) -> const PerBlock& { return other.smooth; });
        for (std::size_t block = 0; block < seeds.size(); ++block) {
            const bool isSmooth = hasContrast(*row, block) && sums_[block] >= fewestSmoothDots;
            seeds[block] |= isSmooth ? 1 : 0;
        }
    }
    row->hasContinuous.front() = hasAny(seeds);
    spreadAlong(row->touchesRight, seeds);
}

template <typename Predicate>
bool ContentSeparation::isAnyAround(Index i, Predicate holds) {
    for (const Index other : {i - 1, i, i + 1}) {
        if (const BlockRow* row = at(other); row != nullptr && holds(*row)) {
            return true;
        }
    }
    return false;
}

// Of each block and the eight around it; blocks outside the page count as 0.
void ContentSeparation::sumAround(Index i, const PerBlock& (*valuesOf)(const BlockRow&)) {
    std::fill(columnSums_.begin(), columnSums_.end(), std::uint16_t{0});
    for (const Index other : {i - 1, i, i + 1}) {
        if (const BlockRow* row = at(other)) {
            std::transform(columnSums_.begin() + 1, columnSums_.end() - 1, valuesOf(*row).begin(),
                           columnSums_.begin() + 1, [](std::uint16_t sum, std::uint8_t value) {
                               return static_cast<std::uint16_t>(sum + value);
                           });
        }
    }
    for (std::size_t block = 0; block < sums_.size(); ++block) {
        sums_[block] = static_cast<std::uint16_t>(columnSums_[block] + columnSums_[block + 1] +
                                                  columnSums_[block + 2]);
    }
}

// Up and down by a row, then along it for the next time.
void ContentSeparation::spread(Index i, std::size_t from) {
    BlockRow* row = at(i);
    if (row == nullptr) {
        return;
    }
    PerBlock& wider = row->isContinuous[from + 1];
    wider = row->isContinuous[from];
    const bool isAny =
        isAnyAround(i, [from](const BlockRow& other) { return other.hasContinuous[from]; });
    row->hasContinuous[from + 1] = isAny;
    if (!isAny) {
        return;
    }
    if (const BlockRow* above = at(i - 1)) {
        spreadOver(above->isContinuous[from], above->touchesBelow, wider);
    }
    if (const BlockRow* below = at(i + 1)) {
        spreadOver(below->isContinuous[from], row->touchesBelow, wider);
    }
    if (from + 1 < spreads) {
        spreadAlong(row->touchesRight, wider);
    }
}

void ContentSeparation::decide(Index i) {
    BlockRow* row = at(i);
    if (row == nullptr) {
        return;
    }
    sumAround(i,
              [](const BlockRow& other) -> const PerBlock& { return other.isContinuous.back(); });
    for (std::size_t block = 0; block < row->blocks; ++block) {
        const bool isContinuous = row->isContinuous.back()[block] != 0;
        const int around = sums_[block] - (isContinuous ? 1 : 0);
        const bool isPart = around > 0 && (isLightPart(*row, block) || isDarkPart(*row, block));
        const bool isLeft = isContinuous || around >= mostOfNeighbours || isPart;
        row->isLeft[block] = isLeft ? 1 : 0;
    }
}

// The middle itself is light, as it is for the printing filter.
bool ContentSeparation::cut(std::size_t block, int least, int most) {
    if (most - least < leastContrast || least > darkestPaper) {
        return false;
    }
    const int middle = least + (most - least + 1) / 2;
    treatments_.cut(block, static_cast<std::uint8_t>(middle + 1));
    return true;
}

// Inside thick strokes, and on paper beside text, the contrast is that of the windows around;
// beside something continuous it may be that one's.
bool ContentSeparation::cutAsAround(Index i, std::size_t block) {
    const BlockRow& row = *at(i);
    const std::size_t first = block == 0 ? 0 : block - 1;
    const std::size_t last = std::min(block + 1, row.blocks - 1);
    int least = 0xFF;
    int most = 0;
    for (const Index other : {i - 1, i, i + 1}) {
        const BlockRow* around = at(other);
        for (std::size_t j = first; around != nullptr && j <= last; ++j) {
            if (around->isLeft[j] != 0) {
                return false;
            }
            least = std::min<int>(least, around->windowLeast[j]);
            most = std::max<int>(most, around->windowMost[j]);
        }
    }
    return cut(block, least, most);
}

void ContentSeparation::choose(Index i, std::size_t block) {
    const BlockRow& row = *at(i);
    treatments_.leave(block);
    if (row.isLeft[block] != 0 || row.most[block] == 0) {
        return;
    }
    if (hasContrast(row, block)) {
        cut(block, row.windowLeast[block], row.windowMost[block]);
    } else if (cutAsAround(i, block)) {
        return;
    } else if (row.most[block] <= paperMost) {
        treatments_.make(block, 0);
    } else if (row.least[block] >= blackLeast) {
        treatments_.make(block, 0xFF);
    }
}

void ContentSeparation::putOut(Index i) {
    const BlockRow* row = at(i);
    if (row == nullptr) {
        return;
    }
    treatments_.leaveAll();
    for (std::size_t block = 0; block < row->blocks; ++block) {
        choose(i, block);
    }
    putOutLines(*row);
}

void ContentSeparation::putOutLines(const BlockRow& row) {
    const bool changes = treatments_.changesAny();
    if (changes) {
        treatments_.spreadToDots(row.stride);
    }
    for (std::size_t line = 0; line < row.lines; ++line) {
        if (changes) {
            treatments_.treat(row.line(line), result_.data());
        }
        sink_({changes ? result_.data() : row.line(line), page_.columns});
    }
}

}  // namespace intake::content
