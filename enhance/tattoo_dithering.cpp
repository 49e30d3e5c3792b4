#include "enhance/tattoo_dithering.h"

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

// The threshold belongs to the page as it came: it is found before the tones are bent.
template <typename BendTones>
QMImage makeStencil(const QMImage& img, BendTones bendTones) {
    if (!hasPixels(img)) {
        return img;
    }
    constexpr float sharpeningPercent = 300.0F;
    constexpr int blurSize = 11;
    QMImage grey = cvtGray(img);
    const int threshold = thresh_global_moments(grey);
    bendTones(grey, threshold);
    return edf_cus(enh_unsharp_mask(grey, sharpeningPercent, blurSize), threshold);
}

}  // namespace

QMImage qmTattooDithering(const QMImage& img) {
    return makeStencil(img, [](QMImage& grey, int /*threshold*/) {
        constexpr int knee = 64;
        enh_piecewise_gamma(grey, knee, 0.85F, 0.7F);
    });
}

QMImage qmTattooDitheringX8(const QMImage& img) {
    return makeStencil(img, [](QMImage& grey, int threshold) {
        enh_piecewise_gamma(grey, threshold, 0.5F, 1.5F);
    });
}
