#include "enhance/grey_conversion.h"

#include "enhance/numeric.h"

namespace {

constexpr float redWeight = 0.299F;
constexpr float greenWeight = 0.587F;
constexpr float blueWeight = 0.114F;

// The sum of the first two channels is formed first, then the third is added.
unsigned char weighted(const unsigned char* pixel, float first, float second, float third) {
    const float sum = first * static_cast<float>(pixel[0]) + second * static_cast<float>(pixel[1]);
    return static_cast<unsigned char>(my_round(third * static_cast<float>(pixel[2]) + sum));
}

unsigned char greyOf(const unsigned char* pixel, QM_IMG_COLOR color) {
    switch (color) {
        case QM_IMG_GRAY:
            return pixel[0];
        case QM_IMG_BGR:
        case QM_IMG_BGRA:
            return weighted(pixel, blueWeight, greenWeight, redWeight);
        default:
            return weighted(pixel, redWeight, greenWeight, blueWeight);
    }
}

}  // namespace

QMImage cvtGray(const QMImage& src) {
    QMImage grey(src.width, src.height, QM_IMG_GRAY);
    const unsigned char* pixel = src.data;
    for (std::size_t i = 0; i < grey.size(); ++i) {
        grey.data[i] = greyOf(pixel, src.color);
        pixel += src.channels;
    }
    return grey;
}
