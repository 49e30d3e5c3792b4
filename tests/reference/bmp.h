// The files that the image dumps write.
#pragma once

#include <cstdint>

#include "tests/reference/grey_image.h"

namespace reference {

/// The 8-bit dump of an image of `height` rows × `width` columns that begins at the front of
/// `memory`: header, grey palette and the first width × height bytes as they lie in memory,
/// whatever the distance of the rows.
Bytes greyDump(const Bytes& memory, std::uint32_t width, std::uint32_t height);

/// The dump of any other bit count, from rows `bytesPerLine` bytes apart: 1 bit per pixel, a
/// set bit for a byte 0, last row first. All `bytesPerLine` bytes of a row are packed, as
/// far as the file's row of `width` pixels has room. Only bit count 1 brings a palette.
Bytes monoDump(const Bytes& memory, std::uint32_t bytesPerLine, std::uint32_t width,
               std::uint32_t height, int bitCount = 1);

}  // namespace reference
