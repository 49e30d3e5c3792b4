#include "tests/reference/grey_to_mono.h"

#include "tests/reference/text.h"

namespace reference {

namespace {

std::size_t usedWidth(std::size_t bytesPerLine, std::size_t skipRight) {
    return skipRight < bytesPerLine ? bytesPerLine - skipRight : bytesPerLine;
}

}  // namespace

Bytes greyToMono(const Bytes& grey, std::size_t bytesPerLine, std::size_t rows,
                 std::size_t skipRight) {
    const std::size_t used = usedWidth(bytesPerLine, skipRight);
    const std::size_t packedWidth = (used + 7) / 8;
    Bytes packed(rows * packedWidth, 0);
    for (std::size_t y = 0; y < rows; ++y) {
        for (std::size_t x = 0; x < used; ++x) {
            std::uint8_t& byte = packed[y * packedWidth + x / 8];
            if (grey[y * bytesPerLine + x] != 0) {
                byte = static_cast<std::uint8_t>(byte | (0x80 >> (x % 8)));
            }
        }
    }
    return packed;
}

std::string greyToMonoLog(std::size_t bytesPerLine, std::size_t rows, std::size_t skipRight) {
    return debugLine(formatted("GrayToMono, bpl(%d), h(%d), skipPixels(%d), wb(%d)",
                               static_cast<int>(bytesPerLine), static_cast<int>(rows),
                               static_cast<int>(skipRight),
                               static_cast<int>(usedWidth(bytesPerLine, skipRight))));
}

}  // namespace reference
