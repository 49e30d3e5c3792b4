#include "tests/reference/transforms.h"

namespace reference {

namespace {

/// Copies all pixels of `source` into `target`, its first pixel at column left of row top.
void place(const GreyImage& source, GreyImage& target, std::size_t left, std::size_t top) {
    for (std::size_t y = 0; y < source.height; ++y) {
        for (std::size_t x = 0; x < source.width; ++x) {
            target.bytes[(top + y) * target.stride + left + x] = pixelAt(source, x, y);
        }
    }
}

}  // namespace

GreyImage rotate180(const GreyImage& image) {
    GreyImage turned = filledImage(image.width, image.height, 0);
    for (std::size_t y = 0; y < image.height; ++y) {
        for (std::size_t x = 0; x < image.width; ++x) {
            const std::size_t row = image.height - 1 - y;
            turned.bytes[row * turned.stride + image.width - 1 - x] = pixelAt(image, x, y);
        }
    }
    return turned;
}

GreyImage mirror(const GreyImage& image) {
    GreyImage mirrored = filledImage(image.width, image.height, 0);
    for (std::size_t y = 0; y < image.height; ++y) {
        for (std::size_t x = 0; x < image.width; ++x) {
            mirrored.bytes[y * mirrored.stride + image.width - 1 - x] = pixelAt(image, x, y);
        }
    }
    return mirrored;
}

GreyImage negative(const GreyImage& image) {
    GreyImage inverted = image;
    for (std::uint8_t& byte : inverted.bytes) {
        byte = static_cast<std::uint8_t>(255 - byte);
    }
    return inverted;
}

GreyImage expand(const GreyImage& image, const Margins& margins, std::uint8_t fill) {
    const std::size_t width = margins.left + image.width + margins.right;
    const std::size_t height = margins.top + image.height + margins.bottom;
    GreyImage larger = filledImage(width, height, fill);
    place(image, larger, margins.left, margins.bottom);
    return larger;
}

GreyImage makeCenter(const GreyImage& image, std::size_t newWidth) {
    if (image.width >= newWidth) {
        return image;
    }
    GreyImage wider = filledImage(newWidth, image.height, 0);
    place(image, wider, (newWidth - image.width) / 2, 0);
    return wider;
}

}  // namespace reference
