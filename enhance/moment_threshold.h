#pragma once

#include <array>
#include <cstddef>

#include "enhance/qm_image.h"

/// How often each of the 256 grey levels occurs.
class LevelCounts {
public:
    void add(const unsigned char* row, std::size_t width);

    int of(std::size_t level) const;
    std::size_t pixels() const { return pixels_; }

private:
    std::array<std::array<int, 256>, 4> counts_{};
    std::size_t pixels_ = 0;
};

/// The global threshold of a grey image that keeps the first three moments of its grey levels
/// in the black-and-white result: the first level whose cumulative share exceeds the share of
/// black. 128 when the moments give no pair of levels (among others, on a page of a single
/// level), -1 when no level is reached.
///
/// W.-H. Tsai, "Moment-preserving thresholding: a new approach", Computer Vision, Graphics, and
/// Image Processing 29, 1985. Single precision, each step rounded.
int thresh_global_moments(const QMImage& img);

/// The same for a page whose levels were counted.
int momentThreshold(const LevelCounts& counts);
