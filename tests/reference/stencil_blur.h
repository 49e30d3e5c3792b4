// Gaussian smoothing and sharpening of grey images that lie packed in memory, height × width.
#pragma once

#include <cstddef>
#include <vector>

#include "tests/reference/grey_image.h"

namespace reference {

/// Weights of a filter; of a two-dimensional one row by row.
using Weights = std::vector<double>;

/// `size` (odd) Gaussian weights that add up to 1; sigma in pixels.
Weights gaussianWeights(int size, double sigma);

/// `size` (odd) × `size` Gaussian weights that add up to 1.
Weights gaussianSquare(int size, double sigmaX, double sigmaY);

/// Every row filtered, the edge pixels repeated outside.
Bytes filteredRows(std::size_t width, std::size_t height, const Bytes& grey,
                   const Weights& weights);

/// Every column filtered, the edge pixels repeated outside.
Bytes filteredColumns(std::size_t width, std::size_t height, const Bytes& grey,
                      const Weights& weights);

/// Rows filtered, rounded, then columns filtered with the same weights.
Bytes blurred(std::size_t width, std::size_t height, const Bytes& grey, int size, double sigma);

/// Filtered with a square of weights in one pass.
Bytes blurredAtOnce(std::size_t width, std::size_t height, const Bytes& grey, int size,
                    double sigmaX, double sigmaY);

/// a × (1 + weight) - b × weight for every pixel, rounded and limited to 0..255.
Bytes weightedDifference(const Bytes& a, const Bytes& b, float weight);

/// Sharpened by `percent` of the difference to an image blurred with `size` weights of sigma 3.
Bytes sharpened(std::size_t width, std::size_t height, const Bytes& grey, float percent, int size);

}  // namespace reference
