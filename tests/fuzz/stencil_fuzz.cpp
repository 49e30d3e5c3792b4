#include <cstdlib>
#include <vector>

#include "enhance/edge_diffusion.h"
#include "enhance/gaussian.h"
#include "enhance/moment_threshold.h"
#include "enhance/piecewise_gamma.h"
#include "enhance/tattoo_dithering.h"
#include "enhance/unsharp_mask.h"
#include "tests/fuzz/fuzz_target.h"
#include "tests/fuzz/input_bytes.h"
#include "tests/reference/stencil.h"
#include "tests/reference/stencil_blur.h"
#include "tests/reference/stencil_tone.h"

// The stencil halftones and their steps on any small grey page, compared with the reference. The
// input holds a byte that selects the step, a parameter, the width less 1, the height less 1, and
// the pixels; when they end, those before them come again.

namespace {

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

struct Page {
    std::size_t width = 1;
    std::size_t height = 1;
    reference::Bytes grey;
};

Page pageFrom(InputBytes& input) {
    constexpr std::size_t mostColumns = 64;
    constexpr std::size_t mostRows = 24;
    Page page;
    page.width = 1 + input.byte() % mostColumns;
    page.height = 1 + input.byte() % mostRows;
    while (page.grey.size() < page.width * page.height && !input.isAtEnd()) {
        page.grey.push_back(input.byte());
    }
    const std::size_t given = page.grey.size();
    while (page.grey.size() < page.width * page.height) {
        page.grey.push_back(given == 0 ? std::uint8_t{0} : page.grey[page.grey.size() - given]);
    }
    return page;
}

QMImage imageOf(const Page& page, const reference::Bytes& grey) {
    return {static_cast<int>(page.width), static_cast<int>(page.height), QM_IMG_GRAY, grey.data()};
}

QMImage imageOf(const Page& page) {
    return imageOf(page, page.grey);
}

void requireImage(const QMImage& image, const Page& page, const reference::Bytes& expected) {
    require(image.width == static_cast<int>(page.width));
    require(image.height == static_cast<int>(page.height));
    require(image.channels == 1);
    require(reference::Bytes(image.data, image.data + image.size()) == expected);
}

void tryHalftone(const Page& page, bool x8) {
    // The reference has no answer where its square root settles nowhere.
    if (!reference::momentThreshold(page.grey)) {
        return;
    }
    const QMImage source = imageOf(page);
    const QMImage halftone = x8 ? qmTattooDitheringX8(source) : qmTattooDithering(source);
    requireImage(halftone, page, reference::stencil(page.width, page.height, page.grey, x8));
    requireImage(source, page, page.grey);
}

void tryThreshold(const Page& page) {
    const auto expected = reference::momentThreshold(page.grey);
    const int threshold = thresh_global_moments(imageOf(page));
    require(threshold >= -1 && threshold <= 255);
    require(!expected || threshold == *expected);
}

// Every knee that a threshold can be, with the exponents of the halftones.
void tryGamma(const Page& page, int knee, bool x8) {
    const float low = x8 ? 0.5F : 0.85F;
    const float high = x8 ? 1.5F : 0.7F;
    QMImage image = imageOf(page);
    enh_piecewise_gamma(image, knee, low, high);
    requireImage(image, page,
                 reference::withTones(page.grey, reference::gammaTable(knee, low, high)));
}

void tryDiffusion(const Page& page, int threshold) {
    requireImage(edf_cus(imageOf(page), threshold), page,
                 reference::diffuseStencil(page.width, page.height, page.grey, threshold));
}

void tryBlur(const Page& page, int size, double sigma) {
    requireImage(enh_gaussian_filter_fast(imageOf(page), size, sigma), page,
                 reference::blurred(page.width, page.height, page.grey, size, sigma));
}

void trySquareBlur(const Page& page, int size, double sigma) {
    requireImage(
        enh_gaussian_filter(imageOf(page), size, sigma, sigma + 1), page,
        reference::blurredAtOnce(page.width, page.height, page.grey, size, sigma, sigma + 1));
}

void trySharpening(const Page& page, int size, float percent) {
    requireImage(enh_unsharp_mask(imageOf(page), percent, size), page,
                 reference::sharpened(page.width, page.height, page.grey, percent, size));
}

// The second image is the first one with its pixels the other way round.
void tryDifference(const Page& page, float weight) {
    const reference::Bytes other(page.grey.rbegin(), page.grey.rend());
    requireImage(add_Weighted(imageOf(page), imageOf(page, other), weight), page,
                 reference::weightedDifference(page.grey, other, weight));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    InputBytes input(data, size);
    const unsigned step = input.byte();
    const int parameter = input.byte();
    const Page page = pageFrom(input);
    const bool variant = step % 16 >= 8;
    const int oddSize = 1 + parameter % 8 * 2;
    const double sigma = 0.5 + (parameter / 8);
    switch (step % 8) {
        case 0:
            tryHalftone(page, variant);
            break;
        case 1:
            tryThreshold(page);
            break;
        case 2:
            tryGamma(page, variant ? parameter : parameter - 1, step % 32 >= 16);
            break;
        case 3:
            tryDiffusion(page, variant ? parameter : parameter - 1);
            break;
        case 4:
            tryBlur(page, oddSize, sigma);
            break;
        case 5:
            trySquareBlur(page, oddSize, sigma);
            break;
        case 6:
            trySharpening(page, oddSize, static_cast<float>(parameter * 4));
            break;
        default:
            tryDifference(page, static_cast<float>(parameter) / 16.0F);
            break;
    }
    return 0;
}
