#include "driver/bmp_file.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <span>

#include "image/malloc_buffer.h"

namespace {

constexpr std::uint32_t headerBytes = 54;
constexpr std::uint32_t greyColours = 256;
constexpr std::uint32_t monoColours = 2;

/// Assembles little-endian fields one behind the other.
class HeaderWriter {
public:
    void put16(std::uint32_t value) { put(value, 2); }
    void put32(std::uint32_t value) { put(value, 4); }
    const std::array<std::uint8_t, headerBytes>& bytes() const { return bytes_; }

private:
    void put(std::uint32_t value, int count) {
        for (int i = 0; i < count; ++i) {
            bytes_[size_++] = static_cast<std::uint8_t>(value >> (8 * i));
        }
    }

    std::array<std::uint8_t, headerBytes> bytes_{};
    std::size_t size_ = 0;
};

std::array<std::uint8_t, headerBytes> makeHeader(const BmpLayout& layout) {
    const std::uint32_t colours = layout.grey ? greyColours : 0;
    HeaderWriter header;
    header.put16(0x4D42);  // "BM"
    header.put32(layout.dataOffset() + layout.imageSize());
    header.put16(0);
    header.put16(0);
    header.put32(layout.dataOffset());
    header.put32(40);
    header.put32(layout.width);
    header.put32(layout.height);
    header.put16(1);
    header.put16(layout.grey ? 8 : 1);
    header.put32(0);
    header.put32(layout.imageSize());
    header.put32(0);
    header.put32(0);
    header.put32(colours);
    header.put32(colours);
    return header.bytes();
}

// `bytesPerLine` pixels are packed, whatever the picture's width:
// what has no place in the row is dropped.
void packRow(const unsigned char* pixels, std::size_t bytesPerLine, std::span<unsigned char> row) {
    const auto store = [row](std::size_t at, unsigned packed) {
        if (at < row.size()) {
            row[at] = static_cast<unsigned char>(packed);
        }
    };
    std::fill(row.begin(), row.end(), static_cast<unsigned char>(0));
    unsigned packed = 0;
    for (std::size_t x = 0; x < bytesPerLine; ++x) {
        packed |= pixels[x] == 0 ? 0x80U >> (x % 8) : 0;
        if (x % 8 == 7) {
            store(x / 8, packed);
            packed = 0;
        }
    }
    if (bytesPerLine % 8 != 0) {
        store(bytesPerLine / 8, packed | 0xFFU >> (bytesPerLine % 8));
    }
}

}  // namespace

std::uint32_t BmpLayout::rowSize() const {
    const std::uint32_t used = grey ? width : (width + 7) / 8;
    return (used + 3) / 4 * 4;
}

std::uint32_t BmpLayout::imageSize() const {
    return rowSize() * height;
}

std::uint32_t BmpLayout::dataOffset() const {
    return headerBytes + 4 * (grey ? greyColours : monoColours);
}

void writeBmpHeader(std::FILE* file, const BmpLayout& layout) {
    const auto header = makeHeader(layout);
    std::fwrite(header.data(), header.size(), 1, file);
}

void writeGreyRamp(std::FILE* file) {
    for (unsigned i = 0; i < greyColours; ++i) {
        const auto level = static_cast<std::uint8_t>(i);
        const std::uint8_t entry[4] = {level, level, level, 0};
        std::fwrite(entry, sizeof entry, 1, file);
    }
}

void writeBlackAndWhite(std::FILE* file) {
    constexpr std::uint8_t entries[8] = {0, 0, 0, 0, 255, 255, 255, 0};
    std::fwrite(entries, sizeof entries, 1, file);
}

void writeMonoRows(std::FILE* file, const unsigned char* data, std::size_t bytesPerLine,
                   const BmpLayout& layout) {
    const std::size_t rowSize = layout.rowSize();
    const MallocBuffer row(static_cast<unsigned char*>(std::malloc(rowSize)));
    for (std::size_t y = row ? layout.height : 0; y > 0; --y) {
        packRow(data + (y - 1) * bytesPerLine, bytesPerLine, {row.get(), rowSize});
        std::fwrite(row.get(), rowSize, 1, file);
    }
}
