#include "enhance/gaussian.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "enhance/numeric.h"
#include "enhance/row_filters.h"
#include "enhance/row_kernels.h"
#include "lanes/choice.h"

namespace {

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

}  // namespace

void generateGaussianKernel1D(int ksize, double sigma, double* out) {
    const FilterTaps taps(ksize);
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
    if (src.width <= 0 || src.height <= 0) {
        return result;
    }
    const auto width = static_cast<std::size_t>(src.width);
    AlongRows rows(kernel, ksize, src.width);
    AlongColumns columns(kernel, ksize, src.width, src.height, [&](int y, float* row) {
        lanes::best<RowKernels>().widen(nearestRow(src, y), width, row);
    });
    for (int y = 0; y < src.height; ++y) {
        unsigned char* out = result.data + static_cast<std::size_t>(y) * width;
        if (horizontal) {
            rows.filter(nearestRow(src, y), out);
        } else {
            columns.filter(y, out);
        }
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
    const FilterTaps taps(ksize);
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
    const FilterTaps taps(ksize);
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
