#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace tspl {

/// A picture of a file, as dots: rows of whole bytes, the first dot in the most significant bit; a
/// 1 bit burns.
struct PictureDots {
    std::int64_t width = 0;  ///< dots; what is behind them in a row's last byte does not burn
    std::int64_t height = 0;
    std::vector<std::uint8_t> bits;

    [[nodiscard]] std::size_t rowBytes() const { return static_cast<std::size_t>((width + 7) / 8); }
    [[nodiscard]] std::span<const std::uint8_t> row(std::int64_t y) const {
        return std::span(bits).subspan(static_cast<std::size_t>(y) * rowBytes(), rowBytes());
    }
};

/// Dots of a picture at most: as many as a large label has.
inline constexpr std::int64_t mostPictureDots = std::int64_t{1} << 28U;

/// Reads a BMP file of 1, 4, 8 or 24 bits a dot without compression. Dark dots burn. Nothing for
/// anything else, and for a file that ends early.
std::optional<PictureDots> readBmp(std::span<const std::uint8_t> file);

/// Reads a PCX file of 1 bit a dot in one plane, or of 8 bits with a palette at its end. Dark dots
/// burn. Nothing for anything else, and for a file that ends early.
std::optional<PictureDots> readPcx(std::span<const std::uint8_t> file);

}  // namespace tspl
