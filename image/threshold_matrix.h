#pragma once

class RasterImage;

// Point halftoning: each pixel of the grey image `source` is decided on its own and stored in
// the 1-bit image `target` of the same size, 0 black or 1 white.

/// White above level 128.
void thresholdFixed(const RasterImage& source, RasterImage& target);

/// Ordered dither over 17 grey steps with a 4 × 4 matrix. B. E. Bayer, "An optimum method for
/// two-level rendition of continuous-tone pictures", IEEE International Conference on
/// Communications, 1973.
void thresholdOrdered(const RasterImage& source, RasterImage& target);

/// Ordered dither against thresholds computed by bit interleaving, after Bayer as above: a
/// 4 × 4 cell of multiples of 16 from 0 to 240.
void thresholdBayer(const RasterImage& source, RasterImage& target);
