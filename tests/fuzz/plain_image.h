#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "image/rgb_quad.h"
#include "tests/reference/dither.h"
#include "tests/reference/draw_line.h"
#include "tests/reference/tone.h"

/// An image as plainly as it can be had, for harnesses to compare the image engine with: bytes in
/// rows, and a palette. An image of depth 0 has neither.
struct PlainImage {
    std::size_t width = 0;
    std::size_t height = 0;
    std::size_t depth = 0;
    std::size_t stride = 0;
    std::vector<std::uint8_t> bytes;
    std::vector<tagRGBQUAD> palette;

    bool isValid() const { return depth != 0; }

    bool contains(std::int64_t x, std::int64_t y) const {
        return x >= 0 && y >= 0 && x < static_cast<std::int64_t>(width) &&
               y < static_cast<std::int64_t>(height);
    }

    /// All pixels and colours 0.
    static PlainImage made(std::size_t width, std::size_t height, std::size_t depth) {
        PlainImage image;
        image.width = width;
        image.height = height;
        image.depth = depth;
        image.stride = (width * depth + 31) / 32 * 4;
        image.bytes.assign(image.stride * height, 0);
        if (depth <= 8) {
            image.palette.resize(std::size_t{1} << depth);
        }
        return image;
    }

    /// All pixels 0, and the colours of this one as far as they reach.
    PlainImage like(std::size_t newWidth, std::size_t newHeight, std::size_t newDepth) const {
        PlainImage image = made(newWidth, newHeight, newDepth);
        std::copy_n(palette.begin(), std::min(palette.size(), image.palette.size()),
                    image.palette.begin());
        return image;
    }

    std::size_t placeOf(std::size_t x, std::size_t y) const { return y * stride + x * depth / 8; }
    /// Of how many places the pixel's lowest bit is to the left of its byte's lowest.
    std::size_t shiftOf(std::size_t x) const { return 8 - depth - x * depth % 8; }
    unsigned mask() const { return (1U << depth) - 1; }

    /// The index of a pixel inside; colours have none.
    std::uint8_t index(std::size_t x, std::size_t y) const {
        return depth > 8 ? std::uint8_t{0}
                         : static_cast<std::uint8_t>(unsigned{bytes[placeOf(x, y)]} >> shiftOf(x) &
                                                     mask());
    }

    void setIndex(std::int64_t column, std::int64_t row, std::uint8_t value) {
        if (depth > 8 || !contains(column, row)) {
            return;
        }
        const auto x = static_cast<std::size_t>(column);
        const auto y = static_cast<std::size_t>(row);
        unsigned byte = bytes[placeOf(x, y)];
        byte &= ~(mask() << shiftOf(x));
        byte |= (value & mask()) << shiftOf(x);
        bytes[placeOf(x, y)] = static_cast<std::uint8_t>(byte);
    }

    tagRGBQUAD colour(std::size_t x, std::size_t y) const {
        if (depth <= 8) {
            return palette[index(x, y)];
        }
        const std::uint8_t* pixel = &bytes[placeOf(x, y)];
        return {pixel[0], pixel[1], pixel[2], 0};
    }

    void setColour(std::size_t x, std::size_t y, tagRGBQUAD c) {
        if (depth <= 8) {
            setIndex(static_cast<std::int64_t>(x), static_cast<std::int64_t>(y), nearest(c, 0));
            return;
        }
        std::uint8_t* pixel = &bytes[placeOf(x, y)];
        pixel[0] = c.rgbBlue;
        pixel[1] = c.rgbGreen;
        pixel[2] = c.rgbRed;
    }

    /// The lowest of the nearest entries among the first `important`, 0 for all.
    std::uint8_t nearest(tagRGBQUAD c, std::size_t important) const {
        const auto square = [](int a, int b) { return (a - b) * (a - b); };
        const auto distance = [&](const tagRGBQUAD& entry) {
            return square(entry.rgbBlue, c.rgbBlue) + square(entry.rgbGreen, c.rgbGreen) +
                   square(entry.rgbRed, c.rgbRed);
        };
        const std::size_t count =
            important == 0 ? palette.size() : std::min(important, palette.size());
        std::size_t best = 0;
        for (std::size_t i = 0; i < count && distance(palette[best]) != 0; ++i) {
            best = distance(palette[i]) < distance(palette[best]) ? i : best;
        }
        return static_cast<std::uint8_t>(best);
    }

