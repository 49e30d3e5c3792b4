// Filters that hand their rows on as floats.
#include "enhance/row_filters.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/reference/stencil_blur.h"
#include "tests/unit/enhance/stencil_pages.h"

namespace {

using stencil_pages::Bytes;
using stencil_pages::GreyPage;
using Weights = std::vector<double>;

// What the rows have room for, whole blocks.
std::vector<float> filteredWide(const GreyPage& page, const Weights& weights) {
    const auto width = static_cast<std::size_t>(page.width);
    AlongRows rows(weights.data(), static_cast<int>(weights.size()), page.width);
    std::vector<float> all;
    for (std::size_t y = 0; y < static_cast<std::size_t>(page.height); ++y) {
        std::vector<float> row(width + 64);
        rows.filterWide(page.levels.data() + y * width, row.data());
        all.insert(all.end(), row.begin(), row.begin() + page.width);
    }
    return all;
}

std::vector<float> asFloats(const Bytes& bytes) {
    return {bytes.begin(), bytes.end()};
}

TEST(AlongRows, HandsOnTheBytesOfTheReferenceAsFloatsAtEveryWidth) {
    for (int width = 1; width <= 130; ++width) {
        const GreyPage page = stencil_pages::noisePage(width, 5, static_cast<std::uint32_t>(width));
        const Weights weights = reference::gaussianWeights(11, 3.0);
        EXPECT_EQ(filteredWide(page, weights),
                  asFloats(reference::filteredRows(static_cast<std::size_t>(width), 5, page.levels,
                                                   weights)));
    }
}

TEST(AlongRows, HandsOnTheBytesOfTheReferenceAsFloatsWithUnusualKernels) {
    const GreyPage page = stencil_pages::noisePage(61, 37, 5);
    const Weights kernels[] = {
        {0.1, 0.2, 0.7},        // not symmetric
        {-0.5, 2, -0.5},        // of both signs
        {1, 1, 1},              // beyond a byte
        {0, 4e7, 0},            // beyond 32 bits
        {1e308, 1e308, 1e308},  // beyond double precision
        {0.25, 0.5, 0.25},      // halves
    };
    for (const Weights& weights : kernels) {
        EXPECT_EQ(filteredWide(page, weights),
                  asFloats(reference::filteredRows(61, 37, page.levels, weights)))
            << testing::PrintToString(weights);
    }
}

}  // namespace
