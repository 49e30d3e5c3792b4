#include "tests/unit/content/test_page.h"

#include <algorithm>

#include "intake/content/content_separation.h"

void TestPage::fill(int left, int top, int width, int height, int level) {
    for (int y = std::max(top, 0); y < std::min(top + height, rows()); ++y) {
        for (int x = std::max(left, 0); x < std::min(left + width, columns()); ++x) {
            at(x, y) = level;
        }
    }
}

void TestPage::drawBars(int left, int top, int height, const std::vector<int>& widths, int level) {
    bool isBar = true;
    for (const int width : widths) {
        if (isBar) {
            fill(left, top, width, height, level);
        }
        isBar = !isBar;
        left += width;
    }
}

void TestPage::shade(int left, int top, int width, int height, int from, int to) {
    for (int x = 0; x < width; ++x) {
        fill(left + x, top, 1, height, from + (to - from) * x / std::max(width - 1, 1));
    }
}

void TestPage::blur() {
    const reference::Levels before = levels_;
    for (int y = 1; y + 1 < rows(); ++y) {
        for (int x = 1; x + 1 < columns(); ++x) {
            int sum = 0;
            for (int i = 0; i < 9; ++i) {
                sum += before[static_cast<std::size_t>(y + i / 3 - 1)]
                             [static_cast<std::size_t>(x + i % 3 - 1)];
            }
            at(x, y) = sum / 9;
        }
    }
}

reference::Levels separated(const TestPage& page, unsigned dpi) {
    reference::Levels result;
    intake::content::ContentSeparation separation(
        {static_cast<std::size_t>(page.columns()), static_cast<std::size_t>(page.rows()), dpi},
        [&](std::span<const std::uint8_t> row) { result.emplace_back(row.begin(), row.end()); });
    for (const std::vector<int>& levels : page.levels()) {
        std::vector<std::uint8_t> row;
        for (const int level : levels) {
            row.push_back(static_cast<std::uint8_t>(level));
        }
        separation.push(row);
    }
    return result;
}
