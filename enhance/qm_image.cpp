#include "enhance/qm_image.h"

#include <algorithm>

namespace {

int channelsOf(QM_IMG_COLOR color) {
    switch (color) {
        case QM_IMG_GRAY:
            return 1;
        case QM_IMG_BGR:
        case QM_IMG_RGB:
            return 3;
        default:
            return 4;
    }
}

}  // namespace

QMImage::QMImage(int imageWidth, int imageHeight, QM_IMG_COLOR imageColor, const unsigned char* src)
    : QMImage(imageWidth, imageHeight, imageColor) {
    std::copy_n(src, size(), data);
}

QMImage::QMImage(int imageWidth, int imageHeight, QM_IMG_COLOR imageColor)
    : width(imageWidth),
      height(imageHeight),
      channels(channelsOf(imageColor)),
      color(imageColor),
      data(new unsigned char[size()]) {}

QMImage::QMImage(const QMImage& other)
    : width(other.width),
      height(other.height),
      channels(other.channels),
      color(other.color),
      data(new unsigned char[size()]) {
    std::copy_n(other.data, size(), data);
}

// The new buffer is filled before the old one goes: a failed allocation leaves the target as
// it was.
QMImage& QMImage::operator=(const QMImage& other) {
    if (this == &other) {
        return *this;
    }
    auto* copy = new unsigned char[other.size()];
    std::copy_n(other.data, other.size(), copy);
    delete[] data;
    data = copy;
    width = other.width;
    height = other.height;
    channels = other.channels;
    color = other.color;
    return *this;
}

QMImage::~QMImage() {
    width = height = channels = 0;
    delete[] data;
    data = nullptr;
}

std::size_t QMImage::size() const {
    return static_cast<std::size_t>(width) * static_cast<std::size_t>(height) *
           static_cast<std::size_t>(channels);
}
