#pragma once

#include <functional>
#include <vector>

#include "enhance/qm_image.h"
#include "enhance/row_filters.h"

/// a × (1 + weight) - b × weight for every pixel, in single precision, rounded and limited to
/// 0..255. `b` is at least as large as `a`.
QMImage add_Weighted(const QMImage& a, const QMImage& b, float weight);

/// Sharpens a grey image by adding `amount` percent of its difference to a Gaussian blur.
/// `radius` is the size of the blur's kernel in pixels; its sigma is 3. See R. C. Gonzalez and
/// R. E. Woods, "Digital Image Processing", on unsharp masking and highboost filtering.
QMImage enh_unsharp_mask(const QMImage& src, float amount, int radius);

/// The same row by row, with no other rows in memory than those under the blur.
class SharpenedRows {
public:
    /// Writes a row of the image that is sharpened.
    using ReadRow = std::function<void(int y, unsigned char* row)>;

    SharpenedRows(int width, int height, float amount, int radius, ReadRow readRow);
    ~SharpenedRows() = default;
    SharpenedRows(const SharpenedRows&) = delete;
    SharpenedRows& operator=(const SharpenedRows&) = delete;

    /// The sharpened row `y`; rows are asked for from the first to the last.
    void sharpen(int y, unsigned char* out);

private:
    const unsigned char* row(int y);

    ReadRow readRow_;
    float weight_;
    std::size_t width_;
    std::size_t kept_;  ///< rows, from the one that is sharpened to the last one under the blur
    std::vector<unsigned char> rows_;  ///< row y in place y mod their number
    int read_ = 0;
    std::vector<double> kernel_;
    AlongRows alongRows_;
    AlongColumns alongColumns_;
    std::vector<unsigned char> blurred_;
};
