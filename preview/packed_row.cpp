#include "preview/packed_row.h"

#include <algorithm>

namespace preview {

std::size_t packedBytes(const tspl::LabelPicture& picture) {
    return static_cast<std::size_t>((picture.width() + 7) / 8);
}

void packRow(const tspl::LabelPicture& picture, std::int64_t y, std::span<std::uint8_t> row) {
    std::fill(row.begin(), row.end(), std::uint8_t{0xFF});
    for (std::int64_t x = 0; x < picture.width(); ++x) {
        if (picture.burns(x, y)) {
            auto& byte = row[static_cast<std::size_t>(x / 8)];
            byte = static_cast<std::uint8_t>(byte & ~(0x80U >> static_cast<unsigned>(x % 8)));
        }
    }
}

}  // namespace preview
