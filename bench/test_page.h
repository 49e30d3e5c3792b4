// Pages to measure with, the same on every run.
#pragma once

#include <cstdint>
#include <vector>

/// What is on a page: soft shades with grain, or thin lines and bars on empty paper.
enum class PageContent { Photograph, LineArt };

struct PageSize {
    unsigned width;
    unsigned height;

    std::size_t pixels() const { return std::size_t{width} * height; }
};

/// A page of grey bytes in colour space K, 0 paper and 255 ink, rows packed.
std::vector<std::uint8_t> testPage(PageSize size, PageContent content);
