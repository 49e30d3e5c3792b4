#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "tests/reference/content_separation.h"

/// A page to draw on, of bare paper at first. Levels of K: 0 paper, 255 black.
class TestPage {
public:
    TestPage(int columns, int rows)
        : levels_(static_cast<std::size_t>(rows),
                  std::vector<int>(static_cast<std::size_t>(columns))) {}

    int columns() const { return static_cast<int>(levels_.front().size()); }
    int rows() const { return static_cast<int>(levels_.size()); }
    int& at(int x, int y) {
        return levels_[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
    }
    const reference::Levels& levels() const { return levels_; }

    /// What lies outside the page is left out.
    void fill(int left, int top, int width, int height, int level);
    /// Bars of these widths and the gaps between them, in turns, beginning with a bar.
    void drawBars(int left, int top, int height, const std::vector<int>& widths, int level);
    /// From one level to another, from left to right.
    void shade(int left, int top, int width, int height, int from, int to);
    /// Every dot becomes the mean of itself and the eight around it.
    void blur();

private:
    reference::Levels levels_;
};

/// The page as it comes out at so many dots per inch.
reference::Levels separated(const TestPage& page, unsigned dpi = 203);
