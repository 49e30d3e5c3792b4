#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>

// The pieces of a dump in the BMP format, written to an open file one behind the other. Write
// errors are not looked at: a dump is a diagnostic.

/// Sizes that the header of a dump states, in pixels and bytes.
struct BmpLayout {
    bool grey;
    std::uint32_t width;
    std::uint32_t height;

    std::uint32_t rowSize() const;
    std::uint32_t imageSize() const;
    std::uint32_t dataOffset() const;
    std::uint64_t fileSize() const { return dataOffset() + std::uint64_t{rowSize()} * height; }
};

/// The file and information headers, 54 bytes.
void writeBmpHeader(std::FILE* file, const BmpLayout& layout);
/// The 256 entries of a grey ramp from black to white.
void writeGreyRamp(std::FILE* file);
/// The two entries black and white.
void writeBlackAndWhite(std::FILE* file);
/// The rows of a 1-bit picture from the last to the first, out of one byte per pixel, rows
/// `bytesPerLine` bytes apart. A zero byte becomes a 1 bit.
void writeMonoRows(std::FILE* file, const unsigned char* data, std::size_t bytesPerLine,
                   const BmpLayout& layout);
