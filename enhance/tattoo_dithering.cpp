#include "enhance/tattoo_dithering.h"

#include <algorithm>
#include <vector>

#include "enhance/edge_diffusion.h"
#include "enhance/grey_conversion.h"
#include "enhance/moment_threshold.h"
#include "enhance/piecewise_gamma.h"
#include "enhance/unsharp_mask.h"

namespace {

bool hasPixels(const QMImage& img) {
    return static_cast<int>(static_cast<unsigned>(img.width) * static_cast<unsigned>(img.height)) >
           0;
}

int thresholdOf(const GreyRows& page) {
    LevelCounts counts;
    for (int y = 0; y < page.height; ++y) {
        counts.add(page.row(y), static_cast<std::size_t>(page.width));
    }
    return momentThreshold(counts);
}

ToneTable tonesOf(StencilType type, int threshold) {
    constexpr int knee = 64;
    return type == StencilType::TattooX8 ? piecewiseGamma(threshold, 0.5F, 1.5F)
                                         : piecewiseGamma(knee, 0.85F, 0.7F);
}

QMImage stencilOf(const QMImage& img, StencilType type) {
    if (!hasPixels(img)) {
        return img;
    }
    QMImage dots(img.width, img.height, QM_IMG_GRAY);
    const auto make = [&dots, type](const QMImage& grey) {
        makeStencil({grey.data, grey.width, grey.width, grey.height}, type, dots.data, dots.width);
    };
    if (img.color == QM_IMG_GRAY) {
        make(img);
    } else {
        make(cvtGray(img));
    }
    return dots;
}

}  // namespace

// The threshold belongs to the page as it came: it is found before the tones are bent. From there
// on a few rows at a time go through all steps.
void makeStencil(const GreyRows& page, StencilType type, unsigned char* dots,
                 std::ptrdiff_t dotStride) {
    constexpr float sharpeningPercent = 300.0F;
    constexpr int blurSize = 11;
    const int threshold = thresholdOf(page);
    const ToneTable tones = tonesOf(type, threshold);
    const auto width = static_cast<std::size_t>(page.width);
    SharpenedRows sharpened(
        page.width, page.height, sharpeningPercent, blurSize,
        [&](int y, unsigned char* row) { bendTones(page.row(y), width, tones, row); });
    EdgeDiffusion diffusion(page.width, page.height, threshold);
    std::vector<unsigned char> band(width * EdgeDiffusion::rows);
    for (int top = 0; top < page.height; top += EdgeDiffusion::rows) {
        const int rows = std::min(EdgeDiffusion::rows, page.height - top);
        for (int i = 0; i < rows; ++i) {
            sharpened.sharpen(top + i, band.data() + static_cast<std::size_t>(i) * width);
        }
        diffusion.diffuseBand(band.data(), page.width, dots + top * dotStride, dotStride);
    }
}

QMImage qmTattooDithering(const QMImage& img) {
    return stencilOf(img, StencilType::Tattoo);
}

QMImage qmTattooDitheringX8(const QMImage& img) {
    return stencilOf(img, StencilType::TattooX8);
}