    void setGreyPalette() {
        for (std::size_t i = 0; i < palette.size(); ++i) {
            const auto level = static_cast<std::uint8_t>(i * (255 / (palette.size() - 1)));
            palette[i] = {level, level, level, palette[i].rgbReserved};
        }
    }

    /// Calls `action(x, y)` for every pixel.
    template <typename Action>
    void forEachPixel(Action action) const {
        for (std::size_t y = 0; y < height; ++y) {
            for (std::size_t x = 0; x < width; ++x) {
                action(x, y);
            }
        }
    }

    PlainImage dithered(long method) const {
        if (depth == 1) {
            return *this;
        }
        reference::Bytes levels;
        forEachPixel([&](std::size_t x, std::size_t y) { levels.push_back(index(x, y)); });
        const reference::Bytes values =
            reference::dither(method, width, height, levels, depth == 4 ? 15 : 255);
        PlainImage result = made(width, height, 1);
        result.palette[1] = {255, 255, 255, 0};
        result.fillIndices(values);
        return result;
    }

    void fillIndices(const reference::Bytes& values) {
        forEachPixel([&](std::size_t x, std::size_t y) {
            setIndex(static_cast<std::int64_t>(x), static_cast<std::int64_t>(y),
                     values[y * width + x]);
        });
    }

    void replaceIndices(const reference::ToneTable& table) {
        forEachPixel([&](std::size_t x, std::size_t y) {
            setIndex(static_cast<std::int64_t>(x), static_cast<std::int64_t>(y),
                     table[index(x, y)]);
        });
    }

    PlainImage rotated() const {
        PlainImage result = like(width, height, 8);
        forEachPixel([&](std::size_t x, std::size_t y) {
            result.setIndex(static_cast<std::int64_t>(width - 1 - x),
                            static_cast<std::int64_t>(height - 1 - y), index(x, y));
        });
        return result;
    }

    /// Bytes, not pixels, in the other order, at this image's distance of rows in both.
    PlainImage mirrored() const {
        PlainImage result = like(width, height, 8);
        const std::size_t count = depth == 24 ? (width - 1) * 3 + 1 : width;
        for (std::size_t y = 0; y < height; ++y) {
            for (std::size_t i = 0; i < count; ++i) {
                const std::size_t from = y * stride + i;
                const std::size_t to = y * stride + count - 1 - i;
                if (to < result.bytes.size()) {
                    result.bytes[to] = from < bytes.size() ? bytes[from] : std::uint8_t{0};
                }
            }
        }
        return result;
    }

    PlainImage deepened(std::size_t newDepth) const {
        PlainImage result = like(width, height, newDepth);
        forEachPixel([&](std::size_t x, std::size_t y) {
            if (newDepth == 24) {
                result.setColour(x, y, colour(x, y));
            } else {
                result.setIndex(static_cast<std::int64_t>(x), static_cast<std::int64_t>(y),
                                index(x, y));
            }
        });
        return result;
    }

    PlainImage centred(std::size_t newWidth) const {
        PlainImage result = like(newWidth, height, 8);
        const std::size_t offset = (newWidth - width) / 2;
        forEachPixel([&](std::size_t x, std::size_t y) {
            result.setIndex(static_cast<std::int64_t>(x + offset), static_cast<std::int64_t>(y),
                            index(x, y));
        });
        return result;
    }

    /// The padding of an 8-bit image gets the border's index as well.
    PlainImage expanded(std::size_t left, std::size_t top, std::size_t right, std::size_t bottom,
                        tagRGBQUAD canvas) const {
        PlainImage result = like(left + width + right, bottom + height + top, depth);
        if (depth == 8) {
            std::fill(result.bytes.begin(), result.bytes.end(), result.nearest(canvas, 0));
        }
        result.forEachPixel([&](std::size_t x, std::size_t y) { result.setColour(x, y, canvas); });
        forEachPixel([&](std::size_t x, std::size_t y) {
            if (depth == 24) {
                result.setColour(left + x, bottom + y, colour(x, y));
            } else {
                result.setIndex(static_cast<std::int64_t>(left + x),
                                static_cast<std::int64_t>(bottom + y), index(x, y));
            }
        });
        return result;
    }

    void drawLine(int startX, int endX, int startY, int endY, std::uint8_t value) {
        for (const reference::Point& point : reference::linePoints(startX, endX, startY, endY)) {
            setIndex(point.x, point.y, value);
        }
    }
};
