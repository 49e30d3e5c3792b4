// Packing of grey rows to one bit per pixel, a set bit for a byte other than 0.
#pragma once

#include <cstddef>
#include <string>

#include "tests/reference/grey_image.h"

namespace reference {

/// The packed bytes of `rows` grey rows of `bytesPerLine` bytes each, without the last
/// `skipRight` pixels of a row unless that leaves none. Rows follow each other without
/// padding; the leftmost pixel is the most significant bit; unused low bits are 0.
Bytes greyToMono(const Bytes& grey, std::size_t bytesPerLine, std::size_t rows,
                 std::size_t skipRight);

/// The trace line that the packing writes.
std::string greyToMonoLog(std::size_t bytesPerLine, std::size_t rows, std::size_t skipRight);

}  // namespace reference
