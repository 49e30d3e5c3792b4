// What the tests of the raster image share.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <vector>

#include "image/raster_image.h"
#include "tests/reference/grey_image.h"

constexpr const char* sizeText = "RasterImage::Create : width and height must be greater than zero";
constexpr const char* limitText = "RASTERIMAGE_MAX_MEMORY exceeded";
constexpr const char* memoryText = "RasterImage::Create can't allocate memory";

/// How GoogleTest shows a colour.
inline void PrintTo(const tagRGBQUAD& colour, std::ostream* stream) {
    *stream << "blue " << int{colour.rgbBlue} << " green " << int{colour.rgbGreen} << " red "
            << int{colour.rgbRed} << " reserved " << int{colour.rgbReserved};
}

/// All rows of an image one after the other, padding included.
inline reference::Bytes rowsOf(const RasterImage& image) {
    const std::uint8_t* bits = image.GetBits();
    if (bits == nullptr) {
        return {};
    }
    const std::size_t height = static_cast<std::size_t>(image.GetHeight());
    return {bits, bits + image.GetEffWidth() * height};
}

/// The palette of an image.
inline std::vector<tagRGBQUAD> paletteOf(const RasterImage& image) {
    const tagRGBQUAD* palette = image.GetPalette();
    if (palette == nullptr) {
        return {};
    }
    return {palette, palette + image.GetNumColors()};
}

/// The indices of all pixels back to back.
inline reference::Bytes pixelsOf(const RasterImage& image) {
    reference::Bytes pixels;
    for (std::int64_t y = 0; y < image.GetHeight(); ++y) {
        for (std::int64_t x = 0; x < image.GetWidth(); ++x) {
            pixels.push_back(image.BlindGetPixelIndex(x, y));
        }
    }
    return pixels;
}

/// Makes `image` an image of these rows, padding included, with a grey palette.
inline void makeImage(RasterImage& image, std::uint32_t width, std::uint32_t height,
                      std::uint32_t bpp, const reference::Bytes& rows) {
    const std::uint32_t bytesPerLine = static_cast<std::uint32_t>(rows.size()) / height;
    ASSERT_TRUE(image.CreateFromArray(rows.data(), width, height, bpp, bytesPerLine, false));
    ASSERT_EQ(image.GetEffWidth(), bytesPerLine) << "rows must be padded to 4 bytes";
}

/// Makes `image` an 8-bit grey image of these pixels, back to back; its padding is 0.
inline void makeGreyImage(RasterImage& image, std::uint32_t width, std::uint32_t height,
                          const reference::Bytes& pixels) {
    const reference::GreyImage grey = reference::imageFromPacked(pixels, width, height);
    makeImage(image, width, height, 8, grey.bytes);
}

/// Makes `image` an 8-bit image with the bytes of a reference image.
inline void makeLike(RasterImage& image, const reference::GreyImage& grey) {
    makeImage(image, static_cast<std::uint32_t>(grey.width),
              static_cast<std::uint32_t>(grey.height), 8, grey.bytes);
}

/// Bytes without a pattern, the same ones in every run.
inline reference::Bytes noise(std::size_t size, std::uint32_t seed = 1) {
    reference::Bytes bytes(size);
    for (std::uint8_t& byte : bytes) {
        seed = seed * 1664525 + 1013904223;
        byte = static_cast<std::uint8_t>(seed >> 24);
    }
    return bytes;
}

/// An 8-bit reference image of noise, padding included.
inline reference::GreyImage noisyImage(std::size_t width, std::size_t height,
                                       std::uint32_t seed = 1) {
    const std::size_t stride = reference::strideOf(width);
    return {width, height, stride, noise(stride * height, seed)};
}
