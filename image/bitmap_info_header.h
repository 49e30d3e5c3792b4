#pragma once

#include <cstdint>

/// The 40-byte information header of the device-independent bitmap format. Sizes are in
/// pixels and bytes, resolutions in pixels per metre.
struct BitmapInfoHeader {
    std::uint32_t biSize = 0;
    std::int32_t biWidth = 0;
    std::int32_t biHeight = 0;
    std::uint16_t biPlanes = 0;
    std::uint16_t biBitCount = 0;
    std::uint32_t biCompression = 0;
    std::uint32_t biSizeImage = 0;
    std::int32_t biXPelsPerMeter = 0;
    std::int32_t biYPelsPerMeter = 0;
    std::uint32_t biClrUsed = 0;
    std::uint32_t biClrImportant = 0;
};

static_assert(sizeof(BitmapInfoHeader) == 40, "the header is copied as it lies in memory");
