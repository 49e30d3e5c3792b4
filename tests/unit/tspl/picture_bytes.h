// Picture files by hand.
#pragma once

#include <cstdint>
#include <string>

#include "tests/unit/tspl/test_support.h"
#include "tspl/picture_file.h"

namespace tspl {

/// Numbers of two and four bytes, low byte first.
inline std::string word(unsigned number) {
    return {static_cast<char>(number), static_cast<char>(number >> 8U)};
}
inline std::string longWord(unsigned number) {
    return word(number & 0xFFFFU) + word(number >> 16U);
}

/// A BMP file of an uncompressed picture.
inline std::string bmpOf(int width, int height, unsigned bits, const std::string& palette,
                         const std::string& dots) {
    const auto start = static_cast<unsigned>(54 + palette.size());
    return "BM" + longWord(start + static_cast<unsigned>(dots.size())) + longWord(0) +
           longWord(start) + longWord(40) + longWord(static_cast<unsigned>(width)) +
           longWord(static_cast<unsigned>(height)) + word(1) + word(bits) + longWord(0) +
           longWord(0) + longWord(0) + longWord(0) + longWord(0) + longWord(0) + palette + dots;
}

/// A PCX file; `runs` are its rows of `rowBytes` bytes.
inline std::string pcxOf(unsigned width, unsigned height, unsigned bits, unsigned rowBytes,
                         const std::string& runs) {
    std::string head = {10, 5, 1, static_cast<char>(bits)};
    head += word(0) + word(0) + word(width - 1) + word(height - 1);
    head.resize(65);
    head += '\1' + word(rowBytes);
    head.resize(128);
    return head + runs;
}

/// The picture's dots, a text for each row; none where it could not be read.
inline Texts rowsOf(const std::optional<PictureDots>& picture) {
    Texts rows;
    for (std::int64_t y = 0; picture && y < picture->height; ++y) {
        std::string row;
        for (std::int64_t x = 0; x < 8 * static_cast<std::int64_t>(picture->rowBytes()); ++x) {
            const unsigned byte = picture->row(y)[static_cast<std::size_t>(x / 8)];
            row += (byte << (x % 8) & 0x80U) != 0 ? '#' : '.';
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

}  // namespace tspl
