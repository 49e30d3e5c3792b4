// Filters whose memory runs short part way: whichever block is missing, the caller sees the
// standard exception, what was made before is freed, and the source is as it was.
#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <new>
#include <string>
#include <vector>

#include "enhance/edge_diffusion.h"
#include "enhance/gaussian.h"
#include "enhance/grey_conversion.h"
#include "enhance/tattoo_dithering.h"
#include "enhance/unsharp_mask.h"
#include "tests/support/test_new.h"
#include "tests/unit/enhance/stencil_pages.h"

namespace {

using stencil_pages::Bytes;
using stencil_pages::bytesOf;

struct Filter {
    std::string name;
    QM_IMG_COLOR color;
    std::function<QMImage(const QMImage&)> run;
};

class ShortMemory : public testing::TestWithParam<Filter> {
protected:
    ShortMemory() : source_(23, 17, GetParam().color) {
        for (std::size_t i = 0; i < source_.size(); ++i) {
            source_.data[i] = static_cast<unsigned char>(i * 37 % 251);
        }
    }

    void run() const { GetParam().run(source_); }

    bool failsWithout(std::ptrdiff_t ordinal) const {
        const FailingNew failing(ordinal);
        try {
            run();
        } catch (const std::bad_alloc&) {
            return true;
        }
        return false;
    }

    std::ptrdiff_t blocksOfARun() const {
        const std::ptrdiff_t before = newBlocksAskedFor();
        run();
        return newBlocksAskedFor() - before;
    }

    QMImage source_;
};

TEST_P(ShortMemory, OfAnyBlockRaisesTheExceptionAndFreesTheOthers) {
    const Bytes bytes = bytesOf(source_);
    const std::ptrdiff_t blocks = blocksOfARun();
    ASSERT_GT(blocks, 0);
    for (std::ptrdiff_t ordinal = 1; ordinal <= blocks; ++ordinal) {
        const std::ptrdiff_t before = liveNewBlocks();
        const bool failed = failsWithout(ordinal);
        const std::ptrdiff_t left = liveNewBlocks() - before;
        EXPECT_TRUE(failed) << ordinal << " of " << blocks;
        EXPECT_EQ(left, 0) << ordinal << " of " << blocks;
        EXPECT_EQ(bytesOf(source_), bytes) << ordinal << " of " << blocks;
    }
}

TEST_P(ShortMemory, IsNoMatterAfterwards) {
    const Bytes expected = bytesOf(GetParam().run(source_));
    ASSERT_TRUE(failsWithout(1));
    EXPECT_EQ(bytesOf(GetParam().run(source_)), expected);
}

const double kernel[] = {0.25, 0.5, 0.25};

std::vector<Filter> filters() {
    const auto filtered = [](bool horizontal) {
        return
            [horizontal](const QMImage& image) { return convolve1D(image, kernel, 3, horizontal); };
    };
    return {
        {"Copy", QM_IMG_RGBA, [](const QMImage& image) { return QMImage(image); }},
        {"GreyOfColours", QM_IMG_BGR, cvtGray},
        {"GreyOfGrey", QM_IMG_GRAY, cvtGray},
        {"RowFilter", QM_IMG_GRAY, filtered(true)},
        {"ColumnFilter", QM_IMG_GRAY, filtered(false)},
        {"GaussianInTwoPasses", QM_IMG_GRAY,
         [](const QMImage& image) { return enh_gaussian_filter_fast(image, 5, 1.0); }},
        {"GaussianInOnePass", QM_IMG_GRAY,
         [](const QMImage& image) { return enh_gaussian_filter(image, 3, 1.0, 2.0); }},
        {"WeightedSum", QM_IMG_GRAY,
         [](const QMImage& image) { return add_Weighted(image, image, 3.0F); }},
        {"UnsharpMask", QM_IMG_GRAY,
         [](const QMImage& image) { return enh_unsharp_mask(image, 300.0F, 11); }},
        {"EdgeDiffusion", QM_IMG_GRAY, [](const QMImage& image) { return edf_cus(image, 128); }},
        {"TattooOfGrey", QM_IMG_GRAY, qmTattooDithering},
        {"TattooOfColours", QM_IMG_RGBA, qmTattooDithering},
        {"TattooX8OfGrey", QM_IMG_GRAY, qmTattooDitheringX8},
        {"TattooX8OfColours", QM_IMG_RGB, qmTattooDitheringX8},
    };
}

INSTANTIATE_TEST_SUITE_P(Filters, ShortMemory, testing::ValuesIn(filters()),
                         [](const auto& filter) { return filter.param.name; });

}  // namespace
