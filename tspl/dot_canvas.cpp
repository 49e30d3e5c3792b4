#include "tspl/dot_canvas.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <utility>

namespace tspl {
namespace {

constexpr std::int64_t dotsPerByte = 8;

std::uint8_t maskOfDot(std::int64_t x) {
    return static_cast<std::uint8_t>(0x80U >> static_cast<unsigned>(x % dotsPerByte));
}

// The dots of byte number `byte` that lie from `x` to before `end`.
std::uint8_t maskInByte(std::int64_t byte, std::int64_t x, std::int64_t end) {
    const auto first = static_cast<unsigned>(std::max<std::int64_t>(x - byte * dotsPerByte, 0));
    const auto past = static_cast<unsigned>(std::min(end - byte * dotsPerByte, dotsPerByte));
    return static_cast<std::uint8_t>((0xFFU >> first) & ~(0xFFU >> past));
}

std::uint8_t combined(std::uint8_t old, std::uint8_t bits, std::uint8_t mask, DrawMode mode) {
    switch (mode) {
        case DrawMode::Or:
            return old | (bits & mask);
        case DrawMode::ExclusiveOr:
            return old ^ (bits & mask);
        case DrawMode::Overwrite:
            break;
    }
    return static_cast<std::uint8_t>((old & ~mask) | (bits & mask));
}

std::uint64_t product(std::int64_t width, std::int64_t height) {
    const auto w = static_cast<std::uint64_t>(std::max<std::int64_t>(width, 0));
    const auto h = static_cast<std::uint64_t>(std::max<std::int64_t>(height, 0));
    return w * h;
}

}  // namespace

DotCanvas::DotCanvas(std::int64_t width, std::int64_t height)
    : width_(width),
      height_(height),
      stride_(static_cast<std::size_t>((width + dotsPerByte - 1) / dotsPerByte)) {}

void Extent::add(const Extent& other) {
    left = std::min(left, other.left);
    top = std::min(top, other.top);
    right = std::max(right, other.right);
    bottom = std::max(bottom, other.bottom);
}

void DotCanvas::clear() {
    bytes_.clear();
    dotsOutside_ = 0;
}

void DotCanvas::fill(const Area& area) {
    reach(area);
    const Area inside = clipped(area);
    countOutside(product(area.width, area.height) - product(inside.width, inside.height));
    reachRow(inside.y + inside.height - 1);
    for (std::int64_t y = inside.y; y < inside.y + inside.height; ++y) {
        changeRow(inside.x, inside.x + inside.width, row(y),
                  [](std::uint8_t old, std::uint8_t mask) { return old | mask; });
    }
}

void DotCanvas::erase(const Area& area) {
    const Area inside = clipped(area);
    for (std::int64_t y = inside.y; y < std::min(inside.y + inside.height, rows()); ++y) {
        changeRow(inside.x, inside.x + inside.width, row(y),
                  [](std::uint8_t old, std::uint8_t mask) { return old & ~mask; });
    }
}

void DotCanvas::invert(const Area& area) {
    reach(area);
    const Area inside = clipped(area);
    reachRow(inside.y + inside.height - 1);
    for (std::int64_t y = inside.y; y < inside.y + inside.height; ++y) {
        changeRow(inside.x, inside.x + inside.width, row(y),
                  [](std::uint8_t old, std::uint8_t mask) { return old ^ mask; });
    }
}

void DotCanvas::drawBits(std::int64_t x, std::int64_t y, std::span<const std::uint8_t> bits,
                         DrawMode mode) {
    const bool rowInside = y >= 0 && y < height_;
    reachBits(x, y, bits);
    if (rowInside) {
        reachRow(y);
    }
    for (const std::uint8_t byte : bits) {
        if (rowInside) {
            drawByte(x, row(y), byte, mode);
        } else {
            countOutside(static_cast<unsigned>(std::popcount(byte)));
        }
        x += dotsPerByte;
    }
}

bool DotCanvas::burns(std::int64_t x, std::int64_t y) const {
    if (x < 0 || x >= width_ || y < 0 || y >= rows()) {
        return false;
    }
    const auto index = static_cast<std::size_t>(y) * stride_ + static_cast<std::size_t>(x / 8);
    return (bytes_[index] & maskOfDot(x)) != 0;
}

Area DotCanvas::burntArea() const {
    Area area;
    for (std::int64_t y = 0; y < rows(); ++y) {
        const auto row = std::span(bytes_).subspan(static_cast<std::size_t>(y) * stride_, stride_);
        const auto last =
            std::find_if(row.rbegin(), row.rend(), [](auto byte) { return byte != 0; });
        if (last != row.rend()) {
            const std::int64_t end = (row.rend() - last) * dotsPerByte - std::countr_zero(*last);
            area.width = std::max(area.width, end);
            area.height = y + 1;
        }
    }
    return area;
}

std::uint64_t DotCanvas::burntDots() const {
    return burntDots({0, 0, width_, height_});
}

std::uint64_t DotCanvas::burntDots(const Area& area) const {
    const Area inside = clipped(area);
    const std::int64_t end = inside.x + inside.width;
    std::uint64_t dots = 0;
    for (std::int64_t y = inside.y; y < std::min(inside.y + inside.height, rows()); ++y) {
        const std::uint8_t* bytes = bytes_.data() + static_cast<std::size_t>(y) * stride_;
        for (std::int64_t byte = inside.x / dotsPerByte; byte * dotsPerByte < end; ++byte) {
            const auto counted =
                static_cast<std::uint8_t>(bytes[byte] & maskInByte(byte, inside.x, end));
            dots += static_cast<unsigned>(std::popcount(counted));
        }
    }
    return dots;
}

void DotCanvas::reachRow(std::int64_t y) {
    if (y >= rows()) {
        bytes_.resize((static_cast<std::size_t>(y) + 1) * stride_);
    }
}

std::uint8_t* DotCanvas::row(std::int64_t y) {
    return bytes_.data() + static_cast<std::size_t>(y) * stride_;
}

std::int64_t DotCanvas::rows() const {
    return stride_ == 0 ? 0 : static_cast<std::int64_t>(bytes_.size() / stride_);
}

Area DotCanvas::clipped(const Area& area) const {
    const std::int64_t left = std::clamp<std::int64_t>(area.x, 0, width_);
    const std::int64_t top = std::clamp<std::int64_t>(area.y, 0, height_);
    const std::int64_t right = std::clamp<std::int64_t>(area.x + area.width, left, width_);
    const std::int64_t bottom = std::clamp<std::int64_t>(area.y + area.height, top, height_);
    if (left == right || top == bottom) {
        return {};
    }
    return {left, top, right - left, bottom - top};
}

template <class Change>
void DotCanvas::changeRow(std::int64_t x, std::int64_t end, std::uint8_t* row, Change change) {
    if (x >= end) {
        return;
    }
    const auto changeByte = [&](std::int64_t byte, std::uint8_t mask) {
        row[byte] = static_cast<std::uint8_t>(change(row[byte], mask));
    };
    const std::int64_t first = x / dotsPerByte;
    const std::int64_t last = (end - 1) / dotsPerByte;
    changeByte(first, maskInByte(first, x, end));
    for (std::int64_t byte = first + 1; byte < last; ++byte) {
        changeByte(byte, 0xFF);
    }
    if (last > first) {
        changeByte(last, maskInByte(last, x, end));
    }
}

void DotCanvas::drawByte(std::int64_t x, std::uint8_t* row, std::uint8_t bits, DrawMode mode) {
    const std::int64_t left = std::clamp<std::int64_t>(x, 0, width_);
    const std::int64_t right = std::clamp<std::int64_t>(x + dotsPerByte, left, width_);
    unsigned inside = 0;
    for (std::int64_t byte = left / dotsPerByte; left < right && byte * dotsPerByte < right;
         ++byte) {
        const std::uint8_t mask = maskInByte(byte, left, right);
        // Where the eight dots lie in this byte of the row: the one or the other half of 16 bits.
        const std::int64_t shift = x - byte * dotsPerByte;
        const auto moved = static_cast<std::uint8_t>(shift >= 0 ? std::uint32_t{bits} >> shift
                                                                : std::uint32_t{bits} << -shift);
        inside += static_cast<unsigned>(std::popcount(static_cast<std::uint8_t>(moved & mask)));
        row[byte] = combined(row[byte], moved, mask, mode);
    }
    countOutside(static_cast<unsigned>(std::popcount(bits)) - inside);
}

Extent DotCanvas::takeExtent() {
    return std::exchange(extent_, {});
}

void DotCanvas::reach(const Area& area) {
    if (area.width > 0 && area.height > 0) {
        extent_.add({area.x, area.y, area.x + area.width, area.y + area.height});
    }
}

void DotCanvas::reachBits(std::int64_t x, std::int64_t y, std::span<const std::uint8_t> bits) {
    const auto burns = [](std::uint8_t byte) { return byte != 0; };
    const auto first = std::find_if(bits.begin(), bits.end(), burns);
    if (first == bits.end()) {
        return;
    }
    const auto last = std::find_if(bits.rbegin(), bits.rend(), burns);
    const std::int64_t left = x + (first - bits.begin()) * dotsPerByte + std::countl_zero(*first);
    const std::int64_t right = x + (bits.rend() - last) * dotsPerByte - std::countr_zero(*last);
    reach({left, y, right - left, 1});
}

void DotCanvas::countOutside(std::uint64_t dots) {
    const std::uint64_t room = std::numeric_limits<std::uint64_t>::max() - dotsOutside_;
    dotsOutside_ += std::min(dots, room);
}

}  // namespace tspl
