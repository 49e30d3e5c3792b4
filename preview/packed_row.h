#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "tspl/label_picture.h"

namespace preview {

/// Bytes of a row of a label.
std::size_t packedBytes(const tspl::LabelPicture& picture);

/// Packs a row of a label, 8 dots to a byte with the leftmost one in the highest bit: 0 for a burnt
/// dot, 1 for paper and behind the last dot. `row` has packedBytes().
void packRow(const tspl::LabelPicture& picture, std::int64_t y, std::span<std::uint8_t> row);

}  // namespace preview
