#include "enhance/unsharp_mask.h"

#include <algorithm>
#include <utility>

#include "enhance/gaussian.h"
#include "enhance/row_kernels.h"
#include "lanes/choice.h"

namespace {

std::vector<double> blurKernel(int size) {
    constexpr double sigma = 3.0;
    std::vector<double> kernel(static_cast<std::size_t>(std::max(size, 0)));
    generateGaussianKernel1D(size, sigma, kernel.data());
    return kernel;
}

}  // namespace

QMImage add_Weighted(const QMImage& a, const QMImage& b, float weight) {
    QMImage result(a);
    const std::size_t pixels =
        static_cast<std::size_t>(a.width) * static_cast<std::size_t>(a.height);
    lanes::best<RowKernels>().addWeighted(a.data, b.data, weight, pixels, result.data);
    return result;
}

SharpenedRows::SharpenedRows(int width, int height, float amount, int radius, ReadRow readRow)
    : readRow_(std::move(readRow)),
      weight_(amount / 100.0F),
      width_(static_cast<std::size_t>(width)),
      kept_(static_cast<std::size_t>(std::max(radius, 0)) / 2 + 1),
      rows_(width_ * kept_),
      kernel_(blurKernel(radius)),
      alongRows_(kernel_.data(), radius, width),
      alongColumns_(kernel_.data(), radius, width, height,
                    [this](int y, float* out) { alongRows_.filterWide(row(y), out); }),
      blurred_(width_) {}

// Each row is asked for once.
const unsigned char* SharpenedRows::row(int y) {
    const auto place = [this](int i) {
        return rows_.data() + static_cast<std::size_t>(i) % kept_ * width_;
    };
    for (; read_ <= y; ++read_) {
        readRow_(read_, place(read_));
    }
    return place(y);
}

void SharpenedRows::sharpen(int y, unsigned char* out) {
    alongColumns_.filter(y, blurred_.data());
    lanes::best<RowKernels>().addWeighted(row(y), blurred_.data(), weight_, width_, out);
}

QMImage enh_unsharp_mask(const QMImage& src, float amount, int radius) {
    QMImage result(src);
    if (src.width <= 0 || src.height <= 0) {
        return result;
    }
    const auto width = static_cast<std::size_t>(src.width);
    const auto offset = [width](int y) { return static_cast<std::size_t>(y) * width; };
    SharpenedRows rows(src.width, src.height, amount, radius, [&](int y, unsigned char* row) {
        std::copy_n(src.data + offset(y), width, row);
    });
    for (int y = 0; y < src.height; ++y) {
        rows.sharpen(y, result.data + offset(y));
    }
    return result;
}
