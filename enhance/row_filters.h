#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "enhance/tap_weights.h"

// One-dimensional filters that take an image row by row, so that no page but the first and the
// last one of a chain of filters lies in memory.

/// Offsets of a kernel's taps: from -`half` up to `last`. With an even size the last tap has no
/// place in the kernel and is left out.
struct FilterTaps {
    explicit FilterTaps(int ksize);

    /// 0 for a size of 0 or less, where `last` is -1.
    std::size_t count() const {
        return static_cast<std::size_t>(half) + 1 + static_cast<std::size_t>(last);
    }

    int half;
    int last;
};

/// Filters along rows; the edge pixels are repeated outside.
class AlongRows {
public:
    AlongRows(const double* kernel, int ksize, int width);

    void filter(const unsigned char* row, unsigned char* out);
    /// The same, the bytes as floats.
    void filterWide(const unsigned char* row, float* out);

private:
    void extend(const unsigned char* row);

    FilterTaps taps_;
    TapWeights weights_;
    std::size_t width_;
    std::vector<float> extended_;  ///< a row with what is repeated on both sides
    std::vector<const float*> shifted_;
};

/// Filters along columns; the edge rows are repeated outside. Rows are asked for from the first
/// to the last, and each of the image's rows is looked at once.
class AlongColumns {
public:
    /// Writes a row of the image that is filtered, its bytes as floats.
    using ReadRow = std::function<void(int y, float* row)>;

    AlongColumns(const double* kernel, int ksize, int width, int height, ReadRow readRow);

    /// The filtered row `y`.
    void filter(int y, unsigned char* out);

private:
    float* keptRow(int y);

    FilterTaps taps_;
    TapWeights weights_;
    std::size_t width_;
    int height_;
    ReadRow readRow_;
    int read_ = 0;             ///< rows read so far
    std::vector<float> kept_;  ///< the rows under the taps, row y in place y mod their number
    std::vector<const float*> under_;
};
