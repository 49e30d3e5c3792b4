#pragma once

#include "enhance/qm_image.h"

/// a × (1 + weight) - b × weight for every pixel, in single precision, rounded and limited to
/// 0..255. `b` is at least as large as `a`.
QMImage add_Weighted(const QMImage& a, const QMImage& b, float weight);

/// Sharpens a grey image by adding `amount` percent of its difference to a Gaussian blur.
/// `radius` is the size of the blur's kernel in pixels; its sigma is 3. See R. C. Gonzalez and
/// R. E. Woods, "Digital Image Processing", on unsharp masking and highboost filtering.
QMImage enh_unsharp_mask(const QMImage& src, float amount, int radius);
