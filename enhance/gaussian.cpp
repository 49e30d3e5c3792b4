#include "enhance/gaussian.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "enhance/numeric.h"

namespace {

/// Offsets of a kernel's taps: from -ksize / 2 up to `last`.
struct Taps {
    explicit Taps(int ksize) : half(ksize / 2), last(std::min(half, ksize - 1 - half)) {}

    int half;
    int last;
};

std::size_t kernelSize(int ksize) {
    return static_cast<std::size_t>(std::max(ksize, 0));
}

void normalise(double* kernel, std::size_t count) {
    double sum = 0.0;
    for (std::size_t i = 0; i < count; ++i) {
        sum = sum + kernel[i];
    }
    for (std::size_t i = 0; i < count; ++i) {
        kernel[i] = kernel[i] / sum;
    }
}

unsigned char toByte(double sum) {
    return static_cast<unsigned char>(my_round(static_cast<float>(sum)));
}

const unsigned char* nearestRow(const QMImage& image, int y) {
    const int row = myClamp(y, 0, image.height - 1);
    return image.data + static_cast<std::size_t>(row) * static_cast<std::size_t>(image.width);
}

// One tap for a whole row of pixels: each pixel's sum takes its taps in order, and neighbouring
// sums do not wait for each other.
void addTap(std::vector<double>& sums, const unsigned char* pixels, double weight) {
    for (std::size_t x = 0; x < sums.size(); ++x) {
        sums[x] = static_cast<double>(pixels[x]) * weight + sums[x];
    }
}

void storeRow(const std::vector<double>& sums, unsigned char* row) {
    std::transform(sums.begin(), sums.end(), row, toByte);
}

// A row with its edge pixels repeated on both sides.
void extendRow(const unsigned char* row, std::size_t width, std::size_t margin,
               std::vector<unsigned char>& extended) {
    extended.assign(width + 2 * margin, row[0]);
    std::copy_n(row, width, extended.begin() + static_cast<std::ptrdiff_t>(margin));
    std::fill_n(extended.end() - static_cast<std::ptrdiff_t>(margin), margin, row[width - 1]);
}

void filterRow(const unsigned char* row, const double* kernel, Taps taps,
               std::vector<unsigned char>& extended, std::vector<double>& sums) {
    extendRow(row, sums.size(), static_cast<std::size_t>(taps.half), extended);
    for (int k = -taps.half; k <= taps.last; ++k) {
        addTap(sums, extended.data() + taps.half + k, kernel[k + taps.half]);
    }
}

void filterColumns(const QMImage& src, int y, const double* kernel, Taps taps,
                   std::vector<double>& sums) {
    for (int k = -taps.half; k <= taps.last; ++k) {
        addTap(sums, nearestRow(src, y + k), kernel[k + taps.half]);
    }
}

}  // namespace

void generateGaussianKernel1D(int ksize, double sigma, double* out) {
    const Taps taps(ksize);
    const float norm = my_sqrt(6.2831855F);
    for (int i = -taps.half; i <= taps.last; ++i) {
        const double e = (static_cast<double>(i * i) * -0.5) / (sigma * sigma);
        out[i + taps.half] = (1.0 / (static_cast<double>(norm) * sigma)) *
                             static_cast<double>(my_exp(static_cast<float>(e)));
    }
    normalise(out, kernelSize(ksize));
}

QMImage convolve1D(const QMImage& src, const double* kernel, int ksize, bool horizontal) {
    QMImage result(src);
    if (src.width <= 0) {
        return result;
    }
    const Taps taps(ksize);
    const auto width = static_cast<std::size_t>(src.width);
    std::vector<unsigned char> extended;
    std::vector<double> sums(width);
    for (int y = 0; y < src.height; ++y) {
        std::fill(sums.begin(), sums.end(), 0.0);
        if (horizontal) {
            filterRow(nearestRow(src, y), kernel, taps, extended, sums);
        } else {
            filterColumns(src, y, kernel, taps, sums);
        }
        storeRow(sums, result.data + static_cast<std::size_t>(y) * width);
    }
    return result;
}

QMImage enh_gaussian_filter_fast(const QMImage& src, int ksize, double sigma) {
    std::vector<double> kernel(kernelSize(ksize));
    generateGaussianKernel1D(ksize, sigma, kernel.data());
    const QMImage rowsFiltered = convolve1D(src, kernel.data(), ksize, true);
    return convolve1D(rowsFiltered, kernel.data(), ksize, false);
}

void generateGaussianKernel(int ksize, double sigmaX, double sigmaY, double* out) {
    constexpr double twoPi = 6.283185307179586;
    const Taps taps(ksize);
    for (int j = -taps.half; j <= taps.last; ++j) {
        for (int i = -taps.half; i <= taps.last; ++i) {
            const double e = static_cast<double>(-(i * i)) / (sigmaX * 2.0 * sigmaX) -
                             static_cast<double>(j * j) / (sigmaY * 2.0 * sigmaY);
            out[(j + taps.half) * ksize + (i + taps.half)] =
                (1.0 / (sigmaX * twoPi * sigmaY)) *
                static_cast<double>(my_exp(static_cast<float>(e)));
        }
    }
    normalise(out, kernelSize(ksize) * kernelSize(ksize));
}

QMImage enh_gaussian_filter(const QMImage& src, int ksize, double sigmaX, double sigmaY) {
    QMImage result(src.width, src.height, QM_IMG_GRAY);
    std::vector<double> kernel(kernelSize(ksize) * kernelSize(ksize));
    generateGaussianKernel(ksize, sigmaX, sigmaY, kernel.data());
    const Taps taps(ksize);
    const auto sumAround = [&](int x, int y) {
        double sum = 0.0;
        for (int j = -taps.half; j <= taps.last; ++j) {
            const unsigned char* row = nearestRow(src, y + j);
            const double* weights =
                kernel.data() + std::ptrdiff_t{j + taps.half} * ksize + taps.half;
            for (int i = -taps.half; i <= taps.last; ++i) {
                const int xs = myClamp(x + i, 0, src.width - 1);
                sum = static_cast<double>(row[xs]) * weights[i] + sum;
            }
        }
        return sum;
    };
    unsigned char* out = result.data;
    for (int y = 0; y < src.height; ++y) {
        for (int x = 0; x < src.width; ++x) {
            *out++ = toByte(sumAround(x, y));
        }
    }
    return result;
}
