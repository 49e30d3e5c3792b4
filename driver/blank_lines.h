#pragma once

#include <cstddef>

// Blank rows of an 8-bit page in which 0 is blank: `height` rows, `stride` bytes apart. The
// first `width` - `skipRight` bytes of a row are examined, all `width` of them when the skip
// is larger than the row.

/// The first i for which row i + 1 holds content, else `height`. Row 0 is not looked at and
/// the row past the image counts as blank.
std::size_t kestoImageCountBlankLinesFromFront(const unsigned char* image, std::size_t width,
                                               std::size_t height, std::size_t skipRight,
                                               std::size_t stride);

/// The number of rows down to and including the last one with content; 0 for a blank page.
std::size_t kestoImageCountBlankLinesFromBack(const unsigned char* image, std::size_t width,
                                              std::size_t height, std::size_t skipRight,
                                              std::size_t stride);
