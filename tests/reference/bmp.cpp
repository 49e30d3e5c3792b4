#include "tests/reference/bmp.h"

namespace reference {

namespace {

/// What differs between the headers of the two kinds of dump.
struct Layout {
    std::uint32_t width;
    std::uint32_t height;
    std::uint32_t rowSize;
    std::uint32_t pixelOffset;
    std::uint16_t bitsPerPixel;
    std::uint32_t colours;
};

std::uint32_t roundedToFour(std::uint32_t size) {
    return (size + 3) / 4 * 4;
}

void put16(Bytes& file, std::uint32_t value) {
    file.push_back(static_cast<std::uint8_t>(value % 256));
    file.push_back(static_cast<std::uint8_t>(value / 256 % 256));
}

void put32(Bytes& file, std::uint32_t value) {
    put16(file, value % 65536);
    put16(file, value / 65536);
}

void putFileHeader(Bytes& file, const Layout& layout) {
    file.push_back('B');
    file.push_back('M');
    put32(file, layout.pixelOffset + layout.rowSize * layout.height);
    put16(file, 0);
    put16(file, 0);
    put32(file, layout.pixelOffset);
}

void putInfoHeader(Bytes& file, const Layout& layout) {
    put32(file, 40);
    put32(file, layout.width);
    put32(file, layout.height);
    put16(file, 1);
    put16(file, layout.bitsPerPixel);
    put32(file, 0);
    put32(file, layout.rowSize * layout.height);
    put32(file, 0);
    put32(file, 0);
    put32(file, layout.colours);
    put32(file, layout.colours);
}

void putGreyEntry(Bytes& file, int level) {
    for (int channel = 0; channel < 3; ++channel) {
        file.push_back(static_cast<std::uint8_t>(level));
    }
    file.push_back(0);
}

Bytes monoRow(const Bytes& memory, std::size_t rowStart, std::uint32_t bytesPerLine,
              std::uint32_t rowSize) {
    Bytes row(rowSize, 0);
    const std::size_t padded = (bytesPerLine + std::size_t{7}) / 8 * 8;
    for (std::size_t x = 0; x < padded && x / 8 < rowSize; ++x) {
        // The unused low bits of the last byte read like bytes of value 0.
        if (x >= bytesPerLine || memory[rowStart + x] == 0) {
            row[x / 8] = static_cast<std::uint8_t>(row[x / 8] | (0x80 >> (x % 8)));
        }
    }
    return row;
}

}  // namespace

Bytes greyDump(const Bytes& memory, std::uint32_t width, std::uint32_t height) {
    const Layout layout{width, height, roundedToFour(width), 1078, 8, 256};
    Bytes file;
    putFileHeader(file, layout);
    putInfoHeader(file, layout);
    for (int level = 0; level < 256; ++level) {
        putGreyEntry(file, level);
    }
    for (std::size_t i = 0; i < std::size_t{width} * height; ++i) {
        file.push_back(memory[i]);
    }
    return file;
}

Bytes monoDump(const Bytes& memory, std::uint32_t bytesPerLine, std::uint32_t width,
               std::uint32_t height, int bitCount) {
    const Layout layout{width, height, roundedToFour((width + 7) / 8), 62, 1, 0};
    Bytes file;
    putFileHeader(file, layout);
    putInfoHeader(file, layout);
    if (bitCount == 1) {
        putGreyEntry(file, 0);
        putGreyEntry(file, 255);
    }
    for (std::size_t y = height; y > 0; --y) {
        const Bytes row = monoRow(memory, (y - 1) * bytesPerLine, bytesPerLine, layout.rowSize);
        file.insert(file.end(), row.begin(), row.end());
    }
    return file;
}

}  // namespace reference
