#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "intake/content/block_row.h"

namespace intake::content {

/// The least and greatest levels of blocks and those of a row together.
void narrowTo(const BlockRow& row, PerBlock& least, PerBlock& most);

/// Least and greatest level of each block, from the row's pixels.
void findExtremes(BlockRow& row);

/// The same of the window of three by three blocks around each; a row above or below the page is
/// null.
void findWindowExtremes(const BlockRow* above, BlockRow& row, const BlockRow* below);

/// In blocks with contrast in their window: how many dots have a level in the middle half of the
/// window's range and differ from the two dots to the right and the two below, from the more
/// distant ones of each, together by no more than a sixth of it. Photographs and gradients are full
/// of them, and letters, bars and their blurred edges have few. In blocks without contrast: none.
void countSmoothDots(BlockRow& row, const BlockRow* below);

/// Which blocks touch the next one to the right and below with more than paper: where two dots on
/// both sides of their border are neither near paper nor black, or are alike. Black lines, which
/// lead everywhere on a form, do not touch.
void findContacts(BlockRow& row, const BlockRow* below);

/// What is done with the dots of each block of a row:
/// (level & kept) | (level >= threshold ? blackened : 0).
class Treatments {
public:
    explicit Treatments(std::size_t blocks) : kept(blocks), threshold(blocks), blackened(blocks) {}

    void leaveAll() { changesAny_ = false; }
    [[nodiscard]] bool changesAny() const { return changesAny_; }
    void leave(std::size_t block) { set(block, 0xFF, 0, 0); }
    void make(std::size_t block, std::uint8_t level) {
        set(block, 0, 0, level);
        changesAny_ = true;
    }
    void cut(std::size_t block, std::uint8_t least) {
        set(block, 0, least, 0xFF);
        changesAny_ = true;
    }

    /// After the last change: for lines of so many dots.
    void spreadToDots(std::size_t dots);
    /// One line of dots.
    void treat(const std::uint8_t* line, std::uint8_t* result) const;

private:
    void set(std::size_t block, std::uint8_t keep, std::uint8_t least, std::uint8_t black) {
        kept[block] = keep;
        threshold[block] = least;
        blackened[block] = black;
    }

    bool changesAny_ = false;
    PerBlock kept, threshold, blackened;
    std::vector<std::uint8_t> keptOfDots_, thresholdOfDots_, blackenedOfDots_;
};

}  // namespace intake::content
