#include "tests/reference/grey_image.h"

#include <algorithm>

namespace reference {

std::size_t strideOf(std::size_t width) {
    return (width + 3) / 4 * 4;
}

GreyImage filledImage(std::size_t width, std::size_t height, std::uint8_t fill) {
    const std::size_t stride = strideOf(width);
    return {width, height, stride, Bytes(stride * height, fill)};
}

GreyImage imageFromArray(const Bytes& array, std::size_t width, std::size_t height,
                         std::size_t bytesPerLine) {
    GreyImage image = filledImage(width, height, 0);
    const std::size_t copied = std::min(image.stride, bytesPerLine);
    for (std::size_t y = 0; y < height; ++y) {
        for (std::size_t x = 0; x < copied; ++x) {
            image.bytes[y * image.stride + x] = array[y * bytesPerLine + x];
        }
    }
    return image;
}

GreyImage imageFromPacked(const Bytes& pixels, std::size_t width, std::size_t height) {
    GreyImage image = filledImage(width, height, 0);
    for (std::size_t y = 0; y < height; ++y) {
        for (std::size_t x = 0; x < width; ++x) {
            image.bytes[y * image.stride + x] = pixels[y * width + x];
        }
    }
    return image;
}

Bytes packedPixels(const GreyImage& image) {
    Bytes pixels;
    for (std::size_t y = 0; y < image.height; ++y) {
        for (std::size_t x = 0; x < image.width; ++x) {
            pixels.push_back(pixelAt(image, x, y));
        }
    }
    return pixels;
}

std::uint8_t pixelAt(const GreyImage& image, std::size_t x, std::size_t y) {
    return image.bytes[y * image.stride + x];
}

void setPixel(GreyImage& image, std::int64_t x, std::int64_t y, std::uint8_t value) {
    if (x < 0 || y < 0) {
        return;
    }
    const auto column = static_cast<std::size_t>(x);
    const auto row = static_cast<std::size_t>(y);
    if (column < image.width && row < image.height) {
        image.bytes[row * image.stride + column] = value;
    }
}

}  // namespace reference
